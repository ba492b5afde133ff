#pragma once

#include "lesson/marking/equation_roles.hpp"

namespace lesson
{

// Marks an equation whose substances are the right ones.
Mark markCoefficients(const TypedEquation& typed, const Roles& roles, const Assignment& assignment);

} // namespace lesson
