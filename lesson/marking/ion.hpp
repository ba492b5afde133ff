#pragma once

#include <string_view>
#include <vector>

#include "lesson/exercise.hpp"

namespace lesson
{

// Marks the typed formula of an ion with its charge.
Mark markIon(const IonAnswer& answer, const std::vector<Slip>& slips, std::string_view typed);

} // namespace lesson
