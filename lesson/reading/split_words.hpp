#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "lesson/words/language.hpp"

namespace lesson
{

// Words that were typed, in a language whose words are known.

inline bool hasAny(const std::vector<std::string>& words, const WordList& list)
{
    return std::any_of(words.begin(), words.end(),
                       [&list](const std::string& word) { return isAmong(list, word); });
}

// Whether a word of `first` stands before one of `second`, with nothing but degrees between them.
bool standsBefore(const std::vector<std::string>& words, const WordList& first,
                  const WordList& second, const TypedWords& known);

// The words one by one, without what stands between them; "in soluble" is one.
std::vector<std::string> splitWords(const std::string& words, const TypedWords& known);

// Where a reason begins behind an answer; "not as soluble" is none.
std::vector<std::string>::const_iterator reasonIn(const std::vector<std::string>& words,
                                                  const TypedWords& known);

} // namespace lesson
