#pragma once

#include <string_view>
#include <vector>

#include "lesson/numbers/ratio.hpp"
#include "lesson/words/spans.hpp"

namespace lesson
{

// The masses of a formula as they are added up.
//   "CuSO4.5H2O" -> 63.55 + 32.06 + 4(16.00) + 5(18.016)
Spans sumOfMasses(std::string_view formula);

// The molar masses that other tables lead to, each once and the smallest first. They print each
// mass as here, to one decimal or whole, where a last 5 is rounded up in some and down in others,
// with Cl 35.5 and Cu 63.5 or 64 among the whole ones; H is 1.01 and S 32.07 in some.
std::vector<Ratio> roundedMolarMasses(std::string_view formula);

} // namespace lesson
