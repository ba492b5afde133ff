#include "lesson/marking/solubility.hpp"

#include <algorithm>
#include <iterator>
#include <string>

#include "lesson/marking/formula.hpp"
#include "lesson/marking/sentences.hpp"
#include "lesson/marking/typed.hpp"
#include "lesson/marking/typed_formula.hpp"

namespace lesson
{

namespace
{

// clang-format off
constexpr std::string_view yes[] = {
    "y", "yes", "soluble", "yes soluble", "yes, soluble", "it is soluble", "is soluble",
    "soluble in water", "dissolves", "it dissolves", "it does", "yes it does", "yes, it does",
};
constexpr std::string_view no[] = {
    "n", "no", "insoluble", "no insoluble", "no, insoluble", "it is insoluble", "is insoluble",
    "insoluble in water", "in soluble", "not soluble", "it is not soluble", "is not soluble",
    "not soluble in water", "does not dissolve", "doesn't dissolve", "it does not dissolve",
    "it doesn't dissolve", "it does not", "it doesn't", "no it does not", "no, it does not",
    "no it doesn't", "no, it doesn't",
};
constexpr std::string_view none[] = {
    "n", "no", "none", "nothing", "nil", "no precipitate", "no precipitates", "no precipitation",
    "no precipitate forms", "no precipitate is formed", "there is no precipitate",
    "there is none", "none forms", "none is formed", "nothing forms", "nothing precipitates",
    "no ppt", "no solid", "no solid forms", "no reaction", "no product", "neither", "-", "--",
};
// clang-format on

// In lower case, with single blanks and a plain apostrophe, without what ends a sentence.
std::string wordsOf(std::string_view typed)
{
    std::string words;
    for (const char c : lowerCase(plainTyped(typed))) {
        if (c != ' ' || (!words.empty() && words.back() != ' ')) {
            words += c;
        }
    }
    const std::size_t apostrophe = words.find("\u2019");
    if (apostrophe != std::string::npos) {
        words.replace(apostrophe, std::string_view("\u2019").size(), "'");
    }
    while (!words.empty() && std::string_view(" .!").find(words.back()) != std::string_view::npos) {
        words.pop_back();
    }
    return words;
}

template <std::size_t N>
bool isAmong(const std::string_view (&list)[N], const std::string& words)
{
    return std::find(std::begin(list), std::end(list), words) != std::end(list);
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

Mark markFormulaOf(const PrecipitateAnswer& answer, const std::vector<Slip>& slips,
                   const std::string& plain)
{
    const Mark mark = markFormula({answer.cation, answer.anion}, slips, plain);
    if (mark.verdict == Verdict::correct) {
        return {Verdict::correct, joined(sentences::correct, answer.rule)};
    }
    return mark.verdict == Verdict::wrong ? markOf(Verdict::wrong, lookAgain) : mark;
}

} // namespace

Mark markSolubility(const SolubilityAnswer& answer, std::string_view typed)
{
    const std::string words = wordsOf(typed);
    const bool saysYes = isAmong(yes, words);
    if (words.empty()) {
        return markOf(Verdict::unreadable, typeYesOrNo);
    }
    if (!saysYes && !isAmong(no, words)) {
        return {Verdict::unreadable, joined(unreadable(words).sentence + ".", typeYesOrNo)};
    }
    return saysYes == answer.isSoluble
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
    if (isAmong(none, words)) {
        return hasPrecipitate ? markOf(Verdict::wrong, lookAgain)
                              : Mark{Verdict::correct, joined(sentences::correct, answer.rule)};
    }
    const std::string plain = plainTyped(typed);
    return hasPrecipitate ? markFormulaOf(answer, slips, plain) : markNone(slips, plain);
}

} // namespace lesson
