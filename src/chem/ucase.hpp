#pragma once

#include <string>

// Returns 'a' to 'z' in upper case and any other character as it is, bytes of 128 and above among
// them.
char ucase(char letter);

// Returns a copy of the text with each character in upper case, as above.
std::string ucase(std::string text);
