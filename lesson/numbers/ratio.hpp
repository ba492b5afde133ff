#pragma once

#include <cstdint>

namespace lesson
{

// An exact number, in lowest terms with a denominator above 0. Quantities are ratios of whole
// numbers of their last place (1050 of 0.0001 mol/L), so that nothing is ever rounded in binary.
//
// The quantities of the exercises and what is worked out from them stay far below 10^15 above and
// below the line; nothing here looks out for an overflow.
struct Ratio {
    std::int64_t numerator = 0;
    std::int64_t denominator = 1;
};

// In lowest terms; `denominator` is not 0.
//   ratio(6, -4) -> -3/2
Ratio ratio(std::int64_t numerator, std::int64_t denominator = 1);

// 10 to a power from -18 to 18.
Ratio powerOfTen(int exponent);

Ratio operator+(Ratio a, Ratio b);
Ratio operator-(Ratio a, Ratio b);
Ratio operator*(Ratio a, Ratio b);
// `b` is not 0.
Ratio operator/(Ratio a, Ratio b);

bool operator==(Ratio a, Ratio b);
bool operator!=(Ratio a, Ratio b);
bool operator<(Ratio a, Ratio b);
bool operator<=(Ratio a, Ratio b);

// Without the sign.
Ratio magnitude(Ratio value);

} // namespace lesson
