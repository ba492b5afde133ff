#include "lesson/reading/names.hpp"

#include <algorithm>
#include <cstddef>
#include <string>

#include "lesson/text/scan.hpp"
#include "lesson/words/language.hpp"

namespace lesson
{

namespace
{

// Formulas without digits that are typed in small letters have four letters at most: "naoh".
constexpr std::size_t lengthOfWords = 5;

// In small letters but perhaps the first one, or in capitals throughout: "NaOHaq" is no word.
bool isWord(std::string_view letters)
{
    return std::all_of(letters.begin() + 1, letters.end(), isSmall) ||
           std::all_of(letters.begin(), letters.end(), isCapital);
}

} // namespace

bool isName(std::string_view text)
{
    if (std::any_of(text.begin(), text.end(), isDigit)) {
        return false;
    }
    bool hasWord = false;
    while (!text.empty()) {
        const std::string_view letters = takeLetters(text);
        const std::string word = lowerCase(letters);
        if (isTyped(&TypedWords::noSubstances, word)) {
            return false;
        }
        hasWord = hasWord || isTyped(&TypedWords::shortNames, word) ||
                  (letters.size() >= lengthOfWords && isWord(letters));
        takeLength(text, 1);
    }
    return hasWord;
}

} // namespace lesson
