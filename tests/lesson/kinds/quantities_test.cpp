#include "lesson/kinds/quantities.hpp"

#include <gtest/gtest.h>

#include <string>

#include "support/calculation.hpp"

namespace lesson
{

namespace
{

std::string toldText(const GivenQuantity& given)
{
    return given.quantity + "(" + given.of + ") = " + textOf(told(given));
}

TEST(QuantitiesTest, QuantitiesAreToldAsOnLabels)
{
    EXPECT_EQ(toldText(givenMass("NaCl", ratio(5))), "m(NaCl) = 5.00 g");
    EXPECT_EQ(toldText(givenMass("NaCl", ratio(10))), "m(NaCl) = 10.00 g");
    EXPECT_EQ(toldText(givenMolarMass("NaCl")), "M(NaCl) = 58.44 g/mol");
    EXPECT_EQ(toldText(givenMolarMass("NaOH")), "M(NaOH) = 40.00 g/mol");
    EXPECT_EQ(givenMolarMass("NaOH").value, ratio(40));
    EXPECT_EQ(toldText(givenVolume("V1", "HCl", litres(5))), "V1(HCl) = 5.00 mL");
    EXPECT_EQ(toldText(givenVolume("V", "HCl", litres(50))), "V(HCl) = 50.0 mL");
    EXPECT_EQ(toldText(givenVolume("V", "HCl", litres(750))), "V(HCl) = 750 mL");
    EXPECT_EQ(toldText(givenVolume("V2", "HCl", litres(1000))), "V2(HCl) = 1.00 L");
    EXPECT_EQ(toldText(givenVolume("V2", "HCl", litres(2000))), "V2(HCl) = 2.00 L");
    EXPECT_EQ(toldText(givenTitre("HCl", ratio(2, 100))), "V(HCl) = 20.00 mL");
    EXPECT_EQ(toldText(givenTitre("HCl", ratio(2175, 100000))), "V(HCl) = 21.75 mL");
    EXPECT_EQ(toldText(givenConcentration("c1", "HCl", molesPerLitre(500))),
              "c1(HCl) = 0.0500 mol/L");
    EXPECT_EQ(toldText(givenConcentration("c", "HCl", molesPerLitre(60000))),
              "c(HCl) = 6.00 mol/L");
}

TEST(QuantitiesTest, WhatIsNotToldKeepsItsValue)
{
    const GivenQuantity given = untold(givenMolarMass("NaCl"));
    EXPECT_EQ(given.shown, "");
    EXPECT_EQ(given.shownUnit, "");
    EXPECT_EQ(given.value, ratio(5844, 100));
    EXPECT_EQ(given.unit, "g/mol");
}

TEST(QuantitiesTest, ASolutionIsNamedAfterItsSolute)
{
    const char* const names[][2] = {
        {"NaCl", "sodium chloride solution"},
        {"HCl", "hydrochloric acid"},
        {"CH3COOH", "ethanoic acid"},
        {"NH3", "ammonia solution"},
        {"NaCH3COO", "sodium ethanoate solution"},
        {"H2C2O4", "ethanedioic acid solution"},
    };
    for (const auto& [formula, name] : names) {
        EXPECT_EQ(textOf(solutionOf(*findSolute(formula))), name);
    }
}

TEST(StepRoundingTest, HalvesGoUpOrDownInTurnAsTheBitsTell)
{
    struct HalfCase {
        unsigned downwards;
        Ratio first;
        Ratio second;
    };
    // 5.025 and 9.995 to three figures.
    const HalfCase cases[] = {
        {0U, ratio(503, 100), ratio(10)},
        {1U, ratio(502, 100), ratio(10)},
        {2U, ratio(503, 100), ratio(999, 100)},
        {3U, ratio(502, 100), ratio(999, 100)},
    };
    for (const auto& [downwards, first, second] : cases) {
        StepRounding rounded(3, downwards);
        EXPECT_EQ(rounded(ratio(5025, 1000)), first) << downwards;
        EXPECT_EQ(rounded(ratio(5026, 1000)), ratio(503, 100)) << downwards;
        EXPECT_EQ(rounded(ratio(9995, 1000)), second) << downwards;
        EXPECT_EQ(rounded(ratio(9994, 1000)), ratio(999, 100)) << downwards;
        EXPECT_EQ(rounded(ratio(1, 3)), ratio(333, 1000)) << downwards;
        EXPECT_EQ(rounded(ratio(7)), ratio(7)) << downwards;
        EXPECT_EQ(rounded.halves(), 2U) << downwards;
        EXPECT_EQ(rounded.to(2, ratio(1234)), ratio(1200)) << downwards;
    }
}

// By one step, whose halves decide: 2.505 rounds to 2.51 or 2.50, and 100 times that is 251 or 250.
Ratio hundredfoldOfRounded(const Ratio& value, StepRounding& rounded)
{
    return rounded(value) * ratio(100);
}

TEST(StaysCorrectTest, EveryWayToRoundAHalfHasToAgree)
{
    EXPECT_TRUE(staysCorrect(ratio(2505, 10), ratio(2505, 1000), hundredfoldOfRounded));
    EXPECT_TRUE(staysCorrect(ratio(251), ratio(2505, 1000), hundredfoldOfRounded));
    // 253 is two units from 251, and within half a per cent of 252 to 254 only.
    EXPECT_FALSE(staysCorrect(ratio(253), ratio(2505, 1000), hundredfoldOfRounded));
    // 251.5, shown as 252, accepts 251 and 253, and half a per cent: 250.24 to 252.76, not 250.
    EXPECT_FALSE(staysCorrect(ratio(2515, 10), ratio(2505, 1000), hundredfoldOfRounded));
    EXPECT_TRUE(staysCorrect(ratio(2515, 10), ratio(2506, 1000), hundredfoldOfRounded));
}

} // namespace

} // namespace lesson
