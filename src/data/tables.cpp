#include "data/tables.hpp"

// Included for the order that it brings about: objects of one source file are made from its top to
// its bottom and destroyed the other way round. So the standard streams are ready before the first
// table is, and whatever is written while the tables are destroyed still gets out.
#include <iostream>

std::vector<atomicMass> aMasses;
std::vector<Ion> ion;
std::vector<Soluble> dissolvable;
