#pragma once

#include <cstddef>
#include <string_view>

#include "lesson/text/scan.hpp"

namespace lesson
{

// A sentence of a language, with its arguments in curly brackets:
//   "{volume} of {solution} is diluted to {total}. Calculate its concentration in {unit mol/L}."
// A name is one of the arguments; one with a large first letter begins a sentence, so that what it
// stands for gets one too. What has a blank is no argument but what it says itself: {unit mL},
// {formula NH3}, {ion SO4 2-}, {quantity V 1}, {number 0.125}.
//
// The names and their order are those of British English; the others name the same.

struct Placeholder {
    std::string_view name; // without the brackets
    std::size_t from;      // where its bracket stands; npos where there is none left
    std::size_t behind;    // where the text goes on
    constexpr bool isArgument() const
    {
        return from != std::string_view::npos && name.find(' ') == std::string_view::npos;
    }
};

// The first one from a place on.
constexpr Placeholder nextPlaceholder(std::string_view pattern, std::size_t from)
{
    const std::size_t open = pattern.find('{', from);
    if (open == std::string_view::npos) {
        return {{}, open, pattern.size()};
    }
    const std::size_t close = pattern.find('}', open);
    return {pattern.substr(open + 1, close - open - 1), open, close + 1};
}

// Whether two names are one, whatever their first letters.
constexpr bool isSameArgument(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && smallLetter(a[0]) == smallLetter(b[0]) &&
           a.substr(1) == b.substr(1);
}

// The place of an argument among those of a pattern, in the order in which they first occur; as
// many as there are where it is none of them.
constexpr std::size_t placeOfArgument(std::string_view pattern, std::string_view name)
{
    std::size_t place = 0;
    for (Placeholder one = nextPlaceholder(pattern, 0); one.from != std::string_view::npos;
         one = nextPlaceholder(pattern, one.behind)) {
        if (!one.isArgument()) {
            continue;
        }
        bool isNew = true;
        for (Placeholder earlier = nextPlaceholder(pattern, 0); earlier.from < one.from;
             earlier = nextPlaceholder(pattern, earlier.behind)) {
            isNew = isNew && !(earlier.isArgument() && isSameArgument(earlier.name, one.name));
        }
        if (isSameArgument(one.name, name)) {
            return place;
        }
        place += isNew ? 1 : 0;
    }
    return place;
}

constexpr std::size_t argumentCount(std::string_view pattern)
{
    return placeOfArgument(pattern, " ");
}

// Whether all arguments of the one are among those of the other, and the other way round.
constexpr bool haveSameArguments(std::string_view a, std::string_view b)
{
    const auto holdsAll = [](std::string_view those, std::string_view of) {
        for (Placeholder one = nextPlaceholder(of, 0); one.from != std::string_view::npos;
             one = nextPlaceholder(of, one.behind)) {
            if (one.isArgument() && placeOfArgument(those, one.name) == argumentCount(those)) {
                return false;
            }
        }
        return true;
    };
    return holdsAll(a, b) && holdsAll(b, a);
}

// Whether each bracket ends, and what is no argument is of one of the kinds of spans.
constexpr bool isReadable(std::string_view pattern)
{
    constexpr std::string_view kinds[] = {"unit ", "formula ", "ion ", "quantity ", "number "};
    bool isRead = true;
    for (Placeholder one = nextPlaceholder(pattern, 0); one.from != std::string_view::npos;
         one = nextPlaceholder(pattern, one.behind)) {
        bool isKnown = one.isArgument();
        for (const std::string_view kind : kinds) {
            isKnown = isKnown || one.name.substr(0, kind.size()) == kind;
        }
        isRead = isRead && isKnown && !one.name.empty() && one.behind != 0;
    }
    return isRead;
}

template <typename Row, std::size_t N>
constexpr bool areReadable(const Row (&rows)[N])
{
    bool areRead = true;
    for (const Row& row : rows) {
        areRead = areRead && isReadable(row.text);
    }
    return areRead;
}

} // namespace lesson
