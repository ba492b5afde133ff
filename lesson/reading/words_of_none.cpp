#include <algorithm>
#include <cstddef>
#include <vector>

#include "lesson/reading/precipitate.hpp"
#include "lesson/reading/split_words.hpp"
#include "lesson/reading/words.hpp"
#include "lesson/text/scan.hpp"

namespace lesson
{

namespace
{

constexpr std::string_view pauses = ",;:.()-/";

bool isUnderstoodOfNone(const std::string& word, const TypedWords& known)
{
    return isAmong(known.denials, word) || isAmong(known.everything, word) ||
           isAmong(known.inSolution, word) || isAmong(known.precipitating, word) ||
           isAmong(known.negations, word) || isAmong(known.aroundNone, word);
}

// "no precipitate", "no visible change"
bool deniesNoun(const std::vector<std::string>& words, const TypedWords& known)
{
    const auto noun =
        std::find_if_not(words.begin() + 1, words.end(), [&known](const std::string& word) {
            return isAmong(known.adjectives, word);
        });
    return noun != words.end() && isAmong(known.nouns, *noun) && !hasAny(words, known.negations);
}

// "no precipitate forms", "all are soluble", "it doesn't precipitate"; behind "no" either what it
// denies or another such sentence.
bool isSentenceOfNone(const std::vector<std::string>& words, const TypedWords& known)
{
    const auto isUnderstood = [&known](const std::string& word) {
        return isUnderstoodOfNone(word, known);
    };
    if (words.empty() || !std::all_of(words.begin(), words.end(), isUnderstood)) {
        return false;
    }
    const auto sentence =
        std::find_if(words.begin(), words.end(),
                     [&known](const std::string& word) { return !isAmong(known.noSuch, word); });
    if (sentence != words.begin()) {
        return deniesNoun({sentence - 1, words.end()}, known) ||
               isSentenceOfNone({sentence, words.end()}, known);
    }
    const bool isNegated = hasAny(words, known.negations);
    const bool isDenied = hasAny(words, known.denials);
    if (isNegated) {
        return !isDenied && hasAny(words, known.precipitating) && !hasAny(words, known.everything);
    }
    return isDenied || (hasAny(words, known.everything) && hasAny(words, known.inSolution));
}

// "none of them dissolves": the opposite of none. A pause parts: "none, soluble" is none.
bool deniesSolution(const std::string& words, const TypedWords& known)
{
    bool isBehindDenial = false;
    std::size_t begin = 0;
    while (begin < words.size()) {
        const std::size_t end = std::min(words.find_first_of(pauses, begin), words.size());
        for (const std::string& word : splitWords(words.substr(begin, end - begin), known)) {
            if (isBehindDenial && isAmong(known.inSolution, word)) {
                return true;
            }
            isBehindDenial = isAmong(known.denials, word) ||
                             (isBehindDenial && isAmong(known.betweenDenial, word));
        }
        isBehindDenial = false;
        begin = end + 1;
    }
    return false;
}

// "no, …" rather than "no precipitate"
bool pausesBehindNo(std::string_view words, const TypedWords& known)
{
    return std::any_of(known.noSuch.begin(), known.noSuch.end(), [words](std::string_view no) {
        const std::size_t next = words.find_first_not_of(' ', no.size());
        return startsWith(words, no) && next != std::string_view::npos &&
               isOneOf(words[next], pauses);
    });
}

bool saysNoneIn(const TypedWords& known, const std::string& words)
{
    if (isAmong(known.none, words)) {
        return true;
    }
    const std::vector<std::string> all = splitWords(words, known);
    const std::vector<std::string> split(all.begin(), reasonIn(all, known));
    if (split.empty() || deniesSolution(words, known)) {
        return false;
    }
    if (isAmong(known.noneAlone, split.front())) {
        const bool isOneOfTwo = split.size() > 1 && isAmong(known.alternatives, split[1]);
        return !isOneOfTwo && !hasAny(split, known.exceptions);
    }
    if (split.size() == 1 && isAmong(known.none, split.front())) {
        return true;
    }
    return isSentenceOfNone({split.begin() + (pausesBehindNo(words, known) ? 1 : 0), split.end()},
                            known);
}

bool isTakenBackIn(const TypedWords& known, const std::string& words, std::string_view plain)
{
    if (isAmong(known.none, words)) {
        return false;
    }
    const std::vector<std::string> split = splitWords(words, known);
    const bool isDissolved = hasAny(split, known.inSolution) || hasAny(split, known.aqueous);
    const bool isNoSolid = hasAny(split, known.negations) &&
                           (hasAny(split, known.precipitating) || hasAny(split, known.insoluble));
    const bool isSaid = (isDissolved && !hasAny(split, known.insoluble)) || isNoSolid;
    const bool isDenied = standsBefore(split, known.negations, known.inSolution, known);
    const bool isNamed = namesCompound(plain) || endsWithNameOfSalt(words);
    return isNamed && (!isSaid || isDenied);
}

} // namespace

bool saysNone(const std::string& words)
{
    const auto& all = allTypedWords();
    return std::any_of(all.begin(), all.end(),
                       [&words](const TypedWords* known) { return saysNoneIn(*known, words); });
}

bool isTakenBack(const std::string& words, std::string_view plain)
{
    const auto& all = allTypedWords();
    return std::all_of(all.begin(), all.end(), [&](const TypedWords* known) {
        return isTakenBackIn(*known, words, plain);
    });
}

} // namespace lesson
