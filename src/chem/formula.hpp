#pragma once

#include <string>

// True for the characters '0' to '9' alone.
bool numberlike(char c);

// The count at the front of `s`, whose digits are then removed; 0 where there is none.
// Kept: the value is what `atoi` makes of the whole text, so it may come from behind white space
// or a sign, while only leading digits are removed.
//   "12O" -> 12, leaving "O"    "O" -> 0, leaving "O"    " 2O" -> 2, leaving " 2O"
float getNumber(std::string& s);

// Molar mass in g/mol of a formula written as plain text, by the masses of `aMasses`, which is
// filled first if it is empty. What cannot be understood is reported in a line on standard output
// and skipped; the rest still counts. Never throws for what the text holds; takes time and memory
// in proportion to its length, however deeply it nests.
//   "Fe2(SO4)3" -> 399.88    "CuSO4.5H2O" -> 249.69    "2H2O" -> 18.016 and "Element error!"
float calculateMM(std::string formula);
