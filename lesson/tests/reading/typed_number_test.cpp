#include "lesson/reading/typed_number.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace lesson
{

namespace
{

TypedNumber number(std::string digits, std::int64_t place)
{
    TypedNumber result;
    result.digits = std::move(digits);
    result.place = place;
    return result;
}

int signOf(int value)
{
    return (value > 0 ? 1 : 0) - (value < 0 ? 1 : 0);
}

TEST(TypedNumberTest, ComparesExactly)
{
    struct Case {
        TypedNumber number;
        Ratio bound;
        int sign;
    };
    const std::int64_t far = 2'000'000'000'000'000;
    // clang-format off
    const Case cases[] = {
        {number("456", -2), ratio(456, 10000), 0},
        {number("456", -2), ratio(455, 10000), 1},
        {number("456", -2), ratio(457, 10000), -1},
        {number("456", -2), ratio(4561, 100000), -1},
        {number("4561", -2), ratio(456, 10000), 1},
        {number("456", -1), ratio(456, 10000), 1},
        {number("456", -3), ratio(456, 10000), -1},
        {number("25", 2), ratio(2500), -1},
        {number("25", 3), ratio(2500), 0},
        {number("1", 0), ratio(999, 1000), 1},
        {number("1", 0), ratio(1001, 1000), -1},
        {number("3333333333333333333333333", -1), ratio(1, 3), -1},
        {number("3333333333333333333333334", -1), ratio(1, 3), 1},
        {number("", 0), ratio(1, 1000), -1},
        {number("", 0), ratio(0), 0},
        {number("1", -300), ratio(0), 1},
        {number("1", far), ratio(1), 1},
        {number("1", -far), ratio(1), -1},
    };
    // clang-format on
    for (const Case& c : cases) {
        EXPECT_EQ(signOf(compare(c.number, c.bound)), c.sign)
            << c.number.digits << " at " << c.number.place << " and " << c.bound.numerator << '/'
            << c.bound.denominator;
    }
}

TEST(TypedNumberTest, AQuotientIsExact)
{
    struct Case {
        TypedNumber number;
        Ratio bound;
        int sign;
    };
    // clang-format off
    const Case cases[] = {
        {quotient(7, 60, 0), ratio(7, 60), 0},
        {quotient(7, 60, 0), ratio(11666666666666666, 100000000000000000), 1},
        {quotient(7, 60, 0), ratio(11666666666666667, 100000000000000000), -1},
        {quotient(7, 60, -3), ratio(7, 60000), 0},
        {quotient(7, 60, 2), ratio(35, 3), 0},
        {quotient(1, 8, 0), ratio(1, 8), 0},
        {quotient(1, 8, 0), ratio(1251, 10000), -1},
        {quotient(60, 3, 0), ratio(20), 0},
        {quotient(999999999, 999999998, 0), ratio(999999999, 999999998), 0},
        {quotient(999999999, 999999998, 0), ratio(999999998, 999999997), -1},
        {quotient(1, 999999999, 0), ratio(1, 999999999), 0},
        {quotient(1, 999999999, 0), ratio(1, 999999998), -1},
        {quotient(1, 3, 1'000'000), ratio(1, 3), 1},
    };
    // clang-format on
    for (const Case& c : cases) {
        EXPECT_EQ(signOf(compare(c.number, c.bound)), c.sign)
            << c.number.digits << " at " << c.number.place << " and " << c.bound.numerator << '/'
            << c.bound.denominator;
    }
    const Neighbours rounded = roundedTo(quotient(7, 60, 0), 3);
    EXPECT_EQ(rounded.lower.digits, "117");
    EXPECT_EQ(rounded.upper.digits, "117");
    EXPECT_EQ(rounded.upper.place, -1);
}

TEST(TypedNumberTest, RoundsToTheNearerOrAtAHalfToBothNeighbours)
{
    struct Case {
        TypedNumber number;
        int figures;
        TypedNumber lower;
        TypedNumber upper;
    };
    const Case cases[] = {
        {number("4557", -2), 3, number("456", -2), number("456", -2)},
        {number("4554", -2), 3, number("455", -2), number("455", -2)},
        {number("4555", -2), 3, number("455", -2), number("456", -2)},
        {number("45550000000000000000001", -2), 3, number("456", -2), number("456", -2)},
        {number("45549999999999999999999", -2), 3, number("455", -2), number("455", -2)},
        {number("9995", 2), 3, number("999", 2), number("1", 3)},
        {number("9996", 2), 3, number("1", 3), number("1", 3)},
        {number("10004", 0), 3, number("1", 0), number("1", 0)},
        {number("1004", 0), 3, number("1", 0), number("1", 0)},
        {number("45", -2), 3, number("45", -2), number("45", -2)},
        {number("4", -2), 3, number("4", -2), number("4", -2)},
    };
    for (const Case& c : cases) {
        const Neighbours rounded = roundedTo(c.number, c.figures);
        EXPECT_EQ(rounded.lower.digits, c.lower.digits) << c.number.digits;
        EXPECT_EQ(rounded.lower.place, c.lower.place) << c.number.digits;
        EXPECT_EQ(rounded.upper.digits, c.upper.digits) << c.number.digits;
        EXPECT_EQ(rounded.upper.place, c.upper.place) << c.number.digits;
    }
}

TEST(TypedNumberTest, ADecimalHasTheFiguresOfItsPlainText)
{
    struct Case {
        Decimal decimal;
        std::string digits;
        std::int64_t place;
        std::int64_t fewest;
        std::int64_t most;
    };
    const Case cases[] = {
        {{456, -4}, "456", -2, 3, 3}, // 0.0456
        {{100, -3}, "1", -1, 3, 3},   // 0.100
        {{200, 0}, "2", 2, 1, 3},     // 200
        {{200, 1}, "2", 3, 1, 4},     // 2000
        {{205, 1}, "205", 3, 3, 4},   // 2050
        {{250, -1}, "25", 1, 3, 3},   // 25.0
    };
    for (const Case& c : cases) {
        const TypedNumber typed = typedNumber(c.decimal);
        EXPECT_EQ(typed.digits, c.digits) << plainText(c.decimal);
        EXPECT_EQ(typed.place, c.place) << plainText(c.decimal);
        EXPECT_EQ(typed.fewestFigures, c.fewest) << plainText(c.decimal);
        EXPECT_EQ(typed.mostFigures, c.most) << plainText(c.decimal);
    }
}

} // namespace

} // namespace lesson
