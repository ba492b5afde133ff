#pragma once

#include <string>

// Returns true for the characters '0' to '9' alone.
bool numberlike(char c);

// Returns the count at the front of `s` and removes its digits; returns 0 where there is none.
// Kept: the count is what `atoi` makes of the whole text, so that it may stand behind white space
// or a sign, but only digits at the very front are removed.
//   "12O" -> 12, leaving "O"    "O" -> 0, leaving "O"    " 2O" -> 2, leaving " 2O"
float getNumber(std::string& s);

// Returns the molar mass in g/mol of a formula written as plain text, by the masses of `aMasses`,
// which it fills first if it is empty. Reports what it cannot understand in a line on standard
// output and skips it; the rest still counts. Never throws, whatever the text holds, and takes time
// and memory in proportion to its length, however deeply its groups nest.
//   "Fe2(SO4)3" -> 399.88    "CuSO4.5H2O" -> 249.69    "2H2O" -> 18.016 and "Element error!"
float calculateMM(std::string formula);
