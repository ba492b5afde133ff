#include "lesson/export/expected.hpp"

#include <utility>
#include <variant>

#include "lesson/words/render.hpp"
#include "lesson/words/say.hpp"

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

std::vector<Expected> expectedChoices(const Exercise& exercise, const Writing& writing)
{
    std::vector<Expected> expected;
    for (const Sentence choice : exercise.ask.choices) {
        std::string text = plainText({say(choice)}, writing);
        const Mark mark = markAnswer(exercise, text);
        expected.push_back(
            {percentFor(mark.verdict), std::move(text), "", plainText(mark.sentence, writing)});
    }
    return expected;
}

bool isNone(const Exercise& exercise)
{
    const auto* const answer = std::get_if<PrecipitateAnswer>(&exercise.answer);
    return answer != nullptr && answer->cation == nullptr;
}

std::vector<Expected> expectedAnswers(const Exercise& exercise, const Writing& writing)
{
    if (exercise.ask.form == Form::equation) {
        return {};
    }
    if (!exercise.ask.choices.empty()) {
        return expectedChoices(exercise, writing);
    }
    const bool isNumber = exercise.ask.form == Form::number;
    std::vector<Expected> expected =
        isNumber ? expectedNumbers(exercise, writing) : expectedTexts(exercise, writing);
    const Sentence notYet = isNumber ? Sentence::markNotYet : Sentence::exportNotYetInSymbols;
    expected.push_back(
        {0, std::string(anything), isNumber ? "0" : "", plainText({say(notYet)}, writing)});
    return expected;
}

} // namespace lesson
