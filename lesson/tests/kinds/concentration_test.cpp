#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>

#include "lesson/chemistry/composition.hpp"
#include "lesson/chemistry/solutes_and_ceilings.hpp"
#include "lesson/tests/support/calculation.hpp"

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

TEST(ConcentrationExerciseTest, TheKeyFollowsFromWhatIsGivenHoweverStepsAreRounded)
{
    for (const int level : {1, 2, 3}) {
        RoundingOnTheWay amount;
        RoundingOnTheWay gramsInLitre;
        forExercises(&concentrationKind, level, exercises, [&](const Exercise& exercise) {
            amount.check(exercise, byAmount);
            gramsInLitre.check(exercise, byGramsInLitre);
        });
        amount.expectFairness();
        gramsInLitre.expectFairness();
    }
}

TEST(ConcentrationExerciseTest, NothingIsStrongerThanItsCeilingOrOutOfRange)
{
    for (const int level : {1, 2, 3}) {
        forExercises(&concentrationKind, level, exercises, [&](const Exercise& exercise) {
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

// Without their water these nitrates fall apart, and iron(III) chloride fumes.
std::set<std::string> formulasThatAreWeighed()
{
    std::set<std::string> formulas = formulasOf(solutes());
    for (const char* const formula : {"Mg(NO3)2", "Zn(NO3)2", "Cu(NO3)2", "FeCl3"}) {
        EXPECT_EQ(formulas.erase(formula), 1U) << formula;
    }
    return formulas;
}

TEST(ConcentrationExerciseTest, EveryMassVolumeAndSubstanceIsDrawnForAConcentration)
{
    std::set<std::string> masses;
    std::set<std::string> volumes;
    std::set<std::string> substances;
    forExercises(&concentrationKind, 1, 30000, [&](const Exercise& exercise) {
        masses.insert(findGiven(exercise, "m")->shown);
        const GivenQuantity& volume = *findGiven(exercise, "V");
        volumes.insert(volume.shown + volume.shownUnit);
        substances.emplace(substanceOf(exercise).formula);
    });
    EXPECT_EQ(masses.size(), 901U);
    EXPECT_EQ(masses.count("1.00"), 1U);
    EXPECT_EQ(masses.count("10.00"), 1U);
    EXPECT_EQ(volumes,
              (std::set<std::string>{"50.0mL", "100mL", "200mL", "250mL", "500mL", "1.00L"}));
    EXPECT_EQ(substances, formulasThatAreWeighed());
}

TEST(ConcentrationExerciseTest, EveryConcentrationFlaskAndSubstanceIsDrawnForAMass)
{
    std::set<std::string> concentrations;
    std::set<std::string> flasks;
    std::set<std::string> substances;
    forExercises(&concentrationKind, 2, exercises, [&](const Exercise& exercise) {
        concentrations.insert(findGiven(exercise, "c")->shown);
        const GivenQuantity& volume = *findGiven(exercise, "V");
        flasks.insert(volume.shown + volume.shownUnit);
        substances.emplace(substanceOf(exercise).formula);
    });
    EXPECT_EQ(concentrations,
              (std::set<std::string>{"0.0500", "0.100", "0.200", "0.250", "0.500", "1.00"}));
    EXPECT_EQ(flasks, (std::set<std::string>{"50.0mL", "100mL", "250mL", "500mL", "1.00L"}));
    EXPECT_EQ(substances, formulasThatAreWeighed());
}

TEST(ConcentrationExerciseTest, HydratesAreAskedBothWaysEquallyOftenAndWithoutTheirMolarMass)
{
    std::map<std::string, int> asked;
    std::set<std::string> substances;
    forExercises(&concentrationKind, 3, exercises, [&](const Exercise& exercise) {
        ++asked[exercise.ask.quantity];
        substances.emplace(substanceOf(exercise).formula);
        EXPECT_EQ(textOf(exercise.prompt).find("g/mol"), std::string::npos) << placeOf(exercise);
        EXPECT_EQ(findGiven(exercise, "M")->shown, "") << placeOf(exercise);
        EXPECT_FALSE(answerOf(exercise).withRoundedMasses.empty()) << placeOf(exercise);
    });
    expectEqualShares(asked, 2);
    EXPECT_EQ(substances, formulasOf(hydrates()));
}

TEST(ConcentrationExerciseTest, AToldMolarMassHasTwoDecimalsAndLeavesNoChoiceOfMasses)
{
    forExercises(&concentrationKind, 1, 1000, [&](const Exercise& exercise) {
        const GivenQuantity& given = *findGiven(exercise, "M");
        const long double sum = toFloat(molarMassOf(substanceOf(exercise).formula));
        EXPECT_EQ(given.shown.find('.') + 3, given.shown.size()) << placeOf(exercise);
        EXPECT_NEAR(std::strtod(given.shown.c_str(), nullptr), static_cast<double>(sum), 0.00501)
            << placeOf(exercise);
        EXPECT_NEAR(static_cast<double>(toFloat(given.value)),
                    std::strtod(given.shown.c_str(), nullptr), 1e-9)
            << placeOf(exercise);
        EXPECT_TRUE(answerOf(exercise).withRoundedMasses.empty()) << placeOf(exercise);
    });
}

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

TEST(ConcentrationExerciseTest, WhatIsSoldAsAHydrateIsCalledAnhydrousWithoutItsWater)
{
    const std::set<std::string> anhydrous = {
        "CuSO4",       "CoCl2",       "MgSO4",     "FeSO4",   "ZnSO4",     "Na2CO3",
        "BaCl2",       "Na2SO4",      "CaCl2",     "MgCl2",   "CuCl2",     "NiSO4",
        "MnSO4",       "Na3PO4",      "Al2(SO4)3", "LiOH",    "Fe2(SO4)3", "Ca(NO3)2",
        "Cu(CH3COO)2", "Ca(CH3COO)2", "NaCH3COO",  "CH3COONa"};
    std::map<bool, int> counts;
    for (const int level : {1, 2, 3}) {
        forExercises(&concentrationKind, level, 2000, [&](const Exercise& exercise) {
            const SoluteRow& substance = substanceOf(exercise);
            const bool isCalled =
                textOf(exercise.prompt).find(" anhydrous " + std::string(substance.name) + ", ") !=
                std::string::npos;
            EXPECT_EQ(isCalled, anhydrous.count(std::string(substance.formula)) == 1)
                << placeOf(exercise);
            ++counts[isCalled];
        });
    }
    EXPECT_GT(counts[true], 1000);
    EXPECT_GT(counts[false], 1000);
}

TEST(ConcentrationExerciseTest, EachStepHasAHintWithoutNumbers)
{
    for (const int level : {1, 2, 3}) {
        forExercises(&concentrationKind, level, 100, [](const Exercise& exercise) {
            for (const Step& step : exercise.solution) {
                const std::string hint = textOf(step.hint);
                EXPECT_FALSE(hint.empty()) << textOf(step.say);
                EXPECT_NE(hint, textOf(step.say));
                EXPECT_EQ(hint.find_first_of("0123456789"), std::string::npos) << hint;
            }
        });
    }
}

TEST(ConcentrationExerciseTest, RoundedMassesAreCorrectWhereTheMolarMassIsNotGiven)
{
    const Exercise exercise = makeExercise({1, 3, &concentrationKind, 3});
    ASSERT_EQ(exercise.key, "2.78 g"); // FeSO4.7H2O, 0.0100 mol
    // 55.9 + 32.1 + 4 x 16.0 + 7 x 18.0 = 278.0; with 56 and 32 the same, which stands there once.
    int found = 0;
    for (const Ratio value : answerOf(exercise).withRoundedMasses) {
        found += value == ratio(278, 100) ? 1 : 0;
    }
    EXPECT_EQ(found, 1);
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
            EXPECT_EQ(slip.sentence.find("litre"), std::string::npos)
                << slip.sentence << ", " << placeOf(exercise);
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
