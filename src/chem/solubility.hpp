#pragma once

#include <string>

#include "chem/ucase.hpp"
#include "data/ion.hpp"

// Returns 'Y' if the compound of a cation and an anion dissolves in water, 'N' if it does not, and
// ' ' if no rule covers the anion. Looks at the formulas alone, whole and case-sensitive.
//   silver, chloride -> 'N'    magnesium, nitride -> ' '
char isSolubleChar(Ion cation, Ion anion);

// Returns a verdict, in either case, in words: "soluble" for 'Y', "insoluble" for 'N',
// "<an error occurred>" for anything else.
std::string isSolubleWord(char verdict);
