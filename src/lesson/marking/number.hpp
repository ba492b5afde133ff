#pragma once

#include <string_view>
#include <vector>

#include "lesson/exercise.hpp"
#include "lesson/values/decimal.hpp"

namespace lesson
{

// Marks a typed number with its unit, if there is one, in time proportional to the length.
Mark markNumber(const NumberAnswer& answer, const Ask& ask, const std::vector<Slip>& slips,
                std::string_view typed);

// For those who make exercises: whether a number with the figures asked for agrees with the exact
// value: within one unit of the last figure of the rounded value, or, but for molar masses, within
// 0.5 % of the exact one. Bounds included.
bool agrees(Decimal typed, Ratio exact, int figures, bool isMolarMass);

// Adds a slip to an exercise whose answer is a number, unless its answer, to the figures asked for,
// would be marked as correct or as an earlier slip. `value` is in the asked unit; a slip that is
// not above 0 is left out.
void addSlip(Exercise& exercise, Ratio value, std::string sentence);

} // namespace lesson
