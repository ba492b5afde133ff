#pragma once

#include <string>

#include "lesson/chemistry/ions.hpp"

namespace lesson
{

// A cation and an anion.
struct Pair {
    const IonRow* cation;
    const IonRow* anion;
};
bool operator==(const Pair& a, const Pair& b);

// How common the compound is in comparison with others: the product of its ions' weights, 1 to 36.
int weightOf(const Pair& pair);

// The neutral compound of two ions: "Al2(SO4)3". The cation comes first, but in "CH3COONa" and its
// like.
std::string compoundFormula(const IonRow& cation, const IonRow& anion);
// The same with so many molecules of water of crystallisation, 1 to 10: "CuSO4.5H2O".
std::string hydrateFormula(const std::string& formula, int water);

// How often each occurs in it.
int cationsIn(const IonRow& cation, const IonRow& anion);
int anionsIn(const IonRow& cation, const IonRow& anion);

} // namespace lesson
