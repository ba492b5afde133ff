#pragma once

#include <string_view>

#include "lesson/exercise.hpp"
#include "lesson/reading/lookalikes.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

// A mark with all that it says.
Mark markOf(Verdict verdict, Sentence says);
Mark markOf(Verdict verdict, const Span& says);

// For a part that could not be read, and what can be typed instead.
Mark unreadable(std::string_view part, Sentence whatToType);

// What is told where one character was taken for another.
Sentence sentenceOf(Mixup mixup);

} // namespace lesson
