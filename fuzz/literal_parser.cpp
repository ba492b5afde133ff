#include "literal_parser.hpp"

#include <cstddef>
#include <cstdlib>
#include <iostream>

#include "data/atomic_mass.hpp"
#include "data/tables.hpp"

namespace literal
{

namespace
{

void dropFront(std::string& s, std::size_t length)
{
    s = s.substr(length);
}

bool isDigit(char c)
{
    return std::string("0123456789").find(c) != std::string::npos;
}

// The front of `s` is '.': everything behind the count is one formula.
float eatHydrate(std::string& s)
{
    dropFront(s, 1);
    const float n = getNumber(s);
    const float m = calculateMM(s);
    s = "";
    return m * n;
}

// One past the bracket that closes the one at the front, or the length of `s`.
std::size_t endOfGroup(const std::string& s)
{
    int depth = 1;
    std::size_t i = 1;
    while (depth > 0 && i < s.length()) {
        if (s[i] == '(') {
            depth += 1;
        }
        if (s[i] == ')') {
            depth -= 1;
        }
        i += 1;
    }
    return i;
}

// The front of `s` is '('.
float eatGroup(std::string& s)
{
    const std::size_t i = endOfGroup(s);
    if (i >= s.length()) {
        std::cout << "Bracket syntax error!" << std::endl;
    }
    const auto multiplier = static_cast<float>(std::atof(s.substr(i, 1).c_str()));
    const std::string inner = s.substr(1, i - 2); // Of "(", as long as can be: nothing.
    const float mass = calculateMM(inner) * multiplier;
    s = s.length() > i + 1 ? s.substr(i + 1) : "";
    return mass;
}

// The front of `s` is anything else.
float eatElement(std::string& s)
{
    std::size_t length = 2;
    float m = 0.0f;
    if (s.length() > 1) {
        m = getAtomicMass(s.substr(0, 2));
    }
    if (!(m > 0.0f)) {
        length = 1;
        m = getAtomicMass(s.substr(0, 1));
    }
    dropFront(s, length);
    if (!(m > 0.0f)) {
        std::cout << "Element error!" << std::endl;
        return 0.0f;
    }
    float n = getNumber(s);
    if (n == 0.0f) {
        n = 1.0f;
    }
    return n * m;
}

} // namespace

float getNumber(std::string& s)
{
    if (s.empty()) {
        return 0.0f;
    }
    const auto value = static_cast<float>(std::atoi(s.c_str()));
    while (!s.empty() && isDigit(s[0])) {
        dropFront(s, 1);
    }
    return value;
}

float calculateMM(std::string s)
{
    if (aMasses.empty()) {
        initMasses();
    }
    float total = 0.0f;
    while (!s.empty()) {
        if (s[0] == '.') {
            total += eatHydrate(s);
        } else if (s[0] == '(') {
            total += eatGroup(s);
        } else {
            total += eatElement(s);
        }
    }
    return total;
}

} // namespace literal
