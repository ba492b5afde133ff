#pragma once

#include <cstdint>
#include <string>

#include "lesson/numbers/ratio.hpp"

namespace lesson
{

// A decimal number: `digits` times 10 to the `exponent`.
struct Decimal {
    std::int64_t digits = 0;
    int exponent = 0;
};

// The decimal digits of a value not below 0, one by one from the first that is not 0; zeros without
// end behind the last one. The denominator is below 10^17.
//   1/8 -> 1 at place -1, 2 at place -2, 5 at place -3, 0, 0, …
class DigitStream
{
public:
    explicit DigitStream(Ratio value);

    // The power of ten that the next digit counts: 2 for hundreds. Of no meaning for 0.
    int place() const;
    // Takes the next digit.
    int next();
    // Whether all digits to come are 0.
    bool isAtEnd() const;

private:
    std::int64_t whole;     // what is left of the part before the point
    std::int64_t power = 0; // of ten, the place of the next digit in it; 0 behind the point
    std::int64_t remainder; // of the division
    std::int64_t denominator;
    int nextPlace = -1;
};

// A value above 0 rounded to so many significant figures, 1 to 17; a half goes up.
//   139/1220 to 3 -> 114 x 10^-3    1995 to 3 -> 200 x 10^1
Decimal roundedTo(Ratio value, int figures);

Ratio valueOf(Decimal decimal);

// Without an exponent: 456 x 10^-4 -> "0.0456", 100 x 10^-3 -> "0.100", 195 x 10^1 -> "1950".
std::string plainText(Decimal decimal);

// One digit before the point, for a number above 0: 2279 x 10^-6 -> "2.279e-3".
std::string scientificText(Decimal decimal);

// A value above 0 to so many significant figures, as answers and given quantities show it.
//   0.04557, 3 -> "0.0456"    1950, 3 -> "1950"
std::string shown(Ratio value, int figures);

// The same as a worked solution shows what it goes on with: with an exponent below 0.01.
//   0.0022785, 4 -> "2.279e-3"    0.085558, 4 -> "0.08556"
std::string shownBetween(Ratio value, int figures);

// All decimals of a value that has an end within 17 figures, else 12 significant figures; the sign
// first. For programs rather than for learners.
//   5/8 -> "0.625"    1/3 -> "0.333333333333"    250 -> "250"
std::string exactText(Ratio value);

} // namespace lesson
