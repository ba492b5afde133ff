// The classes from which members of finite pools are drawn come equally often, whether a salt
// dissolves and whether it follows its rule; or as often as their common members allow, in which
// ratio acid and base react.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "lesson/tests/every/chemistry.hpp"
#include "lesson/tests/every/common.hpp"
#include "lesson/tests/every/spread.hpp"

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

// --------------------------------------------------------------------- acids, bases and ratios

std::string ratioIn(const Json& exercise)
{
    const Json& left = exercise["equation"]["left"];
    return left[0][0].get<std::string>() + ":" + left[1][0].get<std::string>();
}

struct Weight {
    const char* formula;
    int weight;
};
// clang-format off
constexpr Weight acidWeights[] = {
    {"HCl", 5}, {"HBr", 1}, {"HNO3", 5}, {"H2SO4", 5}, {"H3PO4", 3}, {"CH3COOH", 4},
};
constexpr Weight cationWeights[] = {
    {"Na", 6}, {"NH", 6}, {"Mg", 6}, {"Mn", 1}, {"Ni", 1}, {"Li", 1}, {"K", 6}, {"Ag", 3},
    {"Ca", 6}, {"Ba", 3}, {"Fe", 4}, {"Co", 1}, {"Cu", 6}, {"Zn", 4}, {"Pb", 3}, {"Al", 6},
    {"Cr", 1},
};
// clang-format on

int weightOf(const TypedReaction& reaction)
{
    int weight = 0;
    for (const Weight& acid : acidWeights) {
        weight += reaction.acid == acid.formula ? acid.weight : 0;
    }
    for (const Weight& cation : cationWeights) {
        const std::size_t at = reaction.base[0] == '(' ? 1 : 0;
        if (reaction.base.compare(at, std::string(cation.formula).size(), cation.formula) == 0) {
            weight *= cation.weight;
            break;
        }
    }
    const bool isLimestone =
        reaction.base == "CaCO3" && (reaction.acid == "HCl" || reaction.acid == "HNO3");
    const bool isAcidCarbonate = reaction.base.find("HCO3") != std::string::npos;
    return weight * (isAcidCarbonate ? 4 : 6) * (isLimestone ? 3 : 1);
}

int levelOf(const TypedReaction& reaction)
{
    if (std::max(reaction.ofAcid, reaction.ofBase) > 2) {
        return 3;
    }
    return reaction.base.find("OH") != std::string::npos ? 1 : 2;
}

// A ratio counts for what its reactions weigh together, but for no more than 600.
std::map<std::string, int> ratioWeights(int level)
{
    std::map<std::string, int> weights;
    for (const auto& [species, reaction] : typedNeutralisations()) {
        if (levelOf(reaction) == level) {
            int& weight =
                weights[std::to_string(reaction.ofAcid) + ":" + std::to_string(reaction.ofBase)];
            weight = std::min(weight + weightOf(reaction), 600);
        }
    }
    return weights;
}

TEST(SharesTest, RatiosComeAsOftenAsTheirCommonReactionsAllow)
{
    for (int level = 1; level <= 3; ++level) {
        Spread spread;
        spread.beginClass(1);
        for (const auto& [ratio, weight] : ratioWeights(level)) {
            spread.allow("ratio", ratio, weight);
            spread.endCombination(weight);
        }
        spread.endClass();
        const std::string kind = kindAt("neutralisation", level);
        Problems problems;
        const unsigned papers = std::min(papersToCheck(), 10000U);
        problems.at(kind, papers, 1);
        for (unsigned paper = 1; paper <= papers; ++paper) {
            spread.draw("ratio", ratioIn(exerciseAt(kind, 2 * paper, 1)));
        }
        // One reaction, any of the pool, is put off to the end of each walk.
        spread.check(problems, 0.1);
        EXPECT_EQ(problems.text(), "");
    }
}

} // namespace
