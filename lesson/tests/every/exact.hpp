#pragma once

#include <cstdint>
#include <string>

// Exact arithmetic for checking the lesson's, and none of it: fractions of 64-bit numbers that
// throw std::overflow_error rather than give a wrong value.
class Exact
{
public:
    // Whole numbers are fractions as they are.
    // cppcheck-suppress noExplicitConstructor
    Exact(std::int64_t numerator = 0, std::int64_t denominator = 1);

    // A decimal text, with an exponent or not: "0.0217", "-3", "5.00e-5".
    static Exact read(const std::string& text);

    friend Exact operator+(const Exact& a, const Exact& b);
    friend Exact operator-(const Exact& a, const Exact& b);
    friend Exact operator*(const Exact& a, const Exact& b);
    friend Exact operator/(const Exact& a, const Exact& b);
    friend bool operator==(const Exact& a, const Exact& b);
    friend bool operator!=(const Exact& a, const Exact& b);
    friend bool operator<(const Exact& a, const Exact& b);
    friend bool operator<=(const Exact& a, const Exact& b);

    // Rounded to so many significant figures, a half away from 0.
    Exact toFigures(int figures) const;
    // One unit in the last of so many significant figures.
    Exact lastPlace(int figures) const;
    Exact magnitude() const;
    bool isWhole() const;
    // The greatest whole number that is not above this value, which is not below 0.
    std::int64_t floor() const;
    std::string text() const;

private:
    int firstPlace() const;

    std::int64_t over;
    std::int64_t under; // above 0
};

// How many digits a decimal text shows from the first that is not 0: "0.0500" has 3.
int figuresOf(const std::string& decimal);
