#pragma once

#include <string>

// Thresholds for a choice between two variants: the first one is taken when a `rand()` value is
// below the threshold, which a quarter or half of the values are.
constexpr int quarterOfDraws = 0x1FFFFFFF;
constexpr int halfOfDraws = 0x3FFFFFFF;

// Returns a whole number for a quantity, from one `rand()` value.
// Kept: the product that scales the draw wraps around in 32 bits, so that the number is `low` for
// nearly every draw, and low - 1 for the few whose product is the least 32-bit number (none where
// high - low is even). `high` is never reached unless it is `low`.
float random(int low, int high);

// Returns a volume, given in litres, as a text with so many significant digits: in millilitres up
// to 1 litre, in litres above. General notation writes four digits before the point as an exponent
// when it has three.
//   0.0123456, 3 -> "12.3 mL"    1, 3 -> "1e+03 mL"    1.5, 3 -> "1.5 L"    NaN, 3 -> "nan L"
std::string volumeFormat(float litres, unsigned int precision);
