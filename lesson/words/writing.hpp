#pragma once

#include <string>
#include <string_view>

namespace lesson
{

// How the reader writes.
struct Writing {
    char decimal = '.'; // or ',': the sign before the decimals of a number
};

// A writing, or what is wrong with the text that names it.
struct NamedWriting {
    Writing writing;
    std::string error; // a sentence; empty where nothing is wrong
};

// Reads a language, "en-GB", and options behind it, each after a semicolon; an empty text is that
// language without any.
//   "en-GB;decimal=," -> a comma before decimals
NamedWriting readWriting(std::string_view text);

} // namespace lesson
