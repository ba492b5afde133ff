#pragma once

#include <string>

namespace lesson
{

// The data that the exercises rest on, for a front end to show; docs/lesson.md describes each
// member.
std::string tablesJson();

} // namespace lesson
