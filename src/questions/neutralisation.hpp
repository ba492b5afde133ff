#pragma once

#include "console/q_and_a.hpp"
#include "questions/acid_base.hpp"

// Returns a question that asks for the balanced equation of a drawn acid and base.
QandA neutralisationQuestion();

// Returns the question for a given reaction. If it cannot be balanced, the answer is an apology.
QandA neutralisationQuestion(const Neutralisation& reaction);
