#pragma once

#include <string>
#include <string_view>

namespace lesson
{

// A text with digits for the letters, or strokes, that look like them in its numbers.
struct MeantDigits {
    std::string text;
    std::string_view letter =
        {}; // the first of them, a part of what was typed; empty where none is
};

//   "0.l17" -> "0.117", "l"    "2.5O" -> "2.50", "O"    "CO2" as it is
MeantDigits withDigits(std::string_view plain);

} // namespace lesson
