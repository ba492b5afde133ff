#pragma once

#include <string>

// The formula parser once more, as simple as it can be told: it eats a copy of the text from the
// front, and calls itself with substrings for groups and hydrates. Slow, and its nesting is limited
// by the call stack, but easy to be certain of: the program's own parser has to give the same bits
// and the same messages.
namespace literal
{

float getNumber(std::string& s);

float calculateMM(std::string s);

} // namespace literal
