#pragma once

#include "console/q_and_a.hpp"
#include "questions/acid_base.hpp"

// Asks for the balanced equation of an acid and a base that it draws.
QandA neutralisationQuestion();

// The same for a given reaction. One that cannot be balanced has an apology for its answer.
QandA neutralisationQuestion(const Neutralisation& reaction);
