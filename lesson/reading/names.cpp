#include "lesson/reading/names.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>

#include "lesson/reading/scan.hpp"
#include "lesson/reading/typed.hpp"

namespace lesson
{

namespace
{

// Formulas without digits that are typed in small letters have four letters at most: "naoh".
constexpr std::size_t lengthOfWords = 5;
constexpr std::string_view shortWords[] = {"acid", "base", "salt", "zinc", "iron", "lead", "gas"};
constexpr std::string_view noSubstances[] = {"heat", "energy", "light", "enthalpy"};

template <std::size_t N>
bool isAmong(const std::string_view (&words)[N], std::string_view word)
{
    return std::find(std::begin(words), std::end(words), word) != std::end(words);
}

bool isSmallLetter(char letter)
{
    return letter == smallLetter(letter);
}

// In small letters but perhaps the first one, or in capitals throughout: "NaOHaq" is no word.
bool isWord(std::string_view letters)
{
    const auto isEvery = [letters](bool isSmall) {
        return std::all_of(letters.begin() + 1, letters.end(),
                           [isSmall](char letter) { return isSmallLetter(letter) == isSmall; });
    };
    return isEvery(true) || (isEvery(false) && !isSmallLetter(letters.front()));
}

} // namespace

bool isName(std::string_view text)
{
    if (std::any_of(text.begin(), text.end(), isDigit)) {
        return false;
    }
    bool hasWord = false;
    while (!text.empty()) {
        std::size_t length = 0;
        while (length < text.size() && isLetter(text[length])) {
            ++length;
        }
        const std::string_view letters = text.substr(0, length);
        const std::string word = lowerCase(letters);
        if (isAmong(noSubstances, word)) {
            return false;
        }
        hasWord =
            hasWord || isAmong(shortWords, word) || (length >= lengthOfWords && isWord(letters));
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return hasWord;
}

} // namespace lesson
