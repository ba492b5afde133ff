#pragma once

#include <string_view>
#include <vector>

#include "lesson/exercise.hpp"

namespace lesson
{

// Marks the typed formula of an ion with its charge.
Mark markIon(const IonAnswer& answer, const std::vector<Slip>& slips, std::string_view typed);

namespace sentences
{

constexpr std::string_view noCharge = "An ion carries a charge.";
constexpr std::string_view wrongSign = "Is this ion positive or negative?";
constexpr std::string_view wrongSize = "The sign is right. Check the size of the charge.";
constexpr std::string_view romanCharge = "The Roman numeral tells the size of the charge.";
constexpr std::string_view chargeAsSubscript =
    "That number counts atoms. Write the number and the sign of the charge together.";

} // namespace sentences

} // namespace lesson
