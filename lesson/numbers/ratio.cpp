#include "lesson/numbers/ratio.hpp"

#include <numeric>

namespace lesson
{

Ratio ratio(std::int64_t numerator, std::int64_t denominator)
{
    const std::int64_t divisor = std::gcd(numerator, denominator);
    const std::int64_t sign = denominator < 0 ? -1 : 1;
    return {sign * numerator / divisor, sign * denominator / divisor};
}

Ratio powerOfTen(int exponent)
{
    std::int64_t power = 1;
    for (int i = exponent < 0 ? -exponent : exponent; i > 0; --i) {
        power *= 10;
    }
    return exponent < 0 ? Ratio{1, power} : Ratio{power, 1};
}

Ratio operator+(Ratio a, Ratio b)
{
    const std::int64_t common = std::gcd(a.denominator, b.denominator);
    return ratio(a.numerator * (b.denominator / common) + b.numerator * (a.denominator / common),
                 a.denominator / common * b.denominator);
}

Ratio operator-(Ratio a, Ratio b)
{
    return a + Ratio{-b.numerator, b.denominator};
}

// Reduced crosswise before it is multiplied, which keeps the products small.
Ratio operator*(Ratio a, Ratio b)
{
    const Ratio left = ratio(a.numerator, b.denominator);
    const Ratio right = ratio(b.numerator, a.denominator);
    return {left.numerator * right.numerator, left.denominator * right.denominator};
}

Ratio operator/(Ratio a, Ratio b)
{
    return a * ratio(b.denominator, b.numerator);
}

bool operator==(Ratio a, Ratio b)
{
    return a.numerator == b.numerator && a.denominator == b.denominator;
}

bool operator!=(Ratio a, Ratio b)
{
    return !(a == b);
}

bool operator<(Ratio a, Ratio b)
{
    return (a - b).numerator < 0;
}

bool operator<=(Ratio a, Ratio b)
{
    return !(b < a);
}

Ratio magnitude(Ratio value)
{
    return value.numerator < 0 ? Ratio{-value.numerator, value.denominator} : value;
}

} // namespace lesson
