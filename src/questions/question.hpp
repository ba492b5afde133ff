#pragma once

#include "console/q_and_a.hpp"
#include "console/question_type.hpp"

// Returns a new question of the kind, with its worked answer, about substances and quantities drawn
// with `rand()`. A random kind, and any number outside 1 to 4, draws the kind first. Kept: a random
// kind is mass and concentration for a quarter of the draws, dilution for another, titration for
// the other half, and never neutralisation.
//
// Mass and concentration, and dilution, draw from `dissolvable` and throw std::out_of_range while
// it is empty.
QandA makeQuestion(QuestionType kind);
