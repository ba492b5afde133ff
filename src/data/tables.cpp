#include "data/tables.hpp"

// The stream initialiser comes first: the tables are built after the streams, in this order, and
// destroyed before them, in the reverse order.
#include <iostream>

std::vector<atomicMass> aMasses;
std::vector<Ion> ion;
std::vector<Soluble> dissolvable;
