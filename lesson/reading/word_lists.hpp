#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "lesson/text/scan.hpp"

namespace lesson
{

// The words that are read in answers about solubility, in lower case.
namespace words
{

// clang-format off
constexpr std::string_view yes[] = {"y", "yes", "yep", "yup", "yeah", "yea"};
constexpr std::string_view no[] = {"n", "no", "nope", "nah"};
constexpr std::string_view soluble[] = {
    "soluble", "dissolves", "dissolve", "dissolved", "dissolvable", "does", "do",
};
constexpr std::string_view insoluble[] = {
    "insoluble", "insol", "unsoluble", "indissoluble", "undissolved", "nonsoluble",
};
constexpr std::string_view negations[] = {
    "not", "non", "doesn't", "doesnt", "don't", "dont", "isn't", "isnt", "won't", "wont", "cannot",
    "can't", "cant", "wouldn't", "wouldnt",
};
constexpr std::string_view fillers[] = {
    "it", "it's", "its", "this", "that", "they", "the", "a", "an", "i", "think", "answer", "salt",
    "compound", "solid", "is", "are", "will", "would", "can", "in", "water", "so", "at", "all",
    "very", "well", "easily", "readily", "highly", "freely", "fully", "completely", "quite",
    "practically", "almost", "nearly", "only", "definitely", "always", "they're", "theyre",
};
constexpr std::string_view degrees[] = {
    "at", "all", "very", "well", "easily", "readily", "highly", "freely", "fully", "completely",
    "quite", "practically", "almost", "nearly", "only", "definitely", "always", "so", "a", "an",
};
constexpr std::string_view notQuite[] = {"almost", "nearly", "practically"};
constexpr std::string_view pronouns[] = {"it", "it's", "its", "this", "they", "they're", "theyre"};
constexpr std::string_view reasons[] = {"because", "since", "as"};
// That nothing precipitates, in a word or in several.
constexpr std::string_view none[] = {
    "n", "no", "none", "nothing", "nil", "neither", "neither is insoluble", "neither precipitates",
    "nr", "n.r", "n/a", "-", "--",
};
constexpr std::string_view denials[] = {"no", "none", "nothing", "nil"};
constexpr std::string_view everything[] = {
    "both", "all", "everything", "they", "they're", "theyre",
};
constexpr std::string_view inSolution[] = {
    "soluble", "dissolved", "dissolve", "dissolves", "solution",
};
constexpr std::string_view aqueous[] = {"aq", "aqueous"};
constexpr std::string_view precipitating[] = {
    "precipitate", "precipitates", "precipitated", "precipitation", "ppt", "ppte", "ppts", "form",
    "forms", "formed", "react", "reaction", "rxn", "solid", "solids", "product", "products",
    "crystals", "change",
};
// What "no" can stand before, perhaps with one of the adjectives.
constexpr std::string_view nouns[] = {
    "precipitate", "precipitates", "precipitation", "ppt", "ppte", "ppts", "reaction", "rxn",
    "solid", "solids", "product", "products", "salt", "salts", "crystals", "change",
};
constexpr std::string_view adjectives[] = {"visible", "new", "insoluble"};
// Between a denial and what it denies: "none of them is soluble".
constexpr std::string_view betweenDenial[] = {
    "of", "them", "these", "the", "is", "are", "be", "product", "products", "salt", "salts", "stay",
    "stays", "remain", "remains", "in", "will", "would", "do", "does",
};
constexpr std::string_view aroundNone[] = {
    "there", "there's", "theres", "is", "it", "are", "be", "will", "would", "does", "do", "so",
    "a", "the", "of", "them", "these", "salt", "salts", "stay", "stays", "remain", "remains",
    "remaining", "in", "occurs", "happens", "takes", "place", "visible", "insoluble", "new", "out",
    "here", "at", "because", "since", "as", "produced", "made", "appear", "appears",
};
constexpr std::string_view exceptions[] = {"but", "except", "other", "apart"};
constexpr std::string_view pauses = ",;:.()-/";
// clang-format on

} // namespace words

template <std::size_t N>
bool hasAny(const std::vector<std::string>& words, const std::string_view (&list)[N])
{
    return std::any_of(words.begin(), words.end(),
                       [&list](const std::string& word) { return isAmong(list, word); });
}

// Whether a word of `first` stands before one of `second`, with nothing but degrees between them.
template <std::size_t N, std::size_t M>
bool standsBefore(const std::vector<std::string>& typed, const std::string_view (&first)[N],
                  const std::string_view (&second)[M])
{
    bool isBehindFirst = false;
    for (const std::string& word : typed) {
        if (isBehindFirst && isAmong(second, word)) {
            return true;
        }
        isBehindFirst = isAmong(first, word) || (isBehindFirst && isAmong(words::degrees, word));
    }
    return false;
}

// The words one by one, without what stands between them; "in soluble" is one.
std::vector<std::string> splitWords(const std::string& words);

// Where a reason begins behind an answer; "not as soluble" is none.
std::vector<std::string>::const_iterator reasonIn(const std::vector<std::string>& words);

} // namespace lesson
