#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "lesson/tests/support/salt_exercise.hpp"

namespace lesson
{

namespace
{

// What holds of every exercise about formulas, ions and solubility; how many there are is worked
// out in the tests of each kind.
struct PoolRow {
    const Kind* kind;
    int level;
    unsigned members;
};

class SaltExercisesTest : public testing::TestWithParam<PoolRow>
{
protected:
    // Every member of the pool: a paper goes through it.
    template <typename Check>
    void forEach(Check check) const
    {
        for (const Exercise& exercise :
             saltExercises(4821, GetParam().kind, GetParam().level, GetParam().members)) {
            check(exercise);
        }
    }
};

// What tells an exercise from another one: mixing in the other order is the same.
std::string memberOf(const Exercise& exercise)
{
    std::set<std::string> salts;
    for (std::size_t i = 0; i + 1 < exercise.given.size(); i += 2) {
        salts.insert(compoundFormula(givenIon(exercise, i), givenIon(exercise, i + 1)));
    }
    std::string member = exercise.given.size() == 1 ? givenIons(exercise) : "";
    for (const std::string& salt : salts) {
        member += salt + " ";
    }
    return member;
}

TEST_P(SaltExercisesTest, APaperGoesThroughThePoolAndBeginsAnew)
{
    const unsigned members = GetParam().members;
    std::map<std::string, int> met;
    for (const Exercise& exercise :
         saltExercises(77, GetParam().kind, GetParam().level, 2 * members)) {
        const int rounds = exercise.place.number > members ? 2 : 1;
        EXPECT_EQ(++met[memberOf(exercise)], rounds) << placeOf(exercise);
    }
    EXPECT_EQ(met.size(), members);
}

TEST_P(SaltExercisesTest, TheSamePlaceIsTheSameExercise)
{
    for (const unsigned number : {1U, 2U, 30U, 999999U}) {
        const Place place = {4821, number, GetParam().kind, GetParam().level};
        EXPECT_EQ(pageOf(makeExercise(place)), pageOf(makeExercise(place)));
        EXPECT_EQ(givenIons(makeExercise(place)), givenIons(makeExercise(place)));
    }
    const auto firstOf = [](unsigned paper) {
        std::string pages;
        for (const Exercise& e : saltExercises(paper, GetParam().kind, GetParam().level, 5)) {
            pages += pageOf(e);
        }
        return pages;
    };
    EXPECT_NE(firstOf(1), firstOf(2));
}

TEST_P(SaltExercisesTest, TheKeyIsCorrect)
{
    forEach([](const Exercise& exercise) {
        const Mark mark = markTyped(exercise, exercise.key);
        EXPECT_EQ(mark.verdict, Verdict::correct) << exercise.key << ", " << placeOf(exercise);
        EXPECT_EQ(mark.sentence.substr(0, 8), "Correct.") << placeOf(exercise);
    });
}

TEST_P(SaltExercisesTest, TheAnswerOfEachSlipGetsItsSentence)
{
    forEach([](const Exercise& exercise) {
        std::set<std::string> texts = {exercise.key};
        for (const Slip& slip : exercise.slips) {
            const Mark mark = markTyped(exercise, slip.text);
            EXPECT_EQ(mark.verdict, Verdict::slip) << slip.text << ", " << placeOf(exercise);
            EXPECT_EQ(mark.sentence, slip.sentence) << slip.text << ", " << placeOf(exercise);
            EXPECT_TRUE(texts.insert(slip.text).second) << slip.text << ", " << placeOf(exercise);
            EXPECT_FALSE(slip.value.has_value()) << placeOf(exercise);
        }
    });
}

TEST_P(SaltExercisesTest, SentencesAreSentencesAndNothingIsEmpty)
{
    forEach([](const Exercise& exercise) {
        const std::string prompt = textOf(exercise.prompt);
        EXPECT_TRUE(prompt.back() == '.' || prompt.back() == '?') << prompt;
        EXPECT_GE(exercise.solution.size(), 2U) << prompt;
        for (const Step& step : exercise.solution) {
            const std::string say = textOf(step.say);
            EXPECT_EQ(say.back(), '.') << say;
            EXPECT_TRUE(say.front() >= 'A' && say.front() <= 'Z') << say;
            EXPECT_FALSE(step.math.empty()) << say;
        }
        for (const Slip& slip : exercise.slips) {
            EXPECT_TRUE(slip.sentence.back() == '.' || slip.sentence.back() == '?')
                << slip.sentence;
        }
    });
}

INSTANTIATE_TEST_SUITE_P(
    All, SaltExercisesTest,
    testing::Values(PoolRow{&compoundFormulaKind, 1, 65}, PoolRow{&compoundFormulaKind, 2, 66},
                    PoolRow{&compoundFormulaKind, 3, 96}, PoolRow{&ionFormulaKind, 1, 27},
                    PoolRow{&ionFormulaKind, 2, 12}, PoolRow{&ionFormulaKind, 3, 47},
                    PoolRow{&solubilityKind, 1, 134}, PoolRow{&solubilityKind, 2, 153},
                    PoolRow{&solubilityKind, 3, 3271}));

} // namespace

} // namespace lesson
