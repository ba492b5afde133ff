#pragma once

#include <cstddef>
#include <string_view>

#include "lesson/words/spans.hpp"

namespace lesson
{

// The place of the first comma that stands in no square brackets.
inline std::size_t commaIn(std::string_view list)
{
    bool isInside = false;
    for (std::size_t i = 0; i < list.size(); ++i) {
        isInside = list[i] == '[' || (isInside && list[i] != ']');
        if (list[i] == ',' && !isInside) {
            return i;
        }
    }
    return std::string_view::npos;
}

// Hands the parts of a list, which commas separate, to `read` up to the first with an error, which
// it gives; empty where there is none. An empty list has one empty part.
template <typename Read>
Spans readParts(std::string_view list, const Read& read)
{
    for (std::size_t comma = 0; comma != std::string_view::npos;) {
        comma = commaIn(list);
        Spans problem = read(list.substr(0, comma));
        if (!problem.empty()) {
            return problem;
        }
        list.remove_prefix(comma == std::string_view::npos ? list.size() : comma + 1);
    }
    return {};
}

} // namespace lesson
