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

// The neutral compound of two ions: "Al2(SO4)3", "aluminium sulfate". The cation comes first, but
// in "CH3COONa" and its like.
std::string compoundFormula(const IonRow& cation, const IonRow& anion);
std::string compoundName(const IonRow& cation, const IonRow& anion);
// The name as the American one, "aluminum sulfate", where they differ; else empty.
std::string americanName(const IonRow& cation, const IonRow& anion);

// The same with so many molecules of water of crystallisation, 1 to 10:
// "CuSO4" -> "CuSO4.5H2O", "copper(II) sulfate" -> "copper(II) sulfate pentahydrate".
std::string hydrateFormula(const std::string& formula, int water);
std::string hydrateName(const std::string& name, int water);

// How often each occurs in it.
int cationsIn(const IonRow& cation, const IonRow& anion);
int anionsIn(const IonRow& cation, const IonRow& anion);

} // namespace lesson
