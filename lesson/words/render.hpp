#pragma once

#include <string>
#include <string_view>

#include "lesson/exercise.hpp"
#include "lesson/words/spans.hpp"
#include "lesson/words/writing.hpp"

namespace lesson
{

// A line in the language of the reader, with numbers and units as the reader writes them: no span
// of it is a sentence, nameless or a line, and no two pieces of text are neighbours.
Spans rendered(const Spans& line, const Writing& writing);

// The same for all that an exercise says: its lines, the words of its answer, and its key.
void render(Exercise& exercise, const Writing& writing);

// The key as it is typed: "0.290 mol/L", "SO4^2-", "HCl + NaOH -> NaCl + H2O", "yes".
std::string keyText(const Exercise& exercise, const Writing& writing);

// A line as plain text: "Correct. To 3 significant figures it is 0.290."
std::string plainText(const Spans& line, const Writing& writing);

// A number and a unit as the reader writes them: "0.250" -> "0,250", "mol/L" -> "mol dm-3".
std::string numberIn(const Writing& writing, std::string_view shownText);
std::string unitIn(const Writing& writing, std::string_view unit);

} // namespace lesson
