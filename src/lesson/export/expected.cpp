#include "lesson/export/expected.hpp"

#include <utility>

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

std::vector<Expected> expectedAnswers(const Exercise& exercise)
{
    if (exercise.ask.form == Form::number) {
        return expectedNumbers(exercise);
    }
    if (exercise.ask.form == Form::equation) {
        return {};
    }
    return exercise.ask.choices.empty() ? expectedTexts(exercise) : expectedChoices(exercise);
}

} // namespace lesson
