#include "lesson/marking/number_fit.hpp"

#include <algorithm>
#include <cstdint>

#include "lesson/marking/number.hpp"

namespace lesson
{

namespace
{

bool isWithin(const TypedNumber& number, Ratio low, Ratio high)
{
    return compare(number, low) >= 0 && compare(number, high) <= 0;
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

} // namespace

bool isFar(const TypedNumber& number, Ratio value)
{
    return !isWithin(number, {4 * value.numerator, 5 * value.denominator},
                     {6 * value.numerator, 5 * value.denominator});
}

bool isEqual(const TypedNumber& number, Decimal decimal)
{
    return compare(number, valueOf(decimal)) == 0;
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

bool isRight(const TypedNumber& number, const NumberAnswer& answer, int figures)
{
    return isFit(fitOf(number, {answer.value, figures, answer.isMolarMass})) ||
           isCorrectWithRoundedMasses(number, answer, figures);
}

bool isClose(const TypedNumber& number, Ratio value)
{
    return isWithin(number, value * ratio(99, 100), value * ratio(101, 100));
}

bool agrees(Decimal typed, Ratio exact, int figures, bool isMolarMass)
{
    return agrees(typedNumber(typed), Target{exact, figures, isMolarMass});
}

} // namespace lesson
