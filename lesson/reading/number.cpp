#include "lesson/reading/number.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "lesson/reading/power_of_ten.hpp"
#include "lesson/text/scan.hpp"

// What is read:
//
//   number    = decimal ["/" decimal]
//   decimal   = "10" power | (whole [point [fraction]] | point fraction) [exponent]
//   whole     = digits, or groups of three with blanks or commas between them
//   point     = "." or one "," or "'", or "·" where no power of ten follows; behind a 0 alone also
//               "." or "," with blanks beside it
//   fraction  = digits, perhaps in groups of three with blanks between them
//
// A comma or an apostrophe before a group of three is left to the learner, unless something settles
// what it means. Where the reader writes a decimal comma, "." and "," change their parts.

namespace lesson
{

namespace
{

// The sign before decimals, and the one that may stand between thousands.
struct Signs {
    std::string_view point;
    std::string_view comma;
};

Signs signsOf(const Writing& writing)
{
    return writing.decimal == ',' ? Signs{",", "."} : Signs{".", ","};
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

    std::string whole() const
    {
        return digits.substr(0, wholeDigits);
    }
    std::string fraction() const
    {
        return digits.substr(wholeDigits);
    }
};

// A group of three digits behind a separator, which is taken too; nothing where there is none.
std::string_view takeGroup(std::string_view& rest, std::string_view separator)
{
    std::string_view behind = rest;
    const bool isSeparated = take(behind, separator);
    const std::string_view group = takeDigits(behind);
    if (!isSeparated || group.size() != 3) {
        return {};
    }
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
std::string takeCommaGroups(std::string_view& rest, const Signs& signs)
{
    std::string_view behind = rest;
    std::string digits = takeGroups(behind, signs.comma);
    const bool hasFraction = startsWith(behind, signs.point) && startsWithDigit(behind.substr(1));
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
        std::string_view behind = rest.substr(1);
        const std::string_view group = takeDigits(behind);
        if (group.empty() || group.size() > 3) {
            break;
        }
        digits += group;
        rest = behind;
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
std::string_view pointAtFront(std::string_view rest, std::string_view whole, const Signs& signs,
                              bool mayBeComma)
{
    if (!whole.empty() && startsWithPowerOfTen(rest)) {
        return {};
    }
    const std::string_view apart = whole == "0" ? pointWithBlanks(rest) : "";
    if (!apart.empty()) {
        return apart;
    }
    if (startsWith(rest, signs.point)) {
        return signs.point;
    }
    constexpr std::string_view raised = "·";
    if (startsWith(rest, raised) && startsWithDigit(rest.substr(raised.size()))) {
        return raised;
    }
    const bool isComma = mayBeComma && (startsWith(rest, signs.comma) || startsWith(rest, "'"));
    return isComma && startsWithDigit(rest.substr(1)) ? rest.substr(0, 1) : "";
}

// Of a text that begins with a digit, or with a point or comma and a digit.
Mantissa takeMantissa(std::string_view& rest, const Signs& signs)
{
    Mantissa mantissa;
    mantissa.digits = takeDigits(rest);
    bool hasThousandsCommas = false;
    if (!mantissa.digits.empty() && mantissa.digits.size() <= 3 && mantissa.digits[0] != '0') {
        const std::string groups = takeCommaGroups(rest, signs);
        hasThousandsCommas = !groups.empty();
        mantissa.digits += hasThousandsCommas ? groups : takeGroups(rest, " ");
    }
    mantissa.wholeDigits = mantissa.digits.size();
    const std::string_view point = pointAtFront(rest, mantissa.digits, signs, !hasThousandsCommas);
    mantissa.hasPoint = !point.empty();
    if (!mantissa.hasPoint) {
        return mantissa;
    }
    rest.remove_prefix(point.size());
    const std::string fraction = takeFraction(rest);
    const bool mayBeThousands =
        mantissa.wholeDigits <= 3 && mantissa.digits.find_first_not_of('0') != std::string::npos;
    const bool isComma = point == signs.comma || point == "'";
    mantissa.isAmbiguous = isComma && mayBeThousands && fraction.size() == 3;
    mantissa.digits += fraction;
    return mantissa;
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

std::string shownText(const Mantissa& mantissa, std::int64_t exponent)
{
    const std::string whole = mantissa.wholeDigits == 0 ? "0" : mantissa.whole();
    return whole + (mantissa.hasPoint ? "." + mantissa.fraction() : "") +
           (exponent == 0 ? "" : "e" + std::to_string(exponent));
}

NumberText numberText(const Mantissa& mantissa, std::int64_t exponent)
{
    return {numberOf(mantissa, exponent), shownText(mantissa, exponent)};
}

NumberText takeDecimal(std::string_view& rest, const Signs& signs)
{
    std::string_view behindTen = rest;
    if (take(behindTen, "10")) {
        const std::optional<std::int64_t> power = takePower(behindTen);
        if (power) {
            rest = behindTen;
            return numberText({"1", 1, false, false}, *power);
        }
    }
    const Mantissa mantissa = takeMantissa(rest, signs);
    const std::optional<std::int64_t> exponent = takeExponent(rest);
    NumberText number = numberText(mantissa, exponent.value_or(0));
    number.isAmbiguous = mantissa.isAmbiguous && !exponent;
    return number;
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
std::optional<NumberText> takeQuotient(const NumberText& dividend, std::string_view& rest,
                                       const Signs& signs)
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
    const NumberText divisor = takeDecimal(behind, signs);
    if (dividend.isAmbiguous || divisor.isAmbiguous) {
        rest = behind;
        return dividend.isAmbiguous ? dividend : divisor;
    }
    const std::optional<std::int64_t> above = wholeOf(dividend.number);
    const std::optional<std::int64_t> below = wholeOf(divisor.number);
    if (!above || !below) {
        return std::nullopt;
    }
    rest = behind;
    const std::int64_t power = lastPlace(dividend.number) - lastPlace(divisor.number);
    return NumberText{quotient(*above, *below, power), dividend.text, divisor.text};
}

} // namespace

NumberText takeNumber(std::string_view& rest, const Writing& writing)
{
    const Signs signs = signsOf(writing);
    const NumberText decimal = takeDecimal(rest, signs);
    return takeQuotient(decimal, rest, signs).value_or(decimal);
}

} // namespace lesson
