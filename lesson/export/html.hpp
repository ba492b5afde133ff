#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "lesson/words/spans.hpp"

namespace lesson
{

// Puts texts at the end of another one, one after the other.
void addAll(std::string& text, std::initializer_list<std::string_view> parts);

// The text with references for what would be markup in HTML or XML.
//   "1 < 2" -> "1 &lt; 2"
std::string escaped(std::string_view text);

// A line that is rendered in the least HTML that shows it, without an attribute that could need a
// quotation mark.
//   H2SO4 -> H<sub>2</sub>SO<sub>4</sub>    5.00e-5 -> 5.00 × 10<sup>−5</sup>
//   a fraction of two quantities -> <i>m</i>/<i>M</i>
std::string htmlOf(const Spans& line);

} // namespace lesson
