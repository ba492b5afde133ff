#pragma once

#include <string>
#include <vector>

#include "lesson/paper/reference.hpp"

namespace lesson
{

// Exercises as a text file of cards for Anki: a header, then a line for each card with front, back
// and tags between tabs. Formulas, ions and solubility fit a card; calculations and equations are
// left out, and so is a question that an earlier card asks already, since Anki tells cards apart by
// their fronts. The header tells how many are left out. Empty where no exercise fits.
std::string ankiCards(const std::vector<Reference>& exercises, const Writing& writing);

} // namespace lesson
