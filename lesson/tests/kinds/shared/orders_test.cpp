#include "lesson/kinds/shared/orders.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "lesson/marking/number.hpp"
#include "lesson/tests/support/calculation.hpp"

namespace lesson
{

namespace
{

Ratio exactly(const Calculation& calculation)
{
    Ratio value = ratio(1);
    for (const Ratio factor : calculation.above) {
        value = value * factor;
    }
    for (const Ratio factor : calculation.below) {
        value = value / factor;
    }
    return value * calculation.moles - calculation.less;
}

std::string textOf(const Calculation& calculation)
{
    std::string text;
    for (const Ratio factor : calculation.above) {
        text += " * " + exactText(factor);
    }
    for (const Ratio factor : calculation.below) {
        text += " / " + exactText(factor);
    }
    return text + " * " + exactText(calculation.moles) + " - " + exactText(calculation.less);
}

// Exercises in which somebody who rounded on the way was marked wrong, or "very close".
TEST(CorrectAnswersTest, OrdersThatEndTooFarAwayAreFound)
{
    struct Case {
        const char* order;
        Calculation calculation;
    };
    const Case cases[] = {
        {"18.85 / 10.0 = 1.89, 0.343 / 1.89 = 0.181, x 2 = 0.362",
         {{ratio(343, 1000), ratio(10, 1000)}, {ratio(1885, 100000)}, {}, ratio(2)}},
        {"25.0 x 0.422 = 10.6, / 32.45 = 0.327, x 2 = 0.654",
         {{ratio(422, 1000), ratio(25, 1000)}, {ratio(3245, 100000)}, {}, ratio(2)}},
        {"2.09 / 0.200 = 10.5, / 286 = 0.0367",
         {{ratio(209, 100)}, {ratio(200, 1000), ratio(28615, 100)}}},
    };
    for (const auto& [order, calculation] : cases) {
        EXPECT_FALSE(CorrectAnswers(exactly(calculation)).haveEveryOrderOf(calculation)) << order;
    }
}

// 0.388 x 0.0113 / 0.0250 x 2 = 0.351, when only the mean of 11.25 mL is rounded.
TEST(CorrectAnswersTest, ANumberThatIsRoundedBeforehandMayLeadTooFar)
{
    const CorrectAnswers correct(ratio(3492, 10000));
    const auto withMean = [](Ratio mean) {
        return Calculation{{ratio(388, 1000), mean}, {ratio(25, 1000)}, {}, ratio(2)};
    };
    const Ratio mean = ratio(1125, 100000);
    const std::vector<Ratio> used = roundedOrKept(mean);
    EXPECT_EQ(used, (std::vector<Ratio>{mean, ratio(112, 10000), ratio(113, 10000)}));
    EXPECT_FALSE(correct.haveEveryOrderOf(withMean(used.back())));
}

TEST(CorrectAnswersTest, ANumberWorkedOutBeforehandIsKeptOrRoundedToThreeOrFourFigures)
{
    EXPECT_EQ(roundedOrKept(ratio(92175, 3000)),
              (std::vector<Ratio>{ratio(92175, 3000), ratio(307, 10), ratio(3072, 100),
                                  ratio(3073, 100)}));
    EXPECT_EQ(roundedOrKept(ratio(2184, 100)),
              (std::vector<Ratio>{ratio(2184, 100), ratio(218, 10)}));
    EXPECT_EQ(roundedOrKept(ratio(24968, 100)),
              (std::vector<Ratio>{ratio(24968, 100), ratio(250), ratio(2497, 10)}));
    EXPECT_EQ(roundedOrKept(ratio(25, 1000)), (std::vector<Ratio>{ratio(25, 1000)}));
}

// Everything that a number may be rounded to, on two calculators that differ by their halves.
std::set<Ratio, bool (*)(Ratio, Ratio)> roundedBothWays(Ratio value, int figures)
{
    std::set<Ratio, bool (*)(Ratio, Ratio)> both([](Ratio a, Ratio b) { return a < b; });
    for (const bool halvesUp : {true, false}) {
        const auto rounded = Calculator{figures, halvesUp}(toFloat(value));
        both.insert(ratio(std::llround(rounded * 1e9L)) * powerOfTen(-9));
    }
    return both;
}

// Takes the factors up in the order of a permutation; `turns` tells where the next factor is
// divided by the result rather than the result by it.
class OneOrder
{
public:
    struct Factor {
        Ratio value;
        bool isAbove;
    };

    OneOrder(std::vector<Factor> inThisOrder, unsigned turnsOver, int figuresOfResults)
        : factors(std::move(inThisOrder)), turns(turnsOver), figures(figuresOfResults)
    {
    }

    // All quotients that it may end at; none where it ends at the reciprocal.
    std::vector<Ratio> quotients() const
    {
        std::vector<Ratio> found;
        goOn(found, factors[0].value, factors[0].isAbove, 1);
        return found;
    }

private:
    void goOn(std::vector<Ratio>& found, Ratio result, bool isUpright, std::size_t taken) const
    {
        if (taken == factors.size()) {
            if (isUpright) {
                found.push_back(result);
            }
            return;
        }
        const auto results = taken == 1 ? std::set<Ratio, bool (*)(Ratio, Ratio)>(
                                              {result}, [](Ratio a, Ratio b) { return a < b; })
                                        : roundedBothWays(result, figures);
        const auto [factor, isAbove] = factors[taken];
        for (const Ratio rounded : results) {
            if (isAbove == isUpright) {
                goOn(found, rounded * factor, isUpright, taken + 1);
            } else if ((turns >> taken & 1U) != 0) {
                goOn(found, factor / rounded, !isUpright, taken + 1);
            } else {
                goOn(found, rounded / factor, isUpright, taken + 1);
            }
        }
    }

    std::vector<Factor> factors;
    unsigned turns;
    int figures;
};

bool isCorrect(Ratio answer, Ratio exact)
{
    const auto rounded = roundedBothWays(answer, 3);
    return std::all_of(rounded.begin(), rounded.end(),
                       [&](Ratio one) { return agrees(roundedTo(one, 3), exact, 3, false); });
}

bool isEveryAnswerCorrect(Ratio quotient, const Calculation& calculation, int figures)
{
    const Ratio exact = exactly(calculation);
    std::vector<Ratio> quotients = {quotient};
    if (calculation.less != ratio(0)) {
        const auto rounded = roundedBothWays(quotient, figures);
        quotients.insert(quotients.end(), rounded.begin(), rounded.end());
    }
    return std::all_of(quotients.begin(), quotients.end(), [&](Ratio one) {
        return calculation.less < one && isCorrect(one - calculation.less, exact);
    });
}

bool isEveryOrderCorrect(const Calculation& calculation)
{
    std::vector<std::size_t> order(calculation.above.size() + calculation.below.size());
    std::iota(order.begin(), order.end(), 0U);
    bool areCorrect = true;
    do {
        std::vector<OneOrder::Factor> factors;
        for (const std::size_t i : order) {
            const bool isAbove = i < calculation.above.size();
            factors.push_back(
                {isAbove ? calculation.above[i] : calculation.below[i - calculation.above.size()],
                 isAbove});
        }
        for (const int figures : {3, 4}) {
            for (unsigned turns = 0; turns < 1U << factors.size(); ++turns) {
                for (const Ratio quotient : OneOrder(factors, turns, figures).quotients()) {
                    areCorrect = areCorrect && isEveryAnswerCorrect(quotient, calculation, figures);
                }
            }
        }
    } while (std::next_permutation(order.begin(), order.end()));
    return areCorrect;
}

TEST(CorrectAnswersTest, EveryOrderIsTried)
{
    std::mt19937 dice;
    const auto between = [&](unsigned least, unsigned greatest) {
        return static_cast<std::int64_t>(least + dice() % (greatest - least + 1));
    };
    int found[2] = {};
    for (int i = 0; i < 600; ++i) {
        Calculation calculation = {{ratio(between(100, 999), 1000), ratio(between(200, 800), 20)},
                                   {ratio(between(100, 250), 10)}};
        if (i % 3 == 0) {
            calculation.moles = i % 2 == 0 ? ratio(2) : ratio(1, 2);
        }
        if (i % 3 == 1) {
            calculation.less = exactly(calculation) / ratio(between(2, 20));
        }
        const bool isBorne = CorrectAnswers(exactly(calculation)).haveEveryOrderOf(calculation);
        Calculation withMolesAbove = calculation;
        Calculation withMolesBelow = calculation;
        if (calculation.moles != ratio(1)) {
            withMolesAbove.above.push_back(calculation.moles);
            withMolesBelow.below.push_back(ratio(1) / calculation.moles);
            withMolesAbove.moles = withMolesBelow.moles = ratio(1);
        }
        EXPECT_EQ(isBorne,
                  isEveryOrderCorrect(withMolesAbove) && isEveryOrderCorrect(withMolesBelow))
            << textOf(calculation);
        ++found[isBorne ? 1 : 0];
    }
    EXPECT_GE(found[0], 60);
    EXPECT_GE(found[1], 200);
}

} // namespace

} // namespace lesson
