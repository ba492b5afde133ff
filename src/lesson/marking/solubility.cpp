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
constexpr std::string_view yes[] = {"y", "yes", "yep", "yeah", "yea"};
constexpr std::string_view no[] = {"n", "no", "nope"};
constexpr std::string_view dissolving[] = {"soluble", "dissolves", "dissolve", "does"};
constexpr std::string_view negations[] = {
    "not", "insoluble", "doesn't", "doesnt", "isn't", "isnt", "won't",
};
constexpr std::string_view fillers[] = {"it", "it's", "its", "is", "in", "water", "will", "so"};
constexpr std::string_view none[] = {
    "n", "no", "none", "nothing", "nil", "no precipitate", "no precipitates", "no precipitation",
    "no precipitate forms", "no precipitate is formed", "there is no precipitate",
    "there is none", "none forms", "none is formed", "nothing forms", "nothing precipitates",
    "no ppt", "no rxn", "no solid", "no solid forms", "no reaction", "no product", "neither", "-", "--",
};
// clang-format on

// In lower case, with single blanks, without quotation marks and what ends a sentence.
std::string wordsOf(std::string_view typed)
{
    std::string words;
    for (const char c : lowerCase(plainTyped(typed))) {
        if (c != ' ' || (!words.empty() && words.back() != ' ')) {
            words += c;
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

// The words one by one, without commas; "in soluble" is one.
std::vector<std::string> splitWords(const std::string& words)
{
    std::vector<std::string> split(1);
    for (const char c : words) {
        if (c != ' ' && c != ',') {
            split.back() += c;
        } else if (!split.back().empty() && !(split.back() == "in" && split.size() == 1)) {
            split.emplace_back();
        }
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
    return isAmong(yes, word) || isAmong(no, word) || isAmong(dissolving, word) ||
           isAmong(negations, word) || isAmong(fillers, word);
}

// A sentence may begin with the substance: "magnesium carbonate is insoluble".
bool areUnderstood(const std::vector<std::string>& words)
{
    constexpr std::string_view verbs[] = {"is", "isn't", "isnt", "does", "doesn't", "dissolves"};
    constexpr std::ptrdiff_t longestName = 3;
    const auto verb = std::find_if(words.begin(), words.end(), [&verbs](const std::string& word) {
        return isAmong(verbs, word);
    });
    const bool hasName = verb != words.end() && verb - words.begin() <= longestName;
    return std::all_of(hasName && !isUnderstood(words.front()) ? verb : words.begin(), words.end(),
                       isUnderstood);
}

enum class Said { itDissolves, itDoesNot, unclear };

Said saidBy(const std::vector<std::string>& words)
{
    const bool isNegated = hasAny(words, negations);
    const bool dissolves = hasAny(words, dissolving) && !isNegated;
    if (!areUnderstood(words) || (hasAny(words, yes) && isNegated) ||
        (hasAny(words, no) && dissolves)) {
        return Said::unclear;
    }
    if (isNegated || hasAny(words, no)) {
        return Said::itDoesNot;
    }
    return dissolves || hasAny(words, yes) ? Said::itDissolves : Said::unclear;
}

// "none", or a sentence that begins with it.
bool saysNone(const std::string& words)
{
    const std::string first = splitWords(words).front();
    return isAmong(none, words) || first == "none" || first == "nothing";
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
    return hasPrecipitate ? markFormulaOf(answer, slips, plain) : markNone(slips, plain);
}

} // namespace lesson
