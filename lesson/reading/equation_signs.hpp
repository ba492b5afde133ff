#pragma once

#include <string>
#include <string_view>

namespace lesson
{

// What arrows are made of, once they are spelt plainly.
constexpr std::string_view ofArrows = "-=<>";

// A typed equation with "->" and "+" for what is spelt in other characters or in words, and with
// raised coefficients on the line: "^2HCl" -> "2HCl".
//   "HCl + NaOH _> NaCl" -> "HCl + NaOH -> NaCl"    "HCl and NaOH give NaCl" -> "HCl + NaOH ->
//   NaCl"
std::string withPlainSigns(std::string_view plain);

} // namespace lesson
