#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

// Texts are joined from their pieces, and numbers are made pieces first. String streams would do
// the same, but they take four times as long for a number, on which the questions spend most of
// their time.

// Returns the number in general notation, as an output stream shows it: with so many significant
// digits, without zeros at their end, and with an exponent if that is less than -4, or as great as
// the number of digits or greater. 0 digits count as 1, a negative number of them as 6.
//   general(0.342231f, 3) -> "0.342"    general(0.00005f, 3) -> "5e-05"    general(100, 3) -> "100"
std::string general(float number, int digits);

// A piece of a text. The length of a literal is known to the compiler, which then copies it with a
// few instructions of its own.
template <std::size_t N>
constexpr std::string_view pieceOf(const char (&literal)[N])
{
    return {literal, N - 1};
}
inline std::string_view pieceOf(std::string_view text)
{
    return text;
}

// Returns the pieces, which are strings and literals, one behind the other.
//   joined("C(", formula, ") = ?\n") -> "C(NaOH) = ?\n"
template <typename... Pieces>
std::string joined(const Pieces&... pieces)
{
    std::string text((pieceOf(pieces).size() + ...), ' ');
    char* end = text.data();
    const auto append = [&end](std::string_view piece) {
        end = std::copy(piece.begin(), piece.end(), end);
    };
    (append(pieceOf(pieces)), ...);
    return text;
}
