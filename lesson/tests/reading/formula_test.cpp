#include "lesson/reading/formula.hpp"
#include "lesson/reading/formula_spelling.hpp"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "lesson/chemistry/elements.hpp"
#include "lesson/reading/typed.hpp"

namespace lesson
{

namespace
{

TypedFormula typedFormula(const std::string& typed)
{
    return readFormula(plainTyped(typed));
}

std::map<std::string, int> countsIn(const Atoms& atoms)
{
    std::map<std::string, int> counts;
    for (const AtomCount& atom : atoms) {
        counts[std::string(element(atom.element).symbol)] += atom.count;
    }
    return counts;
}

TEST(TypedFormulaTest, EverySpellingOfAFormulaIsReadAsOne)
{
    struct Row {
        const char* typed;
        const char* text;
    };
    const Row rows[] = {
        {"H2O", "H2O"},
        {"H_2O", "H2O"},
        {"H_{2}O", "H2O"},
        {"H{2}O", "H2O"},
        {"H₂O", "H2O"},
        {" H 2 O ", "H2O"},
        {"H2O1", "H2O"},
        {"H2O.", "H2O"},
        {"Na Cl", "NaCl"},
        {"N a Cl", "unread"},
        {"Ca(OH)2", "Ca(OH)2"},
        {"Ca [OH]_2", "Ca(OH)2"},
        {"Ca ( O H ) 2", "Ca(OH)2"},
        {"Al₂(SO₄)₃", "Al2(SO4)3"},
        {"Al_{2} (SO_{4})_{3}", "Al2(SO4)3"},
        {"(Na)2SO4", "(Na)2SO4"},
        {"K3[Fe(CN)6]", "K3(Fe(CN)6)"},
        {"CuSO4.5H2O", "CuSO4.5H2O"},
        {"CuSO4·5H2O", "CuSO4.5H2O"},
        {"CuSO₄•5H₂O", "CuSO4.5H2O"},
        {"CuSO4 * 5 H2O", "CuSO4.5H2O"},
        {"CuSO4×5H2O", "CuSO4.5H2O"},
        {"2NaCl", "2NaCl"},
        {"C6H12O6", "C6H12O6"},
        {"C60", "C60"},
        {"CO", "CO"},
        {"Co", "Co"},
        {"CH3COOH", "CH3COOH"},
        {"Og", "Og"},
    };
    for (const Row& row : rows) {
        const TypedFormula typed = typedFormula(row.typed);
        EXPECT_EQ(typed.isRead ? typed.text : "unread", row.text) << row.typed;
        EXPECT_FALSE(typed.hasCharge || typed.hasRaisedNumber) << row.typed;
    }
}

TEST(TypedFormulaTest, AtomsAreCountedThroughBracketsAndDots)
{
    struct Row {
        const char* typed;
        std::map<std::string, int> counts;
    };
    const Row rows[] = {
        {"NaCl", {{"Na", 1}, {"Cl", 1}}},
        {"CH3COOH", {{"C", 2}, {"H", 4}, {"O", 2}}},
        {"Al2(SO4)3", {{"Al", 2}, {"S", 3}, {"O", 12}}},
        {"Ca(CH3COO)2", {{"Ca", 1}, {"C", 4}, {"H", 6}, {"O", 4}}},
        {"CuSO4.5H2O", {{"Cu", 1}, {"S", 1}, {"O", 9}, {"H", 10}}},
        {"((OH)2)3(H)12", {{"O", 6}, {"H", 18}}},
        {"2Na2SO4.10H2O", {{"Na", 4}, {"S", 2}, {"O", 18}, {"H", 20}}},
        {"K4[Fe(CN)6]", {{"K", 4}, {"Fe", 1}, {"C", 6}, {"N", 6}}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(countsIn(typedFormula(row.typed).atoms), row.counts) << row.typed;
    }
}

TEST(TypedFormulaTest, BracketsThatChangeNothingAreTold)
{
    struct Row {
        const char* typed;
        const char* simplest;
    };
    const Row rows[] = {
        {"Na(OH)", "NaOH"},       {"(Na)2SO4", "Na2SO4"},   {"(Na2)(SO4)", "Na2SO4"},
        {"Mg((OH)2)", "Mg(OH)2"}, {"Mg((OH))2", "Mg(OH)2"}, {"(Mg)(OH)2", "Mg(OH)2"},
        {"(Mg(OH)2)", "Mg(OH)2"}, {"Mg(OH2)", "MgOH2"},     {"(MgOH)2", "(MgOH)2"},
        {"Ca(OH)2", "Ca(OH)2"},   {"(Na2)3", "(Na2)3"},     {"[Na]2[SO4]", "Na2SO4"},
        {"((((Na))))2", "Na2"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(typedFormula(row.typed).simplest, row.simplest) << row.typed;
    }
}

TEST(TypedFormulaTest, StateSymbolsStandAtTheEnd)
{
    struct Row {
        const char* typed;
        const char* text;
        const char* state;
    };
    const Row rows[] = {
        {"NaCl(s)", "NaCl", "s"},       {"NaCl (aq)", "NaCl", "aq"}, {"NaCl(AQ).", "NaCl", "aq"},
        {"H2O(l)", "H2O", "l"},         {"CO2 (g)", "CO2", "g"},     {"AgCl↓", "AgCl", "s"},
        {"CO2 ↑", "CO2", "g"},          {"Na2(S)", "Na2(S)", ""},    {"Ca(OH)2(s)", "Ca(OH)2", "s"},
        {"Ca(OH)₂₍s₎", "Ca(OH)2", "s"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(typedFormula(row.typed).text, row.text) << row.typed;
        EXPECT_EQ(typedFormula(row.typed).state, row.state) << row.typed;
    }
}

TEST(TypedFormulaTest, ChargesAreToldApartFromSubscripts)
{
    for (const char* const typed :
         {"Na+Cl-", "Na^+Cl^-", "Na⁺Cl⁻", "Ca^{2+}Cl^-2", "Ca2+(OH-)2", "Al3+2(SO42-)3",
          "Al2^3+(SO4^{2-})3", "Na^(+)Cl^(-)", "NaCl-", "SO4^2", "Mg++O--", "NaCl + "}) {
        const TypedFormula read = typedFormula(typed);
        EXPECT_TRUE(read.isRead) << typed;
        EXPECT_TRUE(read.hasCharge) << typed;
    }
    for (const char* const typed : {"H^2O", "H²O", "H^{2}O"}) {
        const TypedFormula read = typedFormula(typed);
        EXPECT_EQ(read.text, "H2O") << typed;
        EXPECT_TRUE(read.hasRaisedNumber) << typed;
        EXPECT_FALSE(read.hasCharge) << typed;
    }
    EXPECT_EQ(typedFormula("Ca^2+Cl^-").text, "CaCl");
    EXPECT_EQ(typedFormula("Ca^{2+}(OH^-)2").text, "Ca(OH)2");
}

TEST(TypedFormulaTest, ThePartThatCannotBeReadIsTold)
{
    struct Row {
        const char* typed;
        const char* unread;
    };
    const Row rows[] = {
        {"", ""},
        {"  ", ""},
        {"nacl", "nacl"},
        {"NaXy2", "Xy"},
        {"J2O", "J2O"},
        {"NaCl2 3", "3"},
        {"Ca(OH", "(OH"},
        {"Ca(OH(", "("},
        {"CaOH)2", ")2"},
        {"Ca(OH]2", "]2"},
        {"Ca()2", ")2"},
        {"Ca(O?)2", "?)2"},
        {"Na0H", "0H"},
        {"Na02", "02"},
        {"H_O", "O"},
        {"H_{2O", "O"},
        {"H^O", "O"},
        {"NaCl..H2O", ".H2O"},
        {".NaCl", ".NaCl"},
        {"Ca(O.H)2", ".H)2"},
        {"2", "2"},
        {"(s)", "(s)"},
        {"salt", "salt"},
        {"Na\x80", "\x80"},
        {"H1000000", "1000000"},
        {"H99999999999999999999", "99999999999999999999"},
        {"(((H999999)999999)999999)999999", "(((H999999)999999)999999)999999"},
    };
    for (const Row& row : rows) {
        const TypedFormula typed = typedFormula(row.typed);
        EXPECT_FALSE(typed.isRead) << row.typed;
        EXPECT_EQ(typed.unread, row.unread) << row.typed;
        EXPECT_EQ(typed.text + typed.simplest, "") << row.typed;
        EXPECT_TRUE(typed.atoms.empty()) << row.typed;
    }
}

TEST(TypedFormulaTest, LongAndDeepTextsAreReadToTheirEnd)
{
    const auto repeated = [](const std::string& text, int times) {
        std::string all;
        for (int i = 0; i < times; ++i) {
            all += text;
        }
        return all;
    };
    const std::string deep = repeated("(", 300000) + "H" + repeated(")", 300000);
    EXPECT_EQ(typedFormula(deep).simplest, "H");
    EXPECT_EQ(typedFormula(deep).text, deep);
    EXPECT_EQ(typedFormula(repeated("(", 10000)).unread, "(");
    EXPECT_EQ(typedFormula(repeated("(", 10000) + "H").unread, "(H");
    EXPECT_EQ(typedFormula(repeated("[(", 10000) + "H2").unread, "(H2");
    EXPECT_FALSE(typedFormula(repeated("(", 10000) + "H" + repeated(")9", 10000)).isRead);
    EXPECT_EQ(typedFormula(repeated("H2O", 300000)).atoms, (Atoms{{1, 600000}, {8, 300000}}));
    EXPECT_TRUE(typedFormula(repeated("Na+", 300000)).hasCharge);
    EXPECT_FALSE(typedFormula(repeated("^", 1000000)).isRead);
    EXPECT_EQ(typedFormula("H" + repeated(" ", 1000000) + "2").text, "H2");
    EXPECT_EQ(typedFormula("H" + repeated("9", 1000000)).unread, repeated("9", 1000000));
}

TEST(TypedFormulaTest, EveryElementIsReadAndNothingElse)
{
    int symbols = 0;
    for (char large = 'A'; large <= 'Z'; ++large) {
        for (char small = 'a'; small <= 'z'; ++small) {
            const std::string symbol = {large, small};
            symbols += typedFormula(symbol).isRead ? 1 : 0;
        }
        symbols += typedFormula(std::string(1, large)).isRead ? 1 : 0;
    }
    EXPECT_EQ(symbols, 118);
}

TEST(TypedFormulaTest, AbbreviatedGroupsAreWrittenOut)
{
    struct Row {
        const char* typed;
        const char* text;
    };
    const Row rows[] = {
        {"NaOAc", "NaCH3COO"},    {"Ca(OAc)2", "Ca(CH3COO)2"},
        {"AcOH", "CH3COOH"},      {"HOAc", "HCH3COO"},
        {"HAc", "HCH3COO"},       {"MeCOO-", "CH3COO-"},
        {"OAc", "CH3COO"},        {"Acetate", "Acetate"},
        {"Mercury", "Mercury"},   {"AcOs", "CH3COOOs"},
        {"NaCl", "NaCl"},         {"", ""},
        {"CaAc2", "Ca(CH3COO)2"}, {"Ac_2Ca", "(CH3COO)_2Ca"},
        {"CaOAc2", "CaCH3COO2"},  {"NaAc", "NaCH3COO"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(spelledOut(row.typed), row.text) << row.typed;
    }
}

TEST(TypedFormulaTest, WithoutCapitalsSpellingsAreCompared)
{
    struct Row {
        const char* typed;
        const char* other;
        bool areSame;
    };
    const Row rows[] = {
        {"NACL", "NaCl", true},
        {"nacl", "NaCl", true},
        {"CO", "Co", true},
        {"al_2[so4]3", "Al2(SO4)3", true},
        {"AL2 (SO4)_{3} (S)", "Al2(SO4)3", true},
        {"cuso4*5h2o", "CuSO4.5H2O", true},
        {"caoh2", "Ca(OH)2", false},
        {"na2o", "NaO2", false},
        {"", "NaCl", false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(withoutCapitals(plainTyped(row.typed)) == withoutCapitals(row.other), row.areSame)
            << row.typed;
    }
}

} // namespace

} // namespace lesson
