#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/exercise.hpp"

namespace lesson
{

// Marks the typed formula of a compound; `whatToType` is told where it cannot be read.
Mark markFormula(const FormulaAnswer& answer, const std::vector<Slip>& slips,
                 std::string_view typed,
                 std::string_view whatToType = "Type a formula, such as H2O.");

namespace sentences
{

constexpr std::string_view romanNumeral = "The Roman numeral is a charge.";
constexpr std::string_view chargeOfMetal = "The Roman numeral is the charge of the metal ion.";
constexpr std::string_view simplify = "Simplify.";
constexpr std::string_view bracketMissing = "What does the small number multiply?";
constexpr std::string_view bracketNotNeeded =
    "A bracket is needed only around a group of atoms that comes more than once.";
constexpr std::string_view bracketForGroups = "More than one group takes a bracket.";
constexpr std::string_view numberForIons =
    "Write each ion once; a small number tells how many there are.";
constexpr std::string_view chargesLeftIn =
    "A compound has no charge: leave out the charges of its ions.";
constexpr std::string_view chargesDoNotCancel =
    "The charges do not cancel yet. How many of each ion are needed?";
constexpr std::string_view oxygens = "Check the number of oxygen atoms.";
constexpr std::string_view positiveFirst = "The positive ion comes first.";

} // namespace sentences

} // namespace lesson
