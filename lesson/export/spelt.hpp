#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lesson
{

// A formula, or an ion with its charge behind a "^", as most people type it.
//   "SO4^2-" -> "SO4^2-", "SO42-", "SO4²⁻", "SO₄^2-", …
std::vector<std::string> usualSpellings(std::string_view text);

// Of the same, those that are rarer: as in TeX, and every way to type a charge.
//   "Fe^3+" -> "Fe+3", "Fe+++", "Fe(3+)", …
std::vector<std::string> rareSpellings(std::string_view text);

// An ion whose charge stands below, where it is another ion or none; nothing where its size is 1.
//   "SO4^2-" -> "SO₄₂⁻", "SO_4_2^-", "SO_4_2-"
std::vector<std::string> withLoweredCharge(std::string_view ion);

} // namespace lesson
