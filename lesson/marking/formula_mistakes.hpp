#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/chemistry/composition.hpp"
#include "lesson/chemistry/ions.hpp"

namespace lesson
{

// What a wrong formula has in common with the right one.

std::string withoutBrackets(std::string text);

// By atomic number, as those of a typed formula are.
bool haveSameElements(const Atoms& a, const Atoms& b);

// The text without a Roman numeral behind its front, one for each way to read one: "CuIISO4" ->
// "CuSO4", "CuISO4". A raised one goes with its "^".
std::vector<std::string> withoutNumeral(std::string_view text);

// The one symbol in which a formula differs from one of those that are right, the rest being the
// same; empty where it differs in more.
//   "P2SO4", {"K2SO4"} -> "P"
std::string wrongSymbol(std::string_view text, const std::vector<std::string>& rightTexts);

// Whether the one has oxygen where the other has none, and an ending tells which: of an anion in
// -ate or -ite, or of one in -ide that is without oxygen, unlike oxide and hydroxide. A cation has
// no such ending.
bool mistakesEnding(const IonRow& ion, const Atoms& typed, const Atoms& right);

// Whether two formulas have the same atoms but for another number of oxygen atoms; each has some.
bool differInOxygens(const Atoms& a, const Atoms& b);

} // namespace lesson
