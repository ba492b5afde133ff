#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/exercise.hpp"

namespace lesson
{

// Marks a typed equation, in time proportional to the length. Common mistakes are told by what they
// are, so that they need not be listed.
Mark markEquation(const EquationAnswer& answer, std::string_view typed);

// Several at once, for those who make exercises.
std::vector<Mark> markEquations(const EquationAnswer& answer,
                                const std::vector<std::string>& typed);

} // namespace lesson
