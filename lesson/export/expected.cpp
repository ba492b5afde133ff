#include "lesson/export/expected.hpp"

#include <string_view>
#include <utility>

#include "lesson/marking/sentences.hpp"

namespace lesson
{

int percentFor(Verdict verdict)
{
    switch (verdict) {
    case Verdict::correct:
        return 100;
    case Verdict::figures:
    case Verdict::close:
        return 50;
    case Verdict::slip:
    case Verdict::powerOfTen:
    case Verdict::wrong:
    case Verdict::unreadable:
        break;
    }
    return 0;
}

std::vector<Expected> expectedChoices(const Exercise& exercise)
{
    std::vector<Expected> expected;
    for (const std::string& choice : exercise.ask.choices) {
        Mark mark = markAnswer(exercise, choice);
        expected.push_back({percentFor(mark.verdict), choice, "", std::move(mark.sentence)});
    }
    return expected;
}

namespace
{

// A file has no button that shows a step.
constexpr std::string_view notYet = "Not right yet. Write down what you know.";
constexpr std::string_view notYetInSymbols = "Not right yet. Check each symbol and each number.";

void leaveOutButtons(std::vector<Expected>& expected)
{
    for (Expected& one : expected) {
        if (one.sentence == sentences::notYet) {
            one.sentence = notYet;
        }
    }
}

} // namespace

std::vector<Expected> expectedAnswers(const Exercise& exercise)
{
    if (exercise.ask.form == Form::equation) {
        return {};
    }
    if (!exercise.ask.choices.empty()) {
        return expectedChoices(exercise);
    }
    const bool isNumber = exercise.ask.form == Form::number;
    std::vector<Expected> expected = isNumber ? expectedNumbers(exercise) : expectedTexts(exercise);
    leaveOutButtons(expected);
    expected.push_back({0, std::string(anything), isNumber ? "0" : "",
                        std::string(isNumber ? notYet : notYetInSymbols)});
    return expected;
}

} // namespace lesson
