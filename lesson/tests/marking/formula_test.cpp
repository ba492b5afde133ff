#include "lesson/marking/formula.hpp"

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <vector>

#include "lesson/chemistry/pairs_not_asked.hpp"
#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

FormulaAnswer answerFor(const char* cation, const char* anion)
{
    return {findIon(cation), findIon(anion)};
}

// The mark without any slip that an exercise lists.
Mark markFor(const FormulaAnswer& answer, const std::string& typed)
{
    return markFormula(answer, {}, typed);
}

std::string replaced(std::string text, const std::string& from, const std::string& to)
{
    for (std::size_t place = 0; (place = text.find(from, place)) != std::string::npos;
         place += to.size()) {
        text.replace(place, from.size(), to);
    }
    return text;
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// Every digit by what `spell` makes of it.
template <typename Spell>
std::string withDigits(const std::string& text, Spell spell)
{
    std::string spelled;
    for (const char c : text) {
        spelled += isDigit(c) ? spell(c) : std::string(1, c);
    }
    return spelled;
}

std::string withBlanksBetween(const std::string& text)
{
    std::string spelled;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isInSymbol = i > 0 && text[i] >= 'a' && text[i] <= 'z';
        const bool isInNumber = i > 0 && isDigit(text[i]) && isDigit(text[i - 1]);
        spelled += (i == 0 || isInSymbol || isInNumber ? "" : " ") + std::string(1, text[i]);
    }
    return spelled;
}

// All the ways in which people type one formula.
std::vector<std::string> spellingsTyped(const std::string& formula)
{
    const auto subscript = [](char digit) {
        return std::string("\xE2\x82") + static_cast<char>('\x80' + (digit - '0'));
    };
    return {
        formula,
        "  " + formula + " \t",
        "\u00A0" + formula + "\u2009",
        formula + "\n",
        formula + ".",
        withDigits(formula, [](char c) { return "_" + std::string(1, c); }),
        withDigits(formula, [](char c) { return "_{" + std::string(1, c) + "}"; }),
        withDigits(formula, [](char c) { return "{" + std::string(1, c) + "}"; }),
        withDigits(formula, [](char c) { return " " + std::string(1, c); }),
        withDigits(formula, subscript),
        withBlanksBetween(formula),
        replaced(replaced(formula, "(", "["), ")", "]"),
        replaced(replaced(formula, "(", "{"), ")", "}"),
        replaced(replaced(formula, "(", "{"), ")", "} "),
        withDigits(replaced(replaced(formula, "(", "{"), ")", "}"),
                   [](char c) { return "_{" + std::string(1, c) + "}"; }),
        "{" + formula + "}",
        replaced(replaced(formula, "(", "{("), ")", ")}"),
        "\\ce{" + replaced(replaced(formula, "(", "{"), ")", "}") + "}",
        replaced(replaced(formula, "(", "₍"), ")", "₎"),
        replaced(replaced(formula, "(", " ("), ")", ") "),
        formula + "(s)",
        formula + " (aq)",
        formula + "(AQ).",
        formula + "↓",
        formula + "_(s)",
        formula + "_{(aq)}",
        "\"" + formula + "\"",
        replaced(formula, "l", " l"),
        formula + ",",
    };
}

TEST(FormulaMarkTest, EveryCompoundIsRightInEverySpelling)
{
    for (const Pair& pair : pairsForFormulas()) {
        for (const std::string& typed :
             spellingsTyped(compoundFormula(*pair.cation, *pair.anion))) {
            const Mark mark = markFor({pair.cation, pair.anion}, typed);
            EXPECT_EQ(mark.verdict, Verdict::correct) << typed << ": " << plain(mark.sentence);
            EXPECT_EQ(plain(mark.sentence), "Correct.") << typed;
        }
    }
}

TEST(FormulaMarkTest, NoOtherCompoundIsEverRight)
{
    for (const Pair& asked : pairsForFormulas()) {
        for (const Pair& typed : pairsForFormulas()) {
            if (typed == asked) {
                continue;
            }
            const std::string formula = compoundFormula(*typed.cation, *typed.anion);
            EXPECT_NE(markFor({asked.cation, asked.anion}, formula).verdict, Verdict::correct)
                << formula << " for " << british(nameOf(*asked.cation, *asked.anion));
        }
    }
}

// Editors put curly brackets around the symbols before each "_".
TEST(FormulaMarkTest, CurlyBracketsMayHoldSymbolsTogether)
{
    struct Row {
        const char* cation;
        const char* anion;
        const char* typed;
    };
    const Row rows[] = {
        {"sodium", "carbonate", "{Na}_2{CO}_3"},       {"sodium", "carbonate", "{{Na}_2CO}_3"},
        {"potassium", "carbonate", "{K_2CO}_3"},       {"ammonium", "iodide", "{NH}_{4}I"},
        {"ammonium", "sulfate", "{({NH}_4)}_2{SO}_4"}, {"calcium", "hydroxide", "{Ca(OH)}_2"},
        {"calcium", "hydroxide", "Ca{OH}_2"},          {"aluminium", "sulfate", "{Al}_2{SO_4}_3"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(plain(markFor(answerFor(row.cation, row.anion), row.typed).sentence), "Correct.")
            << row.typed;
    }
    EXPECT_EQ(plain(markFor(answerFor("sodium", "sulfate"), "{NA}_2{SO}_4").sentence),
              "Check the capitals: first letter large, second small.");
    EXPECT_EQ(markFor(answerFor("magnesium", "hydroxide"), "Mg{OH}_3").verdict,
              Verdict::unreadable);
}

TEST(FormulaMarkTest, EthanoatesMayBeWrittenInTheirOtherWays)
{
    struct Row {
        const char* cation;
        std::vector<std::string> typed;
    };
    const Row rows[] = {
        {"sodium", {"NaCH3COO",   "CH3COONa",   "NaC2H3O2",       "NaCH3CO2", "CH3CO2Na",
                    "Na(CH3COO)", "(CH3COO)Na", "C2H3O2Na",       "NaOOCCH3", "NaO2CCH3",
                    "H3CCOONa",   "CH₃COONa",   "CH_3COONa (aq)", "NaOAc",    "AcONa",
                    "Na(OAc)",    "NaAc",       "MeCOONa",        "MeCO2Na",  "Na OAc"}},
        {"ammonium", {"NH4CH3COO", "CH3COONH4", "NH4C2H3O2", "CH3CO2NH4"}},
        {"calcium",
         {"Ca(CH3COO)2", "(CH3COO)2Ca", "Ca(C2H3O2)2", "Ca(CH3CO2)2", "(CH3CO2)2Ca", "Ca[CH3COO]_2",
          "Ca(OOCCH3)2", "Ca(O2CCH3)2", "(C2H3O2)2Ca", "Ca(OAc)2", "Ca(OAc)₂", "(AcO)2Ca",
          "Ca(Ac)2", "(MeCOO)2Ca", "CaAc2", "CaAc₂", "CaAc_2", "CaAc_{2}", "Ac2Ca"}},
        {"copper(II)", {"CuAc2"}},
        {"lead(II)", {"Pb(CH3COO)2", "(CH3COO)2Pb", "Pb(C2H3O2)2"}},
    };
    for (const Row& row : rows) {
        for (const std::string& typed : row.typed) {
            const Mark mark = markFor(answerFor(row.cation, "ethanoate"), typed);
            EXPECT_EQ(mark.verdict, Verdict::correct) << typed << ": " << plain(mark.sentence);
        }
    }
}

TEST(FormulaMarkTest, SlipsGetTheirSentences)
{
    const std::string capitals = "Check the capitals: first letter large, second small.";
    const std::string bracketMissing = "What does the small number multiply?";
    const std::string notNeeded =
        "A bracket is needed only around a group of atoms that comes more than once.";
    const std::string charges = "A compound has no charge: leave out the charges of its ions.";
    const std::string cancel = "The charges do not cancel yet. How many of each ion are needed?";
    const std::string ending = "The ending tells you whether there is oxygen.";
    const std::string moreOxygen = "Which one has more oxygen: -ite or -ate?";
    const std::string sulfates = "Sulfate and hydrogensulfate are two different ions.";
    const std::string ammonia = "That is ammonia. The ammonium ion has one hydrogen more.";
    const std::string chargeOfMetal = "The Roman numeral is the charge of the metal ion.";
    const std::string plus = "Write one formula, without a plus sign.";
    const std::string oxygens = "Check the number of oxygen atoms.";
    const std::string letterO = "There is a zero where the letter O should be.";
    const std::string letterI = "There is a small l where the letter I should be.";
    const std::string largeI = "There is a large I where the small letter l should be.";
    const std::string one = "There is a 1 where the small letter l should be.";
    const std::string group = "More than one group takes a bracket.";
    const std::string eachOnce = "Write each ion once; a small number tells how many there are.";
    const std::string order = "The atoms are right. Write ion after ion, the positive one first.";
    struct Row {
        const char* cation;
        const char* anion;
        const char* typed;
        std::string sentence;
    };
    const Row rows[] = {
        {"sodium", "chloride", "nacl", capitals},
        {"sodium", "chloride", "NACL", capitals},
        {"sodium", "chloride", "nACL (AQ)", capitals},
        {"calcium", "carbonate", "caco3", capitals},
        {"calcium", "carbonate", "CACO_3", capitals},
        {"cobalt(II)", "carbonate", "COCO3", capitals},
        {"cobalt(II)", "carbonate", "CoCo3", capitals},
        {"cobalt(II)", "oxide", "COO", capitals},
        {"aluminium", "sulfate", "al2(so4)3", capitals},
        {"sodium", "ethanoate", "ch3coona", capitals},
        {"magnesium", "hydroxide", "MgOH2", bracketMissing},
        {"magnesium", "hydroxide", "Mg(OH2)", bracketMissing},
        {"magnesium", "hydroxide", "(MgOH)2", bracketMissing},
        {"aluminium", "sulfate", "Al2SO43", bracketMissing},
        {"ammonium", "sulfate", "NH42SO4", bracketMissing},
        {"calcium", "ethanoate", "CaCH3COO2", bracketMissing},
        {"calcium", "ethanoate", "CaC2H3O22", bracketMissing},
        {"sodium", "hydroxide", "Na(OH)", notNeeded},
        {"sodium", "sulfate", "(Na)2SO4", notNeeded},
        {"sodium", "sulfate", "Na2[SO4]", notNeeded},
        {"ammonium", "chloride", "(NH4)Cl", notNeeded},
        {"magnesium", "hydroxide", "(Mg)(OH)2", notNeeded},
        {"magnesium", "oxide", "Mg2O2", "Simplify."},
        {"magnesium", "oxide", "Mg3O3", "Simplify."},
        {"calcium", "sulfate", "Ca2(SO4)2", "Simplify."},
        {"calcium", "sulfate", "(CaSO4)2", "Simplify."},
        {"tin(II)", "oxide", "Sn2O2", "Simplify."},
        {"calcium", "ethanoate", "Ca2(CH3COO)4", "Simplify."},
        {"sodium", "chloride", "2NaCl", "Leave out the number in front."},
        {"sodium", "chloride", "Na+Cl-", charges},
        {"sodium", "chloride", "Na⁺Cl⁻", charges},
        {"aluminium", "oxide", "Al3+2O2-3", charges},
        {"aluminium", "sulfate", "(Al^{3+})2(SO4^2-)3", charges},
        {"magnesium", "chloride", "Mg2Cl", cancel},
        {"aluminium", "oxide", "Al3O2", cancel},
        {"aluminium", "sulfate", "AlSO4", cancel},
        {"aluminium", "sulfate", "Al3[SO4]2", cancel},
        {"sodium", "chloride", "ClNa", "The positive ion comes first."},
        {"calcium", "nitrate", "(NO3)2Ca", "The positive ion comes first."},
        {"sodium", "hydroxide", "OHNa", "The positive ion comes first."},
        {"lead(II)", "hydroxide", "PbOHOH", group},
        {"lead(II)", "hydroxide", "Pb(OH)(OH)", group},
        {"lead(II)", "ethanoate", "PbCH3COOCH3COO", group},
        {"lead(II)", "ethanoate", "CH3COOPbCH3COO", order},
        {"lead(II)", "ethanoate", "C2H3O2C2H3O2Pb", group},
        {"aluminium", "sulfate", "Al2SO4SO4SO4", group},
        {"aluminium", "sulfate", "AlAlSO4SO4SO4", group},
        {"aluminium", "sulfate", "AlAl(SO4)3", eachOnce},
        {"ammonium", "sulfate", "NH4NH4SO4", group},
        {"magnesium", "chloride", "MgClCl", eachOnce},
        {"sodium", "sulfate", "NaNaSO4", eachOnce},
        {"aluminium", "sulfate", "Al2{SO4}2", cancel},
        {"aluminium", "sulfate", "al2{so4}3", capitals},
        {"magnesium", "hydroxide", "{MgOH}2", bracketMissing},
        {"sodium", "hydroxide", "NaHO", order},
        {"calcium", "hydroxide", "CaO2H2", order},
        {"ammonium", "nitrate", "N2H4O3", order},
        {"potassium", "sulfate", "P2SO4", "Check this symbol: P."},
        {"sodium", "nitrate", "SNO3", "Check this symbol: S."},
        {"magnesium", "oxide", "MnO", "Check this symbol: Mn."},
        {"potassium", "chloride", "KI", "Check this symbol: I."},
        {"calcium", "ethanoate", "(CH3COO)2C", "Check this symbol: C."},
        {"sodium", "sulfate", "Na2S", ending},
        {"sodium", "sulfide", "Na2SO4", ending},
        {"sodium", "chloride", "NaClO", ending},
        {"sodium", "sulfate", "Na2SO3", moreOxygen},
        {"sodium", "sulfate", "NaSO3", moreOxygen},
        {"calcium", "nitrate", "Ca(NO2)2", moreOxygen},
        {"sodium", "sulfate", "Na2SO5", oxygens},
        {"sodium", "sulfate", "NaHSO4", sulfates},
        {"sodium", "sulfate", "Na2HSO4", sulfates},
        {"aluminium", "sulfate", "Al(HSO4)3", sulfates},
        {"sodium", "phosphate", "NaHPO4",
         "Phosphate and hydrogenphosphate are two different ions."},
        {"sodium", "phosphate", "NaH2PO4",
         "Phosphate and dihydrogenphosphate are two different ions."},
        {"calcium", "carbonate", "Ca(HCO3)2",
         "Carbonate and hydrogencarbonate are two different ions."},
        {"ammonium", "chloride", "NH3Cl", ammonia},
        {"ammonium", "sulfate", "(NH3)2SO4", ammonia},
        {"ammonium", "sulfate", "NH3SO4", ammonia},
        {"lead(II)", "oxide", "PbO2", chargeOfMetal},
        {"lead(II)", "oxide", "Pb2O4", chargeOfMetal},
        {"manganese(II)", "oxide", "MnO2", chargeOfMetal},
        {"manganese(II)", "oxide", "Mn2O7", chargeOfMetal},
        {"tin(II)", "chloride", "SnCl4", chargeOfMetal},
        {"lead(II)", "chloride", "PbCl4", chargeOfMetal},
        {"chromium(III)", "chloride", "CrCl2", chargeOfMetal},
        {"copper(II)", "sulfate", "Cu2SO4", chargeOfMetal},
        {"iron(II)", "nitrate", "Fe(NO3)3", chargeOfMetal},
        {"iron(III)", "oxide", "Fe3O4", cancel},
        {"lead(II)", "chloride", "PbCl3", cancel},
        {"magnesium", "oxide", "MgO2", cancel},
        {"aluminium", "oxide", "2Al + 3O", plus},
        {"aluminium", "oxide", "Al + O", plus},
        {"sodium", "chloride", "Na + Cl", plus},
        {"aluminium", "oxide", "2Al3+ + 3O2-", charges},
        {"sodium", "chloride", "Na+ + Cl-", charges},
        {"sodium", "hydroxide", "Na0H", letterO},
        {"aluminium", "oxide", "Al203", letterO},
        {"lithium", "oxide", "Li20", letterO},
        {"calcium", "sulfate", "CaS04", letterO},
        {"lead(II)", "iodide", "Pbl2", letterI},
        {"aluminium", "iodide", "All3", letterI},
        {"potassium", "iodide", "Kl", letterI},
        {"ammonium", "iodide", "NH4l (aq)", letterI},
        {"tin(II)", "chloride", "SnCI2", largeI},
        {"sodium", "chloride", "NaCI", largeI},
        {"aluminium", "iodide", "AII3", largeI},
        {"aluminium", "chloride", "AICI3", largeI},
        {"tin(II)", "chloride", "SnC12", one},
        {"sodium", "chloride", "NaC1", one},
        {"aluminium", "oxide", "A12O3", one},
        {"aluminium", "sulfate", "A12(S04)3", one},
        {"aluminium", "sulfate", "AI2(S04)3", largeI},
        {"iron(III)", "oxide", "Fe(III)2O3", "The Roman numeral is a charge."},
        {"copper(II)", "sulfate", "Cu(II)SO4", "The Roman numeral is a charge."},
        {"copper(II)", "sulfate", "Cu(II)(SO4)", "The Roman numeral is a charge."},
        {"copper(II)", "sulfate", "CuIISO4", "The Roman numeral is a charge."},
        {"iron(III)", "chloride", "Fe(III)Cl3", "The Roman numeral is a charge."},
        {"iron(III)", "chloride", "Fe III Cl3", "The Roman numeral is a charge."},
        {"iron(III)", "chloride", "Fe(Ⅲ)Cl3", "The Roman numeral is a charge."},
        {"iron(III)", "chloride", "Fe(III)Cl", "The Roman numeral is a charge."},
        {"iron(III)", "chloride", "FeCl(III)", "The Roman numeral is a charge."},
        {"lead(II)", "iodide", "PbIII2", "The Roman numeral is a charge."},
        {"aluminium", "iodide", "Al(I)3", notNeeded},
        {"calcium", "ethanoate", "CaOAc2", bracketMissing},
        {"copper(II)", "sulfate", "CuSO4·5H2O",
         "Leave out the water: it belongs to the crystals, not to the compound."},
        {"aluminium", "oxide", "Al^2O^3",
         "Small numbers stand below the line: type them as plain digits."},
        {"aluminium", "oxide", "Al²O³",
         "Small numbers stand below the line: type them as plain digits."},
    };
    for (const Row& row : rows) {
        const Mark mark = markFor(answerFor(row.cation, row.anion), row.typed);
        EXPECT_EQ(mark.verdict, Verdict::slip) << row.typed;
        EXPECT_EQ(plain(mark.sentence), row.sentence) << row.typed;
    }
}

// A formula in wrong capitals may be that of something else, but is never that of the key.
TEST(FormulaMarkTest, CapitalsAreTheSlipOfEveryCompound)
{
    for (const Pair& pair : pairsForFormulas()) {
        const std::string formula = compoundFormula(*pair.cation, *pair.anion);
        std::string small;
        std::string large;
        for (const char c : formula) {
            small += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
            large += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        }
        for (const std::string& typed : {small, large, " " + small + " (aq)"}) {
            const Mark mark = markFor({pair.cation, pair.anion}, typed);
            if (typed == formula) {
                EXPECT_EQ(mark.verdict, Verdict::correct) << typed;
            } else {
                EXPECT_EQ(mark.verdict, Verdict::slip) << typed;
                EXPECT_EQ(plain(mark.sentence),
                          "Check the capitals: first letter large, second small.");
            }
        }
    }
}

TEST(FormulaMarkTest, WhatCannotBeReadIsTold)
{
    struct Row {
        const char* typed;
        const char* sentence;
    };
    const Row rows[] = {
        {"", "Type a formula, such as H2O."},
        {" \n ", "Type a formula, such as H2O."},
        {"CaXy", "I can't read this part: 'Xy'. Type a formula, such as H2O."},
        {"Ca(OH", "I can't read this part: '(OH'. Type a formula, such as H2O."},
        {"what?", "I can't read this part: 'what?'. Type a formula, such as H2O."},
        {"Ca\x80", "I can't read this part: '\uFFFD'. Type a formula, such as H2O."},
        {"Ca\x01", "I can't read this part: '\uFFFD'. Type a formula, such as H2O."},
        {"calcium hydroxide", "That is its name. Type its formula."},
        {"Calcium Hydroxide", "That is its name. Type its formula."},
    };
    for (const Row& row : rows) {
        const Mark mark = markFor(answerFor("calcium", "hydroxide"), row.typed);
        EXPECT_EQ(mark.verdict, Verdict::unreadable) << row.typed;
        EXPECT_EQ(plain(mark.sentence), row.sentence) << row.typed;
    }
    EXPECT_EQ(plain(markFor(answerFor("aluminium", "ethanoate"), "aluminum acetate").sentence),
              "That is its name. Type its formula.");
}

TEST(FormulaMarkTest, AnythingElseIsNotRightYet)
{
    for (const char* const typed : {"C6H12O6", "KBr", "Fe2O3", "CaH2", "Na", "Uuu.H2O", "H2O"}) {
        const Mark mark = markFor(answerFor("calcium", "hydroxide"), typed);
        EXPECT_NE(mark.verdict, Verdict::correct) << typed;
    }
    const Mark mark = markFor(answerFor("calcium", "hydroxide"), "C6H12O6");
    EXPECT_EQ(mark.verdict, Verdict::wrong);
    EXPECT_EQ(plain(mark.sentence), "Not right yet. Write down what you know.");
}

// What is listed for an exercise comes before the general rules, and is known without capitals too.
TEST(FormulaMarkTest, ListedSlipsComeFirst)
{
    const std::vector<Slip> slips = {{"Mg2O2", std::nullopt, line("One of each.")},
                                     {"Jo", std::nullopt, line("No such symbol.")}};
    const FormulaAnswer answer = answerFor("magnesium", "oxide");
    EXPECT_EQ(plain(markFormula(answer, slips, "Mg₂O_2").sentence), "One of each.");
    EXPECT_EQ(plain(markFormula(answer, slips, "mg2o2").sentence), "One of each.");
    EXPECT_EQ(plain(markFormula(answer, slips, " Jo ").sentence), "No such symbol.");
    EXPECT_EQ(plain(markFormula(answer, slips, "Mg3O3").sentence), "Simplify.");
    EXPECT_EQ(markFormula(answer, slips, "MgO").verdict, Verdict::correct);
}

TEST(FormulaMarkTest, LongTextsGetAMark)
{
    const FormulaAnswer answer = answerFor("calcium", "hydroxide");
    for (const std::string& typed :
         {std::string(1000000, '('), std::string(1000000, '0'), std::string(1000000, 'C'),
          "Ca(OH)" + std::string(1000000, '2'), std::string(1000000, '\xFF'),
          "Ca(OH)2" + std::string(1000000, ' ') + "2"}) {
        EXPECT_NE(markFor(answer, typed).verdict, Verdict::correct) << typed.substr(0, 20);
    }
    EXPECT_EQ(markFor(answer, std::string(1000000, ' ') + "Ca(OH)2").verdict, Verdict::correct);
}

} // namespace

} // namespace lesson
