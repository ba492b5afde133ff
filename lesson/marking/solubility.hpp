#pragma once

#include <string_view>
#include <vector>

#include "lesson/exercise.hpp"

namespace lesson
{

// Marks yes or no, soluble or insoluble, in any words that are usual.
Mark markSolubility(const SolubilityAnswer& answer, std::string_view typed);

// Marks the formula of a precipitate, or that there is none.
Mark markPrecipitate(const PrecipitateAnswer& answer, const std::vector<Slip>& slips,
                     std::string_view typed);

} // namespace lesson
