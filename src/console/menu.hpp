#pragma once

#include <string>

#include "console/question_type.hpp"

// Prints the title, the note and the menu.
void printMenu();

// Reads one word from standard input, and nothing behind it, and returns the kind that it stands
// for; a random kind if the input ends before a word.
QuestionType readChoice();

// Returns the kind whose number on the menu stands at the front of the word; a random kind for any
// other word.
//   "2", "+2", "2abc", "2.9" -> dilution    "0", "5", "-2", "abc", "" -> random
QuestionType kindOfWord(const std::string& word);
