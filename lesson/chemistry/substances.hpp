#pragma once

#include <string>
#include <vector>

#include "lesson/chemistry/name.hpp"

namespace lesson
{

// A substance whose molar mass is asked for, besides the compounds of two ions.
struct SubstanceRow {
    std::string formula;
    Name name;
    int weight; // how common it is in comparison with others of its list
};

// What is made of molecules. The weights compare with those of pairs of ions.
const std::vector<SubstanceRow>& molecules();
// Salts, and an acid, with water of crystallisation.
const std::vector<SubstanceRow>& crystals();

} // namespace lesson
