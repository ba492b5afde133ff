#include "lesson/paper/reference.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "lesson/kinds/kinds.hpp"
#include "lesson/paper/selection.hpp"
#include "lesson/text/quotable.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

NamedExercise error(Spans sentence)
{
    return {{}, std::move(sentence)};
}

Spans errorOfNumber()
{
    return line(say<Sentence::errorNumber>(number(std::to_string(greatestNumber))));
}

std::string_view takePart(std::string_view& rest)
{
    const std::string_view part = rest.substr(0, rest.find('/'));
    rest.remove_prefix(std::min(rest.size(), part.size() + 1));
    return part;
}

NamedExercise drawnExercise(std::string_view text)
{
    const unsigned paper = takePaper(text);
    const unsigned number = wholeIn(takePart(text), greatestNumber).value_or(0);
    if (paper == 0) {
        return error(errorOfPaper());
    }
    if (number == 0 || number > greatestNumber) {
        return error(errorOfNumber());
    }
    const Selection selection = readSelection(text);
    if (!selection.error.empty()) {
        return error(selection.error);
    }
    return {makeExercise(placeOf(selection, paper, number)), {}};
}

NamedExercise describedExercise(std::string_view text)
{
    const std::string_view slug = text.substr(0, text.find(';'));
    if (slug.empty()) {
        return error(line(say<Sentence::errorNoKind>()));
    }
    const Kind* const kind = findKind(slug);
    if (kind == nullptr) {
        return error(line(say<Sentence::errorUnknownKind>(quotable(slug))));
    }
    text.remove_prefix(std::min(text.size(), slug.size() + 1));
    return kind->read(*kind, text);
}

} // namespace

NamedExercise exerciseOf(const Reference& reference)
{
    return reference.description.empty() ? NamedExercise{makeExercise(reference.place), {}}
                                         : describedExercise(reference.description);
}

NamedExercise exerciseNamed(std::string_view text)
{
    return text.find('/') < text.find(';') ? drawnExercise(text) : describedExercise(text);
}

unsigned takePaper(std::string_view& rest)
{
    const unsigned paper = wholeIn(takePart(rest), greatestPaper).value_or(0);
    return paper > greatestPaper ? 0 : paper;
}

Spans errorOfPaper()
{
    return line(say<Sentence::errorPaper>(number(std::to_string(greatestPaper))));
}

std::optional<unsigned> wholeIn(std::string_view text, unsigned most)
{
    unsigned number = 0;
    for (const char digit : text) {
        if (digit < '0' || digit > '9') {
            return std::nullopt;
        }
        number = std::min(number * 10 + static_cast<unsigned>(digit - '0'), most + 1);
    }
    return text.empty() ? std::nullopt : std::optional(number);
}

} // namespace lesson
