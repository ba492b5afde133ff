#pragma once

#include <string_view>

namespace lesson
{

// Whether a text that is no formula is the name of a substance, in any language and spelling: it
// has words as names have them and no digit. Heat and the like are no substances.
//   "hydrochloric acid", "copper(II) oxid", "WATER" -> true    "naoh", "Xy", "heat" -> false
bool isName(std::string_view text);

} // namespace lesson
