#include "lesson/words/writing.hpp"

#include <algorithm>
#include <iterator>

#include "lesson/text/quotable.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

std::string_view takePart(std::string_view& rest)
{
    const std::string_view part = rest.substr(0, rest.find(';'));
    rest.remove_prefix(std::min(rest.size(), part.size() + 1));
    return part;
}

struct Option {
    std::string_view text;
    void (*set)(Writing& writing);
};
constexpr Option options[] = {
    {"decimal=.", [](Writing& writing) { writing.decimal = '.'; }},
    {"decimal=,", [](Writing& writing) { writing.decimal = ','; }},
    {"volume=mL", [](Writing& writing) { writing.isVolumeCubic = false; }},
    {"volume=cm3", [](Writing& writing) { writing.isVolumeCubic = true; }},
    {"per=slash", [](Writing& writing) { writing.isPerAPower = false; }},
    {"per=power", [](Writing& writing) { writing.isPerAPower = true; }},
};

const Option* findOption(std::string_view text)
{
    const auto* const found =
        std::find_if(std::begin(options), std::end(options),
                     [text](const Option& option) { return option.text == text; });
    return found == std::end(options) ? nullptr : found;
}

} // namespace

NamedWriting readWriting(std::string_view text)
{
    NamedWriting named;
    const std::string_view tag = takePart(text);
    if (const Language* const language = tag.empty() ? &britishEnglish() : findLanguage(tag)) {
        named.writing.language = language;
    } else {
        named.error = line(say<Sentence::errorUnknownLanguage>(quotable(tag)));
    }
    while (!text.empty()) {
        const std::string_view part = takePart(text);
        if (const Option* const option = findOption(part)) {
            option->set(named.writing);
        } else if (named.error.empty()) {
            named.error = line(say<Sentence::errorUnknownWriting>(quotable(part)));
        }
    }
    return named;
}

} // namespace lesson
