#pragma once

#include <string>
#include <string_view>

#include "lesson/reading/typed_number.hpp"
#include "lesson/words/writing.hpp"

namespace lesson
{

// A number as it was read, or two of which one was divided by the other.
struct NumberText {
    TypedNumber number;
    // As spans show it, with a point: "1250.5", "3.42e-2". Of a quotient the dividend.
    std::string text;
    std::string divisor = {};
    // Its comma can mean two things: `text` takes it for a point, without which it stands before
    // thousands.
    bool isAmbiguous = false;

    // Worked out here, so that its figures have no end.
    bool isQuotient() const
    {
        return !divisor.empty();
    }
};

// Takes the number without a sign at the front of a text in the spelling of `plainTyped`, which
// begins with a digit, or with a point or comma and a digit.
//   "4.56 x 10^-2 M" -> 0.0456 with 3 figures, " M" is left
//   "1,250" -> ambiguous; with a decimal comma 1.250, and "1.250" is ambiguous
//   "7/60 mol" -> 0.11666… worked out, " mol" is left
NumberText takeNumber(std::string_view& rest, const Writing& writing);

} // namespace lesson
