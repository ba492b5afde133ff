#include "lesson/marking/solubility.hpp"

#include <algorithm>
#include <string>
#include <vector>

#include "lesson/marking/formula.hpp"
#include "lesson/marking/marks.hpp"
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

Mark withRule(Verdict verdict, Sentence says, const Spans& rule)
{
    return {verdict, line(say(says), " ", rule)};
}

Mark unreadPrecipitate(const std::string& plain)
{
    return unreadable(unreadWords(plain), Sentence::markTypeFormulaOrNone);
}

Mark markName(const std::string& name)
{
    return markOf(Verdict::unreadable, say<Sentence::markNameOrNone>(quotable(name)));
}

// No precipitate forms, so that every formula is wrong.
Mark markNone(const std::vector<Slip>& slips, const std::string& plain)
{
    const TypedPrecipitate typed = readPrecipitate(plain);
    const std::string bare = bareFormula(typed.formula);
    const auto slip = std::find_if(slips.begin(), slips.end(),
                                   [&bare](const Slip& known) { return known.text == bare; });
    if (slip != slips.end()) {
        return Mark{Verdict::slip, slip->sentence};
    }
    if (isNameOfSalt(typed.formula)) {
        return markName(typed.formula);
    }
    return readFormula(typed.formula).isRead ? markOf(Verdict::wrong, Sentence::markLookAgain)
                                             : unreadPrecipitate(plain);
}

Mark markFormulaOf(const PrecipitateAnswer& answer, const std::vector<Slip>& slips,
                   const std::string& plain)
{
    const TypedPrecipitate typed = readPrecipitate(plain);
    if (isNameOf(typed.formula, *answer.cation, *answer.anion)) {
        return markOf(Verdict::unreadable, Sentence::markItsName);
    }
    if (isNameOfSalt(typed.formula)) {
        return markName(typed.formula);
    }
    const Mark mark = markFormula({answer.cation, answer.anion}, slips, typed.formula,
                                  Sentence::markTypeFormulaOrNone);
    if (mark.verdict == Verdict::correct) {
        return typed.state.empty() || typed.state == "s"
                   ? withRule(Verdict::correct, Sentence::markCorrect, answer.rule)
                   : markOf(Verdict::slip, Sentence::markSolid);
    }
    if (mark.verdict == Verdict::unreadable) {
        return unreadPrecipitate(plain);
    }
    return mark.verdict == Verdict::wrong ? markOf(Verdict::wrong, Sentence::markLookAgain) : mark;
}

} // namespace

Mark markSolubility(const SolubilityAnswer& answer, std::string_view typed)
{
    const std::string words = wordsOf(typed);
    if (words.empty()) {
        return markOf(Verdict::unreadable, Sentence::markChooseYesOrNo);
    }
    const Said said = saidOf(words);
    if (said == Said::unclear) {
        return unreadable(plainTyped(typed), Sentence::markChooseYesOrNo);
    }
    return (said == Said::itDissolves) == answer.isSoluble
               ? withRule(Verdict::correct, Sentence::markCorrect, answer.rule)
               : withRule(Verdict::wrong, Sentence::markNotRight, answer.rule);
}

Mark markPrecipitate(const PrecipitateAnswer& answer, const std::vector<Slip>& slips,
                     std::string_view typed)
{
    const std::string words = wordsOf(typed);
    const bool hasPrecipitate = answer.cation != nullptr;
    if (words.empty()) {
        return markOf(Verdict::unreadable, Sentence::markTypeFormulaOrNone);
    }
    const std::string plain = plainTyped(typed);
    if (saysNone(words)) {
        if (isTakenBack(words, plain)) {
            return unreadPrecipitate(plain);
        }
        return hasPrecipitate ? markOf(Verdict::wrong, Sentence::markLookAgain)
                              : withRule(Verdict::correct, Sentence::markCorrect, answer.rule);
    }
    if (areSeveral(plain)) {
        return markOf(Verdict::unreadable, Sentence::markPrecipitateAlone);
    }
    return hasPrecipitate ? markFormulaOf(answer, slips, plain) : markNone(slips, plain);
}

} // namespace lesson
