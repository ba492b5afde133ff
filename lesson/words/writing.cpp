#include "lesson/words/writing.hpp"

#include <algorithm>

#include "lesson/text/quotable.hpp"

namespace lesson
{

namespace
{

constexpr std::string_view language = "en-GB";

std::string_view takePart(std::string_view& rest)
{
    const std::string_view part = rest.substr(0, rest.find(';'));
    rest.remove_prefix(std::min(rest.size(), part.size() + 1));
    return part;
}

} // namespace

NamedWriting readWriting(std::string_view text)
{
    NamedWriting named;
    const std::string_view first = takePart(text);
    if (!first.empty() && first != language) {
        named.error = "There is no language called '" + quotable(first) + "'.";
    }
    while (!text.empty()) {
        const std::string_view option = takePart(text);
        if (option == "decimal=," || option == "decimal=.") {
            named.writing.decimal = option.back();
        } else if (named.error.empty()) {
            named.error = "There is no way of writing called '" + quotable(option) + "'.";
        }
    }
    return named;
}

} // namespace lesson
