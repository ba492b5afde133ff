#include "lesson/chemistry/equation.hpp"

namespace lesson
{

namespace
{

using Side = std::vector<std::pair<int, std::string>>;

std::string termOf(int coefficient, const std::string& formula)
{
    return (coefficient == 1 ? "" : std::to_string(coefficient)) + formula;
}

std::string textOf(const Side& side)
{
    std::string text;
    for (const auto& [coefficient, species] : side) {
        text += (text.empty() ? "" : " + ") + termOf(coefficient, species);
    }
    return text;
}

} // namespace

std::string textOf(const Equation& equation)
{
    return textOf(equation.left) + " -> " + textOf(equation.right);
}

} // namespace lesson
