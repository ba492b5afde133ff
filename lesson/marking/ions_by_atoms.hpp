#pragma once

#include <optional>
#include <string_view>

#include "lesson/chemistry/composition.hpp"
#include "lesson/chemistry/ions.hpp"

namespace lesson
{

// The ions that a formula is made of as far as its atoms tell, however it is written. Atoms are by
// atomic number here, as those of a typed formula are.

// Of a formula of the tables.
Atoms atomsOf(std::string_view formula);

struct IonsIn {
    int cations;
    int anions;
    int protons; // besides
};

// How often two ions and a proton are in it; none where it is not made of these.
std::optional<IonsIn> ionsIn(const Atoms& atoms, const IonRow& cation, const IonRow& anion);

// Whether it is a salt of the two whose anion has kept a proton: "NaHSO4" of sodium and sulfate.
bool isAcidSalt(const IonsIn& ions, const IonRow& cation, const IonRow& anion);
bool isAcidSaltOf(const Atoms& atoms, const IonRow& cation, const IonRow& anion);

} // namespace lesson
