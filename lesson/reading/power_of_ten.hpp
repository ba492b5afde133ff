#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace lesson
{

// Each takes an exponent off the front, or leaves the text as it is where there is none; one beyond
// 10^15 is 10^15.

// "^-2", "**(-2)", "^{-2}"
std::optional<std::int64_t> takePower(std::string_view& rest);

// "×10^-2", "x 10-2", " 10^-2", ".10^-2"; without a "^" a sign has to show that 102 is not meant.
std::optional<std::int64_t> takePowerOfTen(std::string_view& rest);

// One of these, or "e-2".
std::optional<std::int64_t> takeExponent(std::string_view& rest);

} // namespace lesson
