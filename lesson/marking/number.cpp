#include "lesson/marking/number.hpp"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <optional>
#include <utility>
#include <variant>

#include "lesson/chemistry/composition.hpp"
#include "lesson/marking/sentences.hpp"
#include "lesson/reading/measure.hpp"
#include "lesson/reading/typed.hpp"
#include "lesson/reading/typed_number.hpp"
#include "lesson/reading/units.hpp"

namespace lesson
{

namespace
{

// What a typed number is compared with.
struct Target {
    Ratio value;
    int figures = 0;
    bool isMolarMass = false;
};

// How a typed number stands to its target.
enum class Fit {
    none,
    correct,
    otherFigures, // right, but with more figures or with fewer, two at least
    oneFigure,    // right, with one figure and no more
};

bool isWithin(const TypedNumber& number, Ratio low, Ratio high)
{
    return compare(number, low) >= 0 && compare(number, high) <= 0;
}

// So far from a value that it agrees with it to no number of figures from two on. Most mistakes
// are, and this tells so without rounding anything; the bounds need not be in lowest terms.
bool isFar(const TypedNumber& number, Ratio value)
{
    return !isWithin(number, {4 * value.numerator, 5 * value.denominator},
                     {6 * value.numerator, 5 * value.denominator});
}

bool agrees(const TypedNumber& number, const Target& target)
{
    if (isFar(number, target.value)) {
        return false;
    }
    const Decimal rounded = roundedTo(target.value, target.figures);
    if (isWithin(number, valueOf({rounded.digits - 1, rounded.exponent}),
                 valueOf({rounded.digits + 1, rounded.exponent}))) {
        return true;
    }
    return !target.isMolarMass &&
           isWithin(number, target.value * ratio(199, 200), target.value * ratio(201, 200));
}

bool agreesWhenRounded(const TypedNumber& number, const Target& target)
{
    const Neighbours rounded = roundedTo(number, target.figures);
    return agrees(rounded.lower, target) || agrees(rounded.upper, target);
}

bool isEqual(const TypedNumber& number, Decimal decimal)
{
    return compare(number, valueOf(decimal)) == 0;
}

// Whether a number is a value rounded to so many figures; a half may go up or down.
bool isRounded(const TypedNumber& number, Ratio value, int figures)
{
    if (isEqual(number, roundedTo(value, figures))) {
        return true;
    }
    DigitStream stream(value);
    Decimal lower;
    for (int i = 0; i < figures; ++i) {
        lower.digits = lower.digits * 10 + stream.next();
    }
    lower.exponent = stream.place() + 1;
    return stream.next() == 5 && stream.isAtEnd() && isEqual(number, lower);
}

bool mayHave(const TypedNumber& number, int figures)
{
    return number.fewestFigures <= figures && figures <= number.mostFigures;
}

Fit fitOf(const TypedNumber& number, const Target& target)
{
    if (mayHave(number, target.figures) && agrees(number, target)) {
        return Fit::correct;
    }
    if (number.mostFigures > target.figures && agreesWhenRounded(number, target)) {
        return target.isMolarMass ? Fit::correct : Fit::otherFigures;
    }
    for (int fewer = target.figures - 1; fewer >= 2; --fewer) {
        if (mayHave(number, fewer) && isRounded(number, target.value, fewer)) {
            return Fit::otherFigures;
        }
    }
    return number.mostFigures == 1 && isRounded(number, target.value, 1) ? Fit::oneFigure
                                                                         : Fit::none;
}

// How many figures a sum of masses has, the zeros behind its point left out: 3 for 58.5 and 188.
std::int64_t figuresOfSum(Ratio sum)
{
    DigitStream stream(sum);
    std::int64_t figures = 0;
    while (!stream.isAtEnd() || stream.place() >= 0) {
        stream.next();
        ++figures;
    }
    return figures;
}

// A sum of rounded masses is right as it comes out, or with more figures.
bool isSumOfRoundedMasses(const TypedNumber& number, Ratio sum, int figures)
{
    return number.mostFigures >= std::min<std::int64_t>(figures, figuresOfSum(sum)) &&
           agreesWhenRounded(number, {sum, figures, true});
}

// Most numbers are far from all that rounded masses lead to, which stand in order.
bool mayHaveRoundedMasses(const TypedNumber& number, const NumberAnswer& answer)
{
    if (answer.withRoundedMasses.empty()) {
        return false;
    }
    const auto [low, high] =
        std::minmax(answer.withRoundedMasses.front(), answer.withRoundedMasses.back());
    return isWithin(number, low * ratio(98, 100), high * ratio(102, 100));
}

bool isCorrectWithRoundedMasses(const TypedNumber& number, const NumberAnswer& answer, int figures)
{
    const auto agreesWith = [&](Ratio value) {
        return answer.isMolarMass
                   ? isSumOfRoundedMasses(number, value, figures)
                   : mayHave(number, figures) && agrees(number, Target{value, figures, false});
    };
    return mayHaveRoundedMasses(number, answer) &&
           std::any_of(answer.withRoundedMasses.begin(), answer.withRoundedMasses.end(),
                       agreesWith);
}

bool isFit(Fit fit)
{
    return fit == Fit::correct || fit == Fit::otherFigures;
}

// With two figures at least.
bool isRight(const TypedNumber& number, const NumberAnswer& answer, int figures)
{
    return isFit(fitOf(number, {answer.value, figures, answer.isMolarMass})) ||
           isCorrectWithRoundedMasses(number, answer, figures);
}

// The first of the slips whose answer was typed, or none.
const Slip* slipOf(const TypedNumber& number, const std::vector<Slip>& slips, const Target& key)
{
    const auto found = std::find_if(slips.begin(), slips.end(), [&](const Slip& slip) {
        return slip.value && !isFar(number, *slip.value) &&
               isFit(fitOf(number, {*slip.value, key.figures, key.isMolarMass}));
    });
    return found == slips.end() ? nullptr : &*found;
}

// Whether a slip leads to just this number: 0.300, where 0.3 was typed.
bool isAnswerOfSlip(const TypedNumber& number, const std::vector<Slip>& slips, int figures)
{
    return std::any_of(slips.begin(), slips.end(), [&](const Slip& slip) {
        return slip.value && isEqual(number, roundedTo(*slip.value, figures));
    });
}

// The power of ten by which a number of two figures at least misses the answer, 0 if there is none.
int powerMissed(TypedNumber number, const NumberAnswer& answer, int figures)
{
    constexpr int most = 6;
    number.place -= most + 1;
    for (int power = -most; power <= most; ++power) {
        ++number.place;
        if (power != 0 && isRight(number, answer, figures)) {
            return power;
        }
    }
    return 0;
}

bool isClose(const TypedNumber& number, Ratio value)
{
    return isWithin(number, value * ratio(99, 100), value * ratio(101, 100));
}

std::string toFigures(int figures)
{
    return std::to_string(figures) + " significant figures";
}

Mark correctMark(const TypedNumber& number, const Target& key, const std::string& rounded)
{
    const bool isKey = isEqual(number, roundedTo(key.value, key.figures));
    return {Verdict::correct,
            isKey ? "Correct."
                  : "Correct. To " + toFigures(key.figures) + " it is " + rounded + "."};
}

Mark figuresMark(const TypedNumber& number, const Target& key, const std::string& rounded)
{
    const Decimal answer = roundedTo(key.value, key.figures);
    const bool lacksZeros =
        number.mostFigures < key.figures && answer.digits % 10 == 0 && isEqual(number, answer);
    return {Verdict::figures,
            lacksZeros ? "Keep the zero: " + rounded + "."
                       : "The value is right. Now give it to " + toFigures(key.figures) + "."};
}

// A wrong volume, and no wrong mass, is what leads three places off.
Mark powerMark(int power, const NumberAnswer& answer, const Ask& ask)
{
    const std::optional<Unit> unit = unitOf(ask.unit);
    const bool isMass = unit && unit->dimension == Dimension::mass;
    const bool mayBeVolume = answer.hasGivenVolumes && !isMass && (power == 3 || power == -3);
    return {Verdict::powerOfTen, mayBeVolume
                                     ? "Right digits, wrong size. Check each volume: mL or L?"
                                     : "Right digits, wrong size."};
}

// Whether a molar mass is right but for a few hydrogen atoms too many or too few.
bool missesHydrogens(const TypedNumber& number, const NumberAnswer& answer, const Ask& ask)
{
    const Atoms atoms = compositionOf(ask.of).atoms;
    const auto hydrogen =
        std::find_if(atoms.begin(), atoms.end(), [](AtomCount atom) { return atom.element == 1; });
    const int most = hydrogen == atoms.end() ? 0 : hydrogen->count;
    const Ratio mass = massOf({{1, 1}});
    for (int missed = -most; missed <= most; ++missed) {
        NumberAnswer other = answer;
        other.value = answer.value + ratio(missed) * mass;
        for (Ratio& sum : other.withRoundedMasses) {
            sum = sum + ratio(missed) * mass;
        }
        if (isRight(number, other, ask.figures)) {
            return true;
        }
    }
    return false;
}

Mark closeMark(const TypedNumber& number, const NumberAnswer& answer, const Ask& ask)
{
    if (!answer.isMolarMass) {
        return {Verdict::close, "Very close. Did you round a number on the way?"};
    }
    return {Verdict::close, missesHydrogens(number, answer, ask)
                                ? "Very close. Count the hydrogen atoms again."
                                : "Very close. Check the atomic masses."};
}

// ---- What could not be read

struct Misread {
    std::string_view letter;
    std::string_view sentence;
};
constexpr Misread misreads[] = {
    {"l", "There is a small letter l where the digit 1 should be."},
    {"I", "There is a large letter I where the digit 1 should be."},
    {"i", "There is a small letter i where the digit 1 should be."},
    {"|", "There is a stroke where the digit 1 should be."},
    {"O", "There is a letter O where a zero should be."},
    {"o", "There is a letter o where a zero should be."},
};

std::string_view misreadSentence(std::string_view letter)
{
    return std::find_if(std::begin(misreads), std::end(misreads),
                        [letter](const Misread& misread) { return misread.letter == letter; })
        ->sentence;
}

// "Do you mean 1250 or 1.250?", in the reader's writing
std::string pointOrComma(const std::string& number, const Writing& writing)
{
    const std::size_t point = number.find('.');
    std::string thousands = number;
    std::string decimals = number;
    thousands.erase(point, 1);
    decimals[point] = writing.decimal;
    return "Do you mean " + thousands + " or " + decimals + "?";
}

Mark markUnread(const TypedMeasure& measure, const Ask& ask, const Writing& writing)
{
    constexpr std::string_view typeNumber = "Type a number, such as 0.125.";
    switch (measure.problem) {
    case NumberProblem::unread:
        return unreadable(measure.part, typeNumber);
    case NumberProblem::pointOrComma:
        return {Verdict::unreadable, pointOrComma(measure.part, writing)};
    case NumberProblem::otherUnit:
        return {Verdict::unreadable, "The answer should be in " + ask.unit + "."};
    case NumberProblem::minus:
        return markOf(Verdict::unreadable, "Leave out the minus sign.");
    case NumberProblem::letterForDigit:
        return markOf(Verdict::unreadable, misreadSentence(measure.part));
    case NumberProblem::none:
    case NumberProblem::nothingTyped:
        break;
    }
    return markOf(Verdict::unreadable, typeNumber);
}

// ---- What was read

// A quotient has as many figures as are asked for, or more.
TypedNumber numberOf(const TypedMeasure& measure, int figures)
{
    TypedNumber number = measure.number;
    if (measure.text.isQuotient()) {
        number.fewestFigures = figures;
        number.mostFigures = std::numeric_limits<std::int64_t>::max();
    }
    return number;
}

// The answer as the sentences tell it: in the unit that was typed, where that is not the asked one.
std::string roundedAsTyped(const Target& key, const TypedMeasure& reading)
{
    const std::string rounded = shown(key.value * powerOfTen(-reading.power), key.figures);
    return reading.power == 0 ? rounded : rounded + " " + std::string(reading.unit);
}

Mark markRead(const TypedMeasure& reading, const NumberAnswer& answer,
              const std::vector<Slip>& slips, const Ask& ask)
{
    const TypedNumber number = numberOf(reading, ask.figures);
    const Target key = {answer.value, ask.figures, answer.isMolarMass};
    const std::string rounded = roundedAsTyped(key, reading);
    const Fit fit = fitOf(number, key);
    if (fit == Fit::correct) {
        return correctMark(number, key, rounded);
    }
    const bool isOtherFigures =
        fit == Fit::otherFigures ||
        (fit == Fit::oneFigure && !isAnswerOfSlip(number, slips, ask.figures));
    if (isOtherFigures && !answer.isMolarMass) {
        return figuresMark(number, key, rounded);
    }
    if (isCorrectWithRoundedMasses(number, answer, ask.figures)) {
        return {Verdict::correct,
                "Correct with rounded atomic masses. With this table it is " + rounded + "."};
    }
    if (isOtherFigures) {
        return figuresMark(number, key, rounded);
    }
    if (const Slip* const slip = slipOf(number, slips, key)) {
        return {Verdict::slip, slip->sentence};
    }
    if (const int power = powerMissed(number, answer, ask.figures)) {
        return powerMark(power, answer, ask);
    }
    if (isClose(number, answer.value)) {
        return closeMark(number, answer, ask);
    }
    return markOf(Verdict::wrong, sentences::notYet);
}

} // namespace

bool agrees(Decimal typed, Ratio exact, int figures, bool isMolarMass)
{
    return agrees(typedNumber(typed), Target{exact, figures, isMolarMass});
}

bool isVisible(const NumberAnswer& answer, int figures, Ratio slip)
{
    if (slip.numerator <= 0) {
        return false;
    }
    const TypedNumber typed = typedNumber(roundedTo(slip, figures));
    return !isRight(typed, answer, figures) && !isClose(typed, answer.value);
}

void addSlip(Exercise& exercise, Ratio value, std::string sentence)
{
    const auto* const answer = std::get_if<NumberAnswer>(&exercise.answer);
    if (answer == nullptr || value.numerator <= 0) {
        return;
    }
    const Ask& ask = exercise.ask;
    const Target key = {answer->value, ask.figures, answer->isMolarMass};
    const TypedNumber typed = typedNumber(roundedTo(value, ask.figures));
    if (isRight(typed, *answer, ask.figures) || slipOf(typed, exercise.slips, key) != nullptr) {
        return;
    }
    exercise.slips.push_back(
        {shown(value, ask.figures) + " " + ask.unit, value, std::move(sentence)});
}

Mark markNumber(const NumberAnswer& answer, const Ask& ask, const std::vector<Slip>& slips,
                std::string_view typed, const Writing& writing)
{
    const TypedMeasure measure = readMeasure(plainTyped(typed), {ask.unit, ask.of}, writing);
    return measure.problem == NumberProblem::none ? markRead(measure, answer, slips, ask)
                                                  : markUnread(measure, ask, writing);
}

} // namespace lesson
