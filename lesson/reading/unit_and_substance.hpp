#pragma once

#include <string_view>

namespace lesson
{

// The unit without the substance that is named behind it, the asked one or another.
//   "g of NaCl" -> "g"    "mL of hydrochloric acid" -> "mL"    "g NaCl" for NaCl -> "g"
std::string_view withoutSubstance(std::string_view unit, std::string_view formula);

} // namespace lesson
