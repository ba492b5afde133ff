#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "lesson/export/expected.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

// "100 'yes' Correct.", one a line.
std::string textOf(const std::vector<Expected>& expected)
{
    std::string text;
    for (const Expected& one : expected) {
        text += std::to_string(one.percent) + " '" + one.text + "' " + one.tolerance +
                (one.tolerance.empty() ? "" : " ") + one.sentence + "\n";
    }
    return text;
}

TEST(ExpectedAnswersTest, ChoicesStandInTheirOrderWithTheRule)
{
    Exercise exercise = {};
    exercise.ask = {Form::solubility, "", "", "", 0, {Sentence::answerYes, Sentence::answerNo}};
    exercise.answer = SolubilityAnswer{false, line("Carbonates are insoluble.")};
    EXPECT_EQ(textOf(expectedAnswers(exercise, Writing())),
              "0 'yes' Not right yet. Carbonates are insoluble.\n"
              "100 'no' Correct. Carbonates are insoluble.\n");
    exercise.answer = SolubilityAnswer{true, line("All nitrates are soluble.")};
    EXPECT_EQ(textOf(expectedAnswers(exercise, Writing())),
              "100 'yes' Correct. All nitrates are soluble.\n"
              "0 'no' Not right yet. All nitrates are soluble.\n");
}

TEST(ExpectedAnswersTest, TheLastOneIsForAnythingElse)
{
    Exercise exercise = {};
    exercise.ask = {Form::number, "c", "NaCl", "mol/L", 3, {}};
    exercise.answer = NumberAnswer{ratio(456, 10000)};
    const Expected ofNumber = expectedAnswers(exercise, Writing()).back();
    EXPECT_EQ(textOf({ofNumber}), "0 '*' 0 Not right yet. Write down what you know.\n");
    exercise = {};
    exercise.ask.form = Form::ion;
    exercise.key = {ionSpan("Na", "+")};
    exercise.answer = IonAnswer{findIon("sodium")};
    const Expected ofSymbols = expectedAnswers(exercise, Writing()).back();
    EXPECT_EQ(textOf({ofSymbols}), "0 '*' Not right yet. Check each symbol and each number.\n");
}

TEST(ExpectedAnswersTest, AnEquationHasNone)
{
    Exercise exercise = {};
    exercise.ask.form = Form::equation;
    EXPECT_TRUE(expectedAnswers(exercise, Writing()).empty());
}

// A file has none to press.
TEST(ExpectedAnswersTest, NoSentenceNamesAButton)
{
    for (const Kind* const kind : allKinds()) {
        for (unsigned number = 1; number <= 30; ++number) {
            const Exercise exercise = makeExercise({7, number, kind, 3});
            for (const Expected& one : expectedAnswers(exercise, Writing())) {
                EXPECT_EQ(one.sentence.find("press"), std::string::npos)
                    << one.text << ": " << one.sentence;
            }
        }
    }
}

TEST(ExpectedAnswersTest, AMarkIsWorthWhatItSays)
{
    const std::pair<Verdict, int> worth[] = {
        {Verdict::correct, 100},  {Verdict::figures, 50},   {Verdict::close, 50},
        {Verdict::slip, 0},       {Verdict::powerOfTen, 0}, {Verdict::wrong, 0},
        {Verdict::unreadable, 0},
    };
    for (const auto& [verdict, percent] : worth) {
        EXPECT_EQ(percentFor(verdict), percent) << static_cast<int>(verdict);
    }
}

} // namespace

} // namespace lesson
