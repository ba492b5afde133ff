#pragma once

#include <string>
#include <string_view>

namespace lesson
{

// What was typed in LaTeX, mhchem or HTML as others type it: commands for signs become the signs,
// what only says how a text is set is gone, and so is a "\" before a sign. What is none of these is
// as it was.
//   "\ce{2HCl + CaO -> CaCl2 + H2O}" -> "2HCl + CaO -> CaCl2 + H2O"    "Ca\(OH\)_2" -> "Ca(OH)_2"
//   "4.5\times10^{-2}" -> "4.5×10^{-2}"    "\frac{1}{2}" -> " 1/2"    "H<sub>2</sub>O" -> "H_{2}O"
std::string withoutMarkup(std::string_view typed);

} // namespace lesson
