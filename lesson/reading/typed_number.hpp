#pragma once

#include <cstdint>
#include <string>

#include "lesson/numbers/decimal.hpp"
#include "lesson/numbers/ratio.hpp"

namespace lesson
{

// A number above 0, or 0, as it was typed: exact, with any number of digits, of any size.
//
// Its significant figures are a range, since the zeros at the end of a whole number without a point
// may count or not: "250" has 2 or 3, "250." and "0.250" have 3.
struct TypedNumber {
    std::string digits;     // from the first that is not 0 to the last that is not 0; empty for 0
    bool goesOn = false;    // whether more follow without an end, as in 7/60
    std::int64_t place = 0; // the power of ten that the first of them counts
    std::int64_t fewestFigures = 1;
    std::int64_t mostFigures = 1;
};

// A decimal above 0 as its plain text is read.
//   200 x 10^1 -> 2000 with 1 to 4 figures    200 x 10^-3 -> 0.200 with 3
TypedNumber typedNumber(Decimal decimal);

// One whole number divided by another, both from 1 to 999 999 999, times 10 to a power; of the
// digits of a quotient without an end so many that no other one and no bound has the same. The
// figures are left to the caller.
//   7, 60, 0 -> 0.11666…
TypedNumber quotient(std::int64_t dividend, std::int64_t divisor, std::int64_t power);

// Below 0, 0 or above 0 where the number is less than, equal to or greater than a bound that is not
// below 0; its denominator is below 10^17. In time proportional to the digits.
int compare(const TypedNumber& number, Ratio bound);

// Rounded to so many figures, 1 to 17; where that is exactly a half, to the lower and to the upper
// neighbour, otherwise twice the same.
struct Neighbours {
    TypedNumber lower;
    TypedNumber upper;
};
Neighbours roundedTo(const TypedNumber& number, int figures);

} // namespace lesson
