#pragma once

#include <string>
#include <string_view>

#include "lesson/reading/number.hpp"

namespace lesson
{

// A number or, where its comma can mean two things, the question to the learner.
struct NumberText {
    TypedNumber number;
    std::string question;
    bool isQuotient = false; // worked out here, so that its figures have no end
};

// Takes the number without a sign at the front of a text in the spelling of `plainTyped`, which
// begins with a digit, or with a point or comma and a digit.
//   "4.56 x 10^-2 M" -> 0.0456 with 3 figures, " M" is left
//   "1,250" -> "Do you mean 1250 or 1.250?"
//   "7/60 mol" -> 0.11666… worked out, " mol" is left
NumberText takeNumber(std::string_view& rest);

} // namespace lesson
