#include "lesson/marking/ion.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <optional>
#include <string>

#include "lesson/marking/confusions.hpp"
#include "lesson/marking/formula.hpp"
#include "lesson/marking/formula_mistakes.hpp"
#include "lesson/marking/marks.hpp"
#include "lesson/marking/spellings.hpp"
#include "lesson/reading/formula.hpp"
#include "lesson/reading/formula_spelling.hpp"
#include "lesson/reading/ion.hpp"
#include "lesson/reading/ion_spelling.hpp"
#include "lesson/reading/lookalikes.hpp"
#include "lesson/reading/typed.hpp"
#include "lesson/text/scan.hpp"
#include "lesson/words/language.hpp"

namespace lesson
{

namespace
{

constexpr std::string_view signs = "+-";

// Whether a learner typed the name in place of the formula, with or without "ion".
bool isNameOf(std::string_view plain, const IonRow& ion)
{
    const std::string typed = lowerCase(plain);
    const auto isIts = [&typed](std::string_view name) {
        const std::string known = lowerCase(name);
        std::string_view rest = typed;
        return !known.empty() && take(rest, known) &&
               (rest.empty() || (take(rest, " ") && isTyped(&TypedWords::ionNouns, rest)));
    };
    const auto names = namesOf(nameOf(ion));
    return std::any_of(names.begin(), names.end(), isIts);
}

// What was typed, and all that it is compared with.
struct Attempt {
    const IonRow& ion;
    const std::vector<Slip>& slips;
    std::string_view typed;
    std::string marked; // as `markedTyped` gives it
    TypedIon read;
    std::vector<std::string> right; // the formula without the charge, and its other spellings
    Atoms rightAtoms;
};

template <typename Wanted>
bool anyReading(const Attempt& attempt, Wanted wanted)
{
    return std::any_of(attempt.read.readings.begin(), attempt.read.readings.end(), wanted);
}

bool isAmong(const std::vector<std::string>& texts, const std::string& text)
{
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

// Without regard to the charge; brackets around the whole group are usual.
bool hasRightFormula(const Attempt& attempt, const IonReading& reading)
{
    const TypedFormula& formula = reading.formula;
    return !formula.hasCharge &&
           (isAmong(attempt.right, formula.text) || isAmong(attempt.right, formula.simplest));
}

bool isRight(const Attempt& attempt, const IonReading& reading)
{
    return reading.charge == attempt.ion.charge && reading.agrees() &&
           hasRightFormula(attempt, reading);
}

// The charge as digits behind the formula: "Fe3", "SO42".
bool hasChargeAsSubscript(const Attempt& attempt, const IonReading& reading)
{
    const int size = std::abs(attempt.ion.charge);
    return size > 1 && std::abs(reading.charge) <= 1 && !reading.formula.hasCharge &&
           reading.formula.text == attempt.right.front() + std::to_string(size);
}

// ---------------------------------------------------------------- the rules, first that fits

using Rule = std::optional<Mark> (*)(const Attempt&);

std::optional<Mark> slipWhen(bool isMade, Sentence says)
{
    return isMade ? std::optional(markOf(Verdict::slip, says)) : std::nullopt;
}

std::optional<Mark> nothingTyped(const Attempt& attempt)
{
    return attempt.marked.empty()
               ? std::optional(markOf(Verdict::unreadable, Sentence::markTypeIon))
               : std::nullopt;
}

std::optional<Mark> right(const Attempt& attempt)
{
    return anyReading(attempt, [&](const IonReading& reading) { return isRight(attempt, reading); })
               ? std::optional(markOf(Verdict::correct, Sentence::markCorrect))
               : std::nullopt;
}

std::optional<Mark> capitals(const Attempt& attempt)
{
    const auto differsInCapitals = [&](const IonReading& reading) {
        const std::string folded = lowerCase(reading.bare);
        return !hasRightFormula(attempt, reading) &&
               std::any_of(attempt.right.begin(), attempt.right.end(),
                           [&](const std::string& text) { return lowerCase(text) == folded; });
    };
    return slipWhen(anyReading(attempt, differsInCapitals), Sentence::markCapitals);
}

// "Fe^3": who raises a number means a charge, so none of the slips with a number of atoms is made.
std::optional<Mark> raisedWithoutSign(const Attempt& attempt)
{
    return slipWhen(attempt.read.hasRaised && !attempt.read.hasSign &&
                        attempt.read.readings.front().formula.isRead,
                    Sentence::markSignMissing);
}

// "N₃⁻", "NO³⁻": the right formula, were it not for what stands below and above.
std::optional<Mark> misplaced(const Attempt& attempt)
{
    const auto isMeant = [&](const IonReading& reading) {
        return hasRightFormula(attempt, reading);
    };
    const auto agrees = [&](const IonReading& reading) {
        return isMeant(reading) && reading.agrees();
    };
    const std::vector<IonReading>& others = attempt.read.misplaced;
    const auto found = std::find_if(others.begin(), others.end(), isMeant);
    if (found == others.end() || anyReading(attempt, agrees)) {
        return std::nullopt;
    }
    return markOf(Verdict::slip,
                  found->hasRaisedCount ? Sentence::markWhichNumber : Sentence::markChargeAbove);
}

bool isSlip(const IonReading& typed, const Slip& slip)
{
    const IonReading known = readIon(slip.text).readings.front();
    return typed.charge == known.charge &&
           (typed.bare == known.bare || (typed.formula.isRead && !typed.formula.hasCharge &&
                                         typed.formula.simplest == known.formula.simplest));
}

std::optional<Mark> listedSlip(const Attempt& attempt)
{
    for (const Slip& slip : attempt.slips) {
        if (anyReading(attempt, [&](const IonReading& reading) { return isSlip(reading, slip); })) {
            return Mark{Verdict::slip, slip.sentence};
        }
    }
    return std::nullopt;
}

std::optional<Mark> lookalikes(const Attempt& attempt)
{
    for (const Lookalike& other : lookalikesOf(attempt.marked)) {
        Attempt mended = attempt;
        mended.read = readIon(other.meant);
        if (right(mended).has_value()) {
            return markOf(Verdict::slip, sentenceOf(other.mixup));
        }
    }
    return std::nullopt;
}

// As it was typed: an ion is read without its blanks.
std::string unreadPart(const Attempt& attempt)
{
    const std::string plain = plainTyped(attempt.typed);
    const bool hasBlank = plain.find(' ') != std::string::npos;
    const std::string withBlanks = hasBlank ? readFormula(plain).unread : "";
    const std::string& unread =
        withBlanks.empty() ? attempt.read.readings.back().formula.unread : withBlanks;
    return unread.empty() ? attempt.marked : unread;
}

std::optional<Mark> notRead(const Attempt& attempt)
{
    if (anyReading(attempt, [](const IonReading& reading) { return reading.formula.isRead; })) {
        return std::nullopt;
    }
    if (isNameOf(attempt.marked, attempt.ion)) {
        return markOf(Verdict::unreadable, Sentence::markItsNameOfIon);
    }
    return unreadable(unreadPart(attempt), Sentence::markTypeIon);
}

std::optional<Mark> wrongCharge(const Attempt& attempt)
{
    bool hasWrongSign = false;
    bool hasWrongSize = false;
    for (const IonReading& reading : attempt.read.readings) {
        if (hasRightFormula(attempt, reading)) {
            const bool isOpposite = (reading.charge < 0) != (attempt.ion.charge < 0);
            (isOpposite ? hasWrongSign : hasWrongSize) = true;
        }
    }
    if (hasWrongSign) {
        return markOf(Verdict::slip, Sentence::markWrongSign);
    }
    const bool isTold = hasRomanNumeral(attempt.ion) && attempt.ion.charge > 0;
    return slipWhen(hasWrongSize, isTold ? Sentence::markRomanCharge : Sentence::markWrongSize);
}

// "Fe(III)", "FeIII", "Fe^III", "Fe(III)3+", "Fe(III)+"
std::optional<Mark> numeralLeftIn(const Attempt& attempt)
{
    if (!hasRomanNumeral(attempt.ion)) {
        return std::nullopt;
    }
    for (const std::string& other : withoutNumeral(markedIon(attempt.marked))) {
        Attempt mended = attempt;
        mended.read = readIon(other);
        if (right(mended).has_value()) {
            return markOf(Verdict::slip, Sentence::markNumeralLeftIn);
        }
        if (std::optional<Mark> mark = misplaced(mended)) {
            return mark;
        }
        const IonReading& first = mended.read.readings.front();
        if (first.charge == 0 && hasRightFormula(mended, first)) {
            return markOf(Verdict::slip, attempt.ion.charge > 0 ? Sentence::markRomanCharge
                                                                : Sentence::markNoCharge);
        }
        if (const std::optional<Mark> charge = wrongCharge(mended)) {
            return *charge;
        }
    }
    return std::nullopt;
}

// "Fe", "Fe3"
std::optional<Mark> noCharge(const Attempt& attempt)
{
    const IonReading& reading = attempt.read.readings.front();
    if (reading.bare.find_first_of(signs) != std::string::npos || reading.charge != 0) {
        return std::nullopt;
    }
    return markOf(Verdict::slip, hasChargeAsSubscript(attempt, reading)
                                     ? Sentence::markChargeAsSubscript
                                     : Sentence::markNoCharge);
}

// "SO4^-2-"
std::optional<Mark> chargeTypedTwice(const Attempt& attempt)
{
    const TypedFormula& formula = attempt.read.readings.front().formula;
    return slipWhen(formula.hasCharge && isAmong(attempt.right, formula.simplest),
                    Sentence::markChargeTwice);
}

std::optional<Mark> chargeAsSubscript(const Attempt& attempt)
{
    return slipWhen(anyReading(attempt,
                               [&](const IonReading& reading) {
                                   return hasChargeAsSubscript(attempt, reading);
                               }),
                    Sentence::markChargeAsSubscript);
}

std::optional<Mark> otherOrder(const Attempt& attempt)
{
    const auto hasItsAtoms = [&](const IonReading& reading) {
        return reading.charge == attempt.ion.charge && !reading.formula.hasCharge &&
               reading.formula.atoms == attempt.rightAtoms;
    };
    return slipWhen(anyReading(attempt, hasItsAtoms), Sentence::markOrder);
}

// Whatever its charge.
std::optional<Mark> otherIon(const Attempt& attempt)
{
    for (const Confusion* const other : confusionsOf(attempt.ion)) {
        const auto isTyped = [&](const IonReading& reading) {
            return reading.formula.simplest == other->formula;
        };
        if (anyReading(attempt, isTyped)) {
            return markOf(Verdict::slip, other->sentence);
        }
    }
    return std::nullopt;
}

std::optional<Mark> ending(const Attempt& attempt)
{
    return slipWhen(anyReading(attempt,
                               [&](const IonReading& reading) {
                                   return mistakesEnding(attempt.ion, reading.formula.atoms,
                                                         attempt.rightAtoms);
                               }),
                    Sentence::markEnding);
}

std::optional<Mark> oxygens(const Attempt& attempt)
{
    return slipWhen(anyReading(attempt,
                               [&](const IonReading& reading) {
                                   return differInOxygens(reading.formula.atoms,
                                                          attempt.rightAtoms);
                               }),
                    Sentence::markOxygens);
}

std::optional<Mark> symbol(const Attempt& attempt)
{
    for (const IonReading& reading : attempt.read.readings) {
        const std::string wrong = wrongSymbol(reading.formula.simplest, attempt.right);
        if (reading.charge == attempt.ion.charge && !wrong.empty()) {
            return markOf(Verdict::slip, say<Sentence::markCheckSymbol>(formula(wrong)));
        }
    }
    return std::nullopt;
}

constexpr Rule rules[] = {
    nothingTyped,      right,      capitals,         raisedWithoutSign,
    misplaced,         lookalikes, listedSlip,       numeralLeftIn,
    notRead,           noCharge,   chargeTypedTwice, wrongCharge,
    chargeAsSubscript, otherOrder, otherIon,         ending,
    oxygens,           symbol,
};

} // namespace

Mark markIon(const IonAnswer& answer, const std::vector<Slip>& slips, std::string_view typed)
{
    Attempt attempt = {*answer.ion, slips, typed, plainIon(typed), {}, {}, {}};
    attempt.read = readIon(attempt.marked);
    attempt.right = spellingsOf(*answer.ion);
    attempt.rightAtoms = readFormula(answer.ion->formula).atoms;
    for (const Rule rule : rules) {
        if (const std::optional<Mark> mark = rule(attempt)) {
            return *mark;
        }
    }
    return markOf(Verdict::wrong, Sentence::markNotYet);
}

} // namespace lesson
