#pragma once

#include <string>
#include <vector>

#include "lesson/chemistry/ions.hpp"

namespace lesson
{

// The formulas that are as good as one of the tables, itself first, as `readFormula` writes them:
// ethanoates and ethanoic acid have several, and hydroxide has two.
//   ethanoate -> CH3COO, CH3CO2, …
std::vector<std::string> spellingsOf(const IonRow& ion);
// Of their compound; that of hydrogen is the acid.
//   NaOH -> NaOH    CH3COONa -> CH3COONa, NaCH3COO, NaC2H3O2, …
std::vector<std::string> spellingsOf(const IonRow& cation, const IonRow& anion);

} // namespace lesson
