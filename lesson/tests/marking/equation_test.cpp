#include "lesson/marking/equation.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

constexpr const char* capitals = "Check the capitals: first letter large, second small.";
constexpr const char* smallest = "Balanced. Use the smallest whole numbers.";
constexpr const char* twoWay = "Correct. A one-way arrow is usual here.";
constexpr const char* notYet = "Not right yet. Write down what you know.";
constexpr const char* noArrow = "Put an arrow between the two sides. You can type ->.";
constexpr const char* zero = "There is a zero where the letter O should be.";
constexpr const char* largeI = "There is a large I where the small letter l should be.";
constexpr const char* one = "There is a 1 where the small letter l should be.";

EquationAnswer answerOf(const char* acid, const char* cation, const char* anion)
{
    return {findAcid(acid), {findIon(cation), findIon(anion)}};
}

// 2HCl + Na2CO3 -> 2NaCl + H2O + CO2
EquationAnswer soda()
{
    return answerOf("HCl", "sodium", "carbonate");
}
// 3H2SO4 + 2Al(OH)3 -> Al2(SO4)3 + 6H2O
EquationAnswer alumina()
{
    return answerOf("H2SO4", "aluminium", "hydroxide");
}
// 2CH3COOH + Ca(OH)2 -> Ca(CH3COO)2 + 2H2O
EquationAnswer vinegar()
{
    return answerOf("CH3COOH", "calcium", "hydroxide");
}
// H2SO4 + 2NaOH -> Na2SO4 + 2H2O
EquationAnswer lye()
{
    return answerOf("H2SO4", "sodium", "hydroxide");
}

struct Case {
    const char* typed;
    Verdict verdict;
    const char* sentence;
};

void expectMarks(const EquationAnswer& answer, const std::vector<Case>& cases)
{
    for (const Case& c : cases) {
        const Mark mark = markEquation(answer, c.typed);
        EXPECT_EQ(mark.verdict, c.verdict) << c.typed;
        EXPECT_EQ(plain(mark.sentence), c.sentence) << c.typed;
    }
}

TEST(EquationMarkTest, RightInEverySpelling)
{
    for (const char* const typed :
         {"2HCl + Na2CO3 -> 2NaCl + H2O + CO2",
          "2HCl+Na2CO3->2NaCl+H2O+CO2",
          "Na2CO3 + 2HCl -> CO2 + H2O + 2NaCl",
          "2 HCl + 1 Na2CO3 --> 2 NaCl + 1 H2O + 1 CO2",
          "2*HCl + Na_2CO_3 => 2·NaCl + H_{2}O + CO_{2}",
          "2HCl + Na₂CO₃ → 2NaCl + H₂O + CO₂.",
          "2HCl(aq) + Na2CO3(s) = 2NaCl(aq) + H2O(l) + CO2(g)",
          "2HCl (AQ) + Na2CO3 ( aq ) ⟶ 2NaCl + H2O(L) + CO2↑",
          "2HCl_{aq} + Na2CO3_{s} -> 2NaCl_{aq} + H2O_{l} + CO2_{g}",
          "2HCl aq + Na2CO3 s -> 2NaCl aq + H2O l + CO2 ^",
          "2HCl and Na2CO3 give 2NaCl & H2O plus CO2",
          "2HCl(aqueous) + Na2CO3(solid) -> 2NaCl(aqueous) + H2O(liquid) + CO2 (gas)",
          "2NaCl + H2O + CO2 <- 2HCl + Na2CO3",
          "CO2 + 2NaCl + H2O ← Na2CO3 + 2HCl",
          "2.0HCl + Na2CO3 -> 4/2 NaCl + H2O + CO2",
          "2HCl + Na2CO3 -> 2ClNa + HOH + O2C",
          "HCl + HCl + Na2CO3 -> NaCl + NaCl + H2O + CO2",
          "2(HCl) + [Na]2CO3 -> 2NaCl + H2O + CO2",
          "½HCl + 1½HCl + Na2CO3 -> 2NaCl + H2O + CO2",
          "2HCl + Na²CO³ -> 2NaCl + H²O + CO²"}) {
        const Mark mark = markEquation(soda(), typed);
        EXPECT_EQ(mark.verdict, Verdict::correct) << typed;
        EXPECT_EQ(plain(mark.sentence), "Correct.") << typed;
    }
    for (const char* const typed :
         {"2CH3COOH + Ca(OH)2 -> Ca(CH3COO)2 + 2H2O", "2CH3CO2H + Ca(OH)2 -> (CH3COO)2Ca + 2H2O",
          "2HC2H3O2 + Ca(OH)2 -> Ca(C2H3O2)2 + 2H2O", "2C2H4O2 + Ca(OH)2 -> Ca(CH3CO2)2 + 2H2O",
          "2HCH3COO + Ca(OH)2 -> (CH3CO2)2Ca + 2H2O", "2CH3-COOH + Ca(OH)2 -> Ca(CH3COO)2 + 2H2O",
          "2 CH3COOH(aq) + Ca(OH)2(aq) -> Ca(CH3COO)2(aq) + 2 H2O(l)"}) {
        EXPECT_EQ(markEquation(vinegar(), typed).verdict, Verdict::correct) << typed;
    }
    for (const char* const typed :
         {"CH3COOH + NaOH -> NaCH3COO + H2O", "CH3COOH + NaOH -> CH3COONa + H2O",
          "CH3CO2H + NaOH -> CH3CO2Na + H2O", "HC2H3O2 + NaOH -> NaC2H3O2 + H2O"}) {
        EXPECT_EQ(markEquation(answerOf("CH3COOH", "sodium", "hydroxide"), typed).verdict,
                  Verdict::correct)
            << typed;
    }
}

// A sign that slipped in changes nothing that could be marked, and is no mistake in capitals.
TEST(EquationMarkTest, StraySigns)
{
    for (const char* const typed :
         {"2HCl + Na2CO3 _-> 2NaCl + H2O + CO2", "2HCl + Na2CO3 _=> 2NaCl + H2O + CO2",
          "2HCl + Na2CO3 _→ 2NaCl + H2O + CO2", "2HCl + Na2CO3 _>_ 2NaCl + H2O + CO2",
          "2HCl + Na2CO3 -->_ 2NaCl + H2O + CO2", "2HCl + Na2CO3 -> _2NaCl + H2O + CO2",
          "_2HCl + Na2CO3 -> 2NaCl + H2O + CO2", "2_HCl + Na2CO3 -> 2NaCl + H2O + CO2_",
          "2H_Cl + {Na}_2{CO}_3 -> 2NaCl + H2_O + CO2", "2HCl} + Na2CO3 -> 2NaCl + H2{O + CO2",
          "2HCl + Na2CO3 \\rarr 2NaCl + H2O + CO2", "2HCl + Na2CO3 RARR 2NaCl + H2O + CO2",
          "2HCl + Na2CO3 Rarr 2NaCl + H2O + CO2"}) {
        expectMarks(soda(), {{typed, Verdict::correct, "Correct."}});
    }
    const std::string right = "2HCl + Na2CO3 -> 2NaCl + H2O + CO2";
    for (std::size_t place = 0; place <= right.size(); ++place) {
        for (const char* const sign : {"_", "{", "}", "~", "\\", "|", ";"}) {
            const std::string typed = right.substr(0, place) + sign + right.substr(place);
            const Mark mark = markEquation(soda(), typed);
            EXPECT_NE(plain(mark.sentence), capitals) << typed;
            EXPECT_TRUE(mark.verdict == Verdict::correct || mark.verdict == Verdict::unreadable)
                << typed << ": " << plain(mark.sentence);
        }
    }
}

TEST(EquationMarkTest, EthanoicAcidMayBeAbbreviated)
{
    for (const char* const typed :
         {"2HOAc + Ca(OH)2 -> Ca(OAc)2 + 2H2O", "2AcOH + Ca(OH)2 -> (AcO)2Ca + 2H2O",
          "2HAc + Ca(OH)2 -> Ca(Ac)2 + 2H2O", "2MeCOOH + Ca(OH)2 -> Ca(MeCOO)2 + 2H2O",
          "2HOAc(aq) + Ca(OH)2(aq) → Ca(OAc)2(aq) + 2H2O(l)", "2HAc + Ca(OH)2 -> CaAc2 + 2H2O"}) {
        const Mark mark = markEquation(vinegar(), typed);
        EXPECT_EQ(mark.verdict, Verdict::correct) << typed << ": " << plain(mark.sentence);
    }
}

TEST(EquationMarkTest, TwoWayArrows)
{
    expectMarks(soda(), {{"2HCl + Na2CO3 <=> 2NaCl + H2O + CO2", Verdict::correct, twoWay},
                         {"2HCl + Na2CO3 <-> 2NaCl + H2O + CO2", Verdict::correct, twoWay},
                         {"2HCl + Na2CO3 ⇌ 2NaCl + H2O + CO2", Verdict::correct, twoWay}});
}

TEST(EquationMarkTest, RightButForCapitalsOrLookalikes)
{
    expectMarks(soda(), {{"2hcl + na2co3 -> 2nacl + h2o + co2", Verdict::slip, capitals},
                         {"2HCL + NA2CO3 -> 2NACL + H2O + CO2", Verdict::slip, capitals},
                         {"2HCl + Na2Co3 -> 2NaCl + H2O + CO2", Verdict::slip, capitals},
                         {"2HCl + Na2CO3 -> 2NaCl + H2O + Co2", Verdict::slip, capitals},
                         {"2hcl(aq) + na2co3 -> 2nacl + h_2o (l) + co2", Verdict::slip, capitals},
                         {"2HCl + Na2C03 -> 2NaCl + H2O + CO2", Verdict::slip, zero},
                         {"2HCl + Na2CO3 -> 2NaCl + H20 + CO2", Verdict::slip, zero},
                         {"2HCI + Na2CO3 -> 2NaCl + H2O + CO2", Verdict::slip, largeI},
                         {"2HCI + Na2CO3 -> 2NaCI + H2O + CO2", Verdict::slip, largeI},
                         {"2HCl + Na2CO3 -> 2NaC1 + H2O + CO2", Verdict::slip, one}});
    expectMarks(vinegar(), {{"2ch3cooh + ca(oh)2 -> (ch3coo)2ca + 2h2o", Verdict::slip, capitals}});
    expectMarks(answerOf("HCl", "cobalt(II)", "carbonate"),
                {{"2HCl + COCO3 -> COCl2 + H2O + CO2", Verdict::slip, capitals},
                 {"2HCl + COCO3 -> CoCl2 + H2O + CO2", Verdict::slip, capitals},
                 {"HCl + COCO3 -> COCl2 + H2O + CO2", Verdict::slip, capitals},
                 {"2HCl + CoCO3 -> CoCl2 + H2O + CO2", Verdict::correct, "Correct."},
                 {"2HCl + CoCO3 -> CoCl2 + H2O + Co2", Verdict::slip, capitals}});
}

TEST(EquationMarkTest, WhatCannotBeRead)
{
    expectMarks(
        soda(),
        {{"", Verdict::unreadable, "Type formulas on both sides of an arrow: ->."},
         {" \t\u00A0", Verdict::unreadable, "Type formulas on both sides of an arrow: ->."},
         {"hcl + na2co3 -> nacl + h2o + co2", Verdict::unreadable, capitals},
         {"hcl + na2co3 -> nacl + h2o", Verdict::unreadable,
          "I can't read this part: 'hcl'. Type formulas on both sides of an arrow: ->."},
         {"HCl + Na2C03 -> NaCl + H20 + CO2", Verdict::unreadable, zero},
         {"2HCl + Na2CO3 -> 2NaCl + H2O + heat", Verdict::unreadable,
          "I can't read this part: 'heat'. Type formulas on both sides of an arrow: ->."},
         {"2HCl + Xy -> 2NaCl", Verdict::unreadable,
          "I can't read this part: 'Xy'. Type formulas on both sides of an arrow: ->."},
         {"0HCl + 0Na2CO3 -> 0NaCl + 0H2O + 0CO2", Verdict::unreadable,
          "I can't read this part: '0HCl'. Type formulas on both sides of an arrow: ->."},
         {"2HCl + Na2CO3(wet) -> 2NaCl", Verdict::unreadable,
          "I can't read this part: 'wet)'. Type formulas on both sides of an arrow: ->."},
         {"\xFF\xFE -> NaCl", Verdict::unreadable,
          "I can't read this part: '\uFFFD\uFFFD'. Type formulas on both sides of an arrow: ->."}});
}

TEST(EquationMarkTest, IonsInPlaceOfFormulas)
{
    constexpr const char* whole = "Write whole formulas here, not ions.";
    for (const char* const typed :
         {"H+ + OH- -> H2O", "H⁺ + OH⁻ → H₂O", "H^+ + OH^- -> H2O", "H^{+} + OH^{-} -> H_{2}O",
          "H+(aq) + OH-(aq) -> H2O(l)", "2H+ + CO3^2- -> H2O + CO2", "2H+ + CO32- = H2O + CO2",
          "H3O+ + OH- -> 2H2O", "2H+ + 2Cl- + 2Na+ + CO3 2- -> 2Na+ + 2Cl- + H2O + CO2",
          "2H+ + Na2CO3 -> 2Na+ + H2O + CO2", "2HCl + CO3(2-) + 2Na+ -> H2O + CO2",
          "2H+Cl- + Na2CO3 -> 2Na+Cl- + H2O + CO2", "2H^+Cl^- + Na2CO3 -> 2NaCl + H2O + CO2"}) {
        expectMarks(soda(), {{typed, Verdict::unreadable, whole}});
    }
}

TEST(EquationMarkTest, NamesInPlaceOfFormulas)
{
    constexpr const char* names = "Those are names. Type formulas.";
    for (const char* const typed :
         {"hydrochloric acid + sodium carbonate -> sodium chloride + water + carbon dioxide",
          "Hydrochloric Acid + Sodium Carbonate = Sodium Chloride + Water + Carbon Dioxide",
          "2 hydrochloric acid + sodium carbonate → 2 sodium chloride + water + carbon dioxide",
          "HYDROCHLORIC ACID + SODIUM CARBONATE -> SODIUM CHLORIDE + WATER + CARBON DIOXIDE",
          "hydrocloric acid + sodum carbonate gives sodum cloride and water",
          "2HCl + Na2CO3 -> 2NaCl + water + carbon dioxide", "acid + base -> salt + water",
          "acid and carbonate give salt, water and carbon dioxide",
          "acetic acid + aluminum hydroxide -> aluminum acetate + water",
          "sulphuric acid(aq) + copper(II) oxide(s) -> copper(II) sulphate(aq) + water(l)"}) {
        expectMarks(soda(), {{typed, Verdict::unreadable, names}});
    }
    expectMarks(soda(), {{"2HCl + Na2CO3 -> 2NaCl + water + CO2", Verdict::unreadable,
                          "'water' is a name. Type its formula."},
                         {"2HCl + Na2CO3 -> 2NaCl + H2O + CO2 + energy", Verdict::unreadable,
                          "I can't read this part: 'energy'. Type formulas on both sides of an "
                          "arrow: ->."}});
}

TEST(EquationMarkTest, AnotherAcidBaseOrSalt)
{
    expectMarks(soda(),
                {{"HCl + NaHCO3 -> NaCl + H2O + CO2", Verdict::slip,
                  "Carbonate and hydrogencarbonate are two different ions."},
                 {"2HCl + Na2O -> 2NaCl + H2O", Verdict::slip,
                  "Na2O is sodium oxide. Read again which base is asked for."},
                 {"2HCl + Ca(HCO3)2 -> 2NaCl + H2O + CO2", Verdict::slip,
                  "Ca(HCO3)2 is calcium hydrogencarbonate. Read again which base is asked for."},
                 {"2HNO3 + Na2CO3 -> 2NaNO3 + H2O + CO2", Verdict::slip,
                  "HNO3 is nitric acid. Read again which acid is asked for."},
                 {"2HCl + K2CO3 -> 2KCl + H2O + CO2", Verdict::slip,
                  "K2CO3 is potassium carbonate. Read again which base is asked for."},
                 {"2HCl + Na2CO3 -> 2NaBr + H2O + CO2", Verdict::slip,
                  "NaBr is sodium bromide. Read again which salt is asked for."},
                 {"2HCl + S2CO3 -> 2SCl + H2O + CO2", Verdict::slip, "Check this symbol: S."},
                 {"2HF + Na2CO3 -> 2NaF + H2O + CO2", Verdict::slip,
                  "NaF is sodium fluoride. Read again which salt is asked for."},
                 {"2NaCl + Na2CO3 -> 2NaCl + H2O + CO2", Verdict::wrong,
                  "Not right yet. NaCl does not react here."}});
    expectMarks(answerOf("HNO3", "potassium", "hydrogencarbonate"),
                {{"2HNO3 + K2CO3 -> 2KNO3 + H2O + CO2", Verdict::slip,
                  "Carbonate and hydrogencarbonate are two different ions."}});
    expectMarks(answerOf("HNO3", "potassium", "hydrogencarbonate"),
                {{"HNO3 + KCO3 -> KNO3 + H2O + CO2", Verdict::slip,
                  "KCO3 is not the base. Check the ions in it."}});
    expectMarks(lye(), {{"H2SO4 + Na2O -> Na2SO4 + H2O", Verdict::slip,
                         "Oxide and hydroxide are two different ions."},
                        {"2HCl + 2NaOH -> Na2SO4 + 2H2O", Verdict::slip,
                         "HCl is hydrochloric acid. Read again which acid is asked for."}});
}

TEST(EquationMarkTest, ElementsAndSeveralMolecules)
{
    expectMarks(soda(), {{"2HCl + Na -> NaCl + H2O", Verdict::slip,
                          "Na is an element. Acid and base are compounds."},
                         {"Cl2 + Na2CO3 -> 2NaCl + H2O + CO2", Verdict::slip,
                          "Cl2 is an element. Acid and base are compounds."},
                         {"2HCl + Na2CO3 -> 2NaCl + H2O + C + O2", Verdict::slip,
                          "C is an element. Only compounds form here."}});
    constexpr const char* inFront = "The number of molecules stands in front of the formula.";
    expectMarks(lye(), {{"H2SO4 + 2NaOH -> Na2SO4 + H4O2", Verdict::slip, inFront},
                        {"H2SO4 + 2NaOH -> Na2SO4 + (H2O)2", Verdict::slip, inFront}});
}

TEST(EquationMarkTest, WaterOfCrystals)
{
    expectMarks(answerOf("H2SO4", "copper(II)", "oxide"),
                {{"H2SO4 + CuO -> CuSO4·5H2O", Verdict::slip, "One more product."},
                 {"H2SO4 + CuO.H2O -> CuSO4 + H2O", Verdict::slip,
                  "Oxide and hydroxide are two different ions."},
                 {"H2SO4 + CuO -> CuSO4.5H2O + H2O", Verdict::slip,
                  "In solution the salt has no water of crystals."}});
    expectMarks(soda(), {{"2HCl + Na2CO3.10H2O -> 2NaCl + 11H2O + CO2", Verdict::slip,
                          "Leave out the water of crystals."}});
}

TEST(EquationMarkTest, NoArrow)
{
    expectMarks(soda(), {{"2HCl + Na2CO3", Verdict::unreadable, noArrow},
                         {"2HCl + Na2CO3 - 2NaCl + H2O + CO2", Verdict::unreadable, noArrow},
                         {"2HCl + Na2CO3 — 2NaCl + H2O + CO2", Verdict::unreadable, noArrow},
                         {"2HCl + Na2CO3 _ 2NaCl + H2O + CO2", Verdict::unreadable, noArrow},
                         {"2HCl + Na2CO3 + 2NaCl + H2O + CO2", Verdict::unreadable, noArrow}});
}

TEST(EquationMarkTest, KnownProductsThatDoNotForm)
{
    constexpr const char* carbonic = "It falls apart into water and carbon dioxide.";
    constexpr const char* hydrogen = "Acid and metal give hydrogen, not acid and base.";
    expectMarks(soda(), {{"2HCl + Na2CO3 -> 2NaCl + H2CO3", Verdict::slip, carbonic},
                         {"HCl + Na2CO3 -> NaCl + H2CO3", Verdict::slip, carbonic},
                         {"2HCl + Na2CO3 -> 2NaCl + H2CO3 + CO2", Verdict::slip, carbonic},
                         {"2HCl + Na2CO3 -> 2NaCl + H2 + CO2", Verdict::slip, hydrogen}});
    expectMarks(lye(), {{"H2SO4 + 2NaOH -> Na2SO4 + H2", Verdict::slip, hydrogen},
                        {"H2SO4 + 2Na -> Na2SO4 + H2", Verdict::slip, hydrogen},
                        // Nothing here could give it.
                        {"H2SO4 + 2NaOH -> Na2SO4 + H2CO3", Verdict::wrong,
                         "Not right yet. H2CO3 does not form here."}});
}

TEST(EquationMarkTest, ForgottenProducts)
{
    expectMarks(soda(), {{"2HCl + Na2CO3 -> 2NaCl + H2O", Verdict::slip, "One more product."},
                         {"2HCl + Na2CO3 -> 2NaCl + CO2", Verdict::slip, "One more product."},
                         {"HCl + Na2CO3 -> NaCl + CO2", Verdict::slip, "One more product."},
                         {"2HCl + Na2CO3 -> 2NaCl", Verdict::slip, "Two more products."},
                         // The salt is missing as well, which is not told.
                         {"2HCl + Na2CO3 -> CO2", Verdict::wrong, notYet}});
    expectMarks(lye(), {{"H2SO4 + 2NaOH -> Na2SO4", Verdict::slip, "One more product."},
                        {"H2SO4 + 2NaOH -> NaSO4", Verdict::slip, "One more product."},
                        {"H2SO4 + NaOH -> NaHSO4", Verdict::slip, "One more product."}});
}

TEST(EquationMarkTest, WrongSubscripts)
{
    expectMarks(lye(), {{"H2SO4 + 2NaOH -> NaSO4 + 2H2O", Verdict::slip,
                         "NaSO4 is not the salt. Check the charges."},
                        {"H2SO4 + NaOH -> Na(SO4)2 + H2O", Verdict::slip,
                         "Na(SO4)2 is not the salt. Check the charges."},
                        {"H2SO4 + 2NaOH -> Na2SO3 + 2H2O", Verdict::slip,
                         "Na2SO3 is not the salt. Check the ions in it."},
                        {"HSO4 + 2NaOH -> Na2SO4 + 2H2O", Verdict::slip,
                         "HSO4 is not the acid. Check the charges."},
                        {"H2SO3 + 2NaOH -> Na2SO4 + 2H2O", Verdict::slip,
                         "H2SO3 is not the acid. Check the ions in it."},
                        {"H2SO4 + Na(OH)2 -> Na2SO4 + 2H2O", Verdict::slip,
                         "Na(OH)2 is not the base. Check the charges."}});
    expectMarks(soda(), {{"2HCl + NaCO3 -> NaCl + H2O + CO2", Verdict::slip,
                          "NaCO3 is not the base. Check the charges."},
                         {"2HCl + Na2CO3 -> Na2Cl2 + H2O + CO2", Verdict::slip,
                          "Na2Cl2 is not the salt. Simplify."}});
    expectMarks(alumina(), {{"3H2SO4 + 2AlOH3 -> Al2(SO4)3 + 6H2O", Verdict::slip,
                             "AlOH3 is not the base. What does the small number multiply?"},
                            {"3H2SO4 + 2Al(OH)3 -> Al2SO43 + 6H2O", Verdict::slip,
                             "Al2SO43 is not the salt. What does the small number multiply?"},
                            {"3H2SO4 + 2Al(OH)3 -> Al4(SO4)6 + 6H2O", Verdict::slip,
                             "Al4(SO4)6 is not the salt. Simplify."}});
    expectMarks(vinegar(), {{"2CH3COOH + Ca(OH)2 -> CH3COO2Ca + 2H2O", Verdict::slip,
                             "CH3COO2Ca is not the salt. What does the small number multiply?"}});
    expectMarks(
        answerOf("HCl", "iron(III)", "oxide"),
        {{"6HCl + FeO -> 2FeCl3 + 3H2O", Verdict::slip, "FeO is not the base. Check the charges."},
         {"6HCl + Fe2O3 -> 2FeCl2 + 3H2O", Verdict::slip,
          "FeCl2 is not the salt. Check the charges."}});
    expectMarks(answerOf("HNO3", "ammonium", "carbonate"),
                {{"2HNO3 + (NH3)2CO3 -> 2NH4NO3 + H2O + CO2", Verdict::slip,
                  "(NH3)2CO3 is not the base. Check the ions in it."},
                 {"2HNO3 + (NH4)2CO3 -> (NH4)2NO3 + H2O + CO2", Verdict::slip,
                  "(NH4)2NO3 is not the salt. Check the charges."}});
}

TEST(EquationMarkTest, RomanNumeralsLeftIn)
{
    constexpr const char* numeral = "The Roman numeral is a charge.";
    expectMarks(answerOf("HNO3", "copper(II)", "carbonate"),
                {{"2HNO3 + CuCO3 -> Cu(II)(NO3)2 + H2O + CO2", Verdict::slip, numeral},
                 {"2HNO3 + Cu(II)CO3 -> Cu(NO3)2 + H2O + CO2", Verdict::slip, numeral},
                 {"2HNO3 + CuIICO3 -> Cu(II)(NO3)2 + H2O + CO2", Verdict::slip, numeral},
                 {"2HNO3 + Cu(II)CO3 -> Cu(II)(NO3)2 + H2O", Verdict::slip, "One more product."}});
    expectMarks(answerOf("HCl", "iron(III)", "oxide"),
                {{"6HCl + Fe(III)2O3 -> 2FeCl3 + 3H2O", Verdict::slip, numeral},
                 {"6HCl + Fe2O3 -> 2Fe(Ⅲ)Cl3 + 3H2O", Verdict::slip, numeral}});
}

TEST(EquationMarkTest, SaltsOfHalfTheWay)
{
    constexpr const char* lessBase = "True with less base. Neutralise completely.";
    constexpr const char* lessAcid = "True with less acid. Neutralise completely.";
    expectMarks(lye(), {{"H2SO4 + NaOH -> NaHSO4 + H2O", Verdict::slip, lessBase},
                        {"2H2SO4 + 2NaOH -> 2NaHSO4 + 2H2O", Verdict::slip, lessBase},
                        {"1/2H2SO4 + 1/2NaOH -> 0.5NaHSO4 + ½H2O", Verdict::slip, lessBase},
                        {"H2SO4 + 2NaOH -> Na2HSO4 + H2O", Verdict::slip,
                         "Na2HSO4 is not the salt. Check the charges."}});
    expectMarks(alumina(), {{"3H2SO4 + Al(OH)3 -> Al(HSO4)3 + 3H2O", Verdict::slip, lessBase}});
    expectMarks(answerOf("H3PO4", "sodium", "hydroxide"),
                {{"H3PO4 + NaOH -> NaH2PO4 + H2O", Verdict::slip, lessBase},
                 {"H3PO4 + 2NaOH -> Na2HPO4 + 2H2O", Verdict::slip, lessBase}});
    expectMarks(answerOf("H3PO4", "calcium", "oxide"),
                {{"H3PO4 + CaO -> CaHPO4 + H2O", Verdict::slip, lessBase},
                 {"2H3PO4 + CaO -> Ca(H2PO4)2 + H2O", Verdict::slip, lessBase}});
    expectMarks(soda(), {{"HCl + Na2CO3 -> NaCl + NaHCO3", Verdict::slip, lessAcid}});
    // These two react with each other.
    expectMarks(answerOf("H2SO4", "sodium", "carbonate"),
                {{"H2SO4 + Na2CO3 -> NaHSO4 + NaHCO3", Verdict::slip,
                  "NaHSO4 is an acid salt. Neutralise completely."}});
}

// "True with less …" is said of a true equation alone.
TEST(EquationMarkTest, SaltsOfHalfTheWayThatAreNotBalanced)
{
    constexpr const char* acidSalt = "NaHSO4 is an acid salt. Neutralise completely.";
    constexpr const char* oxygenGas = "O2 is an element. Only compounds form here.";
    expectMarks(lye(), {{"H2SO4 + NaOH -> NaHSO4 + 2H2O", Verdict::slip, acidSalt},
                        {"2H2SO4 + NaOH -> NaHSO4 + H2O", Verdict::slip, acidSalt},
                        {"H2SO4 + 2NaOH -> NaHSO4 + 2H2O", Verdict::slip, acidSalt},
                        {"99999H2SO4 + NaOH -> 1/9999NaHSO4 + 1/9998H2O", Verdict::slip, acidSalt},
                        // Balanced, but the second product is none.
                        {"H2SO4 + NaOH -> NaHSO4 + HOH", Verdict::slip,
                         "True with less base. Neutralise completely."},
                        {"2H2SO4 + 2NaOH -> 2NaHSO4 + 2H2 + O2", Verdict::slip,
                         "Acid and metal give hydrogen, not acid and base."}});
    expectMarks(answerOf("H2SO4", "zinc", "oxide"),
                {{"H2SO4 + ZnO -> Zn(HSO4)2 + O2", Verdict::slip, oxygenGas},
                 {"H2SO4 + ZnO -> Zn(HSO4)2 + H2O", Verdict::slip,
                  "Zn(HSO4)2 is an acid salt. Neutralise completely."},
                 {"2H2SO4 + ZnO -> Zn(HSO4)2 + H2O", Verdict::slip,
                  "True with less base. Neutralise completely."}});
    // There is no cobalt(II) hydrogencarbonate to be had.
    expectMarks(answerOf("HBr", "cobalt(II)", "carbonate"),
                {{"2HBr + CoCO3 -> Co(HCO3)2 + Br2", Verdict::slip,
                  "Br2 is an element. Only compounds form here."},
                 {"2HBr + 2CoCO3 -> Co(HCO3)2 + CoBr2", Verdict::wrong,
                  "Not right yet. Co(HCO3)2 does not form here."}});
    expectMarks(soda(), {{"HCl + Na2CO3 -> 2NaCl + NaHCO3", Verdict::slip,
                          "NaHCO3 still reacts with the acid. Neutralise completely."},
                         {"HCl + Na2CO3 -> NaHCO3", Verdict::slip,
                          "NaHCO3 still reacts with the acid. Neutralise completely."}});
}

TEST(EquationMarkTest, OtherSubstances)
{
    constexpr const char* backwards = "The arrow points from acid and base to the products.";
    expectMarks(soda(), {{"2HCl + NaOH -> 2NaCl + H2O + CO2", Verdict::slip,
                          "NaOH is sodium hydroxide. Read again which base is asked for."},
                         {"2HCl + Na2CO3 + H2O -> 2NaCl + 2H2O + CO2", Verdict::wrong,
                          "Not right yet. H2O does not react here."},
                         {"2HCl + Na2CO3 -> 2NaCl + H2O + CO", Verdict::wrong,
                          "Not right yet. CO does not form here."},
                         {"2HCl + Na2CO3 -> NaOH + CO2", Verdict::wrong,
                          "Not right yet. NaOH does not form here."},
                         {"2HCl + Na2CO3 -> H2O + CO2", Verdict::wrong, notYet},
                         {"2HCl -> 2NaCl + H2O + CO2", Verdict::wrong, notYet},
                         {"2NaCl + H2O + CO2 -> 2HCl + Na2CO3", Verdict::slip, backwards},
                         {"HCl + Na2CO3 <- NaCl + H2O + CO2", Verdict::slip, backwards},
                         {"2NaCl + H2O -> 2HCl + Na2CO3", Verdict::wrong,
                          "Not right yet. NaCl does not react here."},
                         {"->", Verdict::wrong, notYet}});
    // The right one is there as well, or there is no such ion.
    expectMarks(lye(), {{"H2SO4 + HSO4 + 2NaOH -> Na2SO4 + 2H2O", Verdict::wrong,
                         "Not right yet. HSO4 does not react here."},
                        {"H2SO4 + 2NaOH -> Na2SO4 + NaSO4 + 2H2O", Verdict::wrong,
                         "Not right yet. NaSO4 does not form here."}});
    expectMarks(soda(), {{"2HCl + Na2CO3 -> NaHCl2 + H2O + CO2", Verdict::wrong,
                          "Not right yet. NaHCl2 does not form here."}});
    expectMarks(alumina(), {{"3H2SO4 + Al2O3 -> Al2(SO4)3 + 3H2O", Verdict::slip,
                             "Oxide and hydroxide are two different ions."}});
}

TEST(EquationMarkTest, NotBalanced)
{
    expectMarks(soda(), {{"HCl + Na2CO3 -> NaCl + H2O + CO2", Verdict::slip,
                          "Count the sodium atoms: 2 on the left, 1 on the right."},
                         {"HCl + Na2CO3 -> 2NaCl + H2O + CO2", Verdict::slip,
                          "Count the chlorine atoms: 1 on the left, 2 on the right."},
                         {"2NaCl + H2O + CO2 <- HCl + Na2CO3", Verdict::slip,
                          "Count the chlorine atoms: 2 on the left, 1 on the right."},
                         {"1/3HCl + Na2CO3 -> 2NaCl + H2O + CO2", Verdict::slip,
                          "Count the chlorine atoms: 1/3 on the left, 2 on the right."}});
    expectMarks(lye(), {{"H2SO4 + 2NaOH -> Na2SO4 + H2O", Verdict::slip,
                         "Count the hydrogen atoms: 4 on the left, 2 on the right."},
                        {"H2SO4 + 2NaOH -> Na2SO4 + 1.5H2O", Verdict::slip,
                         "Count the hydrogen atoms: 4 on the left, 3 on the right."},
                        {"0.25H2SO4 + 2NaOH -> Na2SO4 + 2H2O", Verdict::slip,
                         "Count the sulfur atoms: 0.25 on the left, 1 on the right."}});
}

TEST(EquationMarkTest, MultiplesAndFractions)
{
    expectMarks(soda(), {{"4HCl + 2Na2CO3 -> 4NaCl + 2H2O + 2CO2", Verdict::slip, smallest},
                         {"HCl + 1/2Na2CO3 -> NaCl + 1/2H2O + 1/2CO2", Verdict::slip, smallest},
                         {"HCl + ½Na2CO3 -> NaCl + .5H2O + 0,5 CO2", Verdict::slip, smallest},
                         {"3HCl + 1½Na2CO3 -> 3NaCl + 1.5H2O + 3/2 CO2", Verdict::slip, smallest},
                         {"2000HCl + 1000Na2CO3 -> 2000NaCl + 1000H2O + 1000CO2", Verdict::slip,
                          smallest}});
}

TEST(EquationMarkTest, States)
{
    expectMarks(
        soda(),
        {{"2HCl(g) + Na2CO3 -> 2NaCl + H2O + CO2", Verdict::slip, "Check the state of HCl."},
         {"2HCl + Na2CO3(l) -> 2NaCl + H2O + CO2", Verdict::slip, "Check the state of Na2CO3."},
         {"2HCl + Na2CO3 -> 2NaCl(s) + H2O + CO2", Verdict::slip, "Check the state of NaCl."},
         {"2HCl + Na2CO3 -> 2NaCl + H2O(aq) + CO2(l)", Verdict::slip, "Check the state of H2O."},
         {"2HCl + Na2CO3 -> 2NaCl + H2O + CO2(aq)", Verdict::slip, "Check the state of CO2."}});
    expectMarks({findAcid("HCl"), ammonia()},
                {{"HCl + NH3 -> NH4Cl", Verdict::correct, "Correct."},
                 {"HCl(aq) + NH3(aq) -> NH4Cl(aq)", Verdict::correct, "Correct."},
                 {"HCl(aq) + NH3(g) -> NH4Cl(aq)", Verdict::correct, "Correct."},
                 {"HCl + NH3(l) -> NH4Cl", Verdict::slip, "Check the state of NH3."},
                 {"HCl + NH3 -> NH4Cl(g)", Verdict::slip, "Check the state of NH4Cl."}});
}

TEST(EquationMarkTest, AmmoniaWithTheWaterAroundIt)
{
    for (const char* const typed : {"HCl + NH4OH -> NH4Cl + H2O", "HCl + NH4OH -> NH4Cl"}) {
        expectMarks({findAcid("HCl"), ammonia()},
                    {{typed, Verdict::unreadable, "NH4OH is ammonia and water: write NH3."}});
    }
    expectMarks({findAcid("H2SO4"), ammonia()},
                {{"H2SO4 + 2NH3·H2O -> (NH4)2SO4 + 2H2O", Verdict::unreadable,
                  "NH3.H2O is ammonia and water: write NH3."}});
    // Nothing else stands for ammonia.
    expectMarks(lye(), {{"H2SO4 + 2NH4OH -> Na2SO4 + 2H2O", Verdict::wrong,
                         "Not right yet. NH4OH does not react here."}});
}

TEST(EquationMarkTest, RaisedCoefficients)
{
    for (const char* const typed :
         {"²HCl + Na2CO3 -> ²NaCl + H2O + CO2", "²HCl+Na₂CO₃→²NaCl+H²O+CO²",
          "Na2CO3+²HCl = ² NaCl + CO2 + H2O", "^2HCl + Na2CO3 -> ^2NaCl + ¹H2O + CO2"}) {
        expectMarks(soda(), {{typed, Verdict::correct, "Correct."}});
    }
    expectMarks(soda(), {{"HCl + Na2CO3 -> ²NaCl + H2O + CO2", Verdict::slip,
                          "Count the chlorine atoms: 1 on the left, 2 on the right."}});
}

TEST(EquationMarkTest, MinusForPlus)
{
    for (const char* const typed :
         {"2HCl + Na2CO3 -> 2NaCl - H2O + CO2", "2HCl - Na2CO3 -> 2NaCl + H2O + CO2",
          "2HCl + Na2CO3 -> 2NaCl + H2O − CO2", "Na2CO3-2HCl -> 2NaCl + H2O + CO2"}) {
        expectMarks(soda(), {{typed, Verdict::unreadable, "Put a plus sign between substances."}});
    }
}

std::string repeated(const std::string& piece, std::size_t length)
{
    std::string text;
    while (text.size() < length) {
        text += piece;
    }
    return text;
}

TEST(EquationMarkTest, HostileTexts)
{
    constexpr std::size_t megabyte = 1000000;
    for (const char* const piece : {"+",
                                    "H+",
                                    "H2+",
                                    "(",
                                    ")",
                                    "()",
                                    "(H",
                                    "((H)2)",
                                    "->",
                                    "- ",
                                    "-",
                                    "=",
                                    "<",
                                    " ",
                                    "9",
                                    "1/2",
                                    "1 1/2 ",
                                    "0.5",
                                    "N999999",
                                    "HCl(aq)",
                                    "(aq)",
                                    "2HCl + ",
                                    "\xFF",
                                    "½",
                                    "→",
                                    "·",
                                    ".",
                                    "^",
                                    "_{",
                                    "CH3-",
                                    "2HCl + Na2CO3 -> 2NaCl + H2O + CO2 ",
                                    "H2O -> "}) {
        const std::string text = repeated(piece, megabyte / 5);
        for (const std::string& typed :
             {text, "2HCl + Na2CO3 -> " + text, text + " -> 2NaCl + H2O + CO2",
              "2HCl + Na2CO3 -> 2NaCl + H2O + CO2" + text}) {
            const Mark mark = markEquation(soda(), typed);
            EXPECT_LT(plain(mark.sentence).size(), 300U) << piece;
            EXPECT_FALSE(plain(mark.sentence).empty()) << piece;
            const bool isNothing = std::string(piece) == " " || std::string(piece) == "_{";
            EXPECT_TRUE(mark.verdict != Verdict::correct || isNothing) << piece;
        }
    }
    for (const char* const typed :
         {"99999HCl + 99999HCl + Na2CO3 -> 2NaCl + H2O + CO2",
          "2HCl + N999999H999999 -> 2NaCl + H2O + CO2",
          "1/9999HCl + 1/9998HCl + 1/9997HCl + Na2CO3 -> 2NaCl + H2O + CO2",
          "99999/10000HCl + 1/9999Na2CO3 -> 1/9998NaCl + 1/9997H2O + 1/9991CO2",
          "2HCl + (NH4)500000000CO3 -> 2NaCl", "2HCl + (Na9999)9999CO3 -> 2NaCl + H2O + CO2",
          "2HCl + ((((N9999)9999)9999)9999)9999 -> NaCl"}) {
        EXPECT_NE(markEquation(soda(), typed).verdict, Verdict::correct) << typed;
    }
}

} // namespace

} // namespace lesson
