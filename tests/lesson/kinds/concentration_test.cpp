#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>

#include "lesson/compound.hpp"
#include "lesson/tables/solutions.hpp"
#include "support/calculation.hpp"

namespace lesson
{

namespace
{

constexpr unsigned exercises = 10000;

bool asksForMass(const Exercise& exercise)
{
    return exercise.ask.quantity == "m";
}

const SoluteRow& substanceOf(const Exercise& exercise)
{
    return *findSolute(std::get<GivenCompound>(exercise.given.at(0)).formula);
}

// By way of the amount; where the molar mass is not given, it is worked out and rounded too.
long double byAmount(const Exercise& exercise, Calculator rounded)
{
    const bool isMolarMassGiven = !findGiven(exercise, "M")->shown.empty();
    const long double M =
        isMolarMassGiven ? givenValue(exercise, "M") : rounded(givenValue(exercise, "M"));
    const long double V = givenValue(exercise, "V");
    return asksForMass(exercise) ? rounded(givenValue(exercise, "c") * V) * M
                                 : rounded(givenValue(exercise, "m") / M) / V;
}

// By way of the grams in a litre.
long double byGramsInLitre(const Exercise& exercise, Calculator rounded)
{
    const bool isMolarMassGiven = !findGiven(exercise, "M")->shown.empty();
    const long double M =
        isMolarMassGiven ? givenValue(exercise, "M") : rounded(givenValue(exercise, "M"));
    const long double V = givenValue(exercise, "V");
    return asksForMass(exercise) ? rounded(givenValue(exercise, "c") * M) * V
                                 : rounded(givenValue(exercise, "m") / V) / M;
}

TEST(ConcentrationTest, TheKeyFollowsFromWhatIsGivenHoweverStepsAreRounded)
{
    for (const int level : {1, 2, 3}) {
        RoundingOnTheWay amount;
        RoundingOnTheWay gramsInLitre;
        forExercises(Kind::concentration, level, exercises, [&](const Exercise& exercise) {
            amount.check(exercise, byAmount);
            gramsInLitre.check(exercise, byGramsInLitre);
        });
        amount.expectFairness();
        gramsInLitre.expectFairness();
    }
}

TEST(ConcentrationTest, NothingIsStrongerThanItsCeilingOrOutOfRange)
{
    for (const int level : {1, 2, 3}) {
        forExercises(Kind::concentration, level, exercises, [&](const Exercise& exercise) {
            const long double answer = toFloat(answerOf(exercise).value);
            const bool isMass = asksForMass(exercise);
            const long double c = isMass ? givenValue(exercise, "c") : answer;
            const long double m = isMass ? answer : givenValue(exercise, "m");
            const SoluteRow& substance = substanceOf(exercise);
            EXPECT_LE(c, substance.ceiling / 100.0L + 1e-15L) << placeOf(exercise);
            EXPECT_GE(answer, isMass ? 0.1L : 0.02L) << placeOf(exercise);
            EXPECT_LE(answer, isMass ? 50.0L : 2.0L) << placeOf(exercise);
            if (substance.formula == "AgNO3") {
                EXPECT_LE(m, 2.0L) << placeOf(exercise);
            }
        });
    }
}

std::set<std::string> formulasOf(const std::vector<SoluteRow>& rows)
{
    std::set<std::string> formulas;
    for (const SoluteRow& row : rows) {
        formulas.emplace(row.formula);
    }
    return formulas;
}

TEST(ConcentrationTest, EveryMassVolumeAndSubstanceIsDrawnForAConcentration)
{
    std::set<std::string> masses;
    std::set<std::string> volumes;
    std::set<std::string> substances;
    forExercises(Kind::concentration, 1, 30000, [&](const Exercise& exercise) {
        masses.insert(findGiven(exercise, "m")->shown);
        const GivenQuantity& volume = *findGiven(exercise, "V");
        volumes.insert(volume.shown + volume.shownUnit);
        substances.emplace(substanceOf(exercise).formula);
    });
    EXPECT_EQ(masses.size(), 901U);
    EXPECT_EQ(masses.count("1.00"), 1U);
    EXPECT_EQ(masses.count("10.00"), 1U);
    const std::set<std::string> expected = {"100mL", "150mL", "200mL", "250mL",
                                            "300mL", "400mL", "500mL", "750mL"};
    EXPECT_EQ(volumes, expected);
    EXPECT_EQ(substances, formulasOf(solutes()));
}

TEST(ConcentrationTest, EveryConcentrationFlaskAndSubstanceIsDrawnForAMass)
{
    std::set<std::string> concentrations;
    std::set<std::string> flasks;
    std::set<std::string> substances;
    forExercises(Kind::concentration, 2, exercises, [&](const Exercise& exercise) {
        concentrations.insert(findGiven(exercise, "c")->shown);
        const GivenQuantity& volume = *findGiven(exercise, "V");
        flasks.insert(volume.shown + volume.shownUnit);
        substances.emplace(substanceOf(exercise).formula);
    });
    EXPECT_EQ(concentrations,
              (std::set<std::string>{"0.0500", "0.100", "0.200", "0.250", "0.500", "1.00"}));
    EXPECT_EQ(flasks, (std::set<std::string>{"50.0mL", "100mL", "250mL", "500mL", "1.00L"}));
    EXPECT_EQ(substances, formulasOf(solutes()));
}

TEST(ConcentrationTest, HydratesAreAskedBothWaysEquallyOftenAndWithoutTheirMolarMass)
{
    std::map<std::string, int> asked;
    std::set<std::string> substances;
    forExercises(Kind::concentration, 3, exercises, [&](const Exercise& exercise) {
        ++asked[exercise.ask.quantity];
        substances.emplace(substanceOf(exercise).formula);
        EXPECT_EQ(textOf(exercise.prompt).find("g/mol"), std::string::npos) << placeOf(exercise);
        EXPECT_EQ(findGiven(exercise, "M")->shown, "") << placeOf(exercise);
        EXPECT_FALSE(answerOf(exercise).withRoundedMasses.empty()) << placeOf(exercise);
    });
    expectEqualShares(asked, 2);
    EXPECT_EQ(substances, formulasOf(hydrates()));
}

TEST(ConcentrationTest, AGivenMolarMassHasTwoDecimalsAndLeavesNoChoiceOfMasses)
{
    for (const int level : {1, 2}) {
        forExercises(Kind::concentration, level, 1000, [&](const Exercise& exercise) {
            const GivenQuantity& given = *findGiven(exercise, "M");
            const long double sum = toFloat(molarMassOf(substanceOf(exercise).formula));
            EXPECT_EQ(given.shown.find('.') + 3, given.shown.size()) << placeOf(exercise);
            EXPECT_NEAR(std::strtod(given.shown.c_str(), nullptr), static_cast<double>(sum),
                        0.00501)
                << placeOf(exercise);
            EXPECT_EQ(toFloat(given.value), std::strtold(given.shown.c_str(), nullptr))
                << placeOf(exercise);
            EXPECT_TRUE(answerOf(exercise).withRoundedMasses.empty()) << placeOf(exercise);
        });
    }
}

TEST(ConcentrationTest, RoundedMassesAreCorrectWhereTheMolarMassIsNotGiven)
{
    const Exercise exercise = concentrationExercise({1, 3, Kind::concentration, 3});
    ASSERT_EQ(exercise.key, "2.78 g"); // FeSO4.7H2O, 0.0100 mol
    // 55.9 + 32.1 + 4 x 16.0 + 7 x 18.0 = 278.0; with 56 and 32 the same.
    int found = 0;
    for (const Ratio value : answerOf(exercise).withRoundedMasses) {
        found += value == ratio(278, 100) ? 1 : 0;
    }
    EXPECT_EQ(found, 2);
}

TEST(ConcentrationTest, ALitreLeavesNoVolumeToMistake)
{
    int litres = 0;
    forExercises(Kind::concentration, 2, 1000, [&](const Exercise& exercise) {
        if (findGiven(exercise, "V")->shown != "1.00") {
            return;
        }
        ++litres;
        ASSERT_EQ(exercise.slips.size(), 1U) << placeOf(exercise);
        EXPECT_EQ(exercise.slips[0].sentence, "That is an amount. One step is left.");
        EXPECT_EQ(exercise.solution.size(), 2U) << placeOf(exercise);
    });
    EXPECT_GT(litres, 100);
}

TEST(ConcentrationTest, PagesWorkedByHand)
{
    EXPECT_EQ(pageOf(concentrationExercise({1, 4, Kind::concentration, 1})),
              "8.81 g of sodium bromide, NaBr (M = 102.89 g/mol), is dissolved in water and made "
              "up to 200 mL of solution. Calculate the concentration of the solution in mol/L.\n"
              "  Convert the volume. | V = 200 mL = 0.200 L\n"
              "  Amount from mass. | n = m/M = 8.81/102.89 = 0.08563 mol\n"
              "  Divide by the volume of solution. | c = n/V = 0.08563/0.200 = 0.428 mol/L\n"
              "= 0.428 mol/L\n"
              "! 44.1 mol/L  That is in g/L. Turn the mass into moles first.\n"
              "! 0.0856 mol/L  That is an amount. One step is left.\n"
              "! 0.0171 mol/L  Check how amount, concentration and volume are related.\n"
              "! 0.0428 mol/L  How many mL are in a litre?\n");
    EXPECT_EQ(
        pageOf(concentrationExercise({1, 3, Kind::concentration, 2})),
        "Calculate the mass, in g, of sodium nitrate, NaNO3 (M = 85.00 g/mol), that has to be "
        "dissolved in water and made up to 50.0 mL of solution to give a concentration of 0.250 "
        "mol/L.\n"
        "  Convert the volume. | V = 50.0 mL = 0.0500 L\n"
        "  Amount from concentration. | n = cV = 0.250 × 0.0500 = 0.01250 mol\n"
        "  Mass from amount. | m = nM = 0.01250 × 85.00 = 1.06 g\n"
        "= 1.06 g\n"
        "! 0.0125 g  That is an amount. One step is left.\n"
        "! 425 g  Check how amount, concentration and volume are related.\n"
        "! 10.6 g  How many mL are in a litre?\n");
    EXPECT_EQ(
        pageOf(concentrationExercise({1, 3, Kind::concentration, 3})),
        "Calculate the mass, in g, of iron(II) sulfate heptahydrate, FeSO4.7H2O, that has to be "
        "dissolved in water and made up to 50.0 mL of solution to give a concentration of 0.200 "
        "mol/L.\n"
        "  Molar mass; the water belongs to the crystal. | "
        "M = 55.85 + 32.06 + 4(16.00) + 7(18.016) = 278.02 g/mol\n"
        "  Convert the volume. | V = 50.0 mL = 0.0500 L\n"
        "  Amount from concentration. | n = cV = 0.200 × 0.0500 = 0.01000 mol\n"
        "  Mass from amount. | m = nM = 0.01000 × 278.02 = 2.78 g\n"
        "= 2.78 g\n"
        "! 1.52 g  The water in the crystals has mass too.\n"
        "! 0.0100 g  That is an amount. One step is left.\n"
        "! 1110 g  Check how amount, concentration and volume are related.\n"
        "! 27.8 g  How many mL are in a litre?\n");
}

} // namespace

} // namespace lesson
