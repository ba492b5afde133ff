#include "lesson/reading/precipitate.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <vector>

#include "lesson/chemistry/compounds.hpp"
#include "lesson/numbers/sort_few.hpp"
#include "lesson/reading/formula.hpp"
#include "lesson/reading/states.hpp"
#include "lesson/text/scan.hpp"
#include "lesson/words/language.hpp"

namespace lesson
{

namespace
{

// "PbI2 s" has a state; "Ag2 s" and "Ag2(S)" have a sulfur.
bool isStateBehind(std::string_view formula, std::string_view taken)
{
    const bool mayBeSulfur = endsWith(taken, " s") || endsWith(taken, "(S)");
    return !mayBeSulfur || isCompound(formula);
}

// Of two states the one that is not that of a solid.
void addState(std::string& state, std::string_view other)
{
    if (state.empty() || state == "s") {
        state = other.empty() ? state : other;
    }
}

// Takes the states off the end, "(s)↓".
std::string takeStates(std::string_view& text)
{
    constexpr int most = 3;
    std::string found;
    for (int i = 0; i < most; ++i) {
        std::string_view left = text;
        const std::string_view state = takeState(left);
        if (state.empty() || left.empty() || !isStateBehind(left, text.substr(left.size()))) {
            return found;
        }
        addState(found, state);
        text = left;
    }
    return found;
}

constexpr int mostWords = 8;

std::string_view withoutWordsBefore(std::string_view text, const WordList& words)
{
    const std::string all = lowerCase(text);
    std::string_view lower = all;
    for (int i = 0; i < mostWords; ++i) {
        const auto* const word =
            std::find_if(words.begin(), words.end(),
                         [lower](std::string_view known) { return startsWith(lower, known); });
        lower.remove_prefix(word == words.end() ? 0 : word->size());
    }
    return text.substr(text.size() - lower.size());
}

// The text without the words at its ends, and its states.
TypedPrecipitate withoutWords(std::string_view plain, const TypedWords& words)
{
    std::string_view text = withoutWordsBefore(plain, words.beforePrecipitate);
    const std::string lower = lowerCase(text);
    std::string state = takeStates(text);
    for (int i = 0; i < mostWords; ++i) {
        const std::string_view left = std::string_view(lower).substr(0, text.size());
        const auto* const word =
            std::find_if(words.behindPrecipitate.begin(), words.behindPrecipitate.end(),
                         [left](std::string_view known) { return endsWith(left, known); });
        text.remove_suffix(word == words.behindPrecipitate.end() ? 0 : word->size());
        addState(state, takeStates(text));
    }
    return {std::string(text), state};
}

// In lower case, British, without blanks.
std::string comparableName(std::string_view text)
{
    std::string name = lowerCase(text);
    name.erase(std::remove(name.begin(), name.end(), ' '), name.end());
    constexpr std::string_view british = "sulph";
    const std::size_t place = name.find(british);
    return place == std::string::npos ? name : name.replace(place, british.size(), "sulf");
}

std::string withoutBracket(std::string name)
{
    const std::size_t opening = name.find('(');
    const std::size_t closing = name.find(')');
    if (opening != std::string::npos && closing != std::string::npos && opening < closing) {
        name.erase(opening, closing + 1 - opening);
    }
    return name;
}

// Of all salts, sorted, as they compare without a bracket.
std::vector<std::string> makeNamesOfSalts()
{
    std::vector<std::string> names;
    for (const IonRow* const cation : cations()) {
        for (const IonRow* const anion : anions()) {
            for (const std::string& name : namesOf(nameOf(*cation, *anion))) {
                names.push_back(withoutBracket(comparableName(name)));
            }
        }
    }
    sortFew(names);
    return names;
}

const std::vector<std::string>& namesOfSalts()
{
    static const std::vector<std::string> names = makeNamesOfSalts();
    return names;
}

// Small letters, but perhaps the first one, and more of them than a symbol has.
bool isWord(std::string_view letters)
{
    constexpr std::size_t longestSymbol = 2;
    return letters.size() > longestSymbol &&
           std::all_of(letters.begin() + 1, letters.end(), isSmall);
}

} // namespace

TypedPrecipitate readPrecipitate(std::string_view plain)
{
    for (const TypedWords* const words : allTypedWords()) {
        TypedPrecipitate bare = withoutWords(plain, *words);
        if (isCompound(bare.formula) || isNameOfSalt(bare.formula)) {
            return bare;
        }
    }
    const std::string state = takeStates(plain);
    return {std::string(plain), state};
}

bool areSeveral(std::string_view plain)
{
    constexpr std::string_view arrows[] = {"->", "="};
    constexpr std::string_view separators[] = {"+", ",", ";", "&", " and ", " or "};
    const auto hasArrow = [plain](std::string_view arrow) {
        return plain.find(arrow) != std::string_view::npos;
    };
    const auto separates = [plain](std::string_view separator) {
        const std::size_t place = plain.find(separator);
        return place != std::string_view::npos && isCompound(plain.substr(0, place)) &&
               isCompound(plain.substr(place + separator.size()));
    };
    return std::any_of(std::begin(arrows), std::end(arrows), hasArrow) ||
           std::any_of(std::begin(separators), std::end(separators), separates);
}

bool namesCompound(std::string_view plain)
{
    const bool isInCapitals = std::none_of(plain.begin(), plain.end(), isSmall);
    constexpr std::string_view between = " ,;:/+&";
    while (!plain.empty()) {
        const std::size_t end = std::min(plain.find_first_of(between), plain.size());
        std::string_view word = plain.substr(0, end);
        plain.remove_prefix(std::min(end + 1, plain.size()));
        const bool hasDigit = std::any_of(word.begin(), word.end(), isDigit);
        if (isInCapitals && !hasDigit) {
            continue;
        }
        if (startsWith(word, "(") && !isCompound(word)) {
            word.remove_prefix(1);
        }
        if (endsWith(word, ")") && !isCompound(word)) {
            word.remove_suffix(1);
        }
        if (isCompound(word)) {
            return true;
        }
    }
    return false;
}

std::string unreadWords(std::string_view plain)
{
    std::string unread = readFormula(plain).unread;
    std::size_t begin = endsWith(plain, unread) ? plain.size() - unread.size() : plain.find(unread);
    if (begin == std::string_view::npos) {
        return unread;
    }
    std::size_t end = begin;
    while (begin > 0 && isLetter(plain[begin - 1])) {
        --begin;
    }
    while (end < plain.size() && isLetter(plain[end])) {
        ++end;
    }
    if (!isWord(plain.substr(begin, end - begin))) {
        return unread;
    }
    return std::string(isCompound(plain.substr(0, begin)) ? plain.substr(begin) : plain);
}

bool isNameOf(std::string_view text, const IonRow& cation, const IonRow& anion)
{
    const std::string typed = comparableName(text);
    const auto names = namesOf(nameOf(cation, anion));
    return !typed.empty() &&
           std::any_of(names.begin(), names.end(), [&typed](const std::string& name) {
               const std::string known = comparableName(name);
               return typed == known || typed == withoutBracket(known);
           });
}

bool isNameOfSalt(std::string_view text)
{
    constexpr std::size_t longest = 60;
    if (text.size() > longest || std::any_of(text.begin(), text.end(), isDigit)) {
        return false;
    }
    return std::binary_search(namesOfSalts().begin(), namesOfSalts().end(),
                              withoutBracket(comparableName(text)));
}

bool endsWithNameOfSalt(std::string_view text)
{
    constexpr int mostWordsOfName = 3; // "lead (II) iodide"
    std::size_t begin = text.size();
    for (int i = 0; i < mostWordsOfName && begin != std::string_view::npos && begin > 0; ++i) {
        begin = text.rfind(' ', begin - 1);
        if (isNameOfSalt(text.substr(begin == std::string_view::npos ? 0 : begin + 1))) {
            return true;
        }
    }
    return false;
}

} // namespace lesson
