#pragma once

#include <string>
#include <string_view>

namespace lesson
{

// What was typed, in lower case, with single blanks, without quotation marks and what ends a
// sentence.
std::string wordsOf(std::string_view typed);

enum class Said { itDissolves, itDoesNot, unclear };

// Reads whether a compound dissolves, in any words that are usual: "y", "all nitrates are soluble",
// "no, because it is insoluble". The words are those of `wordsOf`.
Said saidOf(const std::string& typed);

// Whether they say that nothing precipitates. Who begins with "none" may go on in any words but
// those that take it back.
bool saysNone(const std::string& words);

// Whether a compound is named that is not said to stay in solution, though they say none: "none,
// BaBr2". `plain` is the same as `plainTyped` gives it.
bool isTakenBack(const std::string& words, std::string_view plain);

} // namespace lesson
