#pragma once

#include "console/q_and_a.hpp"
#include "questions/acid_base.hpp"

// Asks for the concentration of an acid or a base, titrated with the other one, whose concentration
// is known. Draws the acid and the base, the aliquot, the titre, the known concentration, which of
// the two is known, and which of the two volumes belongs to it.
QandA titrationQuestion();

// The same for a given reaction. One that cannot be balanced has a warning in place of the
// equation, and goes on with the coefficients as `balance` left them.
QandA titrationQuestion(const Neutralisation& reaction);
