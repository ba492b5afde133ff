#include "lesson/kinds/shared/orders.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <numeric>

#include "lesson/kinds/shared/quantities.hpp"
#include "lesson/marking/number.hpp"

namespace lesson
{

namespace
{

constexpr int figuresOnTheWay[] = {3, 4};

// ---------------------------------------------------------------------------------- rounding

// A number above 0 that is yet to be rounded: a fraction, not in lowest terms, times a power of
// ten. The two parts are below 10^14, so that rounding to four figures stays below 10^18.
struct Quotient {
    std::int64_t numerator;
    std::int64_t denominator;
    int exponent = 0;
};

Quotient quotientOf(Ratio value)
{
    return {value.numerator, value.denominator};
}

Quotient quotientOf(Decimal value)
{
    return {value.digits, 1, value.exponent};
}

Ratio valueOf(const Quotient& quotient)
{
    return ratio(quotient.numerator, quotient.denominator) * powerOfTen(quotient.exponent);
}

Quotient operator*(const Quotient& a, const Quotient& b)
{
    return {a.numerator * b.numerator, a.denominator * b.denominator, a.exponent + b.exponent};
}

Quotient reciprocal(const Quotient& value)
{
    return {value.denominator, value.numerator, -value.exponent};
}

Quotient operator/(const Quotient& a, const Quotient& b)
{
    return a * reciprocal(b);
}

// What people round a number to: two decimals where it lies halfway between them.
struct Roundings {
    Decimal lower;
    Decimal upper;

    bool areTwo() const
    {
        return lower.digits != upper.digits;
    }
};

// With as many digits as figures, a power of ten included.
Decimal decimalOf(std::int64_t digits, int exponent, std::int64_t tooMany)
{
    return digits == tooMany ? Decimal{digits / 10, exponent + 1} : Decimal{digits, exponent};
}

Roundings roundingsOf(const Quotient& value, int figures)
{
    const std::int64_t tooMany = figures == 3 ? 1000 : 10000;
    std::int64_t numerator = value.numerator;
    std::int64_t denominator = value.denominator;
    int exponent = value.exponent;
    while (numerator < denominator * (tooMany / 10)) {
        numerator *= 10;
        --exponent;
    }
    while (numerator >= denominator * tooMany) {
        denominator *= 10;
        ++exponent;
    }
    const std::int64_t below = numerator / denominator;
    const std::int64_t beyond = 2 * (numerator % denominator) - denominator; // half a unit
    return {decimalOf(below + (beyond > 0 ? 1 : 0), exponent, tooMany),
            decimalOf(below + (beyond >= 0 ? 1 : 0), exponent, tooMany)};
}

// ----------------------------------------------------------------------------------- orders

// Both with three figures.
bool isAtMost(Decimal a, Decimal b)
{
    return a.exponent < b.exponent || (a.exponent == b.exponent && a.digits <= b.digits);
}

struct Range {
    Decimal least;
    Decimal greatest;

    bool holds(Decimal value) const
    {
        return isAtMost(least, value) && isAtMost(value, greatest);
    }
    bool holds(const Quotient& value) const
    {
        const Roundings roundings = roundingsOf(value, askedFigures);
        return holds(roundings.lower) && holds(roundings.upper);
    }
};

// All orders of one calculation with as many figures on the way.
class Orders
{
public:
    Orders(const Calculation& toWorkOut, int figuresOfResults, const Range& correctAnswers)
        : calculation(toWorkOut), figures(figuresOfResults), range(correctAnswers)
    {
        for (const Ratio factor : calculation.above) {
            factors.push_back({quotientOf(factor), true, false});
        }
        for (const Ratio factor : calculation.below) {
            factors.push_back({quotientOf(factor), false, false});
        }
        if (calculation.moles != ratio(1)) {
            factors.push_back({quotientOf(calculation.moles), true, true});
        }
    }

    // Of the first two factors it does not matter which one is taken up first.
    bool endInRange() const
    {
        const unsigned all = (1U << factors.size()) - 1;
        for (std::size_t i = 0; i < factors.size(); ++i) {
            const Factor& first = factors[i];
            const unsigned others = all & ~(1U << i);
            for (std::size_t second = i + 1; second < factors.size(); ++second) {
                if (!takeUp(second, first.value, first.isAbove, others)) {
                    return false;
                }
            }
        }
        return true;
    }

private:
    struct Factor {
        Quotient value;
        bool isAbove;
        bool isOnEitherSide; // as its reciprocal
    };

    // From a result, which is the wanted fraction or what it has to be divided into, by each of the
    // factors that are left.
    bool endInRange(const Quotient& result, bool isUpright, unsigned left) const
    {
        for (std::size_t i = 0; i < factors.size(); ++i) {
            if ((left & (1U << i)) != 0 && !takeUp(i, result, isUpright, left)) {
                return false;
            }
        }
        return true;
    }

    bool takeUp(std::size_t which, const Quotient& result, bool isUpright, unsigned left) const
    {
        const auto& [factor, isAbove, isOnEitherSide] = factors[which];
        const unsigned others = left & ~(1U << which);
        if (isAbove == isUpright) {
            const Quotient product = result * factor;
            return goOn(product, isUpright, others) &&
                   (!isOnEitherSide || goOn(reciprocal(product), !isUpright, others));
        }
        return goOn(result / factor, isUpright, others) &&
               goOn(factor / result, !isUpright, others);
    }

    bool goOn(const Quotient& result, bool isUpright, unsigned left) const
    {
        if (left == 0) {
            return !isUpright || isInRangeAtLast(result);
        }
        const Roundings roundings = roundingsOf(result, figures);
        return endInRange(quotientOf(roundings.lower), isUpright, left) &&
               (!roundings.areTwo() || endInRange(quotientOf(roundings.upper), isUpright, left));
    }

    // Where something is taken away, the quotient before it may be rounded too.
    bool isInRangeAtLast(const Quotient& quotient) const
    {
        if (calculation.less.numerator == 0) {
            return range.holds(quotient);
        }
        const Roundings roundings = roundingsOf(quotient, figures);
        return isInRangeWhenLess(valueOf(quotient)) &&
               isInRangeWhenLess(lesson::valueOf(roundings.lower)) &&
               isInRangeWhenLess(lesson::valueOf(roundings.upper));
    }

    bool isInRangeWhenLess(Ratio quotient) const
    {
        const Ratio rest = quotient - calculation.less;
        return rest.numerator > 0 && range.holds(quotientOf(rest));
    }

    const Calculation& calculation;
    int figures;
    const Range& range;
    std::vector<Factor> factors;
};

Ratio exactly(const Calculation& calculation)
{
    const Ratio above = std::accumulate(calculation.above.begin(), calculation.above.end(),
                                        ratio(1), std::multiplies<>());
    const Ratio quotient = std::accumulate(calculation.below.begin(), calculation.below.end(),
                                           above, std::divides<>());
    return quotient * calculation.moles - calculation.less;
}

// The greatest number of three figures below one, and the least above one.
Decimal before(Decimal value)
{
    return value.digits == 100 ? Decimal{999, value.exponent - 1}
                               : Decimal{value.digits - 1, value.exponent};
}
Decimal after(Decimal value)
{
    return value.digits == 999 ? Decimal{100, value.exponent + 1}
                               : Decimal{value.digits + 1, value.exponent};
}

// The last one that is marked as correct, going on from the rounded value; one unit away all are.
Decimal lastCorrect(Ratio exact, Decimal (*next)(Decimal))
{
    Decimal last = next(roundedTo(exact, askedFigures));
    for (Decimal one = next(last); agrees(one, exact, askedFigures, false); one = next(one)) {
        last = one;
    }
    return last;
}

} // namespace

std::vector<Ratio> roundedOrKept(Ratio value)
{
    std::vector<Ratio> all = {value};
    for (const int figures : figuresOnTheWay) {
        const auto [lower, upper] = roundingsOf(quotientOf(value), figures);
        for (const Decimal rounded : {lower, upper}) {
            if (std::find(all.begin(), all.end(), valueOf(rounded)) == all.end()) {
                all.push_back(valueOf(rounded));
            }
        }
    }
    return all;
}

CorrectAnswers::CorrectAnswers(Ratio exact)
    : least(lastCorrect(exact, before)), greatest(lastCorrect(exact, after))
{
}

bool CorrectAnswers::haveEveryOrderOf(const Calculation& calculation) const
{
    const Range range = {least, greatest};
    return range.holds(quotientOf(exactly(calculation))) &&
           std::all_of(std::begin(figuresOnTheWay), std::end(figuresOnTheWay), [&](int figures) {
               return Orders(calculation, figures, range).endInRange();
           });
}

} // namespace lesson
