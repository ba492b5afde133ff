#pragma once

#include <string_view>

#include "lesson/numbers/ratio.hpp"

namespace lesson
{

// Takes the coefficient off the front of a term, and a sign of multiplication behind it; 1 where
// none is written.
//   "2HCl", "(2) HCl", "1/2 H2SO4", "0,5*H2SO4", "1 1/2 O2" -> 2, 2, 1/2, 1/2, 3/2
Ratio takeCoefficient(std::string_view& term);

// Whether a coefficient, or a sum of some, is within the range of those that are read.
bool isFitCoefficient(Ratio value);

} // namespace lesson
