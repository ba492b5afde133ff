#include "lesson/tests/every/exact.hpp"

#include <algorithm>
#include <numeric>
#include <stdexcept>

namespace
{

std::int64_t product(std::int64_t a, std::int64_t b)
{
    std::int64_t result = 0;
    if (__builtin_mul_overflow(a, b, &result)) {
        throw std::overflow_error(std::to_string(a) + " times " + std::to_string(b));
    }
    return result;
}

std::int64_t sum(std::int64_t a, std::int64_t b)
{
    std::int64_t result = 0;
    if (__builtin_add_overflow(a, b, &result)) {
        throw std::overflow_error(std::to_string(a) + " plus " + std::to_string(b));
    }
    return result;
}

Exact tenTo(int exponent)
{
    std::int64_t power = 1;
    for (int i = exponent < 0 ? -exponent : exponent; i > 0; --i) {
        power = product(power, 10);
    }
    return exponent < 0 ? Exact(1, power) : Exact(power);
}

} // namespace

Exact::Exact(std::int64_t numerator, std::int64_t denominator)
{
    if (denominator == 0) {
        throw std::domain_error("division by zero");
    }
    const std::int64_t divisor = std::gcd(numerator, denominator) * (denominator < 0 ? -1 : 1);
    over = numerator / divisor;
    under = denominator / divisor;
}

Exact Exact::read(const std::string& text)
{
    const std::size_t end = std::min(text.find_first_of("eE"), text.size());
    int exponent = end < text.size() ? std::stoi(text.substr(end + 1)) : 0;
    std::string digits = text.substr(0, end);
    const std::size_t point = digits.find('.');
    if (point != std::string::npos) {
        exponent -= static_cast<int>(digits.size() - point - 1);
        digits.erase(point, 1);
    }
    std::size_t used = 0;
    const std::int64_t whole = std::stoll(digits, &used);
    if (used != digits.size()) {
        throw std::invalid_argument("not a decimal number: " + text);
    }
    return Exact(whole) * tenTo(exponent);
}

Exact operator+(const Exact& a, const Exact& b)
{
    const std::int64_t common = std::gcd(a.under, b.under);
    return Exact(sum(product(a.over, b.under / common), product(b.over, a.under / common)),
                 product(a.under / common, b.under));
}

Exact operator-(const Exact& a, const Exact& b)
{
    return a + Exact(-b.over, b.under);
}

Exact operator*(const Exact& a, const Exact& b)
{
    const Exact left(a.over, b.under);
    const Exact right(b.over, a.under);
    return Exact(product(left.over, right.over), product(left.under, right.under));
}

Exact operator/(const Exact& a, const Exact& b)
{
    return a * Exact(b.under, b.over);
}

bool operator==(const Exact& a, const Exact& b)
{
    return a.over == b.over && a.under == b.under;
}

bool operator!=(const Exact& a, const Exact& b)
{
    return !(a == b);
}

bool operator<(const Exact& a, const Exact& b)
{
    return (a - b).over < 0;
}

bool operator<=(const Exact& a, const Exact& b)
{
    return (a - b).over <= 0;
}

// The power of ten of the first digit.
int Exact::firstPlace() const
{
    const Exact size = magnitude();
    int place = 0;
    while (tenTo(place + 1) <= size) {
        ++place;
    }
    while (over != 0 && size < tenTo(place)) {
        --place;
    }
    return place;
}

Exact Exact::lastPlace(int figures) const
{
    return tenTo(firstPlace() - figures + 1);
}

// Long division, digit by digit, which needs no number above ten times the divisor.
Exact Exact::toFigures(int figures) const
{
    const int place = firstPlace();
    const std::int64_t divisor = place < 0 ? under : (Exact(under) * tenTo(place)).over;
    std::int64_t rest = place < 0 ? (magnitude() * Exact(under) * tenTo(-place)).over : over;
    rest = rest < 0 ? -rest : rest;
    std::int64_t digits = 0;
    for (int i = 0; i < figures; ++i) {
        digits = sum(product(digits, 10), rest / divisor);
        rest = product(rest % divisor, 10);
    }
    digits += rest >= product(divisor, 5) ? 1 : 0;
    return Exact(over < 0 ? -digits : digits) * lastPlace(figures);
}

Exact Exact::magnitude() const
{
    return Exact(over < 0 ? -over : over, under);
}

bool Exact::isWhole() const
{
    return under == 1;
}

std::int64_t Exact::floor() const
{
    return over / under;
}

std::string Exact::text() const
{
    return std::to_string(over) + (isWhole() ? "" : "/" + std::to_string(under));
}

int figuresOf(const std::string& decimal)
{
    int figures = 0;
    for (const char c : decimal) {
        const bool isDigit = c >= '0' && c <= '9';
        figures += isDigit && (c != '0' || figures > 0) ? 1 : 0;
    }
    return figures;
}
