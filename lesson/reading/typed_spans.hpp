#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/reading/equation.hpp"
#include "lesson/reading/measure.hpp"
#include "lesson/words/spans.hpp"

namespace lesson
{

// What was read as it is typeset; each is empty where nothing was. Of a formula: `formulaSpans`.

// The number as it was typed and its unit, if there was one: "c = 4,5×10⁻² mol/l" -> 4.5e-2, mol/L
Spans measureSpans(const TypedMeasure& measure);

// Each way to read an ion, the usual one first: "SO42-" -> SO4 with 2-, or SO42 with 1-. What
// stands lowered or raised where it does not belong is a text that shows it so.
std::vector<Spans> ionSpans(std::string_view marked);

// Its terms and its arrow. Nothing where a term could not be read, or there is none on the left.
Spans equationSpans(const TypedEquation& equation);

// Spans as they might be typed; they are read as what they are made from, in the writing with a
// point.
//   SO4 with 2- -> "SO_{4}^2-"    4.5e-2, mol/L -> "4.5e-2 mol/L"
std::string typedText(const Spans& spans);

} // namespace lesson
