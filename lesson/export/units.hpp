#pragma once

#include <string>
#include <vector>

#include "lesson/exercise.hpp"

namespace lesson
{

// What may stand behind a number, without blanks, and how many of it make one of the asked unit.
struct UnitRow {
    std::string name;
    std::string times; // a decimal number
};

// What a program that takes all behind a number for its unit has to know for an exercise that asks
// for a number: the asked unit first, units that convert, and powers of ten, which are no units but
// are typed there. No two differ by capitals or by raised digits alone, since a database may take
// such names for the same.
//   an answer of 0.258 mol/L: "mol/L" 1, "mmol/L" 1000, "×10⁻¹" 10, "x10-1mol/L" 10, …
std::vector<UnitRow> unitsBehind(const Exercise& exercise);

} // namespace lesson
