#include "lesson/marking/ion.hpp"

#include <gtest/gtest.h>

#include <cctype>
#include <cstdlib>
#include <string>
#include <variant>
#include <vector>

#include "lesson/chemistry/ions.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

std::vector<const IonRow*> allIons()
{
    std::vector<const IonRow*> all;
    for (const auto* const list : {&cations(), &anions(), &furtherIons()}) {
        all.insert(all.end(), list->begin(), list->end());
    }
    return all;
}

Mark markFor(const char* ion, const std::string& typed)
{
    return markIon({findIon(ion)}, {}, typed);
}

std::string withDigits(const std::string& text, const std::string& before,
                       const std::string& behind)
{
    std::string spelled;
    for (const char c : text) {
        const bool isDigit = c >= '0' && c <= '9';
        spelled += isDigit ? before + c + behind : std::string(1, c);
    }
    return spelled;
}

std::string withSubscripts(const std::string& text)
{
    std::string spelled;
    for (const char c : text) {
        spelled += c >= '0' && c <= '9' ? std::string("\xE2\x82") + static_cast<char>(c + 0x50)
                                        : std::string(1, c);
    }
    return spelled;
}

std::string superscript(int size)
{
    const char* const digits[] = {"", "\u00B9", "\u00B2", "\u00B3"};
    return digits[size];
}

std::string superscript(int size, bool isNegative)
{
    return superscript(size) + (isNegative ? "\u207B" : "\u207A");
}

// Everything behind the formula that tells the charge.
std::vector<std::string> chargesTyped(const IonRow& ion)
{
    const int size = std::abs(ion.charge);
    const bool isNegative = ion.charge < 0;
    const std::string number = std::to_string(size);
    std::vector<std::string> charges;
    for (const std::string& sign :
         {std::string(isNegative ? "-" : "+"), std::string(isNegative ? "\u2212" : "+"),
          std::string(isNegative ? "\u2013" : "\uFF0B")}) {
        std::string repeated;
        for (int i = 0; i < size; ++i) {
            repeated += sign;
        }
        std::vector<std::string> texts = {number + sign, sign + number, repeated};
        if (size == 1) {
            texts.push_back(sign);
        }
        for (const std::string& text : texts) {
            for (const std::string& typed :
                 {text, " " + text, "^" + text, "^{" + text + "}", "^(" + text + ")",
                  "(" + text + ")", " ^ " + text, text + "(aq)", text + " (aq)", text + "."}) {
                charges.push_back(typed);
            }
        }
        charges.push_back(" " + number + " " + sign);
    }
    charges.push_back(superscript(size, isNegative));
    if (size == 1) {
        charges.push_back(superscript(0, isNegative));
    }
    return charges;
}

std::vector<std::string> spellingsTyped(const IonRow& ion)
{
    const std::string formula(ion.formula);
    std::vector<std::string> spellings;
    for (const std::string& typed :
         {formula, "[" + formula + "]", "(" + formula + ")", withDigits(formula, "_", ""),
          withDigits(formula, "_{", "}"), withSubscripts(formula), " " + formula}) {
        for (const std::string& charge : chargesTyped(ion)) {
            spellings.push_back(typed + charge);
        }
    }
    return spellings;
}

TEST(IonMarkTest, EveryIonIsRightInEverySpelling)
{
    for (const IonRow* const ion : allIons()) {
        for (const std::string& typed : spellingsTyped(*ion)) {
            const Mark mark = markIon({ion}, {}, typed);
            EXPECT_EQ(mark.verdict, Verdict::correct)
                << typed << " for " << british(nameOf(*ion)) << ": " << plain(mark.sentence);
        }
    }
}

TEST(IonMarkTest, NoOtherIonIsEverRight)
{
    for (const IonRow* const asked : allIons()) {
        for (const IonRow* const typed : allIons()) {
            if (typed == asked) {
                continue;
            }
            for (const std::string& charge : chargesTyped(*typed)) {
                const std::string spelling = std::string(typed->formula).append(charge);
                EXPECT_NE(markIon({asked}, {}, spelling).verdict, Verdict::correct)
                    << spelling << " for " << british(nameOf(*asked));
            }
        }
    }
}

TEST(IonMarkTest, SpellingsThatPeopleUse)
{
    struct Row {
        const char* ion;
        std::vector<std::string> typed;
    };
    const Row rows[] = {
        {"iron(III)",
         {"Fe3+",      "Fe^3+",    "Fe^{3+}",   "Fe^+3",      "Fe+3",        "Fe³⁺",
          "Fe+++",     "Fe(3+)",   "Fe 3+",     "Fe³+",       "Fe3⁺",        "Fe^3⁺",
          "Fe+³",      "Fe 3⁺",    "Fe^+++",    "Fe + + +",   "[Fe]3+",      "[Fe3+]",
          "Fe3+ (aq)", "Fe3+ ion", "Fe3+ ions", "Fe3+ Ions.", "Fe^{3+} ion", "Fe(3+) ions"}},
        {"copper(II)", {"Cu2+ ion.", "Cu 2 plus", "Cu plus plus"}},
        {"sulfate",
         {"SO42-",      "SO4^2-",      "SO4 2-",      "SO4-2",           "SO₄²⁻",       "SO4--",
          "[SO4]2-",    "(SO4)2-",     "SO4²-",       "SO_4^{2-}",       "SO_{4}^{2-}", "SO_42-",
          "SO42⁻",      "SO4(2-)",     "[SO4^2-]",    "S O4 2-",         "SO4^-2",      "SO4^(2−)",
          "SO4^2⁻",     "SO4-²",       "SO₄-²",       "SO4–2",           "(SO4)^-2",    "SO4 --",
          "SO4**2-",    "SO4**-2",     "SO4⁽²⁻⁾",     "SO4^2- ion",      "ＳＯ４２－",  "SO4^2-,",
          "\"SO4^2-\"", "SO4 2 minus", "SO4 minus 2", "SO4 2 Minus ion", "SO 42-",      "S O 4 2 -",
          "SO₄ 2 -",    "SO4 2-(aq)"}},
        {"sodium", {"Na+", "Na1+", "Na^1+", "Na+1", "Na⁺", "Na^+", "Na +", "Na¹⁺"}},
        {"oxide", {"O--", "O2-", "O^2-", "O²⁻", "O-2", "O 2-", "O- -"}},
        {"manganate(VII)", {"MnO4-", "MnO4^-1", "MnO4^-", "MnO₄⁻", "MnO4 -", "[MnO4]-", "MnO4-1"}},
        {"dichromate",
         {"Cr2O72-", "Cr2O7^2-", "Cr₂O₇²⁻", "[Cr2O7]2-", "Cr2O7--", "Cr2O7-2", "Cr2O7 2-",
          "Cr2 O7 2 -", "Cr 2 O 7 2-", "Cr2O 72-"}},
        {"ethanoate",
         {"CH3COO-",   "CH3CO2-",  "C2H3O2-",  "CH3COO^-", "CH₃COO⁻",   "(CH3COO)-", "H3CCOO-",
          "CH3CO2^-1", "CH3-COO-", "CH3–COO−", "C2H3O2 -", "CH3C(O)O-", "OOCCH3-",   "OAc-",
          "AcO-",      "AcO^-",    "Ac-",      "[OAc]-",   "MeCOO-",    "MeCO2-"}},
        {"hydroxide",
         {"OH-", "HO-", "OH^-", "(OH)-", "OH⁻", "OH 1-", "OH minus", "OHminus", "OH MINUS."}},
        {"nitrate", {"NO3-", "NO3^-", "NO31-", "NO3-1", "NO₃⁻"}},
        {"ammonium", {"NH4+", "NH4^+", "NH41+", "NH₄⁺", "[NH4]+", "(NH4)+"}},
    };
    for (const Row& row : rows) {
        for (const std::string& typed : row.typed) {
            const Mark mark = markFor(row.ion, typed);
            EXPECT_EQ(mark.verdict, Verdict::correct) << typed << ": " << plain(mark.sentence);
            EXPECT_EQ(plain(mark.sentence), "Correct.") << typed;
        }
    }
}

TEST(IonMarkTest, SlipsGetTheirSentences)
{
    const std::string capitals = "Check the capitals: first letter large, second small.";
    const std::string noCharge = "An ion carries a charge.";
    const std::string subscript =
        "That number counts atoms. Write the number and the sign of the charge together.";
    const std::string sign = "Is this ion positive or negative?";
    const std::string size = "The sign is right. Check the size of the charge.";
    const std::string roman = "The Roman numeral tells the size of the charge.";
    const std::string ending = "The ending tells you whether there is oxygen.";
    const std::string moreOxygen = "Which one has more oxygen: -ite or -ate?";
    const std::string oxygens = "Check the number of oxygen atoms.";
    const std::string letterO = "There is a zero where the letter O should be.";
    const std::string letterI = "There is a small l where the letter I should be.";
    const std::string largeI = "There is a large I where the small letter l should be.";
    const std::string one = "There is a 1 where the small letter l should be.";
    const std::string noSign = "A charge has a sign: + or -.";
    const std::string once = "Write the charge once: its size and its sign.";
    const std::string order = "The atoms are right. Check their order.";
    struct Row {
        const char* ion;
        const char* typed;
        std::string sentence;
    };
    const Row rows[] = {
        {"iron(III)", "fe3+", capitals},
        {"iron(III)", "FE^3+", capitals},
        {"cobalt(II)", "CO2+", capitals},
        {"sulfate", "so42-", capitals},
        {"carbonate", "Co3 2-", capitals},
        {"nitrite", "No2-", capitals},
        {"chloride", "cl-", capitals},
        {"ethanoate", "ch3coo-", capitals},
        {"iron(III)", "Fe", noCharge},
        {"iron(III)", "Fe(III)", roman},
        {"iron(III)", "FeIII", roman},
        {"copper(II)", "Cu II", roman},
        {"iron(III)", "Fe(III)+", roman},
        {"iron(III)", "Fe+III", roman},
        {"iron(III)", "Fe^III", roman},
        {"iron(III)", "Fe^(III)", roman},
        {"iron(III)", "Fe^{III}", roman},
        {"iron(III)", "Fe^III+", roman},
        {"iron(III)", "Fe(III) ion", roman},
        {"iron(III)", "Fe(III) ions.", roman},
        {"iron(III)", "Fe(III)3-", sign},
        {"copper(II)", "Cu(II)2+", "The charge is right. Leave out the Roman numeral."},
        {"copper(II)", "Cu(II)^2+", "The charge is right. Leave out the Roman numeral."},
        {"manganate(VII)", "Mn(VII)O4-", "The charge is right. Leave out the Roman numeral."},
        {"sulfate", "SO4", noCharge},
        {"sulfate", "SO3", noCharge},
        {"sodium", "Na", noCharge},
        {"iron(III)", "Fe3", subscript},
        {"iron(III)", "Fe_3", subscript},
        {"sulfate", "SO42", subscript},
        {"iron(III)", "Fe^3", noSign},
        {"sulfate", "SO4-2+", "wrong"},
        {"iron(III)", "Fe3-", sign},
        {"sulfate", "SO4^2+", sign},
        {"sulfate", "SO4+2", sign},
        {"chloride", "Cl+", sign},
        {"iron(III)", "Fe2+", roman},
        {"iron(III)", "Fe+", roman},
        {"iron(III)", "Fe++", roman},
        {"sulfate", "SO4-", size},
        {"sulfate", "SO4^3-", size},
        {"sulfate", "SO4---", size},
        {"magnesium", "Mg+", size},
        {"dichromate", "Cr2O7 12-", size},
        {"dichromate", "Cr2O7 12 -", size},
        {"dichromate", "Cr2O7^12-", size},
        {"dichromate", "Cr2O7^{12-}", size},
        {"sulfate", "SO4 12 minus", size},
        {"manganate(VII)", "MnO4^2-", size},
        {"sulfate", "S2-", ending},
        {"sulfide", "SO4^2-", ending},
        {"chloride", "ClO3-", ending},
        {"sulfate", "SO3^2-", moreOxygen},
        {"sulfate", "SO3-", moreOxygen},
        {"sulfite", "SO4^2-", moreOxygen},
        {"nitrate", "NO2-", moreOxygen},
        {"nitrite", "NO3^-", moreOxygen},
        {"sulfate", "SO5^2-", oxygens},
        {"sulfate", "HSO4^2-", "Sulfate and hydrogensulfate are two different ions."},
        {"carbonate", "HCO3-", "Carbonate and hydrogencarbonate are two different ions."},
        {"phosphate", "HPO4^2-", "Phosphate and hydrogenphosphate are two different ions."},
        {"hydroxide", "O2-", "Oxide and hydroxide are two different ions."},
        {"ammonium", "NH3+", "That is ammonia. The ammonium ion has one hydrogen more."},
        {"potassium", "P+", "Check this symbol: P."},
        {"manganese(II)", "Mg2+", "Check this symbol: Mg."},
        {"sulfate", "S042-", letterO},
        {"sulfate", "S04^2-", letterO},
        {"hydroxide", "0H-", letterO},
        {"iodide", "l-", letterI},
        {"chloride", "CI-", largeI},
        {"aluminium", "AI3+", largeI},
        {"chloride", "C1-", one},
        {"aluminium", "A1^3+", one},
        {"sulfate", "SO4^2", noSign},
        {"sulfate", "SO4^-2-", once},
        {"sulfate", "SO4-2-", once},
        {"iron(III)", "Fe+3+", once},
        {"sulfate", "O4S 2-", order},
        {"hydrogencarbonate", "CO3H-", order},
        {"hydrogencarbonate", "CHO3-", order},
        {"hydrogencarbonate", "HCO4-", oxygens},
    };
    for (const Row& row : rows) {
        const Mark mark = markFor(row.ion, row.typed);
        if (row.sentence == "wrong") {
            EXPECT_NE(mark.verdict, Verdict::correct) << row.typed;
        } else {
            EXPECT_EQ(mark.verdict, Verdict::slip) << row.typed << " for " << row.ion;
            EXPECT_EQ(plain(mark.sentence), row.sentence) << row.typed << " for " << row.ion;
        }
    }
}

// An exercise lists "Fe3" and "Fe" as slips, and neither is what was meant here.
TEST(IonMarkTest, ARaisedNumberIsAChargeWithoutItsSign)
{
    int charges = 0;
    for (unsigned number = 1; number <= 60; ++number) {
        const Exercise exercise = makeExercise({1, number, &ionFormulaKind, 2});
        const IonRow& ion = *std::get<IonAnswer>(exercise.answer).ion;
        const std::string size = std::to_string(std::abs(ion.charge));
        charges += std::abs(ion.charge) > 1 ? 1 : 0;
        for (const std::string& raised :
             {"^" + size, "^{" + size + "}", superscript(std::abs(ion.charge))}) {
            const std::string typed = std::string(ion.formula).append(raised);
            const Mark mark = markAnswer(exercise, typed);
            EXPECT_EQ(mark.verdict, Verdict::slip) << typed;
            EXPECT_EQ(plain(mark.sentence), "A charge has a sign: + or -.") << typed;
        }
    }
    EXPECT_GT(charges, 0);
}

TEST(IonMarkTest, WhatCannotBeReadIsTold)
{
    struct Row {
        const char* typed;
        const char* sentence;
    };
    const Row rows[] = {
        {"", "Type a formula with its charge, such as Sr^2+."},
        {"  ", "Type a formula with its charge, such as Sr^2+."},
        {"2-", "I can't read this part: '2-'. Type a formula with its charge, such as Sr^2+."},
        {"-", "I can't read this part: '-'. Type a formula with its charge, such as Sr^2+."},
        {"Xy2-", "I can't read this part: 'Xy'. Type a formula with its charge, such as Sr^2+."},
        {"SO4)2-", "I can't read this part: ')'. Type a formula with its charge, such as Sr^2+."},
        {"sulfate", "That is its name. Type its formula with its charge."},
        {"Sulfate ion", "That is its name. Type its formula with its charge."},
        {"OH negative",
         "I can't read this part: 'negative'. Type a formula with its charge, such as Sr^2+."},
        {"SO4 two minus",
         "I can't read this part: 'two minus'. Type a formula with its charge, such as Sr^2+."},
        {"\xFF\xFE",
         "I can't read this part: '\uFFFD\uFFFD'. Type a formula with its charge, such as Sr^2+."},
    };
    for (const Row& row : rows) {
        const Mark mark = markFor("sulfate", row.typed);
        EXPECT_EQ(mark.verdict, Verdict::unreadable) << row.typed;
        EXPECT_EQ(plain(mark.sentence), row.sentence) << row.typed;
    }
}

TEST(IonMarkTest, SloppyChargesAreNotRight)
{
    for (const char* const typed :
         {"Zn02+", "Zn.2+", "Zn*2+", "Zn2+-", "Zn+-2", "Zn++2", "Zn2++", "Zn22+", "Zn2+2", "2+Zn",
          "+2Zn", "Zn^2", "Zn^", "Zn2", "Zn+2+", "Zn^2+^", "Zn2+Zn2+", "2Zn2+", "Zn 2+ 2e-"}) {
        EXPECT_NE(markFor("zinc", typed).verdict, Verdict::correct) << typed;
    }
}

// A blank between digits tells where the charge begins, so that no atom is counted with it.
TEST(IonMarkTest, ASizeSetApartIsNoNumberOfAtoms)
{
    for (const IonRow* const ion : allIons()) {
        const bool isTold = ion->charge > 0 && hasRomanNumeral(*ion);
        for (const char* const size : {"4", "12", "42"}) {
            const std::string typed =
                std::string(ion->formula) + " " + size + (ion->charge < 0 ? "-" : "+");
            const bool endsWithDigit = std::isdigit(ion->formula.back()) != 0;
            if (endsWithDigit || std::string(size).size() == 1) {
                EXPECT_EQ(plain(markIon({ion}, {}, typed).sentence),
                          isTold ? "The Roman numeral tells the size of the charge."
                                 : "The sign is right. Check the size of the charge.")
                    << typed;
            }
        }
    }
}

// Only anions have an ending that tells of oxygen.
TEST(IonMarkTest, NoCationGetsTheSentenceOnEndings)
{
    for (const IonRow* const cation : cations()) {
        for (const char* const with : {"O", "O2", "O3", "OH"}) {
            const std::string typed = std::string(cation->formula) + with + "^+";
            EXPECT_NE(plain(markIon({cation}, {}, typed).sentence),
                      "The ending tells you whether there is oxygen.")
                << typed << " for " << british(nameOf(*cation));
        }
    }
    EXPECT_NE(plain(markFor("hydrogen", "OH-").sentence),
              "The ending tells you whether there is oxygen.");
}

TEST(IonMarkTest, AnythingElseIsNotRightYet)
{
    const Mark mark = markFor("sulfate", "C6H12O6^2-");
    EXPECT_EQ(mark.verdict, Verdict::wrong);
    EXPECT_EQ(plain(mark.sentence), "Not right yet. Write down what you know.");
}

TEST(IonMarkTest, LongTextsGetAMark)
{
    for (const std::string& typed :
         {"SO4" + std::string(1000000, '-'), "SO4" + std::string(1000000, '2') + "-",
          "SO4-" + std::string(1000000, '2'), std::string(1000000, '^'), std::string(1000000, '('),
          "SO4" + std::string(1000000, ')') + "2-", "SO" + std::string(1000000, '0') + "-"}) {
        EXPECT_NE(markFor("sulfate", typed).verdict, Verdict::correct) << typed.substr(0, 20);
    }
    EXPECT_EQ(markFor("sulfate", "SO4" + std::string(1000000, ' ') + "2-").verdict,
              Verdict::correct);
}

} // namespace

} // namespace lesson
