#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/exercise.hpp"

namespace lesson
{

// Marks the typed formula of a compound; `whatToType` is told where it cannot be read.
Mark markFormula(const FormulaAnswer& answer, const std::vector<Slip>& slips,
                 std::string_view typed, Sentence whatToType = Sentence::markTypeFormula);

} // namespace lesson
