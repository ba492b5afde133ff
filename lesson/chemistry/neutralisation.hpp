#pragma once

#include "lesson/chemistry/acids_and_bases.hpp"
#include "lesson/chemistry/equation.hpp"

namespace lesson
{

// Their complete neutralisation, balanced in lowest terms: the acid and the base on the left; the
// salt, water and carbon dioxide on the right, as far as they form. Ammonia forms no water.
//   H2SO4, Al(OH)3 -> 3H2SO4 + 2Al(OH)3 -> Al2(SO4)3 + 6H2O
Equation neutralisationOf(const AcidRow& acid, const Base& base);

// The same where a molecule of the acid gives away only so many of its protons that it becomes this
// ion: with hydrogensulfate, "H2SO4 + NaOH -> NaHSO4 + H2O".
Equation neutralisationTo(const IonRow& anion, const AcidRow& acid, const Base& base);

} // namespace lesson
