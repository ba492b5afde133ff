#include "lesson/marking/number.hpp"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <optional>
#include <utility>
#include <variant>

#include "lesson/chemistry/composition.hpp"
#include "lesson/marking/marks.hpp"
#include "lesson/marking/number_fit.hpp"
#include "lesson/reading/measure.hpp"
#include "lesson/reading/typed.hpp"
#include "lesson/reading/typed_number.hpp"
#include "lesson/reading/units.hpp"

namespace lesson
{

namespace
{

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

Span figuresOf(const Target& key)
{
    return number(std::to_string(key.figures));
}

Mark correctMark(const TypedNumber& number, const Target& key, const Spans& rounded)
{
    const bool isKey = isEqual(number, roundedTo(key.value, key.figures));
    return markOf(Verdict::correct, isKey ? say<Sentence::markCorrect>()
                                          : say<Sentence::markCorrectTo>(figuresOf(key), rounded));
}

Mark figuresMark(const TypedNumber& number, const Target& key, const Spans& rounded)
{
    const Decimal answer = roundedTo(key.value, key.figures);
    const bool lacksZeros =
        number.mostFigures < key.figures && answer.digits % 10 == 0 && isEqual(number, answer);
    return markOf(Verdict::figures, lacksZeros ? say<Sentence::markKeepZero>(rounded)
                                               : say<Sentence::markFigures>(figuresOf(key)));
}

// A wrong volume, and no wrong mass, is what leads three places off.
Mark powerMark(int power, const NumberAnswer& answer, const Ask& ask)
{
    const std::optional<Unit> unit = unitOf(ask.unit);
    const bool isMass = unit && unit->dimension == Dimension::mass;
    const bool mayBeVolume = answer.hasGivenVolumes && !isMass && (power == 3 || power == -3);
    return markOf(Verdict::powerOfTen,
                  mayBeVolume ? Sentence::markSizeOfVolumes : Sentence::markSize);
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
        return markOf(Verdict::close, Sentence::markClose);
    }
    return markOf(Verdict::close, missesHydrogens(number, answer, ask)
                                      ? Sentence::markCloseHydrogens
                                      : Sentence::markCloseMasses);
}

// ---- What could not be read

struct Misread {
    std::string_view letter;
    Sentence sentence;
};
constexpr Misread misreads[] = {
    {"l", Sentence::markSmallLForOne},  {"I", Sentence::markLargeIForOne},
    {"i", Sentence::markSmallIForOne},  {"|", Sentence::markStrokeForOne},
    {"O", Sentence::markLargeOForZero}, {"o", Sentence::markSmallOForZero},
};

Sentence misreadSentence(std::string_view letter)
{
    return std::find_if(std::begin(misreads), std::end(misreads),
                        [letter](const Misread& misread) { return misread.letter == letter; })
        ->sentence;
}

// "1.250" may be 1250.
Span pointOrComma(const std::string& decimals)
{
    std::string thousands = decimals;
    thousands.erase(thousands.find('.'), 1);
    return say<Sentence::markPointOrComma>(number(thousands), number(decimals));
}

Mark markUnread(const TypedMeasure& measure, const Ask& ask)
{
    switch (measure.problem) {
    case NumberProblem::unread:
        return unreadable(measure.part, Sentence::markTypeNumber);
    case NumberProblem::pointOrComma:
        return markOf(Verdict::unreadable, pointOrComma(measure.part));
    case NumberProblem::otherUnit:
        return markOf(Verdict::unreadable, say<Sentence::markUnit>(unit(ask.unit)));
    case NumberProblem::minus:
        return markOf(Verdict::unreadable, Sentence::markMinus);
    case NumberProblem::letterForDigit:
        return markOf(Verdict::unreadable, misreadSentence(measure.part));
    case NumberProblem::none:
    case NumberProblem::nothingTyped:
        break;
    }
    return markOf(Verdict::unreadable, Sentence::markTypeNumber);
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
Spans roundedAsTyped(const Target& key, const TypedMeasure& reading)
{
    const std::string rounded = shown(key.value * powerOfTen(-reading.power), key.figures);
    return reading.power == 0 ? line(number(rounded)) : measure(rounded, reading.unit);
}

Mark markRead(const TypedMeasure& reading, const NumberAnswer& answer,
              const std::vector<Slip>& slips, const Ask& ask)
{
    const TypedNumber number = numberOf(reading, ask.figures);
    const Target key = {answer.value, ask.figures, answer.isMolarMass};
    const Spans rounded = roundedAsTyped(key, reading);
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
        return markOf(Verdict::correct, say<Sentence::markCorrectByTable>(rounded));
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
    return markOf(Verdict::wrong, Sentence::markNotYet);
}

} // namespace

bool isVisible(const NumberAnswer& answer, int figures, Ratio slip)
{
    if (slip.numerator <= 0) {
        return false;
    }
    const TypedNumber typed = typedNumber(roundedTo(slip, figures));
    return !isRight(typed, answer, figures) && !isClose(typed, answer.value);
}

void addSlip(Exercise& exercise, Ratio value, const Spans& sentence)
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
    exercise.slips.push_back({shown(value, ask.figures) + " " + ask.unit, value, sentence});
}

Mark markNumber(const NumberAnswer& answer, const Ask& ask, const std::vector<Slip>& slips,
                std::string_view typed, const Writing& writing)
{
    const TypedMeasure measure = readMeasure(plainTyped(typed), {ask.unit, ask.of}, writing);
    return measure.problem == NumberProblem::none ? markRead(measure, answer, slips, ask)
                                                  : markUnread(measure, ask);
}

} // namespace lesson
