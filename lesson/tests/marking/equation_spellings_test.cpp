#include "lesson/marking/equation.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "lesson/chemistry/neutralisation.hpp"
#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

using Texts = std::vector<std::string>;

const Texts ethanoates = {"CH3COO", "CH3CO2", "C2H3O2", "H3CCOO", "OOCCH3", "O2CCH3"};

Texts wordsOf(const std::string& text)
{
    std::istringstream stream(text);
    Texts words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

// The spellings of what is made of molecules, which boards and books have.
Texts moleculesLike(const std::string& formula)
{
    const struct {
        const char* formula;
        const char* spellings;
    } rows[] = {
        {"HCl", "HCl H(Cl) ClH"},
        {"HBr", "HBr BrH"},
        {"HNO3", "HNO3 H(NO3) HONO2 NO3H"},
        {"H2SO4", "H2SO4 H2(SO4) (HO)2SO2 SO2(OH)2 [H]2SO4"},
        {"H3PO4", "H3PO4 H3(PO4) PO(OH)3 (HO)3PO"},
        {"CH3COOH", "CH3COOH CH3CO2H HC2H3O2 C2H4O2 HCH3COO HCH3CO2 CH3(COOH) H(CH3COO) "
                    "(CH3)COOH CH3-COOH HOOCCH3 HO2CCH3 H3CCOOH CH3C(O)OH HOAc AcOH HAc MeCOOH "
                    "MeCO2H"},
        {"NH3", "NH3 H3N (NH3)"},
        {"H2O", "H2O HOH OH2 H(OH)"},
        {"CO2", "CO2 O2C (CO2)"},
    };
    for (const auto& row : rows) {
        if (row.formula == formula) {
            return wordsOf(row.spellings);
        }
    }
    return {};
}

std::string times(const std::string& ion, int count, bool hasBracket)
{
    const std::string number = count == 1 ? "" : std::to_string(count);
    return (hasBracket ? "(" + ion + ")" : ion) + number;
}

// Ion after ion in both orders, each in brackets where that changes nothing.
Texts compoundsLike(const IonRow& cation, const IonRow& anion)
{
    Texts anions = {std::string(anion.formula)};
    anions = anions[0] == "CH3COO" ? ethanoates : anions[0] == "OH" ? Texts{"OH", "HO"} : anions;
    const int positive = cationsIn(cation, anion);
    const int negative = anionsIn(cation, anion);
    Texts all;
    for (const std::string& ion : anions) {
        for (const bool hasBracket : {false, true}) {
            const std::string first =
                times(std::string(cation.formula), positive,
                      hasBracket || (cation.formula == "NH4" && positive > 1));
            const bool isGroup =
                ion.find_first_of("0123456789") != std::string::npos || ion == "OH" || ion == "HO";
            const std::string second =
                times(ion, negative, hasBracket || (isGroup && negative > 1));
            all.push_back(first + second);
            all.push_back(second + first);
        }
    }
    return all;
}

// With one species in each of its other spellings, the rest as the tables have them.
void forEverySpelling(const EquationAnswer& answer, const std::function<void(std::string)>& check)
{
    const Equation right = neutralisationOf(*answer.acid, answer.base);
    for (const bool isOnTheLeft : {true, false}) {
        const auto& side = isOnTheLeft ? right.left : right.right;
        for (std::size_t i = 0; i < side.size(); ++i) {
            const bool isSalt = !isOnTheLeft && i == 0;
            const bool isIonicBase = isOnTheLeft && i == 1 && answer.base.anion != nullptr;
            const Texts others = isSalt ? compoundsLike(*answer.base.cation, anionOf(*answer.acid))
                                 : isIonicBase
                                     ? compoundsLike(*answer.base.cation, *answer.base.anion)
                                     : moleculesLike(side[i].second);
            EXPECT_FALSE(others.empty()) << side[i].second;
            for (const std::string& other : others) {
                Equation typed = right;
                (isOnTheLeft ? typed.left : typed.right)[i].second = other;
                check(textOf(typed));
            }
        }
    }
}

TEST(EquationSpellingsTest, EverySpellingOfEverySubstanceIsRight)
{
    const Texts cations =
        wordsOf("lithium sodium potassium ammonium silver magnesium calcium barium manganese(II) "
                "iron(II) cobalt(II) nickel(II) copper(II) zinc lead(II) aluminium chromium(III) "
                "iron(III)");
    for (const char* const acid : {"HCl", "HBr", "HNO3", "H2SO4", "H3PO4", "CH3COOH"}) {
        std::vector<Base> bases = {ammonia()};
        for (const std::string& cation : cations) {
            for (const char* const anion :
                 {"hydroxide", "oxide", "carbonate", "hydrogencarbonate"}) {
                const bool isAmmonium = cation == "ammonium";
                if (!isAmmonium || std::string(anion) == "carbonate") {
                    bases.push_back({findIon(cation), findIon(anion)});
                }
            }
        }
        for (const Base& base : bases) {
            const EquationAnswer answer = {findAcid(acid), base};
            forEverySpelling(answer, [&answer](const std::string& typed) {
                const Mark mark = markEquation(answer, typed);
                EXPECT_EQ(mark.verdict, Verdict::correct) << typed << ": " << plain(mark.sentence);
            });
        }
    }
}

TEST(EquationSpellingsTest, SpellingsOfSalts)
{
    const struct {
        const char* acid;
        const char* cation;
        const char* anion;
        const char* typed;
    } rows[] = {
        {"CH3COOH", "calcium", "hydroxide", "2CH3COOH + Ca(OH)2 -> C4H6CaO4 + 2H2O"},
        {"CH3COOH", "sodium", "hydroxide", "CH3COOH + NaOH -> C2H3NaO2 + H2O"},
        {"CH3COOH", "sodium", "hydroxide", "CH3COOH + NaOH -> C2H3O2Na + H2O"},
        {"CH3COOH", "sodium", "hydroxide", "CH3COOH + NaOH -> CH3C(O)ONa + H2O"},
        {"H2SO4", "aluminium", "oxide", "3H2SO4 + O3Al2 -> (SO4)3Al2 + 3H2O"},
        {"H2SO4", "ammonium", "carbonate", "H2SO4 + (NH4)2CO3 -> SO4(NH4)2 + H2O + CO2"},
    };
    for (const auto& row : rows) {
        const EquationAnswer answer = {findAcid(row.acid),
                                       {findIon(row.cation), findIon(row.anion)}};
        const Mark mark = markEquation(answer, row.typed);
        EXPECT_EQ(mark.verdict, Verdict::correct) << row.typed << ": " << plain(mark.sentence);
    }
}

struct Disorder {
    EquationAnswer answer;
    const char* before;
    const char* formula;
    const char* behind;
    const char* sentence; // behind the formula
};

TEST(EquationSpellingsTest, TheRightAtomsInDisorder)
{
    constexpr const char* ions =
        " has the right atoms. Write ion after ion, the positive one first.";
    constexpr const char* once =
        " has the right atoms. Write each kind of ion once, its number behind it.";
    constexpr const char* acid = " has the right atoms, but the acid is written in another way.";
    constexpr const char* molecule =
        " has the right atoms, but that molecule is written in another way.";
    const EquationAnswer salAmmoniac = {findAcid("HCl"), ammonia()};
    const EquationAnswer saltpetre = {findAcid("HNO3"), ammonia()};
    const EquationAnswer fertiliser = {findAcid("H2SO4"), ammonia()};
    const EquationAnswer lime = {findAcid("HCl"), {findIon("calcium"), findIon("hydroxide")}};
    const EquationAnswer lye = {findAcid("H2SO4"), {findIon("sodium"), findIon("hydroxide")}};
    const EquationAnswer milk = {findAcid("CH3COOH"), {findIon("magnesium"), findIon("hydroxide")}};
    const Disorder rows[] = {
        {fertiliser, "2NH3 + H2SO4 -> ", "(NH3)2H2SO4", "", ions},
        {salAmmoniac, "HCl + NH3 -> ", "NH3HCl", "", ions},
        {salAmmoniac, "HCl + NH3 -> ", "NH3.HCl", "", ions},
        {saltpetre, "HNO3 + NH3 -> ", "NH3HNO3", "", ions},
        {saltpetre, "HNO3 + NH3 -> ", "N2H4O3", "", ions},
        {milk, "2", "HCOOCH3", " + Mg(OH)2 -> Mg(CH3COO)2 + 2H2O", acid},
        {milk, "2", "HOCH2CHO", " + Mg(OH)2 -> Mg(CH3COO)2 + 2H2O", acid},
        {milk, "2CH3COOH + Mg(OH)2 -> ", "Mg(OCH2CHO)2", " + 2H2O", ions},
        {lime, "2HCl + ", "CaO.H2O", " -> CaCl2 + 2H2O", ions},
        {lime, "2HCl + ", "CaOH2O", " -> CaCl2 + 2H2O", ions},
        {lime, "2HCl + Ca(OH)2 -> ", "ClCaCl", " + 2H2O", once},
        {lime, "2HCl + ", "Ca(OH)(OH)", " -> CaCl2 + 2H2O", once},
        {lime, "2HCl + Ca(OH)2 -> CaCl2 + 2", "HHO", "", molecule},
        {lye, "H2SO4 + 2NaOH -> ", "Na2O.SO3", " + 2H2O", ions},
        {lye, "H2SO4 + 2NaOH -> ", "NaNaSO4", " + 2H2O", once},
        {lye, "", "SO3.H2O", " + 2NaOH -> Na2SO4 + 2H2O", acid},
        // Told before what is not balanced.
        {lye, "H2SO4 + NaOH -> ", "Na2O.SO3", " + 2H2O", ions},
    };
    for (const Disorder& row : rows) {
        const std::string typed = std::string(row.before) + row.formula + row.behind;
        const Mark mark = markEquation(row.answer, typed);
        EXPECT_EQ(mark.verdict, Verdict::slip) << typed;
        EXPECT_EQ(plain(mark.sentence), std::string(row.formula) + row.sentence) << typed;
    }
}

} // namespace

} // namespace lesson
