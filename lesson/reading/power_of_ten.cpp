#include "lesson/reading/power_of_ten.hpp"

#include "lesson/text/scan.hpp"

namespace lesson
{

// The grammar; blanks may stand between all of it.
//
//   exponent  = "e" [sign] digits | (times | blank) "10" (power | sign digits) | "." "10" power
//   power     = ("^" | "**") [bracket] [sign] digits [bracket]
//   times     = "x" | "×" | "*" | "·" | "times" | "multiplied by"

namespace
{

// Far beyond any number that is typed, and far from an overflow.
constexpr std::int64_t greatestExponent = 1'000'000'000'000'000;

std::optional<std::int64_t> takeInteger(std::string_view& rest)
{
    std::string_view behind = rest;
    const bool isNegative = take(behind, "-");
    if (!isNegative) {
        take(behind, "+");
    }
    takeBlanks(behind);
    const std::string_view digits = takeDigits(behind);
    if (digits.empty()) {
        return std::nullopt;
    }
    const std::int64_t value = wholeNumber(digits, greatestExponent);
    rest = behind;
    return isNegative ? -value : value;
}

// "e-2"
std::optional<std::int64_t> takeLetterExponent(std::string_view& rest)
{
    std::string_view behind = rest;
    takeBlanks(behind);
    if (!take(behind, "e") && !take(behind, "E")) {
        return std::nullopt;
    }
    takeBlanks(behind);
    const std::optional<std::int64_t> exponent = takeInteger(behind);
    rest = exponent ? behind : rest;
    return exponent;
}

bool takeTimes(std::string_view& rest)
{
    constexpr std::string_view signs[] = {
        "x", "X", "×", "*", "·", "times", "Times", "multiplied by", "Multiplied by",
    };
    return takeOneOf(rest, signs);
}

} // namespace

std::optional<std::int64_t> takePower(std::string_view& rest)
{
    std::string_view behind = rest;
    takeBlanks(behind);
    if (!take(behind, "^") && !take(behind, "**")) {
        return std::nullopt;
    }
    takeBlanks(behind);
    const bool hasBracket = take(behind, "(") || take(behind, "{");
    const std::optional<std::int64_t> power = takeInteger(behind);
    if (!power || (hasBracket && !take(behind, ")") && !take(behind, "}"))) {
        return std::nullopt;
    }
    rest = behind;
    return power;
}

std::optional<std::int64_t> takePowerOfTen(std::string_view& rest)
{
    std::string_view behind = rest;
    takeBlanks(behind);
    const bool isApart = behind.size() < rest.size();
    const bool isPoint = take(behind, ".");
    if (!isPoint && !takeTimes(behind) && !isApart) {
        return std::nullopt;
    }
    takeBlanks(behind);
    if (!take(behind, "10")) {
        return std::nullopt;
    }
    std::optional<std::int64_t> power = takePower(behind);
    if (!power && !isPoint) {
        takeBlanks(behind);
        const bool hasSign = startsWith(behind, "-") || startsWith(behind, "+");
        power = hasSign ? takeInteger(behind) : std::nullopt;
    }
    rest = power ? behind : rest;
    return power;
}

std::optional<std::int64_t> takeExponent(std::string_view& rest)
{
    const std::optional<std::int64_t> exponent = takeLetterExponent(rest);
    return exponent ? exponent : takePowerOfTen(rest);
}

} // namespace lesson
