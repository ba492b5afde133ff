#include "lesson/reading/number_text.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>

#include "lesson/reading/scan.hpp"

// What is read:
//
//   number    = decimal ["/" decimal]
//   decimal   = "10" power | (whole [point [fraction]] | point fraction) [exponent]
//   whole     = digits, or groups of three with blanks or commas between them
//   point     = "." or one "," or "'", or "·" where no power of ten follows; behind a 0 alone also
//               "." or "," with blanks beside it
//   fraction  = digits, perhaps in groups of three with blanks between them
//   exponent  = "e" [sign] digits | (times | blank) "10" (power | sign digits) | "." "10" power
//   power     = ("^" | "**") [bracket] [sign] digits [bracket]
//   times     = "x" | "×" | "*" | "·" | "times" | "multiplied by"
//
// A comma or an apostrophe before a group of three is left to the learner, unless something settles
// what it means.

namespace lesson
{

namespace
{

std::string_view digitsAtFront(std::string_view text)
{
    std::size_t length = 0;
    while (length < text.size() && isDigit(text[length])) {
        ++length;
    }
    return text.substr(0, length);
}

std::string_view takeDigits(std::string_view& rest)
{
    const std::string_view digits = digitsAtFront(rest);
    rest.remove_prefix(digits.size());
    return digits;
}

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
    std::int64_t value = 0;
    for (const char digit : digits) {
        value = std::min(value * 10 + (digit - '0'), greatestExponent);
    }
    rest = behind;
    return isNegative ? -value : value;
}

// "^-2", "**(-2)", …
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
    return std::any_of(std::begin(signs), std::end(signs),
                       [&rest](std::string_view sign) { return take(rest, sign); });
}

// "×10^-2", "x 10-2", " 10^-2", ".10^-2"; without a "^" a sign has to show that 102 is not meant.
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

bool startsWithPowerOfTen(std::string_view text)
{
    return takePowerOfTen(text).has_value();
}

// The digits of a number without its exponent.
struct Mantissa {
    std::string digits;
    std::size_t wholeDigits = 0; // how many of them stand before the point
    bool hasPoint = false;
    bool isAmbiguous = false; // its comma might be a point or stand before thousands
};

// A group of three digits behind a separator, which is taken too; nothing where there is none.
std::string_view takeGroup(std::string_view& rest, std::string_view separator)
{
    std::string_view behind = rest;
    if (!take(behind, separator) || digitsAtFront(behind).size() != 3) {
        return {};
    }
    const std::string_view group = takeDigits(behind);
    rest = behind;
    return group;
}

std::string takeGroups(std::string_view& rest, std::string_view separator)
{
    std::string digits;
    std::string_view group = takeGroup(rest, separator);
    while (!group.empty()) {
        digits += group;
        group = takeGroup(rest, separator);
    }
    return digits;
}

// One comma is a point; several, or one before a point, stand between thousands.
std::string takeCommaGroups(std::string_view& rest)
{
    std::string_view behind = rest;
    std::string digits = takeGroups(behind, ",");
    const bool hasFraction = startsWith(behind, ".") && startsWithDigit(behind.substr(1));
    if (digits.size() <= 3 && !hasFraction) {
        return {};
    }
    rest = behind;
    return digits;
}

std::string takeFraction(std::string_view& rest)
{
    std::string digits(takeDigits(rest));
    while (!digits.empty() && digits.size() % 3 == 0 && startsWith(rest, " ") &&
           !startsWithPowerOfTen(rest)) {
        const std::string_view group = digitsAtFront(rest.substr(1));
        if (group.empty() || group.size() > 3) {
            break;
        }
        digits += group;
        rest.remove_prefix(1 + group.size());
    }
    return digits;
}

// A point where a phone may have set blanks beside it. That is read behind a 0 alone, which cannot
// be the number of an answer, as in "1. 530".
std::string_view pointWithBlanks(std::string_view rest)
{
    std::string_view behind = rest;
    takeBlanks(behind);
    const bool isPoint = take(behind, ".") || take(behind, ",");
    takeBlanks(behind);
    return isPoint && startsWithDigit(behind) ? rest.substr(0, rest.size() - behind.size()) : "";
}

// The sign between a whole number, in digits, and its fraction, where one is at the front. A raised
// dot is one on some keyboards; before a power of ten it is a "times", and so is a point:
// "2·10^-1".
std::string_view pointAtFront(std::string_view rest, std::string_view whole, bool mayBeComma)
{
    if (!whole.empty() && startsWithPowerOfTen(rest)) {
        return {};
    }
    const std::string_view apart = whole == "0" ? pointWithBlanks(rest) : "";
    if (!apart.empty()) {
        return apart;
    }
    if (startsWith(rest, ".")) {
        return ".";
    }
    constexpr std::string_view raised = "·";
    if (startsWith(rest, raised) && startsWithDigit(rest.substr(raised.size()))) {
        return raised;
    }
    const bool isComma = mayBeComma && !rest.empty() && isOneOf(rest[0], ",'");
    return isComma && startsWithDigit(rest.substr(1)) ? rest.substr(0, 1) : "";
}

// Of a text that begins with a digit, or with a point or comma and a digit.
Mantissa takeMantissa(std::string_view& rest)
{
    Mantissa mantissa;
    mantissa.digits = takeDigits(rest);
    bool hasThousandsCommas = false;
    if (!mantissa.digits.empty() && mantissa.digits.size() <= 3 && mantissa.digits[0] != '0') {
        const std::string groups = takeCommaGroups(rest);
        hasThousandsCommas = !groups.empty();
        mantissa.digits += hasThousandsCommas ? groups : takeGroups(rest, " ");
    }
    mantissa.wholeDigits = mantissa.digits.size();
    const std::string_view point = pointAtFront(rest, mantissa.digits, !hasThousandsCommas);
    mantissa.hasPoint = !point.empty();
    if (!mantissa.hasPoint) {
        return mantissa;
    }
    rest.remove_prefix(point.size());
    const std::string fraction = takeFraction(rest);
    const bool mayBeThousands =
        mantissa.wholeDigits <= 3 && mantissa.digits.find_first_not_of('0') != std::string::npos;
    mantissa.isAmbiguous = isOneOf(point[0], ",'") && mayBeThousands && fraction.size() == 3;
    mantissa.digits += fraction;
    return mantissa;
}

std::optional<std::int64_t> takeExponent(std::string_view& rest)
{
    const std::optional<std::int64_t> exponent = takeLetterExponent(rest);
    return exponent ? exponent : takePowerOfTen(rest);
}

TypedNumber numberOf(const Mantissa& mantissa, std::int64_t exponent)
{
    TypedNumber number;
    const std::size_t first = mantissa.digits.find_first_not_of('0');
    if (first == std::string::npos) {
        return number;
    }
    number.digits = mantissa.digits.substr(first);
    number.mostFigures = static_cast<std::int64_t>(number.digits.size());
    number.digits.erase(number.digits.find_last_not_of('0') + 1);
    number.fewestFigures =
        mantissa.hasPoint ? number.mostFigures : static_cast<std::int64_t>(number.digits.size());
    number.place = static_cast<std::int64_t>(mantissa.wholeDigits) - 1 -
                   static_cast<std::int64_t>(first) + exponent;
    return number;
}

std::string askBack(const Mantissa& mantissa)
{
    const std::string whole = mantissa.digits.substr(0, mantissa.wholeDigits);
    const std::string fraction = mantissa.digits.substr(mantissa.wholeDigits);
    return "Do you mean " + whole + fraction + " or " + whole + "." + fraction + "?";
}

NumberText takeDecimal(std::string_view& rest)
{
    std::string_view behindTen = rest;
    if (take(behindTen, "10")) {
        const std::optional<std::int64_t> power = takePower(behindTen);
        if (power) {
            rest = behindTen;
            return {numberOf({"1", 1, false, false}, *power), ""};
        }
    }
    const Mantissa mantissa = takeMantissa(rest);
    const std::optional<std::int64_t> exponent = takeExponent(rest);
    if (mantissa.isAmbiguous && !exponent) {
        return {{}, askBack(mantissa)};
    }
    return {numberOf(mantissa, exponent.value_or(0)), ""};
}

// The digits as a whole number, if it is one that can be divided here.
std::optional<std::int64_t> wholeOf(const TypedNumber& number)
{
    constexpr std::size_t most = 9;
    if (number.digits.empty() || number.digits.size() > most) {
        return std::nullopt;
    }
    return wholeNumber(number.digits);
}

// What the last of the digits counts, as a power of ten.
std::int64_t lastPlace(const TypedNumber& number)
{
    return number.place + 1 - static_cast<std::int64_t>(number.digits.size());
}

// The quotient where a divisor is at the front, which is taken; else nothing.
std::optional<NumberText> takeQuotient(const NumberText& dividend, std::string_view& rest)
{
    std::string_view behind = rest;
    takeBlanks(behind);
    if (!take(behind, "/") && !take(behind, "÷")) {
        return std::nullopt;
    }
    takeBlanks(behind);
    if (!startsWithDigit(behind)) {
        return std::nullopt;
    }
    const NumberText divisor = takeDecimal(behind);
    if (!dividend.question.empty() || !divisor.question.empty()) {
        rest = behind;
        return dividend.question.empty() ? divisor : dividend;
    }
    const std::optional<std::int64_t> above = wholeOf(dividend.number);
    const std::optional<std::int64_t> below = wholeOf(divisor.number);
    if (!above || !below) {
        return std::nullopt;
    }
    rest = behind;
    const std::int64_t power = lastPlace(dividend.number) - lastPlace(divisor.number);
    return NumberText{quotient(*above, *below, power), "", true};
}

} // namespace

NumberText takeNumber(std::string_view& rest)
{
    const NumberText decimal = takeDecimal(rest);
    return takeQuotient(decimal, rest).value_or(decimal);
}

} // namespace lesson
