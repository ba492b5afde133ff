#include "lesson/marking/number.hpp"

#include <algorithm>
#include <utility>
#include <variant>

#include "lesson/marking/typed_number.hpp"

namespace lesson
{

namespace
{

// What a typed number is compared with.
struct Target {
    Ratio value;
    int figures;
    bool isMolarMass;
};

// How a typed number stands to its target.
enum class Fit {
    none,
    correct,
    otherFigures, // right, but with more figures or with fewer, two at least
    oneFigure,    // right, with one figure only
};

bool isWithin(const TypedNumber& number, Ratio low, Ratio high)
{
    return compare(number, low) >= 0 && compare(number, high) <= 0;
}

bool agrees(const TypedNumber& number, const Target& target)
{
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
        return Fit::otherFigures;
    }
    for (int fewer = target.figures - 1; fewer >= 2; --fewer) {
        if (mayHave(number, fewer) && isRounded(number, target.value, fewer)) {
            return Fit::otherFigures;
        }
    }
    const bool isRight = isEqual(number, roundedTo(target.value, target.figures));
    return mayHave(number, 1) && isRight ? Fit::oneFigure : Fit::none;
}

bool isCorrectWithRoundedMasses(const TypedNumber& number, const NumberAnswer& answer, int figures)
{
    const auto agreesWith = [&](Ratio value) {
        return agrees(number, Target{value, figures, answer.isMolarMass});
    };
    return mayHave(number, figures) && std::any_of(answer.withRoundedMasses.begin(),
                                                   answer.withRoundedMasses.end(), agreesWith);
}

bool isRight(const TypedNumber& number, const NumberAnswer& answer, int figures)
{
    return fitOf(number, {answer.value, figures, answer.isMolarMass}) != Fit::none ||
           isCorrectWithRoundedMasses(number, answer, figures);
}

// The first of the slips whose answer was typed, or none.
const Slip* slipOf(const TypedNumber& number, const std::vector<Slip>& slips, int figures,
                   bool isMolarMass)
{
    const auto found = std::find_if(slips.begin(), slips.end(), [&](const Slip& slip) {
        const Fit fit = fitOf(number, {*slip.value, figures, isMolarMass});
        return fit == Fit::correct || fit == Fit::otherFigures;
    });
    return found == slips.end() ? nullptr : &*found;
}

} // namespace

bool agrees(Decimal typed, Ratio exact, int figures, bool isMolarMass)
{
    return agrees(typedNumber(typed), Target{exact, figures, isMolarMass});
}

void addSlip(Exercise& exercise, Ratio value, std::string sentence)
{
    const auto* const asked = std::get_if<NumberAnswer>(&exercise.answer);
    if (asked == nullptr || value.numerator <= 0) {
        return;
    }
    const NumberAnswer& answer = *asked;
    const Ask& ask = exercise.ask;
    const TypedNumber typed = typedNumber(roundedTo(value, ask.figures));
    const bool isExactlyRight =
        agrees(roundedTo(value, 17), answer.value, ask.figures, answer.isMolarMass);
    if (isExactlyRight || isRight(typed, answer, ask.figures) ||
        slipOf(typed, exercise.slips, ask.figures, answer.isMolarMass) != nullptr) {
        return;
    }
    exercise.slips.push_back(
        {shown(value, ask.figures) + " " + ask.unit, value, std::move(sentence)});
}

} // namespace lesson
