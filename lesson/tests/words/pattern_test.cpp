#include "lesson/words/pattern.hpp"

#include <gtest/gtest.h>

#include <string>

namespace lesson
{

namespace
{

TEST(PatternTest, ArgumentsAreCountedOnceWhateverTheirFirstLetters)
{
    struct Case {
        const char* pattern;
        std::size_t arguments;
    };
    const Case cases[] = {
        {"", 0},
        {"Check the charge.", 0},
        {"{volume} of {solution}", 2},
        {"{Ion} is an ion of {element}: {ion}", 2},
        {"{a}{b}{a}{B}{c}", 3},
        {"in {unit mol/L}, as {formula NH3}, {ion SO4 2-}, {quantity V 1} or {number 0.125}", 0},
        {"{mass} in {unit g}", 1},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(argumentCount(one.pattern), one.arguments) << one.pattern;
    }
}

TEST(PatternTest, AnArgumentHasThePlaceWhereItFirstStands)
{
    const char* const pattern = "{Mass} of {substance} in {unit g}, {volume}, {mass}, {substance}";
    EXPECT_EQ(placeOfArgument(pattern, "mass"), 0U);
    EXPECT_EQ(placeOfArgument(pattern, "Mass"), 0U);
    EXPECT_EQ(placeOfArgument(pattern, "substance"), 1U);
    EXPECT_EQ(placeOfArgument(pattern, "volume"), 2U);
    EXPECT_EQ(placeOfArgument(pattern, "other"), 3U) << "as many as there are";
}

TEST(PatternTest, AnotherOrderHasTheSameArguments)
{
    EXPECT_TRUE(haveSameArguments("{a} of {b}", "{B}: {a}, {b}"));
    EXPECT_TRUE(haveSameArguments("Liter", "{unit L}"));
    EXPECT_FALSE(haveSameArguments("{a} of {b}", "{a}"));
    EXPECT_FALSE(haveSameArguments("{a}", "{a} of {b}"));
    EXPECT_FALSE(haveSameArguments("{a}", "{c}"));
}

} // namespace

} // namespace lesson
