#pragma once

#include <string>
#include <string_view>

#include "lesson/exercise.hpp"

namespace lesson
{

// What the marking tells about common mistakes, which it knows by what they are: they need not be
// listed for it.
// Marks a typed equation, in time proportional to the length.
Mark markEquation(const EquationAnswer& answer, std::string_view typed);

} // namespace lesson
