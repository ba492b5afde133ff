#include "lesson/reading/words.hpp"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "lesson/reading/split_words.hpp"
#include "lesson/reading/typed.hpp"
#include "lesson/text/scan.hpp"

namespace lesson
{

namespace
{

// "in soluble"
bool isTypedInTwo(const std::string& first, const std::string& second, const TypedWords& known)
{
    return std::any_of(known.inTwo.begin(), known.inTwo.end(), [&](const Spelling& parts) {
        return parts.typed == first && parts.plain == second;
    });
}

} // namespace

std::vector<std::string> splitWords(const std::string& words, const TypedWords& known)
{
    constexpr std::string_view between = " ,;:.()-/\"";
    std::vector<std::string> split;
    std::size_t begin = words.find_first_not_of(between);
    while (begin != std::string::npos) {
        const std::size_t end = std::min(words.find_first_of(between, begin), words.size());
        const std::string word = words.substr(begin, end - begin);
        const bool goesOn = !split.empty() && isTypedInTwo(split.back(), word, known);
        if (goesOn) {
            split.back() += word;
        } else {
            split.push_back(word);
        }
        begin = words.find_first_not_of(between, end);
    }
    return split;
}

bool standsBefore(const std::vector<std::string>& words, const WordList& first,
                  const WordList& second, const TypedWords& known)
{
    bool isBehindFirst = false;
    for (const std::string& word : words) {
        if (isBehindFirst && isAmong(second, word)) {
            return true;
        }
        isBehindFirst = isAmong(first, word) || (isBehindFirst && isAmong(known.degrees, word));
    }
    return false;
}

std::vector<std::string>::const_iterator reasonIn(const std::vector<std::string>& words,
                                                  const TypedWords& known)
{
    const auto place = std::adjacent_find(
        words.begin(), words.end(), [&known](const std::string& first, const std::string& second) {
            return isAmong(known.reasons, second) && !isAmong(known.negations, first);
        });
    return place == words.end() ? place : place + 1;
}

namespace
{

bool isUnderstood(const std::string& word, const TypedWords& known)
{
    return isAmong(known.yes, word) || isAmong(known.no, word) || isAmong(known.soluble, word) ||
           isAmong(known.insoluble, word) || isAmong(known.negations, word) ||
           isAmong(known.fillers, word);
}

// The class of salts in "all nitrates are soluble"; "not all nitrates are soluble" tells nothing.
bool isClass(const std::vector<std::string>& words, std::size_t i, const TypedWords& known)
{
    const bool isBetween = i > 0 && i + 1 < words.size() && isAmong(known.everyOne, words[i - 1]) &&
                           isAmong(known.behindClass, words[i + 1]);
    return isBetween &&
           (i == 1 || isAmong(known.yes, words[i - 2]) || isAmong(known.no, words[i - 2]));
}

// A sentence may begin with the substance: "magnesium carbonate is insoluble".
bool areUnderstood(const std::vector<std::string>& words, const TypedWords& known)
{
    constexpr std::ptrdiff_t longestName = 3;
    const auto verb = std::find_if(words.begin(), words.end(), [&known](const std::string& word) {
        return isAmong(known.verbs, word);
    });
    const bool hasName = verb != words.end() && verb - words.begin() <= longestName;
    const bool skipsName = hasName && !isUnderstood(words.front(), known);
    for (auto i = static_cast<std::size_t>(skipsName ? verb - words.begin() : 0); i < words.size();
         ++i) {
        if (!isUnderstood(words[i], known) && !isClass(words, i, known)) {
            return false;
        }
    }
    return true;
}

// "not insoluble", "not at all insoluble", "I don't think it is insoluble"; but "it isn't, it is
// insoluble" denies once.
bool isNegatedTwice(const std::vector<std::string>& words, const TypedWords& known)
{
    const auto doubt = std::adjacent_find(
        words.begin(), words.end(), [&known](const std::string& first, const std::string& second) {
            return isAmong(known.negations, first) && isAmong(known.opinions, second);
        });
    const bool isDoubted = std::any_of(doubt, words.end(), [&known](const std::string& word) {
        return isAmong(known.insoluble, word);
    });
    return isDoubted || standsBefore(words, known.negations, known.insoluble, known);
}

Said saidBy(const std::vector<std::string>& words, const TypedWords& known)
{
    const bool isNegated = hasAny(words, known.negations);
    const bool saysDissolves = hasAny(words, known.soluble) && !isNegated;
    const bool saysNot = hasAny(words, known.insoluble) || isNegated;
    const bool isNearly =
        saysDissolves && standsBefore(words, known.notQuite, known.soluble, known);
    if (!areUnderstood(words, known) || isNegatedTwice(words, known) || isNearly) {
        return Said::unclear;
    }
    const bool isYes = hasAny(words, known.yes) || saysDissolves;
    const bool isNo = hasAny(words, known.no) || saysNot;
    if (isYes == isNo) { // neither, or both
        return Said::unclear;
    }
    return isYes ? Said::itDissolves : Said::itDoesNot;
}

} // namespace

std::string wordsOf(std::string_view typed)
{
    std::string words;
    for (const char c : lowerCase(plainTyped(typed))) {
        if (c != ' ' || (!words.empty() && words.back() != ' ')) {
            words += c == '`' ? '\'' : c;
        }
    }
    constexpr std::string_view around = " .!\"'";
    words.erase(0, words.find_first_not_of(around));
    while (!words.empty() && around.find(words.back()) != std::string_view::npos) {
        words.pop_back();
    }
    return words;
}

namespace
{

// A reason counts only where it tells the opposite of the same substance: "no, because it is
// soluble".
Said saidIn(const TypedWords& known, const std::string& typed)
{
    const std::vector<std::string> words = splitWords(typed, known);
    const auto reason = reasonIn(words, known);
    const Said said = saidBy({words.begin(), reason}, known);
    if (words.end() - reason < 2 || !isAmong(known.pronouns, *(reason + 1))) {
        return said;
    }
    const Said because = saidBy({reason + 1, words.end()}, known);
    return because == Said::unclear || because == said ? said : Said::unclear;
}

} // namespace

Said saidOf(const std::string& typed)
{
    Said said = Said::unclear;
    for (const TypedWords* const known : allTypedWords()) {
        said = said == Said::unclear ? saidIn(*known, typed) : said;
    }
    return said;
}

} // namespace lesson
