#include "lesson/marking/solubility.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

#include "lesson/marking/formula.hpp"
#include "lesson/marking/sentences.hpp"
#include "lesson/marking/typed.hpp"
#include "lesson/marking/typed_formula.hpp"

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
    "practically", "almost", "nearly", "only", "definitely", "always",
};
constexpr std::string_view reasons[] = {"because", "since"};
// That nothing precipitates, in a word or in several.
constexpr std::string_view none[] = {
    "n", "no", "none", "nothing", "nil", "neither", "neither is insoluble", "neither precipitates", "nr", "n.r", "n/a", "-", "--",
};
constexpr std::string_view denials[] = {"no", "none", "nothing", "nil"};
constexpr std::string_view everything[] = {"both", "all", "everything", "they"};
constexpr std::string_view inSolution[] = {
    "soluble", "dissolved", "dissolve", "dissolves", "solution",
};
constexpr std::string_view precipitating[] = {
    "precipitate", "precipitates", "precipitated", "precipitation", "ppt", "ppte", "ppts", "form",
    "forms", "formed", "react", "reaction", "rxn", "solid", "solids", "product", "products",
    "crystals", "change",
};
constexpr std::string_view aroundNone[] = {
    "there", "there's", "theres", "is", "it", "are", "be", "will", "would", "does", "do", "so",
    "a", "the", "of", "them", "these", "salt", "salts", "stay", "stays", "remain", "remains",
    "remaining", "in", "occurs", "happens", "takes", "place", "visible", "insoluble", "new", "out",
    "here", "at", "because", "since",
};
constexpr std::string_view exceptions[] = {"but", "except"};
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

// The words one by one, without what stands between them, up to where a reason begins; "in soluble"
// is one.
std::vector<std::string> splitWords(const std::string& words)
{
    constexpr std::string_view between = " ,;:.()-/\"";
    std::vector<std::string> split;
    std::size_t begin = words.find_first_not_of(between);
    while (begin != std::string::npos) {
        const std::size_t end = std::min(words.find_first_of(between, begin), words.size());
        const std::string word = words.substr(begin, end - begin);
        if (!split.empty() && isAmong(reasons, word)) {
            break;
        }
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
    return std::all_of(hasName && !isUnderstood(words.front()) ? verb : words.begin(), words.end(),
                       isUnderstood);
}

enum class Said { itDissolves, itDoesNot, unclear };

// "not insoluble"
bool isNegatedTwice(const std::vector<std::string>& words)
{
    const auto pair = std::adjacent_find(
        words.begin(), words.end(), [](const std::string& first, const std::string& second) {
            return isAmong(negations, first) && isAmong(insoluble, second);
        });
    return pair != words.end();
}

Said saidBy(const std::vector<std::string>& words)
{
    const bool isNegated = hasAny(words, negations);
    const bool saysDissolves = hasAny(words, soluble) && !isNegated;
    const bool saysNot = hasAny(words, insoluble) || isNegated;
    if (!areUnderstood(words) || isNegatedTwice(words)) {
        return Said::unclear;
    }
    const bool isYes = hasAny(words, yes) || saysDissolves;
    const bool isNo = hasAny(words, no) || saysNot;
    if (isYes == isNo) { // neither, or both
        return Said::unclear;
    }
    return isYes ? Said::itDissolves : Said::itDoesNot;
}

bool isUnderstoodOfNone(const std::string& word)
{
    return isAmong(denials, word) || isAmong(everything, word) || isAmong(inSolution, word) ||
           isAmong(precipitating, word) || isAmong(negations, word) || isAmong(aroundNone, word);
}

// "no precipitate forms", "all are soluble", "it doesn't precipitate"
bool isSentenceOfNone(const std::vector<std::string>& words)
{
    if (!std::all_of(words.begin(), words.end(), isUnderstoodOfNone)) {
        return false;
    }
    const bool isNegated = hasAny(words, negations);
    const bool isDenied = hasAny(words, denials);
    if (isNegated) {
        return !isDenied && hasAny(words, precipitating) && !hasAny(words, everything);
    }
    return isDenied || (hasAny(words, everything) && hasAny(words, inSolution));
}

// Who begins with "none" may go on in any words but those that take it back.
bool saysNone(const std::string& words)
{
    if (isAmong(none, words)) {
        return true;
    }
    const std::vector<std::string> split = splitWords(words);
    if (split.empty()) {
        return false;
    }
    const bool beginsWithNone = split.front() == "none" || split.front() == "nothing";
    return (beginsWithNone && !hasAny(split, exceptions)) || isSentenceOfNone(split);
}

bool isCompound(std::string_view text)
{
    const TypedFormula read = readFormula(text);
    return read.isRead && !read.hasCharge && read.atoms.size() > 1;
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

constexpr std::string_view typeYesOrNo = "Type yes or no.";

// No precipitate forms, so that every formula is wrong.
Mark markNone(const std::vector<Slip>& slips, const std::string& plain)
{
    const std::string bare = bareFormula(plain);
    const auto slip = std::find_if(slips.begin(), slips.end(),
                                   [&bare](const Slip& known) { return known.text == bare; });
    if (slip != slips.end()) {
        return markOf(Verdict::slip, slip->sentence);
    }
    const TypedFormula read = readFormula(plain);
    return read.isRead ? markOf(Verdict::wrong, lookAgain) : unreadable(read.unread);
}

// Whether the state in solution stands behind the formula.
bool isDissolved(const std::string& plain)
{
    constexpr std::string_view state = "(aq)";
    const std::string lower = lowerCase(plain);
    return lower.size() > state.size() &&
           lower.compare(lower.size() - state.size(), state.size(), state) == 0;
}

Mark markFormulaOf(const PrecipitateAnswer& answer, const std::vector<Slip>& slips,
                   const std::string& plain)
{
    const Mark mark = markFormula({answer.cation, answer.anion}, slips, plain);
    if (mark.verdict == Verdict::correct) {
        return isDissolved(plain) ? markOf(Verdict::slip, "A precipitate is a solid: (s).")
                                  : Mark{Verdict::correct, joined(sentences::correct, answer.rule)};
    }
    return mark.verdict == Verdict::wrong ? markOf(Verdict::wrong, lookAgain) : mark;
}

} // namespace

Mark markSolubility(const SolubilityAnswer& answer, std::string_view typed)
{
    const std::string words = wordsOf(typed);
    if (words.empty()) {
        return markOf(Verdict::unreadable, typeYesOrNo);
    }
    const Said said = saidBy(splitWords(words));
    if (said == Said::unclear) {
        return {Verdict::unreadable,
                joined(unreadable(plainTyped(typed)).sentence + ".", typeYesOrNo)};
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
        return markOf(Verdict::unreadable, "Type a formula, or none.");
    }
    if (saysNone(words)) {
        return hasPrecipitate ? markOf(Verdict::wrong, lookAgain)
                              : Mark{Verdict::correct, joined(sentences::correct, answer.rule)};
    }
    const std::string plain = plainTyped(typed);
    if (areSeveral(plain)) {
        return markOf(Verdict::unreadable, "Type the formula of the precipitate alone, or none.");
    }
    return hasPrecipitate ? markFormulaOf(answer, slips, plain) : markNone(slips, plain);
}

} // namespace lesson
