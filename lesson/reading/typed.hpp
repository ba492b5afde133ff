#pragma once

#include <string>
#include <string_view>

namespace lesson
{

// What was typed, in one spelling: markup is read (`withoutMarkup`); blanks and quotation marks at
// the ends are gone, and so are commas, semicolons and exclamation marks at the end; every blank is
// an ordinary one and every minus or dash a "-"; subscripts and full-width characters are ordinary
// ones, and a run of superscripts is written behind a "^"; arrows are "->", two-way ones "<->"; a
// multiplication sign is "×" and a raised or bold dot "·". Every other character is as it was,
// bytes that are no UTF-8 among them.
//   " 3.42×10⁻² " -> "3.42×10^-2"    "SO₄²⁻" -> "SO4^2-"    "CuSO₄•5H₂O" -> "CuSO4·5H2O"
std::string plainTyped(std::string_view typed);

// The same, but what was typed lowered stays so: each subscript is written behind a "_".
//   "SO₄²⁻" -> "SO_4^2-"    "N₃⁻" -> "N_3^-"
std::string markedTyped(std::string_view typed);

// The digit or sign behind each "_" and "^" as the one character that shows it lowered or raised.
//   "SO_4_2_-" -> "SO₄₂₋"    "N^3^-" -> "N³⁻"
std::string withSeenMarks(std::string_view marked);

} // namespace lesson
