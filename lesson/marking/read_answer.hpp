#pragma once

#include <optional>
#include <string_view>

#include "lesson/exercise.hpp"

namespace lesson
{

// What was read of a typed answer, as a front end shows it while it is being typed; nothing where
// it says nothing that could be read. It is read as for the marking, and typed as it is shown it
// gets the same verdict. Numbers are shown in the typed unit, with a point.
//   "SO4-2", "(SO4)2-" -> the ion SO4 with 2-    "2hcl + CaO" -> nothing
//   "1,250" -> nothing; with a decimal comma 1.250
std::optional<Spans> readAnswer(const Exercise& exercise, std::string_view typed,
                                const Writing& writing);

} // namespace lesson
