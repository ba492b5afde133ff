#pragma once

#include "console/q_and_a.hpp"
#include "questions/acid_base.hpp"

// Returns a question that asks for the concentration of an acid or a base, titrated with the other
// one, whose concentration is known. Draws the acid and the base, the aliquot, the titre, the known
// concentration, which of the two is known, and which of the two volumes belongs to it.
QandA titrationQuestion();

// Returns the question for a given reaction. If it cannot be balanced, a warning stands in place of
// the equation, and the answer goes on with the coefficients as `balance` left them.
QandA titrationQuestion(const Neutralisation& reaction);
