#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/numbers/ratio.hpp"

namespace lesson
{

// Atoms of one element.
struct AtomCount {
    int element; // atomic number
    int count;
};
bool operator==(AtomCount a, AtomCount b);

// Each element once, in the order in which the formula names them first.
using Atoms = std::vector<AtomCount>;

// A stretch of a formula that is counted as one: what stands outside brackets, what stands in one
// bracket, or the water of a hydrate.
struct FormulaPart {
    Atoms atoms;  // of one bracket, of one water molecule
    int times;    // the number behind the bracket or before H2O; 1 outside
    bool isWater; // of crystallisation
};

//   "Al2(SO4)3"   parts 2 Al; S, 4 O, three times            atoms 2 Al, 3 S, 12 O
//   "CuSO4.5H2O"  parts Cu, S, 4 O; 2 H, O, five times water  atoms Cu, S, 9 O, 10 H
//   "CH3COONa"    parts 2 C, 3 H, 2 O, Na                    atoms the same
struct Composition {
    std::vector<FormulaPart> parts;
    Atoms atoms;
};

// For formulas as the tables write them, of their elements alone: nothing here looks out for
// others, so what a learner types has to be read elsewhere.
Composition compositionOf(std::string_view formula);

// How many of one element, 0 where there are none.
int countOf(const Atoms& atoms, int element);

// The sum of the masses in the table, exactly, in g/mol; the formula as above.
Ratio massOf(const Atoms& atoms);
Ratio molarMassOf(std::string_view formula);

// Such a sum as exercises give it and work with it, and as they show it: to two decimals, since the
// sum of masses with two has no third. A half goes up.
//   NaOH, 39.998 -> 40.00, "40.00"    KI, 166 -> 166, "166.00"
Ratio toHundredths(Ratio mass);
std::string shownMass(Ratio mass);

} // namespace lesson
