#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <set>
#include <string>

#include "lesson/chemistry/acids_and_bases.hpp"
#include "lesson/chemistry/composition.hpp"
#include "lesson/chemistry/solutes_and_ceilings.hpp"
#include "lesson/tests/support/calculation.hpp"

namespace lesson
{

namespace
{

constexpr unsigned exercises = 10000;

const SoluteRow& soluteOf(const Exercise& exercise)
{
    return *findSolute(std::get<GivenCompound>(exercise.given.at(0)).formula);
}

// The four quantities, in mol/L and L; the one that is asked for from the answer.
struct Worked {
    long double c1;
    long double V1;
    long double c2;
    long double V2;
};

Worked workedFrom(const Exercise& exercise)
{
    const long double answer = toFloat(answerOf(exercise).value);
    Worked worked = {givenValue(exercise, "c1"), givenValue(exercise, "V1"),
                     givenValue(exercise, "c2"), givenValue(exercise, "V2")};
    const std::string& asked = exercise.ask.quantity;
    if (asked == "c1") {
        worked.c1 = answer;
    } else if (asked == "c2") {
        worked.c2 = answer;
    } else if (asked == "V1") {
        worked.V1 = answer / 1000;
    } else {
        worked.V2 = worked.V1 + answer / 1000;
    }
    return worked;
}

// By way of the amount, in mmol and mL.
long double byAmount(const Exercise& exercise, Calculator rounded)
{
    const auto [c1, V1, c2, V2] =
        Worked{givenValue(exercise, "c1"), 1000 * givenValue(exercise, "V1"),
               givenValue(exercise, "c2"), 1000 * givenValue(exercise, "V2")};
    const std::string& asked = exercise.ask.quantity;
    if (asked == "c1") {
        return rounded(c2 * V2) / V1;
    }
    if (asked == "c2") {
        return rounded(c1 * V1) / V2;
    }
    return asked == "V1" ? rounded(c2 * V2) / c1 : rounded(rounded(c1 * V1) / c2) - V1;
}

// By way of how many times the solution is diluted.
long double byFactor(const Exercise& exercise, Calculator rounded)
{
    const auto [c1, V1, c2, V2] =
        Worked{givenValue(exercise, "c1"), 1000 * givenValue(exercise, "V1"),
               givenValue(exercise, "c2"), 1000 * givenValue(exercise, "V2")};
    const std::string& asked = exercise.ask.quantity;
    if (asked == "c1") {
        return c2 * rounded(V2 / V1);
    }
    if (asked == "c2") {
        return c1 / rounded(V2 / V1);
    }
    return asked == "V1" ? V2 / rounded(c1 / c2) : rounded(V1 * rounded(c1 / c2)) - V1;
}

TEST(DilutionExerciseTest, TheKeyFollowsFromWhatIsGivenHoweverStepsAreRounded)
{
    for (const int level : {1, 2, 3}) {
        RoundingOnTheWay amount;
        RoundingOnTheWay factor;
        forExercises(&dilutionKind, level, exercises, [&](const Exercise& exercise) {
            amount.check(exercise, byAmount);
            factor.check(exercise, byFactor);
        });
        amount.expectFairness();
        factor.expectFairness();
    }
}

TEST(DilutionExerciseTest, NothingIsStrongerThanItsCeilingOrOutOfRange)
{
    for (const int level : {1, 2, 3}) {
        forExercises(&dilutionKind, level, exercises, [&](const Exercise& exercise) {
            const auto [c1, V1, c2, V2] = workedFrom(exercise);
            const SoluteRow& solute = soluteOf(exercise);
            constexpr long double tiny = 1e-12L;
            EXPECT_NEAR(static_cast<double>(c1 * V1 / (c2 * V2)), 1.0, 1e-12);
            EXPECT_LE(c1, solute.ceiling / 100.0L + tiny) << placeOf(exercise);
            EXPECT_GE(V2 / V1, 2 - tiny) << placeOf(exercise);
            EXPECT_LE(V2 / V1, 50 + tiny) << placeOf(exercise);
            EXPECT_GE(V1, 0.005L - tiny) << placeOf(exercise);
            EXPECT_LE(V1, 0.2L + tiny) << placeOf(exercise);
            EXPECT_GE(V2, 0.1L - tiny) << placeOf(exercise);
            EXPECT_LE(V2, 2 + tiny) << placeOf(exercise);
            if (solute.formula == "AgNO3") {
                EXPECT_LE(c1 * V1 * toFloat(molarMassOf("AgNO3")), 2 + tiny) << placeOf(exercise);
            }
        });
    }
}

TEST(DilutionExerciseTest, NoWaterIsAddedToAStrongAcidAndStrongAcidsAreDilutedElsewhere)
{
    for (const int level : {1, 2, 3}) {
        long double strongest = 0;
        int acids = 0;
        forExercises(&dilutionKind, level, exercises, [&](const Exercise& exercise) {
            if (findAcid(soluteOf(exercise).formula) == nullptr) {
                return;
            }
            ++acids;
            strongest = std::max(strongest, workedFrom(exercise).c1);
            EXPECT_EQ(level == 3, textOf(exercise.prompt).find("water") != std::string::npos)
                << placeOf(exercise);
        });
        EXPECT_GT(acids, 100);
        EXPECT_EQ(strongest, level == 3 ? 2 : 6);
    }
}

TEST(DilutionExerciseTest, EveryVolumeConcentrationAndSoluteIsDrawn)
{
    std::map<std::string, std::set<std::string>> drawn;
    forExercises(&dilutionKind, 1, exercises, [&](const Exercise& exercise) {
        for (const char* const symbol : {"V1", "V2", "c1"}) {
            const GivenQuantity& given = *findGiven(exercise, symbol);
            drawn[symbol].insert(given.shown + " " + given.shownUnit);
        }
        drawn["solute"].emplace(soluteOf(exercise).formula);
    });
    EXPECT_EQ(drawn["V1"], (std::set<std::string>{"5.00 mL", "10.0 mL", "20.0 mL", "25.0 mL",
                                                  "40.0 mL", "50.0 mL", "100 mL", "200 mL"}));
    EXPECT_EQ(drawn["V2"],
              (std::set<std::string>{"100 mL", "200 mL", "250 mL", "500 mL", "1.00 L", "2.00 L"}));
    EXPECT_EQ(drawn["c1"],
              (std::set<std::string>{"0.0500 mol/L", "0.100 mol/L", "0.200 mol/L", "0.250 mol/L",
                                     "0.400 mol/L", "0.500 mol/L", "0.800 mol/L", "1.00 mol/L",
                                     "1.50 mol/L", "2.00 mol/L", "3.00 mol/L", "4.00 mol/L",
                                     "6.00 mol/L"}));
    EXPECT_EQ(drawn["solute"].size(), solutes().size() + 4);
    for (const char* const acid : {"HCl", "HNO3", "H2SO4", "CH3COOH"}) {
        EXPECT_EQ(drawn["solute"].count(acid), 1U) << acid;
    }
}

TEST(DilutionExerciseTest, ThinnestAndStrongestDilutionAreMet)
{
    long double least = 100;
    long double greatest = 0;
    forExercises(&dilutionKind, 1, exercises, [&](const Exercise& exercise) {
        const Worked worked = workedFrom(exercise);
        least = std::min(least, worked.V2 / worked.V1);
        greatest = std::max(greatest, worked.V2 / worked.V1);
    });
    EXPECT_NEAR(static_cast<double>(least), 2, 1e-12);
    EXPECT_NEAR(static_cast<double>(greatest), 50, 1e-12);
}

TEST(DilutionExerciseTest, EachLevelAsksForItsOwnInItsUnit)
{
    std::map<std::string, int> second;
    for (const int level : {1, 2, 3}) {
        forExercises(&dilutionKind, level, exercises, [&](const Exercise& exercise) {
            const Ask& ask = exercise.ask;
            const std::string asked = ask.quantity + " in " + ask.unit;
            if (level == 1) {
                EXPECT_EQ(asked, "c2 in mol/L") << placeOf(exercise);
            } else if (level == 2) {
                ++second[asked];
            } else {
                EXPECT_EQ(asked, "V in mL") << placeOf(exercise);
                EXPECT_EQ(ask.of, "H2O") << placeOf(exercise);
            }
        });
    }
    expectEqualShares(second, 2);
    EXPECT_EQ(second.count("V1 in mL"), 1U);
    EXPECT_EQ(second.count("c1 in mol/L"), 1U);
}

// Nothing is told or asked that had to be rounded: a pipette of 40.0 mL, and never one of 39.9 mL.
TEST(DilutionExerciseTest, WhatIsGivenAndWhatIsAskedHaveThreeFiguresExactly)
{
    const auto hasThreeFigures = [](Ratio value) { return valueOf(roundedTo(value, 3)) == value; };
    for (const int level : {2, 3}) {
        forExercises(&dilutionKind, level, exercises, [&](const Exercise& exercise) {
            EXPECT_TRUE(hasThreeFigures(findGiven(exercise, "c2")->value)) << placeOf(exercise);
            EXPECT_TRUE(hasThreeFigures(answerOf(exercise).value)) << placeOf(exercise);
        });
    }
}

TEST(DilutionExerciseTest, FlasksAreThoseThatThereAre)
{
    const std::set<double> flasks = {100, 200, 250, 500, 1000, 2000};
    for (const int level : {1, 2, 3}) {
        forExercises(&dilutionKind, level, exercises, [&](const Exercise& exercise) {
            const long double V2 = workedFrom(exercise).V2 * 1000;
            EXPECT_EQ(flasks.count(static_cast<double>(std::round(V2 * 1000) / 1000)), 1U)
                << placeOf(exercise);
        });
    }
}

// The whole volume, typed for the water, passes neither for it nor for a rounded or close answer.
TEST(DilutionExerciseTest, TheWholeVolumeIsToldFromTheWater)
{
    forExercises(&dilutionKind, 3, exercises, [&](const Exercise& exercise) {
        const Mark mark = markOf(exercise, typedText(1000 * workedFrom(exercise).V2, 3));
        EXPECT_EQ(mark.sentence, "Read again which volume is asked for.") << placeOf(exercise);
    });
}

TEST(DilutionExerciseTest, QuantitiesAreOftenNewWhateverTheSolute)
{
    for (const int level : {1, 2, 3}) {
        std::set<std::string> distinct;
        forExercises(&dilutionKind, level, exercises, [&](const Exercise& exercise) {
            std::string all = exercise.ask.quantity;
            for (const char* const symbol : {"c1", "V1", "c2", "V2"}) {
                const GivenQuantity* const given = findGiven(exercise, symbol);
                all += given == nullptr ? ";" : ";" + given->shown + given->shownUnit;
            }
            distinct.insert(all);
        });
        std::printf("dilution:%d has %zu distinct sets of quantities\n", level, distinct.size());
        EXPECT_GT(distinct.size(), 300U) << level;
    }
}

TEST(DilutionExerciseTest, EachStepHasAHintWithoutNumbers)
{
    for (const int level : {1, 2, 3}) {
        forExercises(&dilutionKind, level, 100, [](const Exercise& exercise) {
            for (const Step& step : exercise.solution) {
                const std::string hint = textOf(step.hint);
                EXPECT_FALSE(hint.empty()) << textOf(step.say);
                EXPECT_NE(hint, textOf(step.say));
                EXPECT_EQ(hint.find_first_of("0123456789"), std::string::npos) << hint;
            }
        });
    }
}

TEST(DilutionExerciseTest, PagesWorkedByHand)
{
    EXPECT_EQ(pageOf(makeExercise({1, 8, &dilutionKind, 1})),
              "10.0 mL of 0.0500 mol/L ammonium sulfate solution is diluted to 250 mL. Calculate "
              "the concentration of the diluted solution in mol/L.\n"
              "  The amount stays the same. | c1V1 = c2V2\n"
              "  Rearrange; both volumes in the same unit. | c2 = c1V1/V2 = 0.0500 × 10.0/250 = "
              "0.00200 mol/L\n"
              "  Check: 25 times the volume, so the concentration is divided by 25. | c2 = "
              "0.0500/25 = 0.00200 mol/L\n"
              "= 0.00200 mol/L\n"
              "! 1.25 mol/L  Should the result be larger or smaller?\n"
              "! 0.00192 mol/L  V2 is the volume of the whole diluted solution.\n"
              "! 0.00208 mol/L  V2 is the volume of the whole diluted solution.\n"
              "! 0.000500 mol/L  That is an amount. One step is left.\n"
              "! 0.500 mol/L  That is an amount. One step is left.\n"
              "! 25.0 mol/L  That is how many times the volume has grown. One step is left.\n"
              "! 0.0400 mol/L  That is the part of V2 that V1 is. One step is left.\n");
    EXPECT_EQ(
        pageOf(makeExercise({2, 1, &dilutionKind, 2})),
        "Calculate the volume, in mL, of 2.00 mol/L ethanoic acid needed to make 200 mL of a 0.400 "
        "mol/L solution.\n"
        "  The amount stays the same. | c1V1 = c2V2\n"
        "  Rearrange; both volumes in the same unit. | V1 = c2V2/c1 = 0.400 × 200/2.00 = 40.0 mL\n"
        "  Check: the concentration is divided by 5, so the volume grows 5 times. | V1 = 200/5 = "
        "40.0 mL\n"
        "= 40.0 mL\n"
        "! 1000 mL  Should the result be larger or smaller?\n"
        "! 160 mL  Read again which volume is asked for.\n"
        "! 50.0 mL  V2 is the volume of the whole diluted solution.\n"
        "! 33.3 mL  V2 is the volume of the whole diluted solution.\n"
        "! 0.0800 mL  That is an amount. One step is left.\n"
        "! 80.0 mL  That is an amount. One step is left.\n"
        "! 5.00 mL  That is how many times the volume has grown. One step is left.\n"
        "! 0.200 mL  That is the part of V2 that V1 is. One step is left.\n");
    EXPECT_EQ(pageOf(makeExercise({2, 3, &dilutionKind, 2})),
              "50.0 mL of lead(II) nitrate solution is diluted to 2.00 L. The diluted solution has "
              "a concentration of 0.0125 mol/L. Calculate the original concentration in mol/L.\n"
              "  The amount stays the same. | c1V1 = c2V2\n"
              "  Convert the volume. | V2 = 2.00 L = 2000 mL\n"
              "  Rearrange; both volumes in the same unit. | c1 = c2V2/V1 = 0.0125 × 2000/50.0 = "
              "0.500 mol/L\n"
              "  Check: 40 times the volume, so the concentration was 40 times as great. | c1 = 40 "
              "× 0.0125 = 0.500 mol/L\n"
              "= 0.500 mol/L\n"
              "! 0.000313 mol/L  Should the result be larger or smaller?\n"
              "! 0.513 mol/L  V2 is the volume of the whole diluted solution.\n"
              "! 0.488 mol/L  V2 is the volume of the whole diluted solution.\n"
              "! 0.0250 mol/L  That is an amount. One step is left.\n"
              "! 25.0 mol/L  That is an amount. One step is left.\n"
              "! 40.0 mol/L  That is how many times the volume has grown. One step is left.\n");
    EXPECT_EQ(pageOf(makeExercise({2, 1, &dilutionKind, 3})),
              "Calculate the volume of water, in mL, that has to be added to 100 mL of 1.00 mol/L "
              "sodium hydroxide solution to bring its concentration down to 0.100 mol/L. Assume "
              "that the volumes add up.\n"
              "  The amount stays the same. | c1V1 = c2V2\n"
              "  Rearrange for the volume of the whole diluted solution. | V2 = c1V1/c2 = 1.00 × "
              "100/0.100 = 1000 mL\n"
              "  Check: the concentration is divided by 10, so the volume grows 10 times. | V2 = "
              "10 × 100 = 1000 mL\n"
              "  The water is the rest of the diluted solution. | V(H2O) = V2 − V1 = 1000 − 100 = "
              "900 mL\n"
              "= 900 mL\n"
              "! 1000 mL  Read again which volume is asked for.\n"
              "! 90.0 mL  Should the result be larger or smaller?\n"
              "! 10.0 mL  Should the result be larger or smaller?\n"
              "! 1100 mL  V2 is the volume of the whole diluted solution.\n"
              "! 0.100 mL  That is an amount. One step is left.\n"
              "! 100 mL  That is an amount. One step is left.\n");
}

} // namespace

} // namespace lesson
