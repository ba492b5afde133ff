#include <gtest/gtest.h>

#include <set>
#include <string>

#include "lesson/tests/support/calculation.hpp"

namespace lesson
{

namespace
{

constexpr unsigned exercises = 2000;

// The whole volume, typed for the water, passes neither for it nor for a rounded or close answer.
TEST(DilutionExerciseTest, TheWholeVolumeIsToldFromTheWater)
{
    forExercises(&dilutionKind, 3, exercises, [&](const Exercise& exercise) {
        const long double water = toFloat(answerOf(exercise).value);
        const long double whole = 1000 * givenValue(exercise, "V1") + water;
        const Mark mark = markOf(exercise, typedText(whole, 3));
        EXPECT_EQ(textOf(mark.sentence), "Read again which volume is asked for.")
            << placeOf(exercise);
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
        EXPECT_GT(distinct.size(), 300U) << level;
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
