#pragma once

#include <string>
#include <vector>

#include "lesson/paper/reference.hpp"

namespace lesson
{

// Exercises as a Moodle XML file, in a category of their paper's: calculations as numerical
// questions, formulas, ions and precipitates as short answers, solubility as a choice of yes and
// no, equations as gaps for the coefficients. Each has a name that tells which exercise it is, the
// worked solution as its general feedback, and kind and level as tags.
std::string moodleXml(const std::vector<Reference>& exercises, const Writing& writing);

} // namespace lesson
