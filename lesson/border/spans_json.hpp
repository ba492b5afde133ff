#pragma once

#include "lesson/border/json.hpp"
#include "lesson/words/spans.hpp"

namespace lesson
{

// A rendered line as front ends get it; docs/lesson.md describes each span.
void add(Json& json, const Spans& spans);

} // namespace lesson
