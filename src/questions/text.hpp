#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

// A number in general notation: so many significant digits, no trailing zeros, an exponent where it
// is less than -4 or not less than the digits. 0 digits count as 1, a negative number of them as 6.
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

// Sets the significant digits of the numbers that follow.
struct Digits {
    int number;
};

inline Text& operator<<(Text& text, std::string_view piece)
{
    text.str += piece;
    return text;
}
Text& operator<<(Text& text, float number);
Text& operator<<(Text& text, Digits digits);

// A string literal knows its length, which spares counting it.
template <std::size_t N>
constexpr std::string_view pieceOf(const char (&literal)[N])
{
    return {literal, N - 1};
}
inline std::string_view pieceOf(std::string_view text)
{
    return text;
}

// The pieces one behind the other, for texts whose numbers are strings already. Faster than `Text`:
// the pieces are measured first, so that the string never has to grow.
//   joined("C(", formula, ") = ?\n") -> "C(NaOH) = ?\n"
template <typename... Pieces>
std::string joined(const Pieces&... pieces)
{
    std::string text((pieceOf(pieces).size() + ...), ' ');
    char* at = text.data();
    ((at = std::copy_n(pieceOf(pieces).data(), pieceOf(pieces).size(), at)), ...);
    return text;
}
