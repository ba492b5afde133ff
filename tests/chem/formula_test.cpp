#include "chem/formula.hpp"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <string>

#include "data/tables.hpp"
#include "support/captured_output.hpp"

namespace
{

constexpr float hydrogen = 1.008f;
constexpr float carbon = 12.01f;
constexpr float oxygen = 16.0f;
constexpr float hydroxide = oxygen + hydrogen;
constexpr float water = 2.0f * hydrogen + oxygen;
constexpr float calcium = 40.08f;
constexpr float copperSulphate = 63.55f + 32.06f + 4.0f * oxygen;

class FormulaTest : public testing::Test
{
protected:
    void SetUp() override
    {
        aMasses.clear();
    }
    void TearDown() override
    {
        aMasses.clear();
    }
};

// A formula with its molar mass, and what is said about it: an E for each line about an element,
// a B for each about a bracket.
struct Case {
    std::string formula;
    float molarMass;
    std::string messages;
};

std::string linesFor(const std::string& messages)
{
    std::string lines;
    for (const char message : messages) {
        lines += message == 'E' ? "Element error!\n" : "Bracket syntax error!\n";
    }
    return lines;
}

void expectCase(const Case& expected)
{
    float molarMass = -1.0f;
    const std::string output = outputOf([&] { molarMass = calculateMM(expected.formula); });
    const std::string start = expected.formula.substr(0, 60);
    EXPECT_EQ(molarMass, expected.molarMass) << start;
    EXPECT_EQ(output, linesFor(expected.messages)) << start;
}

template <std::size_t count>
void expectCases(const Case (&cases)[count])
{
    for (const Case& each : cases) {
        expectCase(each);
    }
}

std::string repeated(std::size_t times, const std::string& text)
{
    std::string result;
    result.reserve(times * text.size());
    for (std::size_t i = 0; i < times; ++i) {
        result += text;
    }
    return result;
}

TEST_F(FormulaTest, DigitsAloneAreNumberlike)
{
    for (int code = CHAR_MIN; code <= CHAR_MAX; ++code) {
        const char c = static_cast<char>(code);
        EXPECT_EQ(numberlike(c), std::string("0123456789").find(c) != std::string::npos) << code;
    }
}

TEST_F(FormulaTest, CountIsReadLikeAtoiButOnlyLeadingDigitsAreRemoved)
{
    const struct {
        std::string text;
        float count;
        std::string left;
    } cases[] = {
        {"", 0.0f, ""},
        {"0", 0.0f, ""},
        {"7", 7.0f, ""},
        {"12O", 12.0f, "O"},
        {"007H8", 7.0f, "H8"},
        {"1234567890", 1234567890.0f, ""},
        {"16777217", 16777216.0f, ""},
        {"O", 0.0f, "O"},
        {"O2", 0.0f, "O2"},
        {".5", 0.0f, ".5"},
        {"5.5", 5.0f, ".5"},
        {"1e3", 1.0f, "e3"},
        {" 2O", 2.0f, " 2O"},
        {" \t\n\v\f\r3", 3.0f, " \t\n\v\f\r3"},
        {"-2O", -2.0f, "-2O"},
        {"+2O", 2.0f, "+2O"},
        {" -4", -4.0f, " -4"},
        {"- 4", 0.0f, "- 4"},
        {"--4", 0.0f, "--4"},
        {"+-4", 0.0f, "+-4"},
        {"9 8", 9.0f, " 8"},
        {std::string("3\0"
                     "4",
                     3),
         3.0f,
         std::string("\0"
                     "4",
                     2)},
        {std::string("\0"
                     "4",
                     2),
         0.0f,
         std::string("\0"
                     "4",
                     2)},
        {"\xb2", 0.0f, "\xb2"},
    };
    for (const auto& [text, count, left] : cases) {
        std::string rest = text;
        EXPECT_EQ(getNumber(rest), count) << text;
        EXPECT_EQ(rest, left) << text;
    }
}

// Digits, and the count that they give where a long has 64 bits, whose upper half is lost, and
// where it has 32, which stops at its greatest.
const struct {
    const char* digits;
    float countBy64Bits;
    float countBy32Bits;
} countsBeyondInt[] = {
    {"2147483647", 2147483647.0f, 2147483647.0f},
    {"2147483648", -2147483648.0f, 2147483647.0f},
    {"4294967297", 1.0f, 2147483647.0f},
    {"8589934592", 0.0f, 2147483647.0f},
    {"99999999999999999999", -1.0f, 2147483647.0f},
    {"-2147483649", 2147483647.0f, -2147483648.0f},
    {"-99999999999999999999", 0.0f, -2147483648.0f},
};
constexpr bool longHas64Bits = sizeof(long) == 8;

TEST_F(FormulaTest, CountBeyondIntIsWhatALongLeavesOfIt)
{
    for (const auto& [digits, countBy64Bits, countBy32Bits] : countsBeyondInt) {
        const float count = longHas64Bits ? countBy64Bits : countBy32Bits;
        std::string rest = digits;
        EXPECT_EQ(getNumber(rest), count) << digits;
        EXPECT_EQ(rest, digits[0] == '-' ? digits : "") << digits;
        expectCase({std::string("H") + digits, (count == 0.0f ? 1.0f : count) * hydrogen,
                    digits[0] == '-' ? repeated(std::strlen(digits), "E") : ""});
    }
}

TEST_F(FormulaTest, EmptyFormulaWeighsNothing)
{
    expectCase({"", 0.0f, ""});
}

TEST_F(FormulaTest, ElementsWithCounts)
{
    expectCases({
        {"H", hydrogen, ""},
        {"O", 16.0f, ""},
        {"Cl", 35.45f, ""},
        {"H2O", water, ""},
        {"NaCl", 22.99f + 35.45f, ""},
        {"HH", hydrogen + hydrogen, ""},
        {"CO", carbon + oxygen, ""},
        {"Co", 58.93f, ""},
        {"CoC", 58.93f + carbon, ""},
        {"C60", 60.0f * carbon, ""},
        {"Fe10", 10.0f * 55.85f, ""},
        {"C12H22O11", 12.0f * carbon + 22.0f * hydrogen + 11.0f * oxygen, ""},
        {"H01", hydrogen, ""},
        {"Sb2", 2.0f * 127.6f, ""},
        {"HgS", 200.6f + 32.06f, ""},
    });
}

// To three decimals, as a chemist adds them up.
TEST_F(FormulaTest, KnownMolarMasses)
{
    const struct {
        const char* formula;
        double molarMass;
    } cases[] = {
        {"H2O", 18.016},         {"NaCl", 58.44},          {"CO", 28.01},
        {"Co", 58.93},           {"C60", 720.6},           {"(OH)2", 34.016},
        {"((OH)2)3", 102.048},   {"Fe2(SO4)3", 399.88},    {"Ca(CH3COO)2", 158.168},
        {"CuSO4.5H2O", 249.69},  {"CuSO4.5H2O.2", 249.69}, {"CuSO4.H2O", 159.61},
        {"CoCl2.6H2O", 237.926}, {"Na2CO3.10H2O", 286.15},
    };
    for (const auto& [formula, molarMass] : cases) {
        EXPECT_NEAR(static_cast<double>(calculateMM(formula)), molarMass, 0.0005) << formula;
    }
}

TEST_F(FormulaTest, CountOf0CountsAs1)
{
    expectCases({
        {"H0", hydrogen, ""},
        {"H00", hydrogen, ""},
        {"Cl0", 35.45f, ""},
        {"H0O", hydrogen + oxygen, ""},
    });
}

TEST_F(FormulaTest, GroupNeedsAMultiplierOfOneDigit)
{
    expectCases({
        {"(OH)2", hydroxide * 2.0f, ""},
        {"(OH)1", hydroxide, ""},
        {"(OH)0", 0.0f, ""},
        {"(OH)9", hydroxide * 9.0f, ""},
        {"Ca(OH)2", calcium + hydroxide * 2.0f, ""},
        {"Fe2(SO4)3", 2.0f * 55.85f + (32.06f + 4.0f * oxygen) * 3.0f, ""},
        {"(CH2)12", carbon + 2.0f * hydrogen, "E"},
        {"(OH)2H", hydroxide * 2.0f + hydrogen, ""},
        {"(OH)2(CH)3", hydroxide * 2.0f + (carbon + hydrogen) * 3.0f, ""},
        {"()2", 0.0f, ""},
        {"()2H", hydrogen, ""},
    });
}

TEST_F(FormulaTest, AnyOtherMultiplierCounts0TimesAndIsDropped)
{
    expectCases({
        {"(OH)x", 0.0f, ""},
        {"(OH)H", 0.0f, ""},
        {"(OH)Na", 0.0f, "E"},
        {"(OH)-2", 0.0f, "E"},
        {"(OH)+2", 0.0f, "E"},
        {"(OH) 2", 0.0f, "E"},
        {"(OH).2H", 0.0f + hydrogen, "E"},
        {"(OH)(", 0.0f, ""},
        {"(OH))H", hydrogen, ""},
        {"(OH)(H)2", hydrogen, "EE"},
        {"(OH)/H", hydrogen, ""},
        {"(OH):H", hydrogen, ""},
        {std::string("(OH)\0H", 6), hydrogen, ""},
        {"(OH)\xb2H", hydrogen, ""},
    });
}

TEST_F(FormulaTest, GroupAtTheEndIsReportedAndCounts0Times)
{
    expectCases({
        {"(OH)", 0.0f, "B"},
        {"Ca(OH)", calcium, "B"},
        {"()", 0.0f, "B"},
        {"((OH)2)", 0.0f, "B"},
        {"((OH))2", 0.0f, "B"},
        {"((OH))", 0.0f, "BB"},
        {"(Q)", 0.0f, "BE"},
    });
}

TEST_F(FormulaTest, UnclosedGroupIsReportedAndCounts0Times)
{
    expectCases({
        {"Ca(OH", calcium, "B"},
        {"(", 0.0f, "B"},
        {"((", 0.0f, "B"},
        {"(((", 0.0f, "BB"},
        {"((((", 0.0f, "BB"},
        {"(((((", 0.0f, "BBB"},
        {"H(", hydrogen, "B"},
        {"(H", 0.0f, "B"},
        {"(2", 0.0f, "B"},
        {"(2H", 0.0f, "BE"},
        {"((H)", 0.0f, "BB"},
        {"((H)2", 0.0f, "BB"},
        {"((H)23", 0.0f, "B"},
        {"((H)2q", 0.0f, "B"},
        {"((H)2qq", 0.0f, "BE"},
        {"(((H)2)", 0.0f, "BBB"},
        {"(((H)2)3", 0.0f, "BB"},
        {"(((H)2)3O", 0.0f, "B"},
        {"H2(O(H)2", 2.0f * hydrogen, "BB"},
        {"(()", 0.0f, "BB"},
        {"()(", 0.0f, ""},
        {"()2(", 0.0f, "B"},
    });
}

TEST_F(FormulaTest, LastCharacterOfAnUnclosedGroupIsNotRead)
{
    expectCases({
        {"(qqq", 0.0f, "BEE"},
        {"(Hq", 0.0f, "B"},
        {"(H.", 0.0f, "B"},
        {"(.q", 0.0f, "B"},
        {"(((q", 0.0f, "BB"},
        {"(Hqq", 0.0f, "BE"},
        {"(q(q)2", 0.0f, "BEBE"},
        // Nor as the second letter of a symbol: X and T are no elements, Xe and Tl are.
        {"(Xe", 0.0f, "BE"},
        {"(TlTl", 0.0f, "BE"},
        {"((H)2Xe", 0.0f, "BE"},
        {".2(Xe", 0.0f, "BE"},
    });
}

TEST_F(FormulaTest, ClosingBracketAloneIsNoElement)
{
    expectCases({
        {")", 0.0f, "E"},
        {"))", 0.0f, "EE"},
        {")(", 0.0f, "EB"},
        {")(H)2", 2.0f * hydrogen, "E"},
        {"H)2", hydrogen, "EE"},
        {"(H)2)3", hydrogen * 2.0f, "EE"},
    });
}

TEST_F(FormulaTest, GroupsNest)
{
    expectCases({
        {"((OH)2)3", hydroxide * 2.0f * 3.0f, ""},
        {"(Ca(OH)2)3", (calcium + hydroxide * 2.0f) * 3.0f, ""},
        {"((H)2O)3", (hydrogen * 2.0f + oxygen) * 3.0f, ""},
        {"(((H)2)2)2", hydrogen * 2.0f * 2.0f * 2.0f, ""},
        {"((H)2(O)3)4C", (hydrogen * 2.0f + oxygen * 3.0f) * 4.0f + carbon, ""},
        {"((H)2)(C)3", carbon, "EE"},
    });
}

TEST_F(FormulaTest, CountAtTheEndOfAGroupDoesNotReachBeyondIt)
{
    expectCases({
        {"(H2)3", 2.0f * hydrogen * 3.0f, ""},
        {"(H12)3", 12.0f * hydrogen * 3.0f, ""},
        {"(H)23", hydrogen * 2.0f, "E"},
        {"(H24", 0.0f, "B"},
        {"(H )2", hydrogen * 2.0f, "E"},
        {"(H-)2", hydrogen * 2.0f, "E"},
        {"(C)o2", 0.0f, "E"},
    });
}

TEST_F(FormulaTest, HydrateCountsEverythingBehindItsCount)
{
    expectCases({
        {"CuSO4.5H2O", copperSulphate + water * 5.0f, ""},
        {"CoCl2.6H2O", 58.93f + 2.0f * 35.45f + water * 6.0f, ""},
        {"Na2CO3.10H2O", 2.0f * 22.99f + carbon + 3.0f * oxygen + water * 10.0f, ""},
        {".2H", hydrogen * 2.0f, ""},
        {".1HO", hydrogen + oxygen, ""},
        {"A.2B", 10.81f * 2.0f, "E"},
        {"C.2H.3O", carbon + (hydrogen + oxygen * 3.0f) * 2.0f, ""},
        {"H.2(OH)3", hydrogen + hydroxide * 3.0f * 2.0f, ""},
        {".2H3q", 3.0f * hydrogen * 2.0f, "E"},
        {".12345678H", hydrogen * 12345678.0f, ""},
    });
}

TEST_F(FormulaTest, HydrateWithoutACountCounts0Times)
{
    expectCases({
        {"CuSO4.H2O", copperSulphate, ""},
        {"CuSO4.0H2O", copperSulphate, ""},
        {"CuSO4.5H2O.2", copperSulphate + water * 5.0f, ""},
        {"CuSO4.5H2O.", copperSulphate + water * 5.0f, ""},
        {".", 0.0f, ""},
        {"..", 0.0f, ""},
        {".5", 0.0f, ""},
        {".q", 0.0f, "E"},
        {"H..2H", hydrogen, ""},
    });
}

TEST_F(FormulaTest, HydratesAndGroupsInsideEachOther)
{
    expectCases({
        {"(H.2O)3C", (hydrogen + oxygen * 2.0f) * 3.0f + carbon, ""},
        {"(.2H)3", hydrogen * 2.0f * 3.0f, ""},
        {"(.2(H)2)3", hydrogen * 2.0f * 2.0f * 3.0f, ""},
        {"H.2(C.3O)4", hydrogen + (carbon + oxygen * 3.0f) * 4.0f * 2.0f, ""},
        {"(H.2)3", hydrogen * 3.0f, ""},
        {"(H.)3", hydrogen * 3.0f, ""},
        {".2(H", 0.0f, "B"},
        {".2(H)", 0.0f, "B"},
        {"(.2H", 0.0f, "B"},
        {"(.2(H)3.4O)5C", (hydrogen * 3.0f + oxygen * 4.0f) * 2.0f * 5.0f + carbon, ""},
    });
}

TEST_F(FormulaTest, WhatIsNoElementIsReportedAndSkipped)
{
    expectCases({
        {"2H2O", water, "E"},
        {"12H", hydrogen, "EE"},
        {"Ta", 0.0f, "EE"},
        {"Cn", carbon, "E"},
        {"Cn2", carbon, "EE"},
        {"h", 0.0f, "E"},
        {"na", 0.0f, "EE"},
        {"HHe", hydrogen + 4.003f, ""},
        {"Hh", hydrogen, "E"},
        {"Q", 0.0f, "E"},
        {"QH", hydrogen, "E"},
        {"[H]", hydrogen, "EE"},
        {"H+", hydrogen, "E"},
        {"SO4 2-", 32.06f + 4.0f * oxygen, "EEE"},
        {"\xc3\xa9", 0.0f, "EE"},
        {"H\xff", hydrogen, "E"},
        {"H\n", hydrogen, "E"},
        {"%s%n", 0.0f, "EEEE"},
    });
}

TEST_F(FormulaTest, CountBehindABlankOrASignIsUsedAndLeftStanding)
{
    expectCases({
        {"H 2O", 2.0f * hydrogen + oxygen, "EE"},
        {"H\t3", 3.0f * hydrogen, "EE"},
        {"Cl 2", 2.0f * 35.45f, "EE"},
        {"H-2O", -2.0f * hydrogen + oxygen, "EE"},
        {"H+2O", 2.0f * hydrogen + oxygen, "EE"},
        {"H -2", -2.0f * hydrogen, "EEE"},
        {"H- 2", hydrogen, "EEE"},
        {". 2H", hydrogen * 2.0f, "EE"},
        {".-2H", hydrogen * -2.0f, "EE"},
    });
}

TEST_F(FormulaTest, NulIsACharacterLikeAnyOther)
{
    expectCases({
        {std::string("\0", 1), 0.0f, "E"},
        {std::string("H\0O", 3), hydrogen + oxygen, "E"},
        {std::string("H\0"
                     "2",
                     3),
         hydrogen, "EE"},
        {std::string("H2\0"
                     "3",
                     4),
         2.0f * hydrogen, "EE"},
        {std::string("(H\0)2", 5), hydrogen * 2.0f, "E"},
        {std::string("(\0", 2), 0.0f, "B"},
        {std::string("(\0\0", 3), 0.0f, "BE"},
        {std::string(".\0"
                     "2H",
                     4),
         0.0f, "EE"},
        {std::string(".2\0H", 4), hydrogen * 2.0f, "E"},
    });
}

TEST_F(FormulaTest, SumRunsFromLeftToRightInSinglePrecision)
{
    // 63.55 is lost behind a sum of some 2e9, three of them before it are not.
    const float heavy = 2000000000.0f * hydrogen;
    const float copper = 63.55f;
    expectCase({"H2000000000CuCuCu", heavy + copper + copper + copper, ""});
    expectCase({"CuCuCuH2000000000", copper + copper + copper + heavy, ""});
    EXPECT_NE(calculateMM("H2000000000CuCuCu"), calculateMM("CuCuCuH2000000000"));
    // A group is summed up on its own before it is multiplied and added.
    expectCase({"H2000000000(CuCuCu)1", heavy + (copper + copper + copper) * 1.0f, ""});
    expectCase({"(H3O)7", (3.0f * hydrogen + oxygen) * 7.0f, ""});
}

TEST_F(FormulaTest, HydratesCanGrowToInfinityAndBeyond)
{
    const std::string growing = repeated(5, ".2000000000") + "H";
    EXPECT_EQ(calculateMM(growing), INFINITY);
    EXPECT_EQ(calculateMM("." + growing.substr(1, 10) + growing + "."), INFINITY);
    EXPECT_TRUE(std::isnan(calculateMM("." + growing))); // 0 times infinity
    EXPECT_TRUE(std::isnan(calculateMM("(" + growing + ")0")));
    EXPECT_TRUE(std::isnan(calculateMM("(" + growing + ")x")));
    EXPECT_TRUE(std::isnan(calculateMM("H2(" + growing + ")0O")));
    EXPECT_EQ(calculateMM("(" + growing + ")1"), INFINITY);
    EXPECT_TRUE(std::isnan(calculateMM("(" + growing + ")1H.-2000000000" + growing.substr(11))));
}

TEST_F(FormulaTest, FirstCallFillsTheElementsAndLaterOnesDoNot)
{
    ASSERT_TRUE(aMasses.empty());
    EXPECT_EQ(calculateMM("((OH)2)3.2H"), hydroxide * 2.0f * 3.0f + hydrogen * 2.0f);
    EXPECT_EQ(aMasses.size(), 110u);
    calculateMM("H");
    calculateMM("");
    EXPECT_EQ(aMasses.size(), 110u);
}

TEST_F(FormulaTest, MassesComeFromTheTableAsItIs)
{
    aMasses.push_back(atomicMass("Q", 2.5f));
    expectCase({"Q2H", 5.0f, "E"});
    EXPECT_EQ(aMasses.size(), 1u);
}

// Hostile formulas: the same rules hold at any length and depth. Those that are reported line by
// line are shorter, as every line is flushed.

constexpr std::size_t tenThousand = 10000;
constexpr std::size_t million = 1000000;

void expectReported(const std::string& formula, float molarMass, std::size_t lines,
                    const char* message)
{
    expectCase({formula, molarMass, repeated(lines, message)});
}

TEST_F(FormulaTest, FlatFormulaOfAMegabyte)
{
    float expected = 0.0f;
    for (std::size_t i = 0; i < million / 2; ++i) {
        expected += hydrogen;
        expected += oxygen;
    }
    expectCase({repeated(million / 2, "HO"), expected, ""});
    expectCase({"H" + repeated(million, "0"), hydrogen, ""});
    expectCase({repeated(million / 5, "(OH)x"), 0.0f, ""});
    expectReported(repeated(million / 10, "q"), 0.0f, million / 10, "E");
}

TEST_F(FormulaTest, LongRunsOfWhatIsNoElement)
{
    expectReported("H" + repeated(tenThousand, " "), hydrogen, tenThousand, "E");
    expectReported(repeated(tenThousand, ")"), 0.0f, tenThousand, "E");
}

TEST_F(FormulaTest, DeeplyNestedGroups)
{
    for (const std::size_t depth : {tenThousand, million}) {
        const std::string open = repeated(depth, "(");
        expectCase({open + "OH" + repeated(depth, ")1"), hydroxide, ""});
        expectCase({open + "q" + repeated(depth, ")1"), 0.0f, "E"});
        expectCase({open + "OH" + repeated(depth, ")0"), 0.0f, ""});
    }
}

TEST_F(FormulaTest, DeeplyNestedGroupsThatAreReported)
{
    const std::string open = repeated(tenThousand, "(");
    // Every group stands at the end of the one around it.
    expectReported(open + repeated(tenThousand, ")"), 0.0f, tenThousand, "B");
    // Each unclosed group takes a bracket from the end of what is left.
    expectReported(open, 0.0f, tenThousand / 2, "B");
}

TEST_F(FormulaTest, DeeplyNestedHydrates)
{
    for (const std::size_t depth : {tenThousand, million}) {
        expectCase({repeated(depth, ".1") + "OH", hydroxide, ""});
        expectCase({repeated(depth, ".") + "OH", 0.0f, ""});
        expectCase({repeated(depth, ".1") + "q", 0.0f, "E"});
        expectCase({repeated(depth, "(.1") + "OH" + repeated(depth, ")1"), hydroxide, ""});
    }
}

} // namespace
