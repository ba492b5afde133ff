#pragma once

#include <optional>
#include <string>

#include "lesson/border/json.hpp"
#include "lesson/exercise.hpp"

namespace lesson
{

// An exercise and a mark as front ends get them; docs/lesson.md describes each member.
std::string exerciseJson(Exercise exercise, const Writing& writing);
std::string markJson(const Mark& mark, const Writing& writing);
// {"read":[…]}, the spans that `readAnswer` gives; none where nothing was read.
std::string readJson(const std::optional<Spans>& read, const Writing& writing);

} // namespace lesson
