#pragma once

#include <vector>

#include "data/atomic_mass.hpp"
#include "data/ion.hpp"
#include "data/soluble.hpp"

// What the program knows. Empty at start, filled once, never changed afterwards; the functions that
// draw from them hand out copies.

// The elements; filled by the first `calculateMM`.
extern std::vector<atomicMass> aMasses;
// The ions; filled by the first random draw of an ion.
extern std::vector<Ion> ion;
// The compounds that questions dissolve in water; filled by `initSolubles`, at the program's start.
extern std::vector<Soluble> dissolvable;
