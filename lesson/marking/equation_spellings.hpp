#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/chemistry/ions.hpp"

namespace lesson
{

// The formulas that may stand for a species of an equation, itself first, as `readFormula` writes
// them without needless brackets. Its ions stay whole but come in either order, and hydrogen is the
// cation of an acid; both ions are null for a molecule.
//   "Ca(OH)2" -> Ca(OH)2, (OH)2Ca, Ca(HO)2, (HO)2Ca    "H2O" -> H2O, HOH, OH2
std::vector<std::string> spellingsInEquation(std::string_view formula, const IonRow* cation,
                                             const IonRow* anion);

} // namespace lesson
