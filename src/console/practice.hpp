#pragma once

#include "console/question_type.hpp"

// Prints a new question, waits for a key, and prints the worked answer.
void practise(QuestionType kind);

// Waits for a key: reads one character from standard input, and goes on reading as long as it is
// NUL. The end of the input ends the wait as well. Kept: what was typed before the wait counts, so
// that the newline behind the menu word releases the first answer.
void waitForKey();
