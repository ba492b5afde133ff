#include "support/reader.hpp"

#include <cmath>
#include <cstdlib>
#include <stdexcept>
#include <utility>

namespace
{

// What a 1 in the last of so many significant digits stands for: 0.1 of 58.4 at three digits.
double unitOf(double number, int digits)
{
    // A power of ten is on the line, and its logarithm may be a bit below; no number of six digits
    // comes so close.
    const double exponent = std::floor(std::log10(number) + 1e-9);
    return std::pow(10.0, exponent - digits + 1);
}

// Digits from the first that is not 0 to the last, without the point.
std::string significantDigits(const std::string& mantissa)
{
    std::string digits;
    for (const char c : mantissa) {
        if (c != '.' && !(digits.empty() && c == '0')) {
            digits += c;
        }
    }
    return digits;
}

} // namespace

Range operator*(Range a, Range b)
{
    return {a.low * b.low, a.high * b.high};
}

Range operator/(Range a, Range b)
{
    return {a.low / b.high, a.high / b.low};
}

Range operator-(Range a, Range b)
{
    return {a.low - b.high, a.high - b.low};
}

Range exactly(Shown number)
{
    return exactly(number.value);
}

Range exactly(double number)
{
    return {number, number};
}

Range within(Shown number)
{
    const double half = unitOf(number.value, number.digits) / 2;
    return {number.value - half, number.value + half};
}

bool agree(Shown number, Range worked)
{
    constexpr double slack = 3e-7;
    const Range shown = within(number);
    return shown.low <= worked.high * (1 + slack) && worked.low * (1 - slack) <= shown.high;
}

Reader::Reader(std::string read) : text(std::move(read)) {}

void Reader::expect(const std::string& words)
{
    if (!accept(words)) {
        fail("\"" + words + "\"");
    }
}

bool Reader::accept(const std::string& words)
{
    if (text.compare(at, words.size(), words) != 0) {
        return false;
    }
    at += words.size();
    return true;
}

std::string Reader::upTo(const std::string& words)
{
    const std::size_t found = text.find(words, at);
    if (found == std::string::npos) {
        fail("something and \"" + words + "\"");
    }
    const std::string before = text.substr(at, found - at);
    at = found + words.size();
    return before;
}

std::string Reader::digitsAndPoint()
{
    const std::size_t begin = at;
    while (at < text.size() && ((text[at] >= '0' && text[at] <= '9') || text[at] == '.')) {
        ++at;
    }
    return text.substr(begin, at - begin);
}

Shown Reader::number(int digits)
{
    const std::string mantissa = digitsAndPoint();
    const std::size_t significant = significantDigits(mantissa).size();
    const bool hasPoint = mantissa.find('.') != std::string::npos;
    if (significant == 0 || significant > static_cast<std::size_t>(digits) ||
        (hasPoint && (mantissa.back() == '0' || mantissa.back() == '.'))) {
        fail("a number of at most " + std::to_string(digits) + " digits");
    }
    std::string exponent;
    if (accept("e-")) {
        exponent = "e-" + digitsAndPoint();
    }
    return {std::strtod((mantissa + exponent).c_str(), nullptr), digits};
}

Shown Reader::volume(int digits)
{
    Shown volume = number(digits);
    if (accept(" mL")) {
        volume.value /= 1000;
    } else {
        expect(" L");
    }
    return volume;
}

int Reader::wholeNumber()
{
    const std::string digits = digitsAndPoint();
    if (digits.empty() || digits[0] == '0' || digits.find('.') != std::string::npos) {
        fail("a whole number");
    }
    return std::atoi(digits.c_str());
}

void Reader::end()
{
    if (at != text.size()) {
        fail("the end");
    }
}

void Reader::fail(const std::string& expected) const
{
    throw std::runtime_error("expected " + expected + " at \"" + text.substr(at) + "\" in:\n" +
                             text);
}
