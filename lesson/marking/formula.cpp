#include "lesson/marking/formula.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>

#include "lesson/chemistry/composition.hpp"
#include "lesson/chemistry/elements.hpp"
#include "lesson/marking/confusions.hpp"
#include "lesson/marking/formula_mistakes.hpp"
#include "lesson/marking/ions_within.hpp"
#include "lesson/marking/marks.hpp"
#include "lesson/marking/spellings.hpp"
#include "lesson/reading/formula.hpp"
#include "lesson/reading/formula_spelling.hpp"
#include "lesson/reading/group_braces.hpp"
#include "lesson/reading/lookalikes.hpp"
#include "lesson/reading/typed.hpp"
#include "lesson/text/scan.hpp"
#include "lesson/words/language.hpp"

namespace lesson
{

namespace
{

// What was typed, and all that it is compared with.
struct Attempt {
    const FormulaAnswer& answer;
    const std::vector<Slip>& slips;
    Sentence whatToType;
    std::string plain; // with its curly brackets as they were typed
    std::string round; // with round ones for them
    TypedFormula read;
    std::vector<std::string> right; // the key and its other spellings
    Atoms rightAtoms;
};

bool isAmong(const std::vector<std::string>& texts, const std::string& text)
{
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

// Every element so many times as often as in the right formula.
bool isMultiple(const Atoms& atoms, const Atoms& right)
{
    if (!haveSameElements(atoms, right)) {
        return false;
    }
    const int factor = atoms.front().count / right.front().count;
    return factor > 1 && std::equal(atoms.begin(), atoms.end(), right.begin(),
                                    [factor](AtomCount x, AtomCount y) {
                                        return x.count / y.count == factor &&
                                               x.count % y.count == 0;
                                    });
}

// Whether a learner typed the name in place of the formula, whatever the capitals.
bool isNameOf(std::string_view plain, const IonRow& cation, const IonRow& anion)
{
    const std::string typed = lowerCase(plain);
    const auto names = namesOf(nameOf(cation, anion));
    return std::any_of(names.begin(), names.end(),
                       [&typed](const std::string& name) { return typed == lowerCase(name); });
}

// ---------------------------------------------------------------- the rules, first that fits

using Rule = std::optional<Mark> (*)(const Attempt&);

std::optional<Mark> slipWhen(bool isMade, Sentence says)
{
    return isMade ? std::optional(markOf(Verdict::slip, says)) : std::nullopt;
}

std::optional<Mark> nothingTyped(const Attempt& attempt)
{
    return attempt.plain.empty() ? std::optional(markOf(Verdict::unreadable, attempt.whatToType))
                                 : std::nullopt;
}

// Curly brackets count a group, or hold together what is in them; blanks may stand within a symbol.
std::optional<Mark> right(const Attempt& attempt)
{
    const TypedFormula& read = attempt.read;
    const bool isRight =
        (isAmong(attempt.right, read.text) && !read.hasCharge && !read.hasRaisedNumber) ||
        isAmong(attempt.right, bareFormula(attempt.plain)) ||
        isAmong(attempt.right, bareFormula(withAllBracesRound(attempt.plain)));
    return isRight ? std::optional(markOf(Verdict::correct, Sentence::markCorrect)) : std::nullopt;
}

std::optional<Mark> capitals(const Attempt& attempt)
{
    const std::string folded[] = {withoutCapitals(attempt.plain), withoutCapitals(attempt.round)};
    const bool isSame =
        std::any_of(attempt.right.begin(), attempt.right.end(), [&folded](const std::string& text) {
            const std::string wanted = withoutCapitals(text);
            return wanted == folded[0] || wanted == folded[1];
        });
    return slipWhen(isSame, Sentence::markCapitals);
}

// A text that is no formula may still be a slip but for its capitals.
std::optional<Mark> listedSlip(const Attempt& attempt)
{
    const std::string bare = bareFormula(attempt.round);
    const std::string folded = lowerCase(bare);
    const bool isRead = attempt.read.isRead;
    const auto slip =
        std::find_if(attempt.slips.begin(), attempt.slips.end(), [&](const Slip& known) {
            return known.text == bare || (!isRead && lowerCase(known.text) == folded);
        });
    return slip == attempt.slips.end() ? std::nullopt
                                       : std::optional(Mark{Verdict::slip, slip->sentence});
}

std::optional<Mark> lookalikes(const Attempt& attempt)
{
    for (const Lookalike& other : lookalikesOf(attempt.plain)) {
        if (isAmong(attempt.right, readFormula(other.meant).text)) {
            return markOf(Verdict::slip, sentenceOf(other.mixup));
        }
    }
    return std::nullopt;
}

std::optional<Mark> notRead(const Attempt& attempt)
{
    if (attempt.read.isRead) {
        return std::nullopt;
    }
    if (isNameOf(attempt.plain, *attempt.answer.cation, *attempt.answer.anion)) {
        return markOf(Verdict::unreadable, Sentence::markItsName);
    }
    return unreadable(attempt.read.unread, attempt.whatToType);
}

// "2Al + 3O"
std::optional<Mark> sum(const Attempt& attempt)
{
    std::string_view left = attempt.plain;
    bool isApart = false;
    std::size_t plus = left.find('+');
    if (plus == std::string_view::npos) {
        return std::nullopt;
    }
    for (;;) {
        const std::string_view part = left.substr(0, plus);
        const TypedFormula read = readFormula(part);
        if (!read.isRead || read.hasCharge) {
            return std::nullopt;
        }
        isApart = isApart || startsWithDigit(part) || part.front() == ' ' || part.back() == ' ';
        if (plus >= left.size()) {
            return slipWhen(isApart, Sentence::markOneFormula);
        }
        left.remove_prefix(plus + 1);
        plus = left.find('+');
    }
}

std::optional<Mark> chargesLeftIn(const Attempt& attempt)
{
    return slipWhen(attempt.read.hasCharge, Sentence::markChargesLeftIn);
}

std::optional<Mark> raisedNumber(const Attempt& attempt)
{
    return slipWhen(attempt.read.hasRaisedNumber, Sentence::markRaisedNumber);
}

std::optional<Mark> numberInFront(const Attempt& attempt)
{
    const char first = attempt.read.text.front();
    return slipWhen(first >= '0' && first <= '9', Sentence::markNumberBefore);
}

// "Fe(III)2O3" is read as one with iodine. Where no iodide is asked for, the numeral shows even if
// more is wrong.
std::optional<Mark> numeralLeftIn(const Attempt& attempt)
{
    const bool isIodide = attempt.answer.anion->id == Ion::iodide;
    const bool hasNumeral = attempt.read.text.find("(II)") != std::string::npos ||
                            attempt.read.text.find("(III)") != std::string::npos;
    const std::vector<std::string> others = withoutNumeral(attempt.read.text);
    const bool isRightWithout =
        std::any_of(others.begin(), others.end(), [&attempt](const std::string& other) {
            return isAmong(attempt.right, readFormula(other).simplest);
        });
    return slipWhen(isRightWithout || (hasNumeral && !isIodide), Sentence::markRomanNumeral);
}

std::optional<Mark> waterLeftIn(const Attempt& attempt)
{
    const std::size_t dot = attempt.read.text.find('.');
    return slipWhen(dot != std::string::npos &&
                        isAmong(attempt.right, attempt.read.text.substr(0, dot)),
                    Sentence::markWaterLeftIn);
}

std::optional<Mark> bracketNotNeeded(const Attempt& attempt)
{
    return slipWhen(isAmong(attempt.right, attempt.read.simplest), Sentence::markBracketNotNeeded);
}

std::optional<Mark> bracketMissing(const Attempt& attempt)
{
    const std::string typed = withoutBrackets(attempt.read.text);
    const bool isSame =
        std::any_of(attempt.right.begin(), attempt.right.end(),
                    [&typed](const std::string& text) { return withoutBrackets(text) == typed; });
    return slipWhen(isSame, Sentence::markBracketMissing);
}

std::optional<Mark> notSimplified(const Attempt& attempt)
{
    return slipWhen(isMultiple(attempt.read.atoms, attempt.rightAtoms), Sentence::markSimplify);
}

// The right ions in wrong numbers; those of a metal may be right for another charge of it, "PbO2".
std::optional<Mark> chargesDoNotCancel(const Attempt& attempt)
{
    const IonRow& cation = *attempt.answer.cation;
    const IonRow& anion = *attempt.answer.anion;
    const Counts counts = countsIn(attempt.read.simplest, written(cation), written(anion));
    if (counts.positive == 0) {
        return std::nullopt;
    }
    const int charge = -anion.charge * counts.negative;
    const bool isNeutral = hasRomanNumeral(cation) && charge % counts.positive == 0 &&
                           hasOtherCharge(cation, charge / counts.positive);
    return markOf(Verdict::slip,
                  isNeutral ? Sentence::markChargeOfMetal : Sentence::markChargesDoNotCancel);
}

// Another ion for one of the two, whatever their numbers: "Na2SO3", "NaHSO4", "NH3Cl".
std::optional<Mark> otherIon(const Attempt& attempt)
{
    const IonRow& cation = *attempt.answer.cation;
    const IonRow& anion = *attempt.answer.anion;
    const auto isMadeOf = [&](const WrittenIon& positive, const WrittenIon& negative) {
        return countsIn(attempt.read.simplest, positive, negative).positive > 0;
    };
    for (const Confusion* const other : confusionsOf(anion)) {
        if (isMadeOf(written(cation), {other->formula, other->isGroup})) {
            return markOf(Verdict::slip, other->sentence);
        }
    }
    for (const Confusion* const other : confusionsOf(cation)) {
        if (isMadeOf({other->formula, other->isGroup}, written(anion))) {
            return markOf(Verdict::slip, other->sentence);
        }
    }
    return std::nullopt;
}

// "PbOHOH", "MgClCl"
std::optional<Mark> writtenOut(const Attempt& attempt)
{
    const IonRow& cation = *attempt.answer.cation;
    const IonRow& anion = *attempt.answer.anion;
    const std::string& typed = attempt.read.simplest;
    const bool lacksBracket = repeatsGroup(cation, anion) && typed.find('(') == std::string::npos;
    return slipWhen(attempt.read.atoms == attempt.rightAtoms && isWrittenOut(typed, cation, anion),
                    lacksBracket ? Sentence::markBracketForGroups : Sentence::markNumberForIons);
}

std::optional<Mark> otherOrder(const Attempt& attempt)
{
    const IonRow& cation = *attempt.answer.cation;
    const IonRow& anion = *attempt.answer.anion;
    const std::string reversed = repeated(written(anion), anionsIn(cation, anion)) +
                                 repeated(written(cation), cationsIn(cation, anion));
    if (attempt.read.simplest == reversed) {
        return markOf(Verdict::slip, Sentence::markPositiveFirst);
    }
    return slipWhen(attempt.read.atoms == attempt.rightAtoms, Sentence::markIonAfterIon);
}

std::optional<Mark> symbol(const Attempt& attempt)
{
    const std::string wrong = wrongSymbol(attempt.read.simplest, attempt.right);
    return wrong.empty() ? std::nullopt
                         : std::optional(markOf(Verdict::slip,
                                                say<Sentence::markCheckSymbol>(formula(wrong))));
}

std::optional<Mark> ending(const Attempt& attempt)
{
    return slipWhen(mistakesEnding(*attempt.answer.anion, attempt.read.atoms, attempt.rightAtoms),
                    Sentence::markEnding);
}

std::optional<Mark> oxygens(const Attempt& attempt)
{
    return slipWhen(differInOxygens(attempt.read.atoms, attempt.rightAtoms), Sentence::markOxygens);
}

constexpr Rule rules[] = {
    nothingTyped,  right,       capitals,           lookalikes,     listedSlip,
    sum,           notRead,     chargesLeftIn,      raisedNumber,   numberInFront,
    numeralLeftIn, waterLeftIn, bracketNotNeeded,   bracketMissing, notSimplified,
    writtenOut,    otherOrder,  chargesDoNotCancel, otherIon,       symbol,
    ending,        oxygens,
};

} // namespace

Mark markFormula(const FormulaAnswer& answer, const std::vector<Slip>& slips,
                 std::string_view typed, Sentence whatToType)
{
    Attempt attempt = {answer, slips, whatToType, withoutBond(spelledOut(plainTyped(typed))),
                       {},     {},    {},         {}};
    attempt.round = withRoundBraces(attempt.plain);
    attempt.read = readFormula(attempt.plain);
    attempt.right = spellingsOf(*answer.cation, *answer.anion);
    attempt.rightAtoms = readFormula(attempt.right.front()).atoms;
    for (const Rule rule : rules) {
        if (const std::optional<Mark> mark = rule(attempt)) {
            return *mark;
        }
    }
    return markOf(Verdict::wrong, Sentence::markNotYet);
}

} // namespace lesson
