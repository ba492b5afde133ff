#include <algorithm>
#include <cstddef>
#include <vector>

#include "lesson/reading/precipitate.hpp"
#include "lesson/reading/word_lists.hpp"
#include "lesson/reading/words.hpp"

namespace lesson
{

namespace
{

using namespace words;

bool isUnderstoodOfNone(const std::string& word)
{
    return isAmong(denials, word) || isAmong(everything, word) || isAmong(inSolution, word) ||
           isAmong(precipitating, word) || isAmong(negations, word) || isAmong(aroundNone, word);
}

// "no precipitate", "no visible change"
bool deniesNoun(const std::vector<std::string>& words)
{
    const auto noun = std::find_if_not(words.begin() + 1, words.end(), [](const std::string& word) {
        return isAmong(adjectives, word);
    });
    return noun != words.end() && isAmong(nouns, *noun) && !hasAny(words, negations);
}

// "no precipitate forms", "all are soluble", "it doesn't precipitate"; behind "no" either what it
// denies or another such sentence.
bool isSentenceOfNone(const std::vector<std::string>& words)
{
    if (words.empty() || !std::all_of(words.begin(), words.end(), isUnderstoodOfNone)) {
        return false;
    }
    const auto sentence = std::find_if(words.begin(), words.end(),
                                       [](const std::string& word) { return word != "no"; });
    if (sentence != words.begin()) {
        return deniesNoun({sentence - 1, words.end()}) || isSentenceOfNone({sentence, words.end()});
    }
    const bool isNegated = hasAny(words, negations);
    const bool isDenied = hasAny(words, denials);
    if (isNegated) {
        return !isDenied && hasAny(words, precipitating) && !hasAny(words, everything);
    }
    return isDenied || (hasAny(words, everything) && hasAny(words, inSolution));
}

// "none of them dissolves": the opposite of none. A pause parts: "none, soluble" is none.
bool deniesSolution(const std::string& words)
{
    bool isBehindDenial = false;
    std::size_t begin = 0;
    while (begin < words.size()) {
        const std::size_t end = std::min(words.find_first_of(pauses, begin), words.size());
        for (const std::string& word : splitWords(words.substr(begin, end - begin))) {
            if (isBehindDenial && isAmong(inSolution, word)) {
                return true;
            }
            isBehindDenial =
                isAmong(denials, word) || (isBehindDenial && isAmong(betweenDenial, word));
        }
        isBehindDenial = false;
        begin = end + 1;
    }
    return false;
}

// "no, …" rather than "no precipitate"
bool pausesBehindNo(const std::string& words)
{
    const std::size_t next = words.find_first_not_of(' ', 2);
    return words.compare(0, 2, "no") == 0 && next != std::string::npos &&
           pauses.find(words[next]) != std::string_view::npos;
}

} // namespace

bool saysNone(const std::string& words)
{
    if (isAmong(none, words)) {
        return true;
    }
    const std::vector<std::string> all = splitWords(words);
    const std::vector<std::string> split(all.begin(), reasonIn(all));
    if (split.empty() || deniesSolution(words)) {
        return false;
    }
    if (split.front() == "none" || split.front() == "nothing") {
        const bool isOneOfTwo = split.size() > 1 && split[1] == "or";
        return !isOneOfTwo && !hasAny(split, exceptions);
    }
    if (split.size() == 1 && isAmong(none, split.front())) {
        return true;
    }
    return isSentenceOfNone({split.begin() + (pausesBehindNo(words) ? 1 : 0), split.end()});
}

bool isTakenBack(const std::string& words, std::string_view plain)
{
    if (isAmong(none, words)) {
        return false;
    }
    const std::vector<std::string> split = splitWords(words);
    const bool isDissolved = hasAny(split, inSolution) || hasAny(split, aqueous);
    const bool isNoSolid =
        hasAny(split, negations) && (hasAny(split, precipitating) || hasAny(split, insoluble));
    const bool isSaid = (isDissolved && !hasAny(split, insoluble)) || isNoSolid;
    const bool isDenied = standsBefore(split, negations, inSolution);
    const bool isNamed = namesCompound(plain) || endsWithNameOfSalt(words);
    return isNamed && (!isSaid || isDenied);
}

} // namespace lesson
