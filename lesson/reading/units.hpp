#pragma once

#include <optional>
#include <string_view>

namespace lesson
{

// What a unit measures, the power of ten that it is of mol/L, g/mol, g or L, and how it is printed,
// in litres or in cubic decimetres as it was typed.
enum class Dimension {
    concentration,
    molarMass,
    mass,
    volume,
};
struct Unit {
    Dimension dimension;
    int power;
    std::string_view printed;
};

// A unit as people type it, in the spelling of `plainTyped`; none if it is not one of those that an
// answer can be in.
//   "mL", "(ml)", "millilitres" -> volume, -3, "mL"    "cm^3", "cc" -> volume, -3, "cm³"
//   "mol/L", "moles per litre" -> concentration, 0, "mol/L"    "mol.dm^{-3}" -> …, "mol dm⁻³"
//   "mol/dm-3", which divides twice -> as "mol/dm3"
std::optional<Unit> unitOf(std::string_view typed);

// What is left of a text that ends with the formula or word, perhaps typed with other blanks, dots
// or capitals; the whole text if it does not.
//   "g Na2CO3 · 10H2O", "Na2CO3.10H2O" -> "g "
std::string_view withoutEnding(std::string_view typed, std::string_view ending);

} // namespace lesson
