#pragma once

#include <string>
#include <string_view>

#include "lesson/exercise.hpp"
#include "lesson/reading/number.hpp"

namespace lesson
{

// What was read: a number in the asked unit or, where there is a problem, the sentence that tells
// it.
struct NumberReading {
    TypedNumber number;
    std::string problem = {};
    std::string_view unit = {}; // the typed one as it is printed; empty where none was
    int power = 0; // of ten, the typed unit in the asked one: 3 for L where mL is asked
};

// Reads a number, a symbol in front and a unit behind it, in the spelling of `plainTyped`.
//   "c(NaOH) = 45.6 mmol/L" for mol/L -> 0.0456 with 3 figures
//   "1,250" -> "Do you mean 1250 or 1.250?"
//   "0.l17" -> "There is a small letter l where the digit 1 should be."
NumberReading readNumber(std::string_view plain, const Ask& ask);

} // namespace lesson
