#include <gtest/gtest.h>

#include <map>
#include <string>

#include "lesson/tests/support/calculation.hpp"

namespace lesson
{

namespace
{

bool isLitre(const Exercise& exercise)
{
    return findGiven(exercise, "V")->shown == "1.00";
}

TEST(ConcentrationExerciseTest, FromLevelTwoOnTheMolarMassIsAStepMore)
{
    const std::map<int, std::size_t> steps = {{1, 3}, {2, 4}, {3, 4}};
    for (const auto& [level, count] : steps) {
        const std::size_t expected = count;
        forExercises(&concentrationKind, level, 1000, [&](const Exercise& exercise) {
            const std::size_t converted = isLitre(exercise) ? 0 : 1;
            EXPECT_EQ(exercise.solution.size(), expected - 1 + converted) << placeOf(exercise);
            EXPECT_EQ(findGiven(exercise, "M")->shown.empty(), exercise.place.level > 1)
                << placeOf(exercise);
        });
    }
}

TEST(ConcentrationExerciseTest, RoundedMassesAreCorrectWhereTheMolarMassIsNotGiven)
{
    const Exercise exercise = makeExercise({1, 3, &concentrationKind, 3});
    ASSERT_EQ(textOf(exercise.key), "2.78 g"); // FeSO4.7H2O, 0.0100 mol
    // 55.9 + 32.1 + 4 x 16.0 + 7 x 18.0 = 278.0; with 56 and 32 the same, which stands there once.
    int found = 0;
    for (const Ratio value : answerOf(exercise).withRoundedMasses) {
        found += value == ratio(278, 100) ? 1 : 0;
    }
    EXPECT_EQ(found, 1);
    const Exercise withMolarMass = makeExercise({1, 4, &concentrationKind, 1});
    EXPECT_TRUE(answerOf(withMolarMass).withRoundedMasses.empty());
}

TEST(ConcentrationExerciseTest, ALitreLeavesNoVolumeToMistake)
{
    int litres = 0;
    forExercises(&concentrationKind, 2, 1000, [&](const Exercise& exercise) {
        if (!isLitre(exercise)) {
            return;
        }
        ++litres;
        for (const Slip& slip : exercise.slips) {
            EXPECT_EQ(textOf(slip.sentence).find("litre"), std::string::npos)
                << textOf(slip.sentence) << ", " << placeOf(exercise);
        }
    });
    EXPECT_GT(litres, 100);
}

TEST(ConcentrationExerciseTest, PagesWorkedByHand)
{
    EXPECT_EQ(
        pageOf(makeExercise({1, 4, &concentrationKind, 1})),
        "4.44 g of ammonium chloride, NH4Cl (M = 53.49 g/mol), is dissolved in water and made up "
        "to 250 mL of solution. Calculate the concentration of the solution in mol/L.\n"
        "  Convert the volume. | V = 250 mL = 0.250 L\n"
        "  Amount from mass. | n = m/M = 4.44/53.49 = 0.08301 mol\n"
        "  Divide by the volume of solution. | c = n/V = 0.08301/0.250 = 0.332 mol/L\n"
        "= 0.332 mol/L\n"
        "! 17.8 mol/L  That is in g/L. Turn the mass into moles first.\n"
        "! 0.0830 mol/L  That is an amount. One step is left.\n"
        "! 0.0332 mol/L  How many mL are in a litre?\n"
        "! 0.00332 mol/L  How many mL are in a litre?\n"
        "! 0.0208 mol/L  Check how amount, concentration and volume are related.\n"
        "! 950 mol/L  Which is divided by which? One mole has the mass M.\n"
        "! 237 mol/L  Which is divided by which? One mole has the mass M.\n"
        "! 48.2 mol/L  Which is divided by which? One mole has the mass M.\n"
        "! 12.0 mol/L  Which is divided by which? One mole has the mass M.\n"
        "! 59.4 mol/L  Which is divided by which? One mole has the mass M.\n"
        "! 0.0178 mol/L  That is in g/mL. Turn the mass into moles first.\n"
        "! 20.8 mol/L  Check how amount, concentration and volume are related.\n"
        "! 3.01 mol/L  Check how amount, concentration and volume are related.\n");
    EXPECT_EQ(pageOf(makeExercise({1, 3, &concentrationKind, 2})),
              "Calculate the mass of sodium chloride, NaCl, in g, needed to prepare 50.0 mL of a "
              "0.250 mol/L solution.\n"
              "  Molar mass. | M = 22.99 + 35.45 = 58.44 g/mol\n"
              "  Convert the volume. | V = 50.0 mL = 0.0500 L\n"
              "  Amount from concentration. | n = cV = 0.250 × 0.0500 = 0.01250 mol\n"
              "  Mass from amount. | m = nM = 0.01250 × 58.44 = 0.731 g\n"
              "= 0.731 g\n"
              "! 0.350 g  Use the relative masses, not the atomic numbers.\n"
              "! 0.0125 g  That is an amount. One step is left.\n"
              "! 14.6 g  That is for one litre.\n"
              "! 7.31 g  How many mL are in a litre?\n"
              "! 73.1 g  How many mL are in a litre?\n"
              "! 292 g  Check how amount, concentration and volume are related.\n"
              "! 0.000214 g  One mole has the mass M.\n"
              "! 4680 g  One mole has the mass M.\n"
              "! 12.5 g  That is an amount. One step is left.\n"
              "! 2.92 g  That is for a concentration of 1 mol/L.\n"
              "! 11.7 g  Check how amount, concentration and volume are related.\n");
    EXPECT_EQ(pageOf(makeExercise({1, 3, &concentrationKind, 3})),
              "Calculate the mass of iron(II) sulfate heptahydrate, FeSO4.7H2O, in g, needed to "
              "prepare 50.0 mL of a 0.200 mol/L solution.\n"
              "  Molar mass; the water belongs to the crystal. | M = 55.85 + 32.06 + 4(16.00) + "
              "7(18.016) = 278.02 g/mol\n"
              "  Convert the volume. | V = 50.0 mL = 0.0500 L\n"
              "  Amount from concentration. | n = cV = 0.200 × 0.0500 = 0.01000 mol\n"
              "  Mass from amount. | m = nM = 0.01000 × 278.02 = 2.78 g\n"
              "= 2.78 g\n"
              "! 1.52 g  The water in the crystals has mass too.\n"
              "! 1.70 g  The number before H2O counts whole water molecules.\n"
              "! 1.82 g  The number before H2O counts whole water molecules.\n"
              "! 192 g  The dot adds the water: it does not multiply.\n"
              "! 2.23 g  The small numbers count atoms: each of them has its mass.\n"
              "! 2.30 g  The small numbers count atoms: each of them has its mass.\n"
              "! 1.44 g  Use the relative masses, not the atomic numbers.\n"
              "! 0.0100 g  That is an amount. One step is left.\n"
              "! 55.6 g  That is for one litre.\n"
              "! 27.8 g  How many mL are in a litre?\n"
              "! 278 g  How many mL are in a litre?\n"
              "! 1110 g  Check how amount, concentration and volume are related.\n"
              "! 0.0000360 g  One mole has the mass M.\n"
              "! 27800 g  One mole has the mass M.\n"
              "! 10.0 g  That is an amount. One step is left.\n"
              "! 13.9 g  That is for a concentration of 1 mol/L.\n"
              "! 69.5 g  Check how amount, concentration and volume are related.\n");
}

} // namespace

} // namespace lesson
