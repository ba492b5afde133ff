#pragma once

#include <string>
#include <string_view>

// A number in general notation: so many significant digits, no trailing zeros, an exponent where it
// is less than -4 or not less than the digits. Fewer than 1 digit count as 1, a negative number of
// them as 6.
//   general(0.342231f, 3) -> "0.342"    general(0.00005f, 3) -> "5e-05"    general(100, 3) -> "100"
std::string general(float number, int digits);

// A text that grows piece by piece like that of an output stream, and shows numbers as one does:
// in general notation with 6 digits, until other `Digits` are put in. It is here because the
// questions spend most of their time on numbers, for which a string stream takes four times as
// long.
//   Text text;
//   text << "C = " << 0.342231f << ", about " << Digits{3} << 0.342231f;
//   text.str -> "C = 0.342231, about 0.342"
struct Text {
    std::string str;
    int digits = 6;
};

// A coefficient or a subscript as equations and formulas show it: a 1 is not written.
struct Coefficient {
    int number;
};

// Sets the significant digits of the numbers that follow.
struct Digits {
    int number;
};

inline Text& operator<<(Text& text, std::string_view piece)
{
    text.str += piece;
    return text;
}
Text& operator<<(Text& text, int number);
Text& operator<<(Text& text, float number);
Text& operator<<(Text& text, Coefficient coefficient);
Text& operator<<(Text& text, Digits digits);
