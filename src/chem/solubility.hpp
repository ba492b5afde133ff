#pragma once

#include <string>

#include "chem/ucase.hpp"
#include "data/ion.hpp"

// Whether the compound of two ions dissolves in water: 'Y', 'N', or ' ' where no rule covers the
// anion. The ions are told by their formulas alone, whole and case-sensitive; the first has to be
// the cation.
char isSolubleChar(Ion cation, Ion anion);

// A verdict in words, whatever its case: "soluble" for 'Y', "insoluble" for 'N',
// "<an error occurred>" for anything else.
std::string isSolubleWord(char verdict);
