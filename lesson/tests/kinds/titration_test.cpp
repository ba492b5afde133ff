#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <utility>

#include "lesson/chemistry/solutes_and_ceilings.hpp"
#include "lesson/tests/support/calculation.hpp"
#include "support/atom_count.hpp"

namespace lesson
{

namespace
{

constexpr unsigned exercises = 10000;

int coefficientOf(const Exercise& exercise, const std::string& formula)
{
    for (const auto& [coefficient, species] : exercise.equation->left) {
        if (species == formula) {
            return coefficient;
        }
    }
    return 0;
}

const GivenQuantity& knownOf(const Exercise& exercise)
{
    return *findGiven(exercise, "c");
}

bool isTitre(const GivenQuantity& volume)
{
    return !volume.titres.empty() || volume.shown.size() == std::string("10.00").size();
}

// The volumes in the order of the prompt: pipette, burette.
std::pair<const GivenQuantity*, const GivenQuantity*> volumesOf(const Exercise& exercise)
{
    const std::string acid = exercise.equation->left[0].second;
    const std::string base = exercise.equation->left[1].second;
    const GivenQuantity* const ofAcid = findGiven(exercise, "V", acid);
    const GivenQuantity* const ofBase = findGiven(exercise, "V", base);
    return isTitre(*ofAcid) ? std::make_pair(ofBase, ofAcid) : std::make_pair(ofAcid, ofBase);
}

// In L; of several titres the mean of all but the first.
long double volumeOf(const GivenQuantity& given, Calculator rounded)
{
    if (given.titres.empty()) {
        return toFloat(given.value);
    }
    long double sum = 0;
    for (std::size_t i = 1; i < given.titres.size(); ++i) {
        sum += static_cast<long double>(given.titres[i]) / 100;
    }
    return rounded(sum / static_cast<long double>(given.titres.size() - 1)) / 1000;
}

long double stepByStep(const Exercise& exercise, Calculator rounded)
{
    const std::string& known = knownOf(exercise).of;
    const std::string& unknown = exercise.ask.of;
    const long double amount =
        rounded(givenValue(exercise, "c") * volumeOf(*findGiven(exercise, "V", known), rounded));
    const long double ofUnknown =
        rounded(amount * coefficientOf(exercise, unknown) / coefficientOf(exercise, known));
    return ofUnknown / volumeOf(*findGiven(exercise, "V", unknown), rounded);
}

TEST(TitrationExerciseTest, TheKeyFollowsFromWhatIsGivenHoweverStepsAreRounded)
{
    for (const int level : {1, 2, 3}) {
        RoundingOnTheWay rounding;
        forExercises(&titrationKind, level, exercises,
                     [&](const Exercise& exercise) { rounding.check(exercise, stepByStep); });
        rounding.expectFairness();
    }
}

TEST(TitrationExerciseTest, TheEquationConservesEveryAtom)
{
    forExercises(&titrationKind, 3, 1000, [&](const Exercise& exercise) {
        std::map<std::string, int> left;
        std::map<std::string, int> right;
        for (const auto& [coefficient, species] : exercise.equation->left) {
            addAtoms(left, coefficient, species);
        }
        for (const auto& [coefficient, species] : exercise.equation->right) {
            addAtoms(right, coefficient, species);
        }
        EXPECT_EQ(left, right) << placeOf(exercise);
    });
}

TEST(TitrationExerciseTest, RatiosOfALevelComeEquallyOften)
{
    const std::size_t classes[] = {1, 2, 3};
    for (const int level : {1, 2, 3}) {
        std::map<std::string, int> ratios;
        forExercises(&titrationKind, level, exercises, [&](const Exercise& exercise) {
            const auto& left = exercise.equation->left;
            ++ratios[std::to_string(left[0].first) + ":" + std::to_string(left[1].first)];
        });
        expectEqualShares(ratios, classes[level - 1]);
        EXPECT_EQ(ratios.count("1:1"), level == 2 ? 0U : 1U);
        EXPECT_EQ(ratios.count("1:2"), level == 1 ? 0U : 1U);
        EXPECT_EQ(ratios.count("2:1"), level == 1 ? 0U : 1U);
    }
}

// What runs out of the burette and with which indicator, as a practical book has it.
struct Practice {
    std::set<std::string> indicators;
    std::set<std::string> inBurette;
};

TEST(TitrationExerciseTest, EveryPairIsTitratedAsAPracticalBookHasIt)
{
    std::map<std::string, Practice> seen;
    forExercises(&titrationKind, 3, exercises, [&](const Exercise& exercise) {
        const std::string pair =
            exercise.equation->left[0].second + " " + exercise.equation->left[1].second;
        const std::string prompt = textOf(exercise.prompt);
        const bool isMethylOrange = prompt.find("with methyl orange") != std::string::npos;
        const bool isPhenolphthalein = prompt.find("with phenolphthalein") != std::string::npos;
        EXPECT_NE(isMethylOrange, isPhenolphthalein) << prompt;
        seen[pair].indicators.insert(isMethylOrange ? "methyl orange" : "phenolphthalein");
        seen[pair].inBurette.insert(volumesOf(exercise).second->of);
        const bool isHydrogencarbonate = pair.find("HCO3") != std::string::npos;
        const bool isCarbonate = !isHydrogencarbonate && pair.find("CO3") != std::string::npos;
        const auto isTold = [&](const std::string& end) {
            return prompt.find(", until the " + end + " has reacted completely. The ") !=
                   std::string::npos;
        };
        EXPECT_EQ(isCarbonate, isTold("carbonate")) << prompt;
        EXPECT_EQ(isHydrogencarbonate, isTold("hydrogencarbonate")) << prompt;
    });
    const std::set<std::string> both = {"methyl orange", "phenolphthalein"};
    const std::set<std::string> methylOrange = {"methyl orange"};
    const std::set<std::string> phenolphthalein = {"phenolphthalein"};
    std::size_t pairs = 0;
    const auto expectPair = [&](const std::string& acid, const std::string& base,
                                const std::set<std::string>& indicators,
                                const std::set<std::string>& inBurette) {
        ++pairs;
        const Practice& practice = seen[acid + " " + base];
        EXPECT_EQ(practice.indicators, indicators) << acid << " " << base;
        EXPECT_EQ(practice.inBurette, inBurette) << acid << " " << base;
    };
    for (const std::string acid : {"HCl", "HNO3", "H2SO4"}) {
        for (const std::string base : {"LiOH", "NaOH", "KOH"}) {
            expectPair(acid, base, both, {acid, base});
        }
        for (const std::string base : {"Na2CO3", "K2CO3", "NaHCO3", "KHCO3"}) {
            expectPair(acid, base, methylOrange, {acid});
        }
    }
    for (const std::string base : {"LiOH", "NaOH", "KOH"}) {
        expectPair("CH3COOH", base, phenolphthalein, {base});
    }
    expectPair("HCl", "NH3", methylOrange, {"HCl"});
    expectPair("H2SO4", "NH3", methylOrange, {"H2SO4"});
    expectPair("H2C2O4", "NaOH", phenolphthalein, {"NaOH"});
    EXPECT_EQ(seen.size(), pairs);
}

TEST(TitrationExerciseTest, AcidAndBaseAreAskedForEquallyOften)
{
    for (const int level : {1, 2, 3}) {
        int acid = 0;
        forExercises(&titrationKind, level, exercises, [&](const Exercise& exercise) {
            acid += exercise.ask.of == exercise.equation->left[0].second ? 1 : 0;
            EXPECT_NE(exercise.ask.of, knownOf(exercise).of) << placeOf(exercise);
        });
        // Not a class, so that the bounds of the answer shift it a little.
        EXPECT_NEAR(acid, 0.5 * exercises, 0.05 * exercises) << level;
    }
}

TEST(TitrationExerciseTest, EveryConcentrationPipetteAndTitreIsDrawn)
{
    std::map<std::string, int> concentrations;
    std::set<std::string> pipettes;
    std::set<std::string> titres;
    forExercises(&titrationKind, 1, 40000, [&](const Exercise& exercise) {
        ++concentrations[knownOf(exercise).shown];
        const auto [pipette, burette] = volumesOf(exercise);
        pipettes.insert(pipette->shown);
        titres.insert(burette->shown);
    });
    EXPECT_EQ(pipettes, (std::set<std::string>{"10.0", "20.0", "25.0"}));
    EXPECT_EQ(titres.size(), 601U);
    EXPECT_EQ(*titres.begin(), "10.00");
    EXPECT_EQ(*titres.rbegin(), "40.00");
    EXPECT_EQ(concentrations.size(), 501U);
    for (int i = 500; i < 1000; i += 5) {
        EXPECT_EQ(concentrations.count("0.0" + std::to_string(i)), 1U) << i;
    }
    for (int i = 100; i <= 500; ++i) {
        EXPECT_EQ(concentrations.count("0." + std::to_string(i)), 1U) << i;
    }
}

TEST(TitrationExerciseTest, TheAnswerIsInRangeFromEndToEnd)
{
    long double least = 2;
    long double greatest = 0;
    for (const int level : {1, 2, 3}) {
        forExercises(&titrationKind, level, exercises, [&](const Exercise& exercise) {
            const long double answer = toFloat(answerOf(exercise).value);
            least = std::min(least, answer);
            greatest = std::max(greatest, answer);
        });
    }
    EXPECT_GE(least, 0.02L);
    EXPECT_LE(least, 0.0202L);
    EXPECT_LE(greatest, 1.0L);
    EXPECT_GE(greatest, 0.99L);
}

std::string typedTitre(int hundredths)
{
    char text[32];
    std::snprintf(text, sizeof text, "%d.%02d mL", hundredths / 100, hundredths % 100);
    return text;
}

TEST(TitrationExerciseTest, SeveralTitresHaveARoughOneAndConcordantOnes)
{
    std::map<std::string, int> numbers;
    std::set<int> overLowest;
    std::set<int> spreads;
    std::set<int> all;
    forExercises(&titrationKind, 3, exercises, [&](const Exercise& exercise) {
        const GivenQuantity& burette = *volumesOf(exercise).second;
        const std::vector<int>& titres = burette.titres;
        ASSERT_GE(titres.size(), 3U) << placeOf(exercise);
        ++numbers[std::to_string(titres.size() - 1)];
        const auto [low, high] = std::minmax_element(titres.begin() + 1, titres.end());
        EXPECT_GE(titres[0] - *high, 30) << placeOf(exercise);
        EXPECT_LE(titres[0] - *low, 100) << placeOf(exercise);
        spreads.insert(*high - *low);
        overLowest.insert(titres[0] - *low);
        for (const int titre : titres) {
            EXPECT_EQ(titre % 5, 0) << placeOf(exercise);
            EXPECT_NE(textOf(exercise.prompt).find(typedTitre(titre)), std::string::npos)
                << titre << ", " << placeOf(exercise);
        }
        all.insert(titres.begin() + 1, titres.end());
        EXPECT_EQ(burette.shown, "") << placeOf(exercise);
        EXPECT_EQ(textOf(exercise.prompt).find("→"), std::string::npos) << placeOf(exercise);
    });
    expectEqualShares(numbers, 2);
    EXPECT_EQ(spreads, (std::set<int>{0, 5, 10}));
    EXPECT_EQ(*overLowest.begin(), 30);
    EXPECT_EQ(*overLowest.rbegin(), 100);
    // Of greater titres the rough one seldom shifts the mean enough to show.
    EXPECT_EQ(*all.begin(), 1000);
    EXPECT_GE(*all.rbegin(), 3900);
    EXPECT_LE(*all.rbegin(), 4000);
}

TEST(TitrationExerciseTest, TheFirstLevelsHaveOneTitreAndTheEquation)
{
    for (const int level : {1, 2}) {
        forExercises(&titrationKind, level, 1000, [&](const Exercise& exercise) {
            EXPECT_TRUE(volumesOf(exercise).second->titres.empty()) << placeOf(exercise);
            EXPECT_NE(textOf(exercise.prompt).find("→"), std::string::npos) << placeOf(exercise);
        });
    }
}

// But of sulfuric acid and a carbonate somebody may think that it is not one to one.
TEST(TitrationExerciseTest, OneToOneLeavesNoRatioToForget)
{
    forExercises(&titrationKind, 1, 1000, [&](const Exercise& exercise) {
        const bool mayMislead = exercise.equation->left[0].second == "H2SO4";
        bool isTold = false;
        for (const Slip& slip : exercise.slips) {
            isTold = isTold || slip.sentence.find("ook at the numbers") != std::string::npos;
        }
        EXPECT_EQ(isTold, mayMislead) << placeOf(exercise);
    });
}

TEST(TitrationExerciseTest, PagesWorkedByHand)
{
    EXPECT_EQ(pageOf(makeExercise({4821, 3, &titrationKind, 2})),
              "25.0 mL of sodium carbonate solution is titrated with 0.204 mol/L nitric acid "
              "from the burette, with methyl orange as the indicator, until the carbonate "
              "has reacted completely. The titre is 30.70 mL. The equation is 2HNO3 + Na2CO3 "
              "→ 2NaNO3 + H2O + CO2. Calculate the concentration of the sodium carbonate "
              "solution in mol/L.\n"
              "  Convert both volumes to litres. | V(Na2CO3) = 25.0 mL = 0.0250 L, V(HNO3) = "
              "30.70 mL = 0.03070 L\n"
              "  Amount of nitric acid, whose concentration is known. | n(HNO3) = cV = 0.204 "
              "× 0.03070 = 6.263e-3 mol\n"
              "  Two moles of nitric acid react with one mole of sodium carbonate. | "
              "n(Na2CO3) = 1/2 n(HNO3) = 3.131e-3 mol\n"
              "  Divide the amount of sodium carbonate by the volume of its own solution. | "
              "c(Na2CO3) = n/V = 3.131e-3/0.0250 = 0.125 mol/L\n"
              "= 0.125 mol/L\n"
              "! 0.251 mol/L  Look at the numbers in the equation: how many moles react with "
              "one?\n"
              "! 0.501 mol/L  Look at the numbers in the equation: how many moles react with "
              "one?\n"
              "! 0.0831 mol/L  Which volume belongs to which solution?\n"
              "! 0.102 mol/L  Which volume belongs to which solution?\n"
              "! 0.0562 mol/L  Use the volume of the unknown solution alone.\n"
              "! 0.0000783 mol/L  Check how amount, concentration and volume are related.\n"
              "! 0.00626 mol/L  That is the amount of the known. Use the equation next.\n"
              "! 0.00313 mol/L  That is an amount. One step is left.\n"
              "! 6.26 mol/L  That is the amount of the known. Use the equation next.\n"
              "! 3.13 mol/L  That is an amount. One step is left.\n"
              "! 133 mol/L  Check how amount, concentration and volume are related.\n"
              "! 7.98 mol/L  Check how amount, concentration and volume are related.\n"
              "! 0.166 mol/L  Two things went wrong, first the ratio. Look at the numbers "
              "in the equation: how many moles react with one?\n"
              "! 0.204 mol/L  Two things went wrong, first the ratio. Look at the numbers "
              "in the equation: how many moles react with one?\n"
              "! 0.112 mol/L  Two things went wrong, first the ratio. Look at the numbers "
              "in the equation: how many moles react with one?\n"
              "! 0.000157 mol/L  Two things went wrong, first the ratio. Look at the numbers "
              "in the equation: how many moles react with one?\n"
              "! 251 mol/L  Two things went wrong, first the ratio. Look at the numbers "
              "in the equation: how many moles react with one?\n"
              "! 0.000251 mol/L  Two things went wrong, first the ratio. Look at the numbers "
              "in the equation: how many moles react with one?\n");
    EXPECT_EQ(pageOf(makeExercise({4821, 4, &titrationKind, 3})),
              "25.0 mL of 0.0590 mol/L sodium hydroxide solution is titrated with "
              "nitric acid from the burette, with phenolphthalein as the indicator. "
              "The rough titre is 11.70 mL, and the others are 10.90 mL, 10.85 mL and 10.85 "
              "mL. Calculate the concentration of the nitric acid in mol/L.\n"
              "  Write the balanced equation. | HNO3 + NaOH → NaNO3 + H2O\n"
              "  Take the mean, without the rough titre. | V(HNO3) = 10.90 + 10.85 + 10.85/3 "
              "= 10.87 mL\n"
              "  Convert both volumes to litres. | V(NaOH) = 25.0 mL = 0.0250 L, V(HNO3) = "
              "10.87 mL = 0.01087 L\n"
              "  Amount of sodium hydroxide, whose concentration is known. | n(NaOH) = cV = "
              "0.0590 × 0.0250 = 1.475e-3 mol\n"
              "  One mole of sodium hydroxide reacts with one mole of nitric acid. | "
              "n(HNO3) = n(NaOH) = 1.475e-3 mol\n"
              "  Divide the amount of nitric acid by the volume of its own solution. | "
              "c(HNO3) = n/V = 1.475e-3/0.01087 = 0.136 mol/L\n"
              "= 0.136 mol/L\n"
              "! 0.0256 mol/L  Which volume belongs to which solution?\n"
              "! 0.0590 mol/L  Which volume belongs to which solution?\n"
              "! 0.0411 mol/L  Use the volume of the unknown solution alone.\n"
              "! 0.0000160 mol/L  Check how amount, concentration and volume are related.\n"
              "! 0.133 mol/L  Leave the rough titre out of the mean.\n"
              "! 0.00148 mol/L  That is an amount. One step is left.\n"
              "! 1.48 mol/L  That is an amount. One step is left.\n"
              "! 0.126 mol/L  The rough titre is only a first guess.\n"
              "! 0.0452 mol/L  Divide the sum of the titres by how many they are.\n"
              "! 217 mol/L  Check how amount, concentration and volume are related.\n"
              "! 7.37 mol/L  Check how amount, concentration and volume are related.\n");
}

// The prompt of the first levels gives the equation away.
TEST(TitrationExerciseTest, OnlyWhereItIsNotGivenTheEquationIsAStep)
{
    for (const int level : {1, 2, 3}) {
        forExercises(&titrationKind, level, 300, [&](const Exercise& exercise) {
            bool isWritten = false;
            for (const Step& step : exercise.solution) {
                isWritten = isWritten || textOf(step.math).find("→") != std::string::npos;
                EXPECT_NE(textOf(step.hint), "") << placeOf(exercise);
                EXPECT_NE(textOf(step.hint), textOf(step.say)) << placeOf(exercise);
            }
            EXPECT_EQ(isWritten, level == 3) << placeOf(exercise);
        });
    }
}

} // namespace

} // namespace lesson
