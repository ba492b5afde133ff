#pragma once

#include <string>

#include "console/question_type.hpp"

// Prints the title, the note and the menu.
void printMenu();

// Reads one word from standard input and nothing behind it; no word at all is a random kind.
QuestionType readChoice();

// The kind that a menu word stands for, by the whole number at its front; a random kind for any
// other word.
//   "2", "+2", "2abc", "2.9" -> dilution    "0", "5", "-2", "abc", "" -> random
QuestionType kindOfWord(const std::string& word);
