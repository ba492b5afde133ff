#pragma once

#include <cmath>
#include <cstring>
#include <iostream>
#include <sstream>
#include <string>

#include "support/redirected.hpp"

// What a formula parser returns and prints.
struct Outcome {
    float mass;
    std::string messages;
};

inline Outcome outcomeOf(float (*parser)(std::string), const std::string& formula)
{
    std::stringbuf printed;
    const Redirected output(std::cout, &printed);
    const float mass = parser(formula);
    return {mass, printed.str()};
}

// The same bits, but for NaNs, whose bits mean nothing.
inline bool sameMass(float a, float b)
{
    // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison): the bits are the point
    return std::memcmp(&a, &b, sizeof a) == 0 || (std::isnan(a) && std::isnan(b));
}
