#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <tuple>

#include "lesson/border/exercise_json.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/numbers/decimal.hpp"
#include "lesson/tests/support/calculation.hpp"

namespace lesson
{

namespace
{

bool endsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

// Every kind of calculation at every level.
class CalculationExercisesTest : public testing::TestWithParam<std::tuple<const Kind*, int>>
{
protected:
    template <typename Check>
    void forEach(unsigned exercises, Check check)
    {
        forExercises(std::get<0>(GetParam()), std::get<1>(GetParam()), exercises, check);
    }
};

TEST_P(CalculationExercisesTest, TheKeyIsCorrectAndTheLastStepShowsIt)
{
    forEach(10000, [](const Exercise& exercise) {
        const Mark mark = markOf(exercise, exercise.key);
        EXPECT_EQ(mark.verdict, Verdict::correct) << exercise.key << ", " << placeOf(exercise);
        EXPECT_EQ(mark.sentence, "Correct.") << exercise.key << ", " << placeOf(exercise);
        const std::string last = textOf(exercise.solution.back().math);
        EXPECT_TRUE(endsWith(last, "= " + exercise.key)) << last << ", " << placeOf(exercise);
    });
}

TEST_P(CalculationExercisesTest, TheAnswerOfEachSlipGetsItsSentenceAndNoneAgreesWithTheKey)
{
    forEach(10000, [](const Exercise& exercise) {
        for (const Slip& slip : exercise.slips) {
            const Mark mark = markOf(exercise, slip.text);
            EXPECT_EQ(mark.verdict, Verdict::slip) << slip.text << ", " << placeOf(exercise);
            EXPECT_EQ(mark.sentence, slip.sentence) << slip.text << ", " << placeOf(exercise);
            EXPECT_FALSE(agrees(roundedTo(*slip.value, exercise.ask.figures),
                                answerOf(exercise).value, exercise.ask.figures,
                                answerOf(exercise).isMolarMass))
                << slip.text << ", " << placeOf(exercise);
            EXPECT_TRUE(endsWith(slip.text, " " + exercise.ask.unit)) << slip.text;
        }
    });
}

// What is shown is the value itself, in a unit that a learner converts, and the prompt has it word
// for word.
TEST_P(CalculationExercisesTest, ThePromptShowsWhatIsGiven)
{
    forEach(1000, [](const Exercise& exercise) {
        const std::string prompt = textOf(exercise.prompt);
        for (const Given& given : exercise.given) {
            const auto* const told = std::get_if<GivenQuantity>(&given);
            if (told == nullptr) {
                continue;
            }
            EXPECT_EQ(told->shown.empty(), told->shownUnit.empty()) << prompt;
            if (told->shown.empty()) {
                continue;
            }
            const std::string measure = told->shown + " " + told->shownUnit;
            EXPECT_NE(prompt.find(measure), std::string::npos) << measure << ", " << prompt;
            const long double scale = told->shownUnit == "mL" ? 1000 : 1;
            EXPECT_NEAR(std::strtod(told->shown.c_str(), nullptr),
                        static_cast<double>(scale * toFloat(told->value)), 1e-9)
                << measure << ", " << prompt;
        }
    });
}

TEST_P(CalculationExercisesTest, ThePromptIsWrittenProperly)
{
    forEach(1000, [](const Exercise& exercise) {
        const std::string prompt = textOf(exercise.prompt);
        EXPECT_EQ(prompt.back(), '.') << prompt;
        EXPECT_NE(prompt.find("Calculate the "), std::string::npos) << prompt;
        EXPECT_NE(prompt.find(" in " + exercise.ask.unit), std::string::npos) << prompt;
        for (const char* const wrong : {"  ", " .", " ,", "..", ",,", " )", "( "}) {
            EXPECT_EQ(prompt.find(wrong), std::string::npos) << prompt;
        }
    });
}

TEST_P(CalculationExercisesTest, ThreeFiguresAreAskedForAndFourOfAMolarMass)
{
    forEach(1000, [](const Exercise& exercise) {
        const bool isMolarMass = exercise.place.kind == &molarMassKind;
        EXPECT_EQ(exercise.ask.form, Form::number);
        EXPECT_EQ(exercise.ask.figures, isMolarMass ? 4 : 3);
        EXPECT_EQ(answerOf(exercise).isMolarMass, isMolarMass);
        EXPECT_EQ(answerOf(exercise).hasGivenVolumes, !isMolarMass);
        const std::string key = shown(answerOf(exercise).value, exercise.ask.figures);
        EXPECT_EQ(exercise.key, key + " " + exercise.ask.unit);
    });
}

TEST_P(CalculationExercisesTest, TheSamePlaceHasTheSameExercise)
{
    const auto [kind, level] = GetParam();
    for (unsigned paper : {1U, 4821U, greatestPaper}) {
        for (unsigned number : {1U, 77U, greatestNumber}) {
            const Place place = {paper, number, kind, level};
            EXPECT_EQ(exerciseJson(makeExercise(place)), exerciseJson(makeExercise(place)));
        }
    }
}

std::string nameOf(const testing::TestParamInfo<std::tuple<const Kind*, int>>& info)
{
    std::string name(std::get<0>(info.param)->slug);
    name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
    return name + std::to_string(std::get<1>(info.param));
}

INSTANTIATE_TEST_SUITE_P(Kinds, CalculationExercisesTest,
                         testing::Combine(testing::Values(&molarMassKind, &concentrationKind,
                                                          &dilutionKind, &titrationKind),
                                          testing::Values(1, 2, 3)),
                         nameOf);

} // namespace

} // namespace lesson
