#pragma once

#include <string>
#include <string_view>

#include "lesson/exercise.hpp"

namespace lesson
{

// What the marking tells about common mistakes, which it knows by what they are: they need not be
// listed for it.
namespace sentences
{

constexpr std::string_view carbonicAcid = "It falls apart into water and carbon dioxide.";
constexpr std::string_view hydrogenGas = "Acid and metal give hydrogen, not acid and base.";
constexpr std::string_view oneMoreProduct = "One more product.";
constexpr std::string_view lessBase = "True with less base. Neutralise completely.";
constexpr std::string_view lessAcid = "True with less acid. Neutralise completely.";
constexpr std::string_view smallestNumbers = "Balanced. Use the smallest whole numbers.";
constexpr std::string_view charges = "Check the charges.";
constexpr std::string_view numberInFront =
    "The number of molecules stands in front of the formula.";
constexpr std::string_view waterOfCrystals = "In solution the salt has no water of crystals.";
constexpr std::string_view waterBesides = "Leave out the water of crystals.";
constexpr std::string_view wholeFormulas = "Write whole formulas here, not ions.";
constexpr std::string_view names = "Those are names. Type formulas.";

// "NaSO4 is not the salt. Check the charges."
std::string isNot(std::string_view formula, std::string_view role, std::string_view hint);

} // namespace sentences

// Marks a typed equation, in time proportional to the length.
Mark markEquation(const EquationAnswer& answer, std::string_view typed);

} // namespace lesson
