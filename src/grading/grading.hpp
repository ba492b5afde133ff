#pragma once

#include <string>

#include "chem/ucase.hpp"
#include "data/ion.hpp"

// Graders of typed answers, for a front end that asks for them; the practice dialogue does not.
// Each prints its verdict as a line on the standard output of the C library and returns 1 for a
// correct answer, else 0. "Close" means that only the case of letters is wrong, and returns 0.
// A third grader, for the formula of one ion with its charge, is `Ion::getResponse`.

// Grades the formula of the compound of two ions.
//   sodium, chloride, "nacl" -> 0 and "Close; correct answer is NaCl"
int getResponse(Ion cation, Ion anion, std::string answer);

// Grades whether the compound dissolves: only the first character counts, y or n in either case.
// Kept: where no rule covers the anion, a blank is the correct answer.
//   silver, chloride, "yes" -> 0 and "Incorrect; AgCl is insoluble"
int getSolResponse(Ion cation, Ion anion, std::string answer);
