#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include "lesson/tests/support/calculation.hpp"

namespace lesson
{

namespace
{

// In hundredths of a millilitre, the rough one first; none where there is one titre alone.
std::vector<int> titresOf(const Exercise& exercise)
{
    for (const Given& given : exercise.given) {
        const auto* const volume = std::get_if<GivenQuantity>(&given);
        if (volume != nullptr && !volume->titres.empty()) {
            return volume->titres;
        }
    }
    return {};
}

// From none to 0.10 mL apart, and the rough one from 0.30 to 1.00 mL over the lowest.
TEST(TitrationExerciseTest, TitresGoFromEndToEnd)
{
    std::set<int> overLowest;
    std::set<int> spreads;
    std::set<int> all;
    forExercises(&titrationKind, 3, 10000, [&](const Exercise& exercise) {
        const std::vector<int> titres = titresOf(exercise);
        ASSERT_GE(titres.size(), 3U) << placeOf(exercise);
        const auto [low, high] = std::minmax_element(titres.begin() + 1, titres.end());
        spreads.insert(*high - *low);
        overLowest.insert(titres[0] - *low);
        all.insert(titres.begin() + 1, titres.end());
    });
    EXPECT_EQ(spreads, (std::set<int>{0, 5, 10}));
    EXPECT_EQ(*overLowest.begin(), 30);
    EXPECT_EQ(*overLowest.rbegin(), 100);
    // Of greater titres the rough one seldom shifts the mean enough to show.
    EXPECT_EQ(*all.begin(), 1000);
    EXPECT_GE(*all.rbegin(), 3900);
    EXPECT_LE(*all.rbegin(), 4000);
}

// But of sulfuric acid and a carbonate somebody may think that it is not one to one.
TEST(TitrationExerciseTest, OneToOneLeavesNoRatioToForget)
{
    forExercises(&titrationKind, 1, 1000, [&](const Exercise& exercise) {
        const bool mayMislead = exercise.equation->left[0].second == "H2SO4";
        bool isTold = false;
        for (const Slip& slip : exercise.slips) {
            isTold =
                isTold || textOf(slip.sentence).find("ook at the numbers") != std::string::npos;
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

} // namespace

} // namespace lesson
