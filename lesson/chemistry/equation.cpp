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

void append(Spans& spans, const Side& side)
{
    bool isFirst = true;
    for (const auto& [coefficient, species] : side) {
        if (!isFirst) {
            append(spans, " + ");
        }
        isFirst = false;
        if (coefficient != 1) {
            append(spans, number(std::to_string(coefficient)));
        }
        append(spans, formula(species));
    }
}

} // namespace

std::string textOf(const Equation& equation)
{
    return textOf(equation.left) + " -> " + textOf(equation.right);
}

Spans spansOf(const Equation& equation)
{
    Spans spans;
    spans.reserve(3 * (equation.left.size() + equation.right.size()));
    append(spans, equation.left);
    append(spans, " → ");
    append(spans, equation.right);
    return spans;
}

} // namespace lesson
