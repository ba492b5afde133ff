#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <utility>

#include "lesson/chemistry/pairs_not_asked.hpp"
#include "lesson/chemistry/solubility.hpp"
#include "lesson/tests/support/salt_exercise.hpp"

namespace lesson
{

namespace
{

bool isAsked(const Pair& pair)
{
    return whySolubilityIsNotAsked(pair).empty();
}

std::string formulaOf(const Pair& pair)
{
    return compoundFormula(*pair.cation, *pair.anion);
}

// The pair of the ions that stand there among the given ones.
Pair givenPair(const Exercise& exercise, std::size_t cation, std::size_t anion)
{
    return {&givenIon(exercise, cation), &givenIon(exercise, anion)};
}

TEST(SolubilityExerciseTest, LevelsOneAndTwoHaveAllPairsThatAreAsked)
{
    std::set<std::string> followTheRule;
    std::set<std::string> all;
    for (const IonRow* const cation : cations()) {
        for (const IonRow* const anion : anions()) {
            const Pair pair = {cation, anion};
            if (isAsked(pair)) {
                all.insert(formulaOf(pair));
                if (isSoluble(pair) == ruleFor(*anion)->isSoluble) {
                    followTheRule.insert(formulaOf(pair));
                }
            }
        }
    }
    for (const int level : {1, 2}) {
        std::set<std::string> asked;
        for (const Exercise& exercise : saltExercises(12, &solubilityKind, level, 153)) {
            const Pair pair = givenPair(exercise, 0, 1);
            const bool dissolves = isSoluble(pair);
            asked.insert(formulaOf(pair));
            EXPECT_EQ(exercise.key, dissolves ? "yes" : "no") << placeOf(exercise);
            EXPECT_EQ(exercise.ask.form, Form::solubility);
            EXPECT_EQ(exercise.ask.choices, (std::vector<std::string>{"yes", "no"}));
            EXPECT_EQ(exercise.given.size(), 2U);
            EXPECT_EQ(textOf(exercise.prompt), "Does " + compoundName(*pair.cation, *pair.anion) +
                                                   ", " + formulaOf(pair) + ", dissolve in water?");
            EXPECT_EQ(textOf(exercise.solution.back().math),
                      formulaOf(pair) + (dissolves ? " is soluble" : " is insoluble"));
        }
        EXPECT_EQ(asked, level == 1 ? followTheRule : all);
    }
}

TEST(SolubilityExerciseTest, HalfOfTheAnswersAreYesAndRuleAndExceptionComeAsOften)
{
    std::map<std::string, int> first;
    std::map<std::string, int> second;
    std::map<std::string, int> third;
    for (unsigned paper = 1; paper <= 3000; ++paper) {
        ++first[makeExercise({paper, 1, &solubilityKind, 1}).key];
        const Exercise two = makeExercise({paper, 1, &solubilityKind, 2});
        ++second[two.key + (isException(givenPair(two, 0, 1)) ? " exception" : " rule")];
        ++third[makeExercise({paper, 1, &solubilityKind, 3}).key == "none" ? "none" : "some"];
    }
    expectEqualShares(first, 2);
    expectEqualShares(second, 4);
    expectEqualShares(third, 2);
}

TEST(SolubilityExerciseTest, FamiliesOfRulesAreDrawnEquallyOften)
{
    std::map<std::string, int> soluble;
    std::map<std::string, int> precipitates;
    for (unsigned paper = 1; paper <= 4000; ++paper) {
        const Exercise one = makeExercise({paper, 1, &solubilityKind, 1});
        if (one.key == "yes") {
            ++soluble[std::string(ruleFor(givenIon(one, 1))->family)];
        }
        const Exercise three = makeExercise({paper, 1, &solubilityKind, 3});
        if (three.key != "none") {
            const auto& answer = std::get<PrecipitateAnswer>(three.answer);
            ++precipitates[std::string(ruleFor(*answer.anion)->family)];
        }
    }
    expectEqualShares(soluble, 5);
    expectEqualShares(precipitates, 5);
}

TEST(SolubilityExerciseTest, TheSolutionQuotesTheRule)
{
    for (const Exercise& exercise : saltExercises(12, &solubilityKind, 2, 153)) {
        const std::string rule(ruleFor(givenIon(exercise, 1))->sentence);
        EXPECT_EQ(textOf(exercise.solution.back().say), rule) << placeOf(exercise);
        EXPECT_EQ(markTyped(exercise, exercise.key).sentence, "Correct. " + rule);
    }
}

// A hint has other words than the sentence of its step, and tells neither a formula nor a verdict.
TEST(SolubilityExerciseTest, EachStepHasAHintThatGivesNothingAway)
{
    for (const int level : {1, 2, 3}) {
        for (unsigned number = 1; number <= 100; ++number) {
            const Exercise exercise = makeExercise({3, number, &solubilityKind, level});
            for (const Step& step : exercise.solution) {
                const std::string hint = textOf(step.hint);
                EXPECT_GT(hint.size(), 30U) << textOf(step.say);
                EXPECT_EQ(hint.find(textOf(step.say)), std::string::npos) << hint;
                EXPECT_EQ(hint.find("soluble"), std::string::npos) << hint;
                for (const Span& span : step.hint) {
                    EXPECT_TRUE(span.kind == Span::Kind::text || span.kind == Span::Kind::name)
                        << hint;
                }
            }
        }
    }
    const Exercise one = makeExercise({3, 1, &solubilityKind, 1});
    const std::string cation(givenIon(one, 0).name);
    EXPECT_EQ(textOf(one.solution.back().hint), "What is the rule for " +
                                                    std::string(givenIon(one, 1).name) +
                                                    "s? Does it name " + cation + "?");
}

// ------------------------------------------------------------------------ two mixed solutions

// Two cations and two anions make two pairs of salts; those that can be mixed, by their formulas.
std::set<std::set<std::string>> allMixtures()
{
    const auto canBeMixed = [](const Pair(&salts)[2], const Pair(&exchanged)[2]) {
        int insoluble = 0;
        for (int i = 0; i < 2; ++i) {
            if (!isAsked(salts[i]) || !isAsked(exchanged[i]) || !isSoluble(salts[i])) {
                return false;
            }
            insoluble += isSoluble(exchanged[i]) ? 0 : 1;
        }
        return insoluble < 2;
    };
    std::set<std::set<std::string>> mixtures;
    for (const IonRow* const c1 : cations()) {
        for (const IonRow* const c2 : cations()) {
            for (const IonRow* const a1 : anions()) {
                for (const IonRow* const a2 : anions()) {
                    const Pair salts[2] = {{c1, a1}, {c2, a2}};
                    const Pair exchanged[2] = {{c1, a2}, {c2, a1}};
                    if (c1 != c2 && a1 != a2 && canBeMixed(salts, exchanged)) {
                        mixtures.insert({formulaOf(salts[0]), formulaOf(salts[1])});
                    }
                }
            }
        }
    }
    return mixtures;
}

TEST(SolubilityExerciseTest, LevelThreeMixesEverythingThatCanBeMixed)
{
    const std::set<std::set<std::string>> expected = allMixtures();
    std::set<std::set<std::string>> mixed;
    for (const Exercise& exercise :
         saltExercises(12, &solubilityKind, 3, static_cast<unsigned>(expected.size()))) {
        ASSERT_EQ(exercise.given.size(), 4U);
        mixed.insert({formulaOf(givenPair(exercise, 0, 1)), formulaOf(givenPair(exercise, 2, 3))});
    }
    EXPECT_EQ(mixed, expected);
}

TEST(SolubilityExerciseTest, ThePrecipitateIsTheInsolubleNewPair)
{
    for (const Exercise& exercise : saltExercises(5, &solubilityKind, 3, 3271)) {
        std::string precipitate = "none";
        for (const Pair& pair : {givenPair(exercise, 0, 3), givenPair(exercise, 2, 1)}) {
            precipitate = isSoluble(pair) ? precipitate : formulaOf(pair);
        }
        EXPECT_EQ(exercise.key, precipitate) << placeOf(exercise);
        EXPECT_EQ(exercise.ask.form, Form::solubility);
        EXPECT_TRUE(exercise.ask.choices.empty());
        EXPECT_EQ(textOf(exercise.solution.front().math), givenIons(exercise));
        EXPECT_EQ(textOf(exercise.solution.back().math), precipitate) << placeOf(exercise);
    }
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
    for (const Exercise& exercise : saltExercises(12, &solubilityKind, 1, 134)) {
        if (givenIon(exercise, 1).name == "ethanoate") {
            const Span& first = exercise.solution.back().say.front();
            EXPECT_EQ(first.text, "Ethanoate");
            EXPECT_EQ(first.detail, "Acetate");
        }
        if (givenIon(exercise, 1).name == "hydrogencarbonate") {
            EXPECT_EQ(exercise.solution.back().say.at(1).detail, "hydrogen carbonate");
        }
    }
}

} // namespace

} // namespace lesson
