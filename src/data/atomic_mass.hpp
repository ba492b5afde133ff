#pragma once

#include <string>

// One element: a row of `aMasses`.
class atomicMass
{
public:
    // Case-sensitive: "H", "He".
    std::string symbol;
    // Relative atomic mass, g/mol.
    float mass;

    atomicMass(std::string elementSymbol, float relativeMass);

    // Compares the symbols alone, so that a row can be searched for without its mass.
    bool operator==(const atomicMass& other) const;
};

// Appends the 110 compiled-in elements to `aMasses`, whatever it already holds.
void initMasses();

// Returns the relative atomic mass of an element, in g/mol; 0 for anything that is not the symbol
// of a row of `aMasses`, and for every symbol while that table is empty: it is not filled here.
//   getAtomicMass("Cl") -> 35.45    getAtomicMass("cl") -> 0
float getAtomicMass(std::string symbol);
