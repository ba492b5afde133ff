#include "lesson/reading/coefficient.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>

#include "lesson/text/scan.hpp"

namespace lesson
{

// The grammar; blanks may stand anywhere but inside a number.
//
//   coefficient = (number | "(" number ")") times?
//   number      = digits | digits? ("." | ",") digits | (digits " ")? digits "/" digits
//   times       = "*" | "·" | "×" | "." | "x"

namespace
{

// What is expected, with the blanks behind it.
bool takeWithBlanks(std::string_view& rest, std::string_view expected)
{
    const bool isThere = take(rest, expected);
    if (isThere) {
        takeBlanks(rest);
    }
    return isThere;
}

// Each of these takes a number off the front, or leaves the text as it is.

using Number = std::optional<Ratio>;

// More digits than any coefficient has are taken as a number that is too large for one.
Number takeWhole(std::string_view& text)
{
    constexpr std::int64_t tooLarge = 1000000000;
    if (!startsWithDigit(text)) {
        return std::nullopt;
    }
    return ratio(wholeNumber(takeDigits(text), tooLarge));
}

Number takeDecimal(std::string_view& text)
{
    constexpr std::size_t mostDecimals = 4;
    std::string_view rest = text;
    const Ratio whole = takeWhole(rest).value_or(ratio(0));
    if (!take(rest, ".") && !take(rest, ",")) {
        return std::nullopt;
    }
    const std::size_t length = rest.size();
    const Number decimals = takeWhole(rest);
    const std::size_t places = length - rest.size();
    if (!decimals.has_value() || places > mostDecimals) {
        return std::nullopt;
    }
    text = rest;
    return whole + *decimals * powerOfTen(-static_cast<int>(places));
}

Number takeFraction(std::string_view& text)
{
    std::string_view rest = text;
    const Number over = takeWhole(rest);
    takeBlanks(rest);
    if (!over.has_value() || !takeWithBlanks(rest, "/")) {
        return std::nullopt;
    }
    const Number under = takeWhole(rest);
    if (!under.has_value() || *under == ratio(0)) {
        return std::nullopt;
    }
    text = rest;
    return *over / *under;
}

// "1 1/2"
Number takeMixed(std::string_view& text)
{
    std::string_view rest = text;
    const Number whole = takeWhole(rest);
    if (!whole.has_value() || !takeWithBlanks(rest, " ")) {
        return std::nullopt;
    }
    const Number part = takeFraction(rest);
    if (!part.has_value()) {
        return std::nullopt;
    }
    text = rest;
    return *whole + *part;
}

Number takeNumber(std::string_view& text)
{
    for (const auto take : {takeMixed, takeFraction, takeDecimal, takeWhole}) {
        const Number number = take(text);
        if (number.has_value()) {
            return number;
        }
    }
    return std::nullopt;
}

Number takeNumberInBrackets(std::string_view& text)
{
    std::string_view rest = text;
    if (!takeWithBlanks(rest, "(")) {
        return std::nullopt;
    }
    const Number number = takeNumber(rest);
    takeBlanks(rest);
    if (!number.has_value() || !takeWithBlanks(rest, ")")) {
        return std::nullopt;
    }
    text = rest;
    return number;
}

} // namespace

Ratio takeCoefficient(std::string_view& term)
{
    Number number = takeNumber(term);
    if (!number.has_value()) {
        number = takeNumberInBrackets(term);
    }
    if (!number.has_value()) {
        return ratio(1);
    }
    takeBlanks(term);
    for (const std::string_view times : {"*", "·", "×", ".", "x"}) {
        if (takeWithBlanks(term, times)) {
            break;
        }
    }
    return *number;
}

bool isFitCoefficient(Ratio value)
{
    return ratio(0) < value && value.numerator <= 99999 && value.denominator <= 10000;
}

} // namespace lesson
