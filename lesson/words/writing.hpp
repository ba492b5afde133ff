#pragma once

#include <string_view>

#include "lesson/words/language.hpp"
#include "lesson/words/spans.hpp"

namespace lesson
{

// How the reader writes.
struct Writing {
    const Language* language = &britishEnglish();
    char decimal = '.';         // or ',': the sign before the decimals of a number
    bool isVolumeCubic = false; // cm3 and dm3 for mL and L
    bool isPerAPower = false;   // "mol L-1" for "mol/L"
};

// A writing, or what is wrong with the text that names it.
struct NamedWriting {
    Writing writing;
    Spans error; // empty where nothing is wrong
};

// Reads a language, "en-GB", and options behind it, each after a semicolon; an empty text is that
// British English without any.
//   "en-GB;decimal=,"             -> a comma before decimals
//   "en-US;volume=cm3;per=power"  -> American names; cm3, mol dm-3
NamedWriting readWriting(std::string_view text);

} // namespace lesson
