#include "lesson/marking/solubility.hpp"

#include <algorithm>
#include <string>
#include <vector>

#include "lesson/marking/formula.hpp"
#include "lesson/marking/sentences.hpp"
#include "lesson/reading/formula.hpp"
#include "lesson/reading/formula_spelling.hpp"
#include "lesson/reading/precipitate.hpp"
#include "lesson/reading/typed.hpp"
#include "lesson/reading/words.hpp"
#include "lesson/text/quotable.hpp"

namespace lesson
{

namespace
{

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
    const Said said = saidOf(words);
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
