// The classes from which members of finite pools are drawn come equally often: whether a salt
// dissolves, whether it follows its rule, in which ratio acid and base react.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "lesson/every/chemistry.hpp"
#include "lesson/every/common.hpp"
#include "lesson/every/spread.hpp"

namespace
{

void allowEqually(Spread& spread, const std::string& what, const std::vector<std::string>& classes)
{
    spread.beginClass(1);
    for (const std::string& one : classes) {
        spread.allow(what, one);
        spread.endCombination();
    }
    spread.endClass();
}

// Draws the first exercises of each paper, while no class can have run out.
template <typename Tell>
std::string problemsOf(Spread& spread, const std::string& kind, Tell tell)
{
    constexpr unsigned first = 3;
    const unsigned papers = std::min(papersToCheck(), 10000U);
    Problems problems;
    problems.at(kind, papers, first);
    for (unsigned paper = 1; paper <= papers; ++paper) {
        for (unsigned number = 1; number <= first; ++number) {
            tell(exerciseAt(kind, paper, number));
        }
    }
    spread.check(problems);
    return problems.text();
}

std::string keyOf(const Json& exercise)
{
    return exercise["key"]["text"];
}

bool isAgainstTheRule(const Json& exercise)
{
    for (const TypedPair& pair : typedSolubilityPairs()) {
        if (exercise["given"][0]["name"] == pair.cation.name &&
            exercise["given"][1]["name"] == pair.anion.name) {
            return isAgainstTheRule(pair);
        }
    }
    return false;
}

TEST(SharesTest, HalfOfTheAnswersAreYes)
{
    Spread spread;
    allowEqually(spread, "key", {"yes", "no"});
    EXPECT_EQ(problemsOf(spread, "solubility:1",
                         [&](const Json& exercise) { spread.draw("key", keyOf(exercise)); }),
              "");
}

TEST(SharesTest, RulesAndExceptionsComeEquallyOften)
{
    Spread spread;
    allowEqually(spread, "key", {"yes", "no"});
    allowEqually(spread, "pair", {"rule", "exception"});
    EXPECT_EQ(problemsOf(spread, "solubility:2",
                         [&](const Json& exercise) {
                             spread.draw("key", keyOf(exercise));
                             spread.draw("pair", isAgainstTheRule(exercise) ? "exception" : "rule");
                         }),
              "");
}

TEST(SharesTest, HalfOfTheMixturesHaveAPrecipitate)
{
    Spread spread;
    allowEqually(spread, "key", {"none", "a formula"});
    EXPECT_EQ(problemsOf(spread, "solubility:3",
                         [&](const Json& exercise) {
                             spread.draw("key", keyOf(exercise) == "none" ? "none" : "a formula");
                         }),
              "");
}

std::string ratioIn(const Json& exercise)
{
    const Json& left = exercise["equation"]["left"];
    return left[0][0].get<std::string>() + ":" + left[1][0].get<std::string>();
}

void checkRatios(int level, const std::vector<std::string>& ratios)
{
    Spread spread;
    allowEqually(spread, "ratio", ratios);
    EXPECT_EQ(problemsOf(spread, kindAt("neutralisation", level),
                         [&](const Json& exercise) { spread.draw("ratio", ratioIn(exercise)); }),
              "");
}

TEST(SharesTest, RatiosOfHydroxidesComeEquallyOften)
{
    checkRatios(1, {"1:1", "1:2", "2:1"});
}

TEST(SharesTest, RatiosOfOxidesAndCarbonatesComeEquallyOften)
{
    checkRatios(2, {"1:1", "1:2", "2:1"});
}

TEST(SharesTest, RatiosWithAThreeOrASixComeEquallyOften)
{
    checkRatios(3, {"1:3", "2:3", "3:1", "3:2", "6:1"});
}

} // namespace
