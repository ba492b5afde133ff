#pragma once

#include <map>
#include <string>

// The atoms in one formula unit, by element symbol; a count of its own, not the program's parser.
// Knows brackets, and counts of any length behind an element or a bracket. Throws
// std::invalid_argument for anything else.
//   "Al2(SO4)3" -> Al 2, O 12, S 3
std::map<std::string, int> countAtoms(const std::string& formula);

// Adds the atoms of so many formula units to the sum.
void addAtoms(std::map<std::string, int>& sum, int times, const std::string& formula);
