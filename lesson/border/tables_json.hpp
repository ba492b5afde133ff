#pragma once

#include <string>

#include "lesson/words/writing.hpp"

namespace lesson
{

// The data that the exercises rest on, for a front end to show, in the language of the reader;
// docs/lesson.md describes each member.
std::string tablesJson(const Writing& writing);

} // namespace lesson
