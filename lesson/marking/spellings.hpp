#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lesson
{

// The formulas that are as good as one of the tables, itself first, as `readFormula` writes them:
// ethanoates and ethanoic acid have several, and hydroxide has two.
//   "NaOH" -> NaOH    "CH3COONa" -> CH3COONa, NaCH3COO, NaC2H3O2, …    "CH3COO" -> CH3COO, CH3CO2,
//   …
std::vector<std::string> spellingsOf(std::string_view formula);

} // namespace lesson
