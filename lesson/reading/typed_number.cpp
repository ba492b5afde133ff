#include "lesson/reading/typed_number.hpp"

#include <algorithm>
#include <cstddef>

namespace lesson
{

TypedNumber typedNumber(Decimal decimal)
{
    TypedNumber number;
    number.digits = std::to_string(decimal.digits);
    const auto figures = static_cast<std::int64_t>(number.digits.size());
    number.digits.erase(number.digits.find_last_not_of('0') + 1);
    const auto withoutZeros = static_cast<std::int64_t>(number.digits.size());
    const bool isWhole = decimal.exponent >= 0;
    number.place = figures - 1 + decimal.exponent;
    number.fewestFigures = isWhole ? withoutZeros : figures;
    number.mostFigures = isWhole ? figures + decimal.exponent : figures;
    return number;
}

// Two fractions that differ do so within the figures of both denominators and of the power of ten
// between them, which are fewer.
TypedNumber quotient(std::int64_t dividend, std::int64_t divisor, std::int64_t power)
{
    constexpr std::size_t enough = 60;
    DigitStream stream(ratio(dividend, divisor));
    TypedNumber number;
    number.place = stream.place() + power;
    while (number.digits.size() < enough && !stream.isAtEnd()) {
        number.digits += static_cast<char>('0' + stream.next());
    }
    number.goesOn = !stream.isAtEnd();
    if (!number.goesOn) {
        number.digits.erase(number.digits.find_last_not_of('0') + 1);
    }
    return number;
}

int compare(const TypedNumber& number, Ratio bound)
{
    if (number.digits.empty() || bound.numerator == 0) {
        return (number.digits.empty() ? 0 : 1) - (bound.numerator == 0 ? 0 : 1);
    }
    DigitStream expected(bound);
    if (number.place != expected.place()) {
        return number.place < expected.place() ? -1 : 1;
    }
    for (const char typed : number.digits) {
        const int difference = typed - '0' - expected.next();
        if (difference != 0) {
            return difference;
        }
    }
    if (number.goesOn) {
        return expected.isAtEnd() ? 1 : 0;
    }
    return expected.isAtEnd() ? 0 : -1;
}

Neighbours roundedTo(const TypedNumber& number, int figures)
{
    const auto kept = static_cast<std::size_t>(figures);
    if (number.digits.size() <= kept) {
        return {number, number};
    }
    std::int64_t lower = 0;
    for (std::size_t i = 0; i < kept; ++i) {
        lower = lower * 10 + (number.digits[i] - '0');
    }
    const auto withDigits = [&number, figures](std::int64_t digits) {
        TypedNumber rounded = typedNumber({digits, 0});
        rounded.place += number.place - (figures - 1);
        rounded.fewestFigures = rounded.mostFigures = figures;
        return rounded;
    };
    const bool isHalf = number.digits[kept] == '5' && number.digits.size() == kept + 1;
    const std::int64_t nearest = number.digits[kept] >= '5' ? lower + 1 : lower;
    return {withDigits(isHalf ? lower : nearest), withDigits(nearest)};
}

} // namespace lesson
