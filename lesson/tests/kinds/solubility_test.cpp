#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "lesson/chemistry/solubility.hpp"
#include "lesson/tests/support/salt_exercise.hpp"

namespace lesson
{

namespace
{

// The rules that are learnt as one.
std::string familyOf(const IonRow& anion)
{
    const std::string name = british(nameOf(anion));
    return name == "bromide" || name == "iodide" ? "chloride"
           : name == "phosphate"                 ? "carbonate"
                                                 : name;
}

TEST(SolubilityExerciseTest, FamiliesOfRulesAreDrawnEquallyOften)
{
    std::map<std::string, int> soluble;
    std::map<std::string, int> precipitates;
    for (unsigned paper = 1; paper <= 4000; ++paper) {
        const Exercise one = makeExercise({paper, 1, &solubilityKind, 1});
        if (plain(one.key) == "yes") {
            ++soluble[familyOf(givenIon(one, 1))];
        }
        const Exercise three = makeExercise({paper, 1, &solubilityKind, 3});
        if (plain(three.key) != "none") {
            const auto& answer = std::get<PrecipitateAnswer>(three.answer);
            ++precipitates[familyOf(*answer.anion)];
        }
    }
    expectEqualShares(soluble, 5);
    expectEqualShares(precipitates, 5);
}

Exercise exerciseAbout(const std::string& salt)
{
    for (const Exercise& exercise : saltExercises(12, &solubilityKind, 2, 153)) {
        if (textOf(exercise.prompt).find("Does " + salt + ", ") == 0) {
            return exercise;
        }
    }
    ADD_FAILURE() << salt << " is not asked";
    return {};
}

TEST(SolubilityExerciseTest, PagesOfOneSalt)
{
    EXPECT_EQ(pageOf(exerciseAbout("copper(II) sulfate")),
              "Does copper(II) sulfate, CuSO4, dissolve in water?\n"
              "  Copper(II) sulfate has these ions. | Cu^2+, SO4^2-\n"
              "  Sulfates are soluble, except those of barium and lead, and in part calcium and "
              "silver. | CuSO4 is soluble\n"
              "= yes\n");
    EXPECT_EQ(pageOf(exerciseAbout("silver chloride")),
              "Does silver chloride, AgCl, dissolve in water?\n"
              "  Silver chloride has these ions. | Ag^+, Cl^-\n"
              "  Chlorides are soluble, except those of silver and lead. | AgCl is insoluble\n"
              "= no\n");
}

// The sentence behind the mark is the rule that the last step quotes.
TEST(SolubilityExerciseTest, TheMarkQuotesTheRuleOfTheSolution)
{
    for (const Exercise& exercise : saltExercises(12, &solubilityKind, 2, 153)) {
        const std::string rule = textOf(exercise.solution.back().say);
        const Mark mark = markTyped(exercise, plain(exercise.key));
        EXPECT_EQ(plain(mark.sentence), "Correct. " + rule);
    }
}

TEST(SolubilityExerciseTest, TheLastHintAsksForTheRule)
{
    EXPECT_EQ(textOf(exerciseAbout("lead(II) iodide").solution.back().hint),
              "What is the rule for iodides? Does it name lead?");
}

TEST(SolubilityExerciseTest, EitherSaltMayBeNamedFirst)
{
    int inOrderOfTheTable = 0;
    for (unsigned paper = 1; paper <= 1000; ++paper) {
        const Exercise exercise = makeExercise({paper, 1, &solubilityKind, 3});
        inOrderOfTheTable += &givenIon(exercise, 0) < &givenIon(exercise, 2) ? 1 : 0;
    }
    EXPECT_NEAR(inOrderOfTheTable, 500, 80);
}

TEST(SolubilityExerciseTest, APageOfMixedSolutions)
{
    const auto pageWith = [](const std::string& salts) {
        // A paper meets them in one order or in the other.
        for (const unsigned paper : {12U, 13U, 14U, 15U, 16U, 17U}) {
            for (const Exercise& exercise : saltExercises(paper, &solubilityKind, 3, 3271)) {
                if (textOf(exercise.prompt).find("Solutions of " + salts + " are") == 0) {
                    return pageOf(exercise);
                }
            }
        }
        return std::string("they are always met in the other order");
    };
    EXPECT_EQ(pageWith("potassium iodide and lead(II) nitrate"),
              "Solutions of potassium iodide and lead(II) nitrate are mixed. "
              "Write the formula of the precipitate, or “none”.\n"
              "  These ions come together. | K^+, I^-, Pb^2+, NO3^-\n"
              "  Exchange the partners: these are the new pairs. | PbI2, KNO3\n"
              "  All nitrates are soluble. | KNO3 is soluble\n"
              "  Iodides are soluble, except those of silver and lead. | PbI2 is insoluble\n"
              "  So this is the precipitate. | PbI2\n"
              "= PbI2\n"
              "! KNO3  That one stays in solution. All nitrates are soluble.\n"
              "! KI  That one was dissolved at the start. Look at the new pairs of ions.\n"
              "! Pb(NO3)2  That one was dissolved at the start. Look at the new pairs of ions.\n");
    EXPECT_EQ(pageWith("magnesium nitrate and sodium chloride"),
              "Solutions of magnesium nitrate and sodium chloride are mixed. "
              "Write the formula of the precipitate, or “none”.\n"
              "  These ions come together. | Mg^2+, NO3^-, Na^+, Cl^-\n"
              "  Exchange the partners: these are the new pairs. | MgCl2, NaNO3\n"
              "  All nitrates are soluble. | NaNO3 is soluble\n"
              "  Chlorides are soluble, except those of silver and lead. | MgCl2 is soluble\n"
              "  Both are soluble, so there is no precipitate. | none\n"
              "= none\n"
              "! MgCl2  That one stays in solution. Chlorides are soluble, except those of silver "
              "and lead.\n"
              "! NaNO3  That one stays in solution. All nitrates are soluble.\n"
              "! Mg(NO3)2  That one was dissolved at the start. Look at the new pairs of ions.\n"
              "! NaCl  That one was dissolved at the start. Look at the new pairs of ions.\n");
}

TEST(SolubilityExerciseTest, AmericanNamesStandInTheRules)
{
    std::set<std::string> rules;
    for (const Exercise& exercise : saltExercises(12, &solubilityKind, 1, 134)) {
        rules.insert(plainAmerican(exercise.solution.back().say));
    }
    EXPECT_EQ(rules.count("Acetates are soluble."), 1U);
    EXPECT_EQ(rules.count("The hydrogen carbonates of sodium, potassium and ammonium are soluble."),
              1U);
}

} // namespace

} // namespace lesson
