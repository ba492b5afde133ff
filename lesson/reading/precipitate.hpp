#pragma once

#include <string>
#include <string_view>

#include "lesson/chemistry/ions.hpp"

namespace lesson
{

// What was typed for a precipitate.
struct TypedPrecipitate {
    std::string formula; // or its name: without the state and the words around it
    std::string state;   // "s", "l", "g", "aq", of several the first that is not "s"; else empty
};

// Reads what `plainTyped` gives.
//   "PbSO4 (solid)" -> "PbSO4", state "s"    "The precipitate is PbSO4" -> "PbSO4"
TypedPrecipitate readPrecipitate(std::string_view plain);

// Whether there is more than the precipitate: "CuCO3 + NH4Cl", "PbI2, KNO3" or a whole equation.
bool areSeveral(std::string_view plain);

// Whether one of the words is a formula of several elements. A text in capitals throughout hides
// those without digits: "NO IONS".
bool namesCompound(std::string_view plain);

// The part of a text that is no formula, from the beginning of a word on, though some begin like a
// formula: "There isn't one" begins with thorium.
std::string unreadWords(std::string_view plain);

// Whether the text is the name of a compound, whatever its capitals: "lead sulphate" and
// "Lead(II) sulfate". A Roman numeral may be left out, but no other one is right.
bool isNameOf(std::string_view text, const IonRow& cation, const IonRow& anion);
bool isNameOfSalt(std::string_view text);
// The same of its last words: "none, barium bromide".
bool endsWithNameOfSalt(std::string_view text);

} // namespace lesson
