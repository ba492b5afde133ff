#include "lesson/reading/words.hpp"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "lesson/reading/typed.hpp"
#include "lesson/reading/word_lists.hpp"
#include "lesson/text/scan.hpp"

namespace lesson
{

std::vector<std::string> splitWords(const std::string& words)
{
    constexpr std::string_view between = " ,;:.()-/\"";
    std::vector<std::string> split;
    std::size_t begin = words.find_first_not_of(between);
    while (begin != std::string::npos) {
        const std::size_t end = std::min(words.find_first_of(between, begin), words.size());
        const std::string word = words.substr(begin, end - begin);
        const bool goesOn = word == "soluble" && !split.empty() && split.back() == "in";
        if (goesOn) {
            split.back() += word;
        } else {
            split.push_back(word);
        }
        begin = words.find_first_not_of(between, end);
    }
    return split;
}

std::vector<std::string>::const_iterator reasonIn(const std::vector<std::string>& words)
{
    const auto place = std::adjacent_find(
        words.begin(), words.end(), [](const std::string& first, const std::string& second) {
            return isAmong(words::reasons, second) && !isAmong(words::negations, first);
        });
    return place == words.end() ? place : place + 1;
}

namespace
{

using namespace words;

bool isUnderstood(const std::string& word)
{
    return isAmong(yes, word) || isAmong(no, word) || isAmong(soluble, word) ||
           isAmong(insoluble, word) || isAmong(negations, word) || isAmong(fillers, word);
}

// The class of salts in "all nitrates are soluble"; "not all nitrates are soluble" tells nothing.
bool isClass(const std::vector<std::string>& words, std::size_t i)
{
    const bool isBetween =
        i > 0 && i + 1 < words.size() && words[i - 1] == "all" && words[i + 1] == "are";
    return isBetween && (i == 1 || isAmong(yes, words[i - 2]) || isAmong(no, words[i - 2]));
}

// A sentence may begin with the substance: "magnesium carbonate is insoluble".
bool areUnderstood(const std::vector<std::string>& words)
{
    constexpr std::string_view verbs[] = {
        "is", "isn't", "isnt", "does", "doesn't", "doesnt", "dissolves", "will", "won't", "cannot",
    };
    constexpr std::ptrdiff_t longestName = 3;
    const auto verb = std::find_if(words.begin(), words.end(), [&verbs](const std::string& word) {
        return isAmong(verbs, word);
    });
    const bool hasName = verb != words.end() && verb - words.begin() <= longestName;
    const bool skipsName = hasName && !isUnderstood(words.front());
    for (auto i = static_cast<std::size_t>(skipsName ? verb - words.begin() : 0); i < words.size();
         ++i) {
        if (!isUnderstood(words[i]) && !isClass(words, i)) {
            return false;
        }
    }
    return true;
}

// "not insoluble", "not at all insoluble", "I don't think it is insoluble"; but "it isn't, it is
// insoluble" denies once.
bool isNegatedTwice(const std::vector<std::string>& words)
{
    const auto doubt = std::adjacent_find(words.begin(), words.end(),
                                          [](const std::string& first, const std::string& second) {
                                              return isAmong(negations, first) && second == "think";
                                          });
    const bool isDoubted = std::any_of(
        doubt, words.end(), [](const std::string& word) { return isAmong(insoluble, word); });
    return isDoubted || standsBefore(words, negations, insoluble);
}

Said saidBy(const std::vector<std::string>& words)
{
    const bool isNegated = hasAny(words, negations);
    const bool saysDissolves = hasAny(words, soluble) && !isNegated;
    const bool saysNot = hasAny(words, insoluble) || isNegated;
    const bool isNearly = saysDissolves && standsBefore(words, notQuite, soluble);
    if (!areUnderstood(words) || isNegatedTwice(words) || isNearly) {
        return Said::unclear;
    }
    const bool isYes = hasAny(words, yes) || saysDissolves;
    const bool isNo = hasAny(words, no) || saysNot;
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

// A reason counts only where it tells the opposite of the same substance: "no, because it is
// soluble".
Said saidOf(const std::string& typed)
{
    const std::vector<std::string> words = splitWords(typed);
    const auto reason = reasonIn(words);
    const Said said = saidBy({words.begin(), reason});
    if (words.end() - reason < 2 || !isAmong(pronouns, *(reason + 1))) {
        return said;
    }
    const Said because = saidBy({reason + 1, words.end()});
    return because == Said::unclear || because == said ? said : Said::unclear;
}

} // namespace lesson
