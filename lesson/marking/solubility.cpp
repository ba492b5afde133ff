#include "lesson/marking/solubility.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

#include "lesson/marking/formula.hpp"
#include "lesson/marking/sentences.hpp"
#include "lesson/reading/formula.hpp"
#include "lesson/reading/formula_spelling.hpp"
#include "lesson/reading/precipitate.hpp"
#include "lesson/reading/typed.hpp"
#include "lesson/text/quotable.hpp"
#include "lesson/text/scan.hpp"

namespace lesson
{

namespace
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

// In lower case, with single blanks, without quotation marks and what ends a sentence.
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

template <std::size_t N>
bool isAmong(const std::string_view (&list)[N], const std::string& words)
{
    return std::find(std::begin(list), std::end(list), words) != std::end(list);
}

// The words one by one, without what stands between them; "in soluble" is one.
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

// Where a reason begins behind an answer; "not as soluble" is none.
std::vector<std::string>::const_iterator reasonIn(const std::vector<std::string>& words)
{
    const auto place = std::adjacent_find(
        words.begin(), words.end(), [](const std::string& first, const std::string& second) {
            return isAmong(reasons, second) && !isAmong(negations, first);
        });
    return place == words.end() ? place : place + 1;
}

template <std::size_t N>
bool hasAny(const std::vector<std::string>& words, const std::string_view (&list)[N])
{
    return std::any_of(words.begin(), words.end(),
                       [&list](const std::string& word) { return isAmong(list, word); });
}

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

enum class Said { itDissolves, itDoesNot, unclear };

// Whether a word of `first` stands before one of `second`, with nothing but degrees between them.
template <std::size_t N, std::size_t M>
bool standsBefore(const std::vector<std::string>& words, const std::string_view (&first)[N],
                  const std::string_view (&second)[M])
{
    bool isBehindFirst = false;
    for (const std::string& word : words) {
        if (isBehindFirst && isAmong(second, word)) {
            return true;
        }
        isBehindFirst = isAmong(first, word) || (isBehindFirst && isAmong(degrees, word));
    }
    return false;
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

// A reason counts only where it tells the opposite of the same substance: "no, because it is
// soluble".
Said saidWithReason(const std::vector<std::string>& words)
{
    const auto reason = reasonIn(words);
    const Said said = saidBy({words.begin(), reason});
    if (words.end() - reason < 2 || !isAmong(pronouns, *(reason + 1))) {
        return said;
    }
    const Said because = saidBy({reason + 1, words.end()});
    return because == Said::unclear || because == said ? said : Said::unclear;
}

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

// Who begins with "none" may go on in any words but those that take it back.
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

// "none, BaBr2": a compound that is not said to stay in solution.
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

// "CuCO3 + NH4Cl", "PbI2, KNO3" or a whole equation: more than the precipitate.
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

std::string joined(std::string_view first, std::string_view second)
{
    return std::string(first).append(" ").append(second);
}

constexpr std::string_view lookAgain =
    "Not right yet. Check each new pair of ions against the rules.";

// Where it is not typed it is chosen by two buttons.
constexpr std::string_view chooseYesOrNo = "Choose yes or no.";
constexpr std::string_view typeFormulaOrNone = "Type a formula, or none.";

Mark unreadPrecipitate(const std::string& plain)
{
    return unreadable(unreadWords(plain), typeFormulaOrNone);
}

Mark markName(const std::string& name)
{
    return {Verdict::unreadable,
            "'" + quotable(name) + "' is a name. " + std::string(typeFormulaOrNone)};
}

// No precipitate forms, so that every formula is wrong.
Mark markNone(const std::vector<Slip>& slips, const std::string& plain)
{
    const TypedPrecipitate typed = readPrecipitate(plain);
    const std::string bare = bareFormula(typed.formula);
    const auto slip = std::find_if(slips.begin(), slips.end(),
                                   [&bare](const Slip& known) { return known.text == bare; });
    if (slip != slips.end()) {
        return markOf(Verdict::slip, slip->sentence);
    }
    if (isNameOfSalt(typed.formula)) {
        return markName(typed.formula);
    }
    return readFormula(typed.formula).isRead ? markOf(Verdict::wrong, lookAgain)
                                             : unreadPrecipitate(plain);
}

Mark markFormulaOf(const PrecipitateAnswer& answer, const std::vector<Slip>& slips,
                   const std::string& plain)
{
    const TypedPrecipitate typed = readPrecipitate(plain);
    if (isNameOf(typed.formula, *answer.cation, *answer.anion)) {
        return markOf(Verdict::unreadable, "That is its name. Type its formula.");
    }
    if (isNameOfSalt(typed.formula)) {
        return markName(typed.formula);
    }
    const Mark mark =
        markFormula({answer.cation, answer.anion}, slips, typed.formula, typeFormulaOrNone);
    if (mark.verdict == Verdict::correct) {
        return typed.state.empty() || typed.state == "s"
                   ? Mark{Verdict::correct, joined(sentences::correct, answer.rule)}
                   : markOf(Verdict::slip, "A precipitate is a solid: (s).");
    }
    if (mark.verdict == Verdict::unreadable) {
        return unreadPrecipitate(plain);
    }
    return mark.verdict == Verdict::wrong ? markOf(Verdict::wrong, lookAgain) : mark;
}

} // namespace

Mark markSolubility(const SolubilityAnswer& answer, std::string_view typed)
{
    const std::string words = wordsOf(typed);
    if (words.empty()) {
        return markOf(Verdict::unreadable, chooseYesOrNo);
    }
    const Said said = saidWithReason(splitWords(words));
    if (said == Said::unclear) {
        return unreadable(plainTyped(typed), chooseYesOrNo);
    }
    return (said == Said::itDissolves) == answer.isSoluble
               ? Mark{Verdict::correct, joined(sentences::correct, answer.rule)}
               : Mark{Verdict::wrong, joined("Not right yet.", answer.rule)};
}

Mark markPrecipitate(const PrecipitateAnswer& answer, const std::vector<Slip>& slips,
                     std::string_view typed)
{
    const std::string words = wordsOf(typed);
    const bool hasPrecipitate = answer.cation != nullptr;
    if (words.empty()) {
        return markOf(Verdict::unreadable, typeFormulaOrNone);
    }
    const std::string plain = plainTyped(typed);
    if (saysNone(words)) {
        if (isTakenBack(words, plain)) {
            return unreadPrecipitate(plain);
        }
        return hasPrecipitate ? markOf(Verdict::wrong, lookAgain)
                              : Mark{Verdict::correct, joined(sentences::correct, answer.rule)};
    }
    if (areSeveral(plain)) {
        return markOf(Verdict::unreadable, "Type the formula of the precipitate alone, or none.");
    }
    return hasPrecipitate ? markFormulaOf(answer, slips, plain) : markNone(slips, plain);
}

} // namespace lesson
