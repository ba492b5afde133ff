#pragma once

#include <string>
#include <string_view>

namespace lesson
{

// Other spellings of a typed formula, without reading it.

// With the groups written out that chemists abbreviate: Ac is ethanoate here, for no exercise asks
// for actinium.
//   "Ca(OAc)2" -> "Ca(CH3COO)2"    "CaAc2" -> "Ca(CH3COO)2"    "MeCOOH" -> "CH3COOH"
//   "Acid" as it is
std::string spelledOut(std::string_view plain);

// Without the bond that some write inside an ethanoate: "CH3-COO-" -> "CH3COO-".
std::string withoutBond(std::string plain);

// The formula in one spelling without reading it: no blanks, no state, round brackets, plain digits
// and dots. So texts can be compared that are no formulas: "Jo_2" and "Jo2" are the same.
std::string bareFormula(std::string_view plain);

// The same in lower case: "NACL" and "NaCl" are the same, and so are "CO" and "Co", of which only
// one is ever meant.
std::string withoutCapitals(std::string_view plain);

} // namespace lesson
