#include "lesson/numbers/decimal.hpp"

#include <gtest/gtest.h>

#include <string>

namespace lesson
{

namespace
{

TEST(DecimalTest, RoundsToSignificantFiguresHalvesUp)
{
    struct Case {
        Ratio value;
        int figures;
        const char* text;
    };
    // clang-format off
    const Case cases[] = {
        {{4557, 100000}, 3, "0.0456"},
        {{4554, 100000}, 3, "0.0455"},
        {{45550, 1000000}, 3, "0.0456"},  // a half goes up
        {{1, 10}, 3, "0.100"},
        {{9996, 10000}, 3, "1.00"},       // carries into another place
        {{9994, 10000}, 3, "0.999"},
        {{1, 3}, 3, "0.333"},
        {{2, 3}, 1, "0.7"},
        {{1995, 1}, 3, "2000"},
        {{1949, 1}, 3, "1950"},
        {{250, 1}, 3, "250"},
        {{25, 1}, 3, "25.0"},
        {{249690, 1000}, 4, "249.7"},
        {{249690, 1000}, 5, "249.69"},
        {{5844, 100}, 4, "58.44"},
        {{1, 1000000}, 2, "0.0000010"},
        {{22, 7}, 17, "3.1428571428571429"},
    };
    // clang-format on
    for (const Case& c : cases) {
        EXPECT_EQ(shown(c.value, c.figures), c.text)
            << c.value.numerator << '/' << c.value.denominator << " to " << c.figures;
    }
}

TEST(DecimalTest, IntermediateValuesBelowAHundredthHaveAnExponent)
{
    EXPECT_EQ(shownBetween({22785, 10000000}, 4), "2.279e-3");
    EXPECT_EQ(shownBetween({85558, 1000000}, 4), "0.08556");
    EXPECT_EQ(shownBetween({1, 100}, 4), "0.01000");
    EXPECT_EQ(shownBetween({99996, 10000000}, 4), "0.01000"); // rounds up to a hundredth
    EXPECT_EQ(shownBetween({1, 100000}, 1), "1e-5");
}

TEST(DecimalTest, ExactTextHasEveryDecimalOrTwelveFigures)
{
    struct Case {
        Ratio value;
        const char* text;
    };
    const Case cases[] = {
        {{5, 8}, "0.625"},
        {{250, 1}, "250"},
        {{0, 1}, "0"},
        {{-5, 8}, "-0.625"},
        {{1, 3}, "0.333333333333"},
        {{2000, 3}, "666.666666667"},
        {{1, 400}, "0.0025"},
        {{1050, 10000}, "0.105"},
        {{58440, 1000}, "58.44"},
        {{1, 700}, "0.00142857142857"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(exactText(ratio(c.value.numerator, c.value.denominator)), c.text)
            << c.value.numerator << '/' << c.value.denominator;
    }
}

TEST(DecimalTest, DigitsComeFromTheFirstThatIsNotZero)
{
    DigitStream eighth({1, 8});
    EXPECT_EQ(eighth.place(), -1);
    EXPECT_EQ(eighth.next(), 1);
    EXPECT_EQ(eighth.next(), 2);
    EXPECT_FALSE(eighth.isAtEnd());
    EXPECT_EQ(eighth.next(), 5);
    EXPECT_TRUE(eighth.isAtEnd());
    EXPECT_EQ(eighth.next(), 0);
    EXPECT_EQ(eighth.place(), -5);

    DigitStream hundreds({1001, 4}); // 250.25
    EXPECT_EQ(hundreds.place(), 2);
    std::string digits;
    for (int i = 0; i < 5; ++i) {
        digits += std::to_string(hundreds.next());
    }
    EXPECT_EQ(digits, "25025");

    DigitStream small({3, 40000}); // 0.000075
    EXPECT_EQ(small.place(), -5);
    EXPECT_EQ(small.next(), 7);
}

TEST(DecimalTest, TheValueOfADecimalIsExact)
{
    EXPECT_EQ(valueOf({456, -4}), (Ratio{57, 1250}));
    EXPECT_EQ(valueOf({195, 1}), (Ratio{1950, 1}));
    EXPECT_EQ(scientificText({2279, -6}), "2.279e-3");
    EXPECT_EQ(scientificText({5, -5}), "5e-5");
    EXPECT_EQ(scientificText({195, 1}), "1.95e3");
}

} // namespace

} // namespace lesson
