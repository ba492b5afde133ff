#include "lesson/marking/ion.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <optional>
#include <string>

#include "lesson/marking/formula.hpp"
#include "lesson/marking/lookalikes.hpp"
#include "lesson/marking/sentences.hpp"
#include "lesson/marking/spellings.hpp"
#include "lesson/marking/typed.hpp"
#include "lesson/marking/typed_formula.hpp"

namespace lesson
{

namespace
{

// Of an ion that is never asked for.
constexpr std::string_view typeIon = "Type a formula with its charge, such as Sr2+.";

constexpr std::string_view digits = "0123456789";
constexpr std::string_view signs = "+-";
constexpr std::string_view digitsAndSigns = "0123456789+-";

// Whether a learner typed the name in place of the formula, with or without "ion".
bool isNameOf(std::string_view plain, const IonRow& ion)
{
    const std::string typed = lowerCase(plain);
    const auto isTyped = [&typed](std::string_view name) {
        const std::string known = lowerCase(name);
        return !known.empty() && (typed == known || typed == known + " ion");
    };
    return isTyped(ion.name) || isTyped(ion.american);
}

// "SO4**2-" -> "SO4^2-", as programmers raise
std::string withCaret(std::string plain)
{
    const std::size_t stars = plain.find("**");
    return stars == std::string::npos ? plain : plain.replace(stars, 2, "^");
}

// "Fe3+ ion" -> "Fe3+", "Fe(III) ions." -> "Fe(III)"
std::string withoutIon(const std::string& plain)
{
    constexpr std::string_view ends[] = {" ion", " ions", " ion.", " ions."};
    constexpr std::string_view before = "+-)]}";
    const std::string lower = lowerCase(plain);
    for (const std::string_view end : ends) {
        const std::size_t front = plain.size() - std::min(plain.size(), end.size());
        if (front > 0 && lower.compare(front, end.size(), end) == 0 &&
            before.find(plain[front - 1]) != std::string_view::npos) {
            return plain.substr(0, front);
        }
    }
    return plain;
}

// One way to read what was typed: "SO42-" is SO4 with 2-, SO42 with 1-, or SO with 42-.
struct Reading {
    std::string bare; // the formula as it was typed, without the charge
    TypedFormula formula;
    int charge; // with its sign; 0 where there is none
};

// The part of a text behind its last character that is none of these.
std::string_view endOf(std::string_view text, std::string_view characters)
{
    const std::size_t last = text.find_last_not_of(characters);
    return last == std::string_view::npos ? text : text.substr(last + 1);
}

bool endsWith(std::string_view text, char end)
{
    return !text.empty() && text.back() == end;
}

// 1 where there are no digits; a size that no ion has where there are many, or a zero in front.
int sizeOf(std::string_view typedDigits)
{
    constexpr int beyond = 99;
    if (typedDigits.substr(0, 1) == "0") {
        return beyond;
    }
    int size = typedDigits.empty() ? 1 : 0;
    for (const char digit : typedDigits) {
        size = std::min(size * 10 + (digit - '0'), beyond);
    }
    return size;
}

// Signs of one kind: "-", "+++".
bool areSigns(std::string_view text)
{
    return !text.empty() && text.find_first_not_of(text.front()) == std::string_view::npos &&
           signs.find(text.front()) != std::string_view::npos;
}

int withSign(std::string_view typedSigns, int size)
{
    return typedSigns.front() == '-' ? -size : size;
}

// What was typed, cut before the digits and signs at its end.
struct Cut {
    std::string_view formula;
    std::string_view charge; // digits and signs
    bool isRaised;           // by a "^", or set apart in brackets
};

// Brackets around the whole, "[SO4^2-]", tell nothing.
std::string_view withoutOuterBrackets(std::string_view bare)
{
    if (bare.size() > 2 && bare.front() == '(' && bare.back() == ')') {
        const std::string_view inside = bare.substr(1, bare.size() - 2);
        if (signs.find(inside.back()) != std::string_view::npos &&
            inside.find(')') == std::string_view::npos) {
            return inside;
        }
    }
    return bare;
}

Cut cutOff(std::string_view bare)
{
    std::string_view charge = endOf(bare, digitsAndSigns);
    std::string_view formula = bare.substr(0, bare.size() - charge.size());
    bool isRaised = false;
    if (charge.empty() && endsWith(bare, ')')) {
        const std::string_view inside = bare.substr(0, bare.size() - 1);
        charge = endOf(inside, digitsAndSigns);
        formula = inside.substr(0, inside.size() - charge.size());
        isRaised = endsWith(formula, '(') && !charge.empty();
        if (!isRaised) {
            return {bare, "", false};
        }
        formula.remove_suffix(1);
    }
    if (endsWith(formula, '^')) {
        formula.remove_suffix(1);
        isRaised = true;
    }
    return {formula, charge, isRaised};
}

Reading reading(std::string bare, int charge)
{
    // Here a dot at the end ends no sentence.
    TypedFormula formula = endsWith(bare, '.') ? TypedFormula() : readFormula(bare);
    return {std::move(bare), std::move(formula), charge};
}

std::string joined(std::string_view a, std::string_view b)
{
    return std::string(a).append(b);
}

// Each way to split digits and a sign that leaves at most two digits to the charge. A single digit
// that is raised belongs to the charge; of several, as in "SO⁴²⁻", one may be a subscript.
std::vector<Reading> splitReadings(std::string_view formula, std::string_view before,
                                   std::string_view sign, bool isRaised)
{
    std::vector<Reading> readings;
    const std::size_t most = std::min<std::size_t>(before.size(), 2);
    for (std::size_t ofCharge = isRaised && before.size() == 1 ? 1 : 0; ofCharge <= most;
         ++ofCharge) {
        const std::string_view subscript = before.substr(0, before.size() - ofCharge);
        const std::string_view size = before.substr(before.size() - ofCharge);
        readings.push_back(reading(joined(formula, subscript), withSign(sign, sizeOf(size))));
    }
    return readings;
}

// Digits and signs are raised by one "^" at most, in front of the first of them: who types a raised
// sign behind ordinary digits, "SO4^2⁻" or "Fe+³", has two of them, or one behind the sign.
std::string raisedOnce(std::string_view bare)
{
    std::string text;
    bool isRaised = false;
    for (std::size_t i = 0; i < bare.size(); ++i) {
        const bool goesOn = digitsAndSigns.find(bare.substr(i + 1, 1)) != std::string_view::npos &&
                            i + 1 < bare.size();
        const bool isBehindSign = i > 0 && signs.find(bare[i - 1]) != std::string_view::npos;
        if (bare[i] == '^' && goesOn && (isRaised || isBehindSign)) {
            continue;
        }
        isRaised =
            bare[i] == '^' || (isRaised && digitsAndSigns.find(bare[i]) != std::string_view::npos);
        text += bare[i];
    }
    return text;
}

// The sign alone is raised, "Fe3⁺": the digits before it are read as before any other sign.
std::vector<Reading> raisedSignReadings(std::string_view formula, std::string_view sign)
{
    const std::string_view before = endOf(formula, digits);
    formula.remove_suffix(before.size());
    return splitReadings(formula, before, sign, false);
}

// "SO42-", "SO4-2", "O--", "SO4^2-", "Fe^+3", "Fe(3+)", or without a charge "SO4".
std::vector<Reading> readingsOf(std::string_view typed)
{
    const std::string bare = raisedOnce(typed);
    const Cut cut = cutOff(withoutOuterBrackets(bare));
    const std::string_view behind = endOf(cut.charge, digits);
    const std::string_view upToSign = cut.charge.substr(0, cut.charge.size() - behind.size());
    const std::string_view sign = endOf(upToSign, signs);
    const std::string_view before = upToSign.substr(0, upToSign.size() - sign.size());
    if (!areSigns(sign) || before.find_first_of(signs) != std::string_view::npos) {
        return {reading(bare, 0)};
    }
    if (behind.empty() && sign.size() == 1) {
        return cut.isRaised && before.empty()
                   ? raisedSignReadings(cut.formula, sign)
                   : splitReadings(cut.formula, before, sign, cut.isRaised);
    }
    if ((sign.size() > 1 && !behind.empty()) || (cut.isRaised && !before.empty())) {
        return {reading(bare, 0)};
    }
    const int size =
        behind.empty() ? static_cast<int>(std::min<std::size_t>(sign.size(), 99)) : sizeOf(behind);
    return {reading(joined(cut.formula, before), withSign(sign, size))};
}

// What was typed, and all that it is compared with.
struct Attempt {
    const IonRow& ion;
    const std::vector<Slip>& slips;
    std::string plain;
    std::vector<Reading> readings;  // at least one
    std::vector<std::string> right; // the formula without the charge, and its other spellings
    Atoms rightAtoms;
};

template <typename Wanted>
bool anyReading(const Attempt& attempt, Wanted wanted)
{
    return std::any_of(attempt.readings.begin(), attempt.readings.end(), wanted);
}

bool isAmong(const std::vector<std::string>& texts, const std::string& text)
{
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

// Without regard to the charge; brackets around the whole group are usual.
bool hasRightFormula(const Attempt& attempt, const Reading& reading)
{
    const TypedFormula& formula = reading.formula;
    return !formula.hasCharge && !formula.hasRaisedNumber &&
           (isAmong(attempt.right, formula.text) || isAmong(attempt.right, formula.simplest));
}

bool isRight(const Attempt& attempt, const Reading& reading)
{
    return reading.charge == attempt.ion.charge && hasRightFormula(attempt, reading);
}

// The charge as digits behind the formula: "Fe3", "SO42".
bool hasChargeAsSubscript(const Attempt& attempt, const Reading& reading)
{
    const int size = std::abs(attempt.ion.charge);
    return size > 1 && std::abs(reading.charge) <= 1 &&
           reading.formula.text == attempt.right.front() + std::to_string(size);
}

// ---------------------------------------------------------------- the rules, first that fits

using Rule = std::optional<Mark> (*)(const Attempt&);

std::optional<Mark> slipWhen(bool isMade, std::string_view sentence)
{
    return isMade ? std::optional(markOf(Verdict::slip, sentence)) : std::nullopt;
}

std::optional<Mark> nothingTyped(const Attempt& attempt)
{
    return attempt.plain.empty() ? std::optional(markOf(Verdict::unreadable, typeIon))
                                 : std::nullopt;
}

std::optional<Mark> right(const Attempt& attempt)
{
    return anyReading(attempt, [&](const Reading& reading) { return isRight(attempt, reading); })
               ? std::optional(markOf(Verdict::correct, sentences::correct))
               : std::nullopt;
}

std::optional<Mark> capitals(const Attempt& attempt)
{
    const auto differsInCapitals = [&](const Reading& reading) {
        const std::string folded = lowerCase(reading.bare);
        return !hasRightFormula(attempt, reading) &&
               std::any_of(attempt.right.begin(), attempt.right.end(),
                           [&](const std::string& text) { return lowerCase(text) == folded; });
    };
    return slipWhen(anyReading(attempt, differsInCapitals), sentences::capitals);
}

// "Fe^3": who raises a number means a charge, so none of the slips with a number of atoms is made.
std::optional<Mark> raisedWithoutSign(const Attempt& attempt)
{
    const Reading& reading = attempt.readings.front();
    return slipWhen(reading.formula.isRead && reading.charge == 0 &&
                        reading.bare.find('^') != std::string::npos &&
                        reading.bare.find_first_of(signs) == std::string::npos,
                    "A charge has a sign: + or -.");
}

bool isSlip(const Reading& typed, const Slip& slip)
{
    const Reading known = readingsOf(slip.text).front();
    return typed.charge == known.charge &&
           (typed.bare == known.bare ||
            (typed.formula.isRead && typed.formula.simplest == known.formula.simplest));
}

std::optional<Mark> listedSlip(const Attempt& attempt)
{
    for (const Slip& slip : attempt.slips) {
        if (anyReading(attempt, [&](const Reading& reading) { return isSlip(reading, slip); })) {
            return markOf(Verdict::slip, slip.sentence);
        }
    }
    return std::nullopt;
}

std::optional<Mark> lookalikes(const Attempt& attempt)
{
    for (const Lookalike& other : lookalikesOf(attempt.plain)) {
        Attempt mended = attempt;
        mended.readings = readingsOf(bareFormula(other.meant));
        if (right(mended).has_value()) {
            return markOf(Verdict::slip, other.sentence);
        }
    }
    return std::nullopt;
}

std::optional<Mark> notRead(const Attempt& attempt)
{
    if (anyReading(attempt, [](const Reading& reading) { return reading.formula.isRead; })) {
        return std::nullopt;
    }
    if (isNameOf(attempt.plain, attempt.ion)) {
        return markOf(Verdict::unreadable, "That is its name. Type its formula with its charge.");
    }
    const std::string& unread = attempt.readings.back().formula.unread;
    return unreadable(unread.empty() ? attempt.plain : unread, typeIon);
}

std::optional<Mark> wrongCharge(const Attempt& attempt)
{
    bool hasWrongSign = false;
    bool hasWrongSize = false;
    for (const Reading& reading : attempt.readings) {
        if (hasRightFormula(attempt, reading)) {
            const bool isOpposite = (reading.charge < 0) != (attempt.ion.charge < 0);
            (isOpposite ? hasWrongSign : hasWrongSize) = true;
        }
    }
    if (hasWrongSign) {
        return markOf(Verdict::slip, sentences::wrongSign);
    }
    const bool isTold = hasRomanNumeral(attempt.ion) && attempt.ion.charge > 0;
    return slipWhen(hasWrongSize, isTold ? sentences::romanCharge : sentences::wrongSize);
}

// "Fe(III)", "FeIII", "Fe^III", "Fe(III)3+", "Fe(III)+"
std::optional<Mark> numeralLeftIn(const Attempt& attempt)
{
    if (!hasRomanNumeral(attempt.ion)) {
        return std::nullopt;
    }
    for (const std::string& other : withoutNumeral(bareFormula(attempt.plain))) {
        Attempt mended = attempt;
        mended.readings = readingsOf(other);
        if (right(mended).has_value()) {
            return markOf(Verdict::slip, "The charge is right. Leave out the Roman numeral.");
        }
        const Reading& first = mended.readings.front();
        if (first.charge == 0 && hasRightFormula(mended, first)) {
            return markOf(Verdict::slip,
                          attempt.ion.charge > 0 ? sentences::romanCharge : sentences::noCharge);
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
    const Reading& reading = attempt.readings.front();
    if (reading.bare.find_first_of(signs) != std::string::npos || reading.charge != 0) {
        return std::nullopt;
    }
    return markOf(Verdict::slip, hasChargeAsSubscript(attempt, reading)
                                     ? sentences::chargeAsSubscript
                                     : sentences::noCharge);
}

std::optional<Mark> chargeAsSubscript(const Attempt& attempt)
{
    return slipWhen(
        anyReading(attempt,
                   [&](const Reading& reading) { return hasChargeAsSubscript(attempt, reading); }),
        sentences::chargeAsSubscript);
}

std::optional<Mark> otherOrder(const Attempt& attempt)
{
    const auto hasItsAtoms = [&](const Reading& reading) {
        return reading.charge == attempt.ion.charge && !reading.formula.hasCharge &&
               reading.formula.atoms == attempt.rightAtoms;
    };
    return slipWhen(anyReading(attempt, hasItsAtoms), "The atoms are right. Check their order.");
}

std::optional<Mark> ending(const Attempt& attempt)
{
    return slipWhen(anyReading(attempt,
                               [&](const Reading& reading) {
                                   return mistakesEnding(attempt.ion, reading.formula.atoms,
                                                         attempt.rightAtoms);
                               }),
                    sentences::ending);
}

std::optional<Mark> oxygens(const Attempt& attempt)
{
    return slipWhen(anyReading(attempt,
                               [&](const Reading& reading) {
                                   return differInOxygens(reading.formula.atoms,
                                                          attempt.rightAtoms);
                               }),
                    sentences::oxygens);
}

std::optional<Mark> symbol(const Attempt& attempt)
{
    for (const Reading& reading : attempt.readings) {
        const std::string wrong = wrongSymbol(reading.formula.simplest, attempt.right);
        if (reading.charge == attempt.ion.charge && !wrong.empty()) {
            return markOf(Verdict::slip, sentences::checkSymbol(wrong));
        }
    }
    return std::nullopt;
}

constexpr Rule rules[] = {
    nothingTyped,      right,         capitals, raisedWithoutSign, lookalikes,
    listedSlip,        numeralLeftIn, notRead,  noCharge,          wrongCharge,
    chargeAsSubscript, otherOrder,    ending,   oxygens,           symbol,
};

} // namespace

Mark markIon(const IonAnswer& answer, const std::vector<Slip>& slips, std::string_view typed)
{
    const std::string plain = withoutIon(withCaret(spelledOut(plainTyped(typed))));
    Attempt attempt = {*answer.ion, slips, withoutBond(plain), {}, {}, {}};
    attempt.readings = readingsOf(bareFormula(attempt.plain));
    attempt.right = spellingsOf(answer.ion->formula);
    attempt.rightAtoms = readFormula(answer.ion->formula).atoms;
    for (const Rule rule : rules) {
        if (const std::optional<Mark> mark = rule(attempt)) {
            return *mark;
        }
    }
    return markOf(Verdict::wrong, sentences::notYet);
}

} // namespace lesson
