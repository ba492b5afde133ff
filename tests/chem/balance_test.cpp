#include "chem/balance.hpp"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <numeric>
#include <string>
#include <vector>

#include "support/atom_count.hpp"
#include "support/catalogue.hpp"
#include "support/neutral_compound.hpp"

namespace
{

// In the order acid, base, salt, water, carbon dioxide.
using Coefficients = std::array<int, 5>;

Coefficients coefficients()
{
    return {nacid, nbase, nsalt, nH2O, nCO2};
}

void setCoefficients(const Coefficients& values)
{
    nacid = values[0];
    nbase = values[1];
    nsalt = values[2];
    nH2O = values[3];
    nCO2 = values[4];
}

// Taken before the first test can balance anything.
const Coefficients coefficientsAtStart = coefficients();

Ion anionOf(const std::string& name, int charge)
{
    return Ion(name, "X", true, static_cast<short>(charge), false, "");
}

Ion cationOf(int charge)
{
    return Ion("metal", "M", false, static_cast<short>(charge), false, "");
}

// Every case starts from coefficients that no equation has, so that a call is seen to reset them.
bool balanceAfresh(const Ion& acidAnion, const Ion& baseCation, const Ion& baseAnion)
{
    setCoefficients({17, 19, 23, 29, 31});
    return balance(acidAnion, baseCation, baseAnion);
}

const char* const baseAnions[] = {"hydroxide", "oxide", "carbonate", "bicarbonate"};

TEST(BalanceTest, CoefficientsAre1And0AtStart)
{
    EXPECT_EQ(coefficientsAtStart, (Coefficients{1, 1, 1, 1, 0}));
}

TEST(BalanceTest, KnownEquations)
{
    const struct {
        const char* acidAnion;
        const char* baseCation;
        const char* baseAnion;
        Coefficients expected;
    } cases[] = {
        {"chloride", "sodium", "hydroxide", {1, 1, 1, 1, 0}},
        {"chloride", "ammonium", "hydroxide", {1, 1, 1, 1, 0}},
        {"sulphate", "sodium", "hydroxide", {1, 2, 1, 2, 0}},
        {"phosphate", "barium", "hydroxide", {2, 3, 1, 6, 0}},
        {"nitrate", "iron(III)", "hydroxide", {3, 1, 1, 3, 0}},
        {"chloride", "magnesium", "oxide", {2, 1, 1, 1, 0}},
        {"nitrate", "lithium", "oxide", {2, 1, 2, 1, 0}},
        {"nitrate", "aluminium", "oxide", {6, 1, 2, 3, 0}},
        {"sulphate", "iron(III)", "oxide", {3, 1, 1, 3, 0}},
        {"phosphate", "aluminium", "oxide", {2, 1, 2, 3, 0}},
        {"phosphate", "potassium", "oxide", {2, 3, 2, 3, 0}},
        {"chloride", "sodium", "carbonate", {2, 1, 2, 1, 1}},
        {"sulphate", "aluminium", "carbonate", {3, 1, 1, 3, 3}},
        {"phosphate", "sodium", "carbonate", {2, 3, 2, 3, 3}},
        {"sulphate", "sodium", "bicarbonate", {1, 2, 1, 2, 2}},
        {"phosphate", "magnesium", "bicarbonate", {2, 3, 1, 6, 6}},
    };
    for (const auto& [acidAnion, baseCation, baseAnion, expected] : cases) {
        EXPECT_TRUE(
            balanceAfresh(ionCalled(acidAnion), ionCalled(baseCation), ionCalled(baseAnion)))
            << acidAnion << ", " << baseCation << ", " << baseAnion;
        EXPECT_EQ(coefficients(), expected) << acidAnion << ", " << baseCation << ", " << baseAnion;
    }
}

void expectEveryAtomConserved(const Ion& acidAnion, const Ion& baseCation, const Ion& baseAnion)
{
    std::map<std::string, int> left;
    addAtoms(left, nacid, acidOf(acidAnion));
    addAtoms(left, nbase, neutralCompound(baseCation, baseAnion));
    std::map<std::string, int> right;
    addAtoms(right, nsalt, neutralCompound(baseCation, acidAnion));
    addAtoms(right, nH2O, "H2O");
    if (nCO2 > 0) {
        addAtoms(right, nCO2, "CO2");
    }
    EXPECT_EQ(left, right);
}

// What a chemist writes down at once: the acid and the base have to bring equal charges, the fewest
// that whole molecules of each substance can share out. Each water takes 1 charge from a hydroxide
// or bicarbonate, 2 from an oxide or carbonate.
Coefficients byCharges(const Ion& acidAnion, const Ion& baseCation, const Ion& baseAnion)
{
    const int inBase = std::lcm(baseCation.charge, baseAnion.charge);
    const int inSalt = std::lcm(baseCation.charge, acidAnion.charge);
    const int charges =
        std::lcm(std::lcm(int{acidAnion.charge}, inBase), std::lcm(inSalt, int{baseAnion.charge}));
    const int water = charges / baseAnion.charge;
    const bool carbon = baseAnion.name == "carbonate" || baseAnion.name == "bicarbonate";
    return {charges / acidAnion.charge, charges / inBase, charges / inSalt, water,
            carbon ? water : 0};
}

TEST(BalanceTest, EveryEquationOfTheCatalogueIsBalancedInLowestTerms)
{
    int equations = 0;
    for (const Ion& acidAnion : catalogueAnions()) {
        for (const Ion& baseCation : catalogueCations()) {
            for (const char* name : baseAnions) {
                const Ion baseAnion = ionCalled(name);
                SCOPED_TRACE(acidAnion.name + ", " + baseCation.name + ", " + name);
                EXPECT_TRUE(balanceAfresh(acidAnion, baseCation, baseAnion));
                EXPECT_EQ(coefficients(), byCharges(acidAnion, baseCation, baseAnion));
                expectEveryAtomConserved(acidAnion, baseCation, baseAnion);
                const Coefficients all = coefficients();
                EXPECT_EQ(std::accumulate(all.begin(), all.end(), 0, std::gcd<int, int>), 1);
                ++equations;
            }
        }
    }
    EXPECT_EQ(equations, 1400);
}

// Any other base anion has no oxygen for the water. What 100 passes leave, unreduced, depends on
// the charges alone: those of acid anion, base cation and base anion.
const std::map<std::array<int, 3>, Coefficients> neverBalanced = {
    // clang-format off
    {{1, 1, 1}, {2, 2, 2, 1, 0}}, {{1, 1, 2}, {2, 1, 2, 1, 0}},     {{1, 1, 3}, {6, 2, 6, 3, 0}},
    {{1, 2, 1}, {2, 1, 1, 1, 0}}, {{1, 2, 2}, {2, 1, 1, 1, 0}},     {{1, 2, 3}, {12, 2, 6, 6, 0}},
    {{1, 3, 1}, {6, 2, 2, 3, 0}}, {{1, 3, 2}, {72, 12, 24, 36, 0}}, {{1, 3, 3}, {6, 2, 2, 3, 0}},
    {{2, 1, 1}, {1, 2, 1, 1, 0}}, {{2, 1, 2}, {1, 1, 1, 1, 0}},     {{2, 1, 3}, {6, 4, 6, 6, 0}},
    {{2, 2, 1}, {1, 1, 1, 1, 0}}, {{2, 2, 2}, {1, 1, 1, 1, 0}},     {{2, 2, 3}, {3, 1, 3, 3, 0}},
    {{2, 3, 1}, {3, 2, 1, 3, 0}}, {{2, 3, 2}, {3, 1, 1, 3, 0}},     {{2, 3, 3}, {3, 2, 1, 3, 0}},
    {{3, 1, 1}, {2, 6, 2, 3, 0}}, {{3, 1, 2}, {8, 12, 8, 12, 0}},   {{3, 1, 3}, {2, 2, 2, 3, 0}},
    {{3, 2, 1}, {2, 3, 1, 3, 0}}, {{3, 2, 2}, {2, 3, 1, 3, 0}},     {{3, 2, 3}, {2, 1, 1, 3, 0}},
    {{3, 3, 1}, {2, 2, 2, 3, 0}}, {{3, 3, 2}, {8, 4, 8, 12, 0}},    {{3, 3, 3}, {2, 2, 2, 3, 0}},
    // clang-format on
};

TEST(BalanceTest, EveryOtherBaseAnionOfTheCatalogueGivesFalse)
{
    int combinations = 0;
    for (const Ion& acidAnion : catalogueAnions()) {
        for (const Ion& baseCation : catalogueCations()) {
            for (const Ion& other : catalogueAnions()) {
                if (other.name == "hydroxide" || other.name == "oxide" ||
                    other.name == "carbonate" || other.name == "bicarbonate") {
                    continue;
                }
                EXPECT_FALSE(balanceAfresh(acidAnion, baseCation, other));
                EXPECT_EQ(coefficients(),
                          neverBalanced.at({acidAnion.charge, baseCation.charge, other.charge}))
                    << acidAnion.name << ", " << baseCation.name << ", " << other.name;
                ++combinations;
            }
        }
    }
    EXPECT_EQ(combinations, 14 * 25 * 10);
}

TEST(BalanceTest, BaseAnionIsToldByItsWholeName)
{
    for (const char* name : {"", "Hydroxide", "hydroxid", "hydroxides", "OH", "Oxide", "dioxide",
                             "Carbonate", "icarbonate", "Bicarbonate", "hydrogen carbonate"}) {
        EXPECT_FALSE(balanceAfresh(anionOf("acid", 1), cationOf(1), anionOf(name, 1))) << name;
        EXPECT_EQ(coefficients(), (Coefficients{2, 2, 2, 1, 0})) << name;
    }
    // Neither its formula nor its sign is looked at.
    EXPECT_TRUE(balanceAfresh(anionOf("", 2), cationOf(1), Ion("oxide", "", false, 2, true, "")));
    EXPECT_EQ(coefficients(), (Coefficients{1, 1, 1, 1, 0}));
}

// Ions built by hand whose charges do not fit their names: what 100 passes leave.
TEST(BalanceTest, ImpossibleChargesAreGivenUpUnreduced)
{
    const struct {
        int acidAnion;
        int baseCation;
        const char* baseAnion;
        int baseAnionCharge;
        Coefficients expected;
    } cases[] = {
        {1, 1, "hydroxide", 2, {4, 2, 4, 3, 0}},
        {1, 3, "hydroxide", 2, {36, 6, 12, 27, 0}},
        {1, 5, "hydroxide", 1, {1, 1, 1, 3, 0}},
        {3, 5, "hydroxide", 2, {8, 12, 8, 42, 0}},
        {4, 1, "hydroxide", 1, {2, 2, 2, 5, 0}},
        {4, 3, "hydroxide", 2, {72, 12, 24, 162, 0}},
        {5, 4, "hydroxide", 3, {12, 4, 12, 38, 0}},
        {1, 1, "bicarbonate", 3, {3, 1, 3, 2, 1}},
        {1, 3, "bicarbonate", 2, {36, 6, 12, 27, 18}},
        {1, 4, "bicarbonate", 1, {2, 2, 2, 5, 8}},
        {2, 5, "bicarbonate", 1, {1, 2, 1, 6, 10}},
        {4, 1, "bicarbonate", 1, {2, 2, 2, 5, 2}},
        {4, 3, "bicarbonate", 2, {72, 12, 24, 162, 36}},
        {1, 1, "carbonate", 1, {2, 2, 2, 1, 2}},
        {1, 3, "carbonate", 1, {6, 2, 2, 3, 6}},
        {1, 3, "carbonate", 3, {6, 2, 2, 3, 2}},
        {4, 1, "carbonate", 2, {2, 1, 2, 4, 1}},
        {4, 2, "carbonate", 2, {1, 1, 1, 2, 1}},
        {5, 3, "carbonate", 2, {72, 12, 24, 180, 36}},
        {1, 1, "oxide", 1, {2, 2, 2, 1, 0}},
        {2, 1, "oxide", 1, {1, 2, 1, 1, 0}}, // At first only the cations differ.
        {2, 3, "oxide", 3, {3, 2, 1, 3, 0}},
        {4, 2, "oxide", 2, {1, 1, 1, 2, 0}},
        {5, 3, "oxide", 2, {72, 12, 24, 180, 0}},
    };
    for (const auto& [acidAnion, baseCation, baseAnion, baseAnionCharge, expected] : cases) {
        EXPECT_FALSE(balanceAfresh(anionOf("acid", acidAnion), cationOf(baseCation),
                                   anionOf(baseAnion, baseAnionCharge)))
            << acidAnion << ", " << baseCation << ", " << baseAnion << " " << baseAnionCharge;
        EXPECT_EQ(coefficients(), expected)
            << acidAnion << ", " << baseCation << ", " << baseAnion << " " << baseAnionCharge;
    }
}

// A negative size of the charge lets the coefficients grow by the same steps in every pass, so that
// they tell how many passes there were.
TEST(BalanceTest, GivesUpAfterExactly100Passes)
{
    EXPECT_FALSE(balanceAfresh(anionOf("acid", 1), cationOf(-1), anionOf("hydroxide", 1)));
    EXPECT_EQ(coefficients(), (Coefficients{201, 199, 199, 1, 0}));
    EXPECT_FALSE(balanceAfresh(anionOf("acid", 2), cationOf(-1), anionOf("hydroxide", 1)));
    EXPECT_EQ(coefficients(), (Coefficients{101, 200, 100, 1, 0}));
    EXPECT_FALSE(balanceAfresh(anionOf("acid", 3), cationOf(-2), anionOf("hydroxide", 3)));
    EXPECT_EQ(coefficients(), (Coefficients{202, 200, 200, 103, 0}));
}

TEST(BalanceTest, GreatestCommonDivisorByTrial)
{
    const struct {
        std::vector<int> elements;
        int expected;
    } cases[] = {
        {{4, 6}, 2},       {{6, 4}, 2},    {{36, 72, 12, 24}, 12}, {{6, 6, 6}, 6}, {{1, 5}, 1},
        {{0, 4}, 1},       {{4, 0}, 1},    {{-4, 8}, 1},           {{2}, 2},       {{1}, 1},
        {{7}, 7},          {{3, 5}, 1},    {{12, 18, 30}, 6},      {{9, 6}, 3},    {{2, 4, 5}, 1},
        {{35, 49, 14}, 7}, {{97, 97}, 97}, {{8, 12}, 4},
    };
    for (const auto& [elements, expected] : cases) {
        EXPECT_EQ(hcm(elements), expected) << testing::PrintToString(elements);
    }
}

TEST(BalanceTest, EveryArgumentTakesPartInTheDivisor)
{
    EXPECT_EQ(hcm(36, 72, 12, 24), 12);
    EXPECT_EQ(hcm(36, 72, 12, 24, 6), 6);
    for (std::size_t odd = 0; odd < 5; ++odd) {
        Coefficients v = {12, 12, 12, 12, 12};
        v[odd] = 9;
        EXPECT_EQ(hcm(v[0], v[1], v[2], v[3], v[4]), 3) << odd;
        if (odd < 4) {
            EXPECT_EQ(hcm(v[0], v[1], v[2], v[3]), 3) << odd;
        }
    }
    EXPECT_EQ(hcm(6, 6, 6, 6, 0), 1);
}

TEST(BalanceTest, LessThanAllIsStrict)
{
    const struct {
        int x;
        std::vector<int> elements;
        bool expected;
    } cases[] = {
        {3, {4, 5}, true},
        {4, {4, 5}, false},
        {4, {5, 4}, false},
        {5, {4, 6}, false},
        {0, {}, true},
        {9, {}, true},
        {-2, {-1, 0}, true},
        {-1, {-1, 0}, false},
        {1, {2}, true},
        {2, {2}, false},
        {2147483646, {2147483647}, true},
    };
    for (const auto& [x, elements, expected] : cases) {
        EXPECT_EQ(lessthanall(x, elements), expected)
            << x << " " << testing::PrintToString(elements);
    }
}

TEST(BalanceTest, AllDivisibleNeedsEveryRemainderToBe0)
{
    const struct {
        int x;
        std::vector<int> elements;
        bool expected;
    } cases[] = {
        {2, {4, 6}, true},  {4, {4, 6}, false}, {4, {6, 4}, false}, {3, {}, true},
        {5, {0, 5}, true},  {1, {7, 8}, true},  {2, {-4, 6}, true}, {2, {-3}, false},
        {-2, {4, 6}, true}, {6, {3}, false},    {3, {4}, false},
    };
    for (const auto& [x, elements, expected] : cases) {
        EXPECT_EQ(alldivisible(x, elements), expected)
            << x << " " << testing::PrintToString(elements);
    }
}

// The counts, with coefficients that are prime and differ, so that none can stand for another.
class BalanceCountTest : public testing::Test
{
protected:
    void SetUp() override
    {
        setCoefficients({5, 7, 11, 13, 17});
    }
};

TEST_F(BalanceCountTest, CountsThatNeedNoIons)
{
    EXPECT_EQ(HonRight(), 26);
    EXPECT_EQ(OonRight(), 2 * 17 + 13);
    EXPECT_EQ(ConRight(), 17);
    EXPECT_EQ(anonLeft(), 5);
}

TEST_F(BalanceCountTest, CountsInTheBase)
{
    // The charges of acid anion, base cation and base anion; hydrogen counts the acid's, too.
    const struct {
        int acidAnion;
        int baseCation;
        const char* baseAnion;
        int baseAnionCharge;
        int hydrogen;
        int oxygen;
        int carbon;
        int cations;
    } cases[] = {
        {1, 1, "hydroxide", 1, 5 + 7, 7, 0, 7},
        {2, 3, "hydroxide", 1, 10 + 21, 21, 0, 7},
        {3, 2, "hydroxide", 1, 15 + 14, 14, 0, 7},
        {4, 5, "hydroxide", 2, 20 + 35, 35, 0, 14},
        {1, 1, "bicarbonate", 1, 5 + 7, 21, 7, 7},
        {2, 3, "bicarbonate", 1, 10 + 21, 63, 21, 7},
        {3, 5, "bicarbonate", 3, 15 + 35, 105, 35, 21},
        {1, 1, "carbonate", 2, 5, 21, 7, 14},
        {2, 2, "carbonate", 2, 10, 21, 7, 7},
        {3, 3, "carbonate", 2, 15, 63, 21, 14},
        {3, 2, "carbonate", 3, 15, 42, 14, 21},
        {1, 1, "oxide", 2, 5, 7, 0, 14},
        {2, 3, "oxide", 2, 10, 21, 0, 14},
        {2, 2, "oxide", 3, 10, 14, 0, 21},
        {3, 3, "sulfide", 2, 15, 0, 0, 14},
        {1, 2, "Hydroxide", 1, 5, 0, 0, 7},
    };
    for (const auto& [acid, cation, anion, charge, hydrogen, oxygen, carbon, cations] : cases) {
        const Ion a = anionOf("acid", acid);
        const Ion b = cationOf(cation);
        const Ion c = anionOf(anion, charge);
        SCOPED_TRACE(testing::Message() << acid << ", " << cation << ", " << anion << charge);
        EXPECT_EQ(HonLeft(a, b, c), hydrogen);
        EXPECT_EQ(OonLeft(a, b, c), oxygen);
        EXPECT_EQ(ConLeft(a, b, c), carbon);
        EXPECT_EQ(rponLeft(a, b, c), cations);
    }
}

TEST_F(BalanceCountTest, CountsInTheSalt)
{
    const struct {
        int acidAnion;
        int baseCation;
        int cations;
        int anions;
    } cases[] = {
        {1, 1, 11, 11}, {1, 2, 11, 22}, {1, 3, 11, 33}, {2, 1, 22, 11}, {2, 2, 11, 11},
        {2, 3, 22, 33}, {3, 1, 33, 11}, {3, 2, 33, 22}, {3, 3, 11, 11}, {4, 2, 11, 11},
    };
    for (const auto& [acidAnion, baseCation, cations, anions] : cases) {
        const Ion a = anionOf("acid", acidAnion);
        const Ion b = cationOf(baseCation);
        const Ion c = anionOf("oxide", 2);
        EXPECT_EQ(rponRight(a, b, c), cations) << acidAnion << ", " << baseCation;
        EXPECT_EQ(anonRight(a, b, c), anions) << acidAnion << ", " << baseCation;
    }
}

// The acid anion's own name plays no part: hydroxide and carbonate are acid anions as well.
TEST_F(BalanceCountTest, AcidAnionsNameIsNotLookedAt)
{
    const Ion base = anionOf("sulfide", 2);
    for (const char* name : baseAnions) {
        EXPECT_EQ(HonLeft(anionOf(name, 2), cationOf(3), base), 10) << name;
        EXPECT_EQ(OonLeft(anionOf(name, 2), cationOf(3), base), 0) << name;
        EXPECT_EQ(ConLeft(anionOf(name, 2), cationOf(3), base), 0) << name;
    }
}

} // namespace
