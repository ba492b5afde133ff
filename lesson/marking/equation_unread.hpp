#pragma once

#include <string>

#include "lesson/marking/equation_roles.hpp"

namespace lesson
{

// Marks an equation of which something could not be read; `plain` is the text that it was read
// from.
Mark markUnread(const TypedEquation& typed, const std::string& plain, const Roles& roles);

} // namespace lesson
