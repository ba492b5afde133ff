#pragma once

#include <string>
#include <utility>
#include <vector>

namespace lesson
{

// A balanced equation: coefficient and formula of each species.
struct Equation {
    std::vector<std::pair<int, std::string>> left;
    std::vector<std::pair<int, std::string>> right;
};

// As it is typed: "2HCl + Na2CO3 -> 2NaCl + H2O + CO2".
std::string textOf(const Equation& equation);

} // namespace lesson
