#pragma once

#include <string>

#include "lesson/border/json.hpp"
#include "lesson/exercise.hpp"

namespace lesson
{

// An exercise and a mark as front ends get them; docs/lesson.md describes each member.
std::string exerciseJson(const Exercise& exercise);
std::string markJson(const Mark& mark);

} // namespace lesson
