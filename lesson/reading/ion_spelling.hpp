#pragma once

#include <string>
#include <string_view>

namespace lesson
{

// A typed ion as `readIon` reads it: in one spelling, its groups written out, with signs for words
// and the charge behind the formula.
//   "SO4**2-" -> "SO4^2-"    "SO4 2 minus" -> "SO4 2-"    "Fe3+ ion" -> "Fe3+"
//   "-OOCCH3" -> "OOCCH3-"
std::string plainIon(std::string_view typed);

} // namespace lesson
