#pragma once

#include <string_view>
#include <vector>

#include "lesson/spans.hpp"
#include "lesson/values/ratio.hpp"

namespace lesson
{

// The masses of a formula as they are added up.
//   "CuSO4.5H2O" -> 63.55 + 32.06 + 4(16.00) + 5(18.016)
Spans sumOfMasses(std::string_view formula);

// The molar masses that tables with rounded masses lead to: with one decimal, where a last 5 is
// rounded up in some tables and down in others, and with whole numbers but Cl 35.5 and Cu 63.5.
std::vector<Ratio> roundedMolarMasses(std::string_view formula);

} // namespace lesson
