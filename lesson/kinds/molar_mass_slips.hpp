#pragma once

#include <string_view>

#include "lesson/exercise.hpp"

namespace lesson
{

// Adds the slips of an exercise that asks for the molar mass of this formula, the commonest first.
void addMolarMassSlips(Exercise& exercise, std::string_view formula);

} // namespace lesson
