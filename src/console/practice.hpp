#pragma once

#include "console/question_type.hpp"

// Prints a new question, waits for a key, and prints the worked answer.
void practise(QuestionType kind);

// Reads characters until one is not NUL. Any other one will do, and so does the end of the input.
// Kept: a character that was typed before counts, so the newline behind the menu word releases the
// first answer.
void waitForKey();
