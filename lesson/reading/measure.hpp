#pragma once

#include <string>
#include <string_view>

#include "lesson/reading/number.hpp"
#include "lesson/words/spans.hpp"
#include "lesson/words/writing.hpp"

namespace lesson
{

// Why a text gives no number in the asked unit.
enum class NumberProblem {
    none,
    nothingTyped,
    unread,         // `part` could not be read
    pointOrComma,   // `part` is the number if its comma is a point: "1.250"
    otherUnit,      // its unit is not one of the answer
    minus,          // it is below 0
    letterForDigit, // `part` is a letter, or a stroke, that looks like the digit that was meant
};

// A number with its unit, in the asked one.
struct TypedMeasure {
    NumberText text; // as it was typed, before it is brought to the asked unit
    TypedNumber number;
    NumberProblem problem = NumberProblem::none;
    std::string part = {};      // that the problem is about
    std::string_view unit = {}; // the typed one as it is printed; empty where none was
    int power = 0; // of ten, the typed unit in the asked one: 3 for L where mL is asked
};

// What may be typed beside the number: the unit and the substance that are asked for.
struct AskedMeasure {
    std::string_view unit; // "mol/L"
    std::string_view of;   // formula of the substance
};

// Reads a number, a symbol in front and a unit behind it, in the spelling of `plainTyped`.
//   "c(NaOH) = 45.6 mmol/L" for mol/L -> 0.0456 with 3 figures
//   "1,250" -> pointOrComma, part "1.250"; with a decimal comma 1.250
//   "0.l17" -> letterForDigit, part "l"
TypedMeasure readMeasure(std::string_view plain, const AskedMeasure& asked, const Writing& writing);

} // namespace lesson
