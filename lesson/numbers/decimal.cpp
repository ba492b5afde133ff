#include "lesson/numbers/decimal.hpp"

#include <cstddef>

namespace lesson
{

namespace
{

std::string zeros(int number)
{
    return std::string(static_cast<std::size_t>(number), '0');
}

} // namespace

DigitStream::DigitStream(Ratio value)
    : whole(value.numerator / value.denominator), remainder(value.numerator % value.denominator),
      denominator(value.denominator)
{
    if (whole > 0) {
        power = 1;
        nextPlace = 0;
        while (whole / power >= 10) {
            power *= 10;
            ++nextPlace;
        }
        return;
    }
    while (remainder > 0 && remainder * 10 < denominator) {
        remainder *= 10;
        --nextPlace;
    }
}

int DigitStream::place() const
{
    return nextPlace;
}

int DigitStream::next()
{
    --nextPlace;
    if (power > 0) {
        const std::int64_t digit = whole / power;
        whole %= power;
        power /= 10;
        return static_cast<int>(digit);
    }
    const std::int64_t digit = remainder * 10 / denominator;
    remainder = remainder * 10 % denominator;
    return static_cast<int>(digit);
}

bool DigitStream::isAtEnd() const
{
    return whole == 0 && remainder == 0;
}

Decimal roundedTo(Ratio value, int figures)
{
    DigitStream stream(value);
    Decimal decimal;
    for (int i = 0; i < figures; ++i) {
        decimal.digits = decimal.digits * 10 + stream.next();
    }
    decimal.exponent = stream.place() + 1;
    if (stream.next() >= 5) {
        ++decimal.digits;
    }
    if (decimal.digits == powerOfTen(figures).numerator) {
        decimal.digits /= 10;
        ++decimal.exponent;
    }
    return decimal;
}

Ratio valueOf(Decimal decimal)
{
    return ratio(decimal.digits) * powerOfTen(decimal.exponent);
}

std::string plainText(Decimal decimal)
{
    std::string text = std::to_string(decimal.digits);
    if (decimal.exponent >= 0) {
        return decimal.digits == 0 ? text : text + zeros(decimal.exponent);
    }
    const int missing = 1 - decimal.exponent - static_cast<int>(text.size());
    if (missing > 0) {
        text.insert(0, zeros(missing));
    }
    text.insert(text.size() - static_cast<std::size_t>(-decimal.exponent), 1, '.');
    return text;
}

std::string scientificText(Decimal decimal)
{
    std::string text = std::to_string(decimal.digits);
    const int exponent = decimal.exponent + static_cast<int>(text.size()) - 1;
    if (text.size() > 1) {
        text.insert(1, 1, '.');
    }
    return text + "e" + std::to_string(exponent);
}

std::string shown(Ratio value, int figures)
{
    return plainText(roundedTo(value, figures));
}

std::string shownBetween(Ratio value, int figures)
{
    const Decimal decimal = roundedTo(value, figures);
    return valueOf(decimal) < ratio(1, 100) ? scientificText(decimal) : plainText(decimal);
}

std::string exactText(Ratio value)
{
    if (value.numerator < 0) {
        return "-" + exactText(magnitude(value));
    }
    if (value.denominator == 1) {
        return std::to_string(value.numerator);
    }
    DigitStream stream(value);
    Decimal decimal;
    int figures = 0;
    while (!stream.isAtEnd() && figures < 17) {
        decimal.digits = decimal.digits * 10 + stream.next();
        ++figures;
    }
    decimal.exponent = stream.place() + 1;
    return plainText(stream.isAtEnd() ? decimal : roundedTo(value, 12));
}

} // namespace lesson
