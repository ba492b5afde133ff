#pragma once

#include <optional>
#include <string_view>

namespace lesson
{

// What a unit measures, and the power of ten that it is of mol/L, g/mol, g or L.
enum class Measure {
    concentration,
    molarMass,
    mass,
    volume,
};
struct Unit {
    Measure measure;
    int power;
};

// A unit as people type it, in the spelling of `plainTyped`; none if it is not one of those that an
// answer can be in.
//   "mL", "(ml)", "cm^3", "cc", "millilitres" -> volume, -3
//   "mol/L", "mol L-1", "mol.dm^{-3}", "moles per litre", "M" -> concentration, 0
std::optional<Unit> unitOf(std::string_view typed);

// What is left of a text that ends with the formula or word, perhaps typed with other blanks, dots
// or capitals; the whole text if it does not.
//   "g Na2CO3 · 10H2O", "Na2CO3.10H2O" -> "g "
std::string_view withoutEnding(std::string_view typed, std::string_view ending);

} // namespace lesson
