#pragma once

#include <cstddef>
#include <string_view>

namespace lesson
{

// The length in bytes of the well-formed UTF-8 character at the front of a text that is not empty,
// 1 to 4; 0 where there is none: overlong forms, surrogates and what lies beyond U+10FFFF are not
// well-formed.
std::size_t characterLength(std::string_view text);

} // namespace lesson
