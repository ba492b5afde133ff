#pragma once

#include <string_view>
#include <vector>

#include "lesson/exercise.hpp"
#include "lesson/numbers/decimal.hpp"

namespace lesson
{

// Marks a typed number with its unit, if there is one, in time proportional to the length.
Mark markNumber(const NumberAnswer& answer, const Ask& ask, const std::vector<Slip>& slips,
                std::string_view typed, const Writing& writing = {});

// For those who make exercises: whether a number with the figures asked for agrees with the exact
// value: within one unit of the last figure of the rounded value, or, but for molar masses, within
// 0.5 % of the exact one. Bounds included.
bool agrees(Decimal typed, Ratio exact, int figures, bool isMolarMass);

// For those who draw exercises: whether someone who makes a mistake is told so. The mistake's
// value, in the asked unit, is typed to the figures asked for; that it is not marked correct, with
// rounded masses or not, right but for the figures or close. False for a value that is not above 0.
bool isVisible(const NumberAnswer& answer, int figures, Ratio slip);

// Adds a slip to an exercise whose answer is a number, unless its answer, typed to the figures
// asked for, would be marked as right or as an earlier slip. `value` is in the asked unit; a slip
// that is not above 0 is left out.
void addSlip(Exercise& exercise, Ratio value, const Spans& sentence);

} // namespace lesson
