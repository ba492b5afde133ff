#pragma once

#include <string>

#include "lesson/words/language.hpp"

namespace lesson
{

// The data that the exercises rest on, for a front end to show; docs/lesson.md describes each
// member.
std::string tablesJson(const Language& language);

} // namespace lesson
