#pragma once

#include <string>
#include <string_view>

namespace lesson
{

// What was typed, for a sentence: at most 40 characters of it and then "…", with a replacement
// character for every byte that is no UTF-8 and for control characters.
std::string quotable(std::string_view typed);

} // namespace lesson
