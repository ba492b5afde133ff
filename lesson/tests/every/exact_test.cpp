#include "lesson/tests/every/exact.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

namespace
{

TEST(ExactTest, ReadsDecimals)
{
    EXPECT_EQ(Exact::read("0.0217"), Exact(217, 10000));
    EXPECT_EQ(Exact::read("-3"), Exact(-3));
    EXPECT_EQ(Exact::read("5.00e-5"), Exact(1, 20000));
    EXPECT_EQ(Exact::read("1.5E3"), Exact(1500));
    EXPECT_EQ(Exact::read("250.00"), Exact(250));
    EXPECT_THROW(Exact::read("1.2.3"), std::invalid_argument);
    EXPECT_THROW(Exact::read(""), std::invalid_argument);
}

TEST(ExactTest, Calculates)
{
    EXPECT_EQ(Exact(1, 6) + Exact(1, 10), Exact(4, 15));
    EXPECT_EQ(Exact(1, 6) - Exact(1, 10), Exact(1, 15));
    EXPECT_EQ(Exact(2, 3) * Exact(9, 4), Exact(3, 2));
    EXPECT_EQ(Exact(2, 3) / Exact(-4, 9), Exact(-3, 2));
    EXPECT_LT(Exact(1, 3), Exact(34, 100));
    EXPECT_LE(Exact(1, 3), Exact(2, 6));
    EXPECT_NE(Exact(1, 3), Exact(333, 1000));
    EXPECT_EQ(Exact(-7, 2).magnitude(), Exact(7, 2));
    EXPECT_EQ(Exact(-7, 2).text(), "-7/2");
    EXPECT_TRUE(Exact(8, 4).isWhole());
    EXPECT_EQ(Exact(11, 4).floor(), 2);
    EXPECT_EQ(Exact(8, 4).floor(), 2);
}

TEST(ExactTest, RoundsToFiguresHalvesUp)
{
    EXPECT_EQ(Exact(4557, 100000).toFigures(3), Exact(456, 10000));
    EXPECT_EQ(Exact(1, 3).toFigures(4), Exact(3333, 10000));
    EXPECT_EQ(Exact(1995).toFigures(3), Exact(2000));
    EXPECT_EQ(Exact(12345, 10).toFigures(4), Exact(1235));
    EXPECT_EQ(Exact(12345).toFigures(4), Exact(12350));
    EXPECT_EQ(Exact(-5, 2).toFigures(1), Exact(-3));
    EXPECT_EQ(Exact(0).toFigures(3), Exact(0));
    EXPECT_EQ(Exact(123456789, 987654321).toFigures(12), Exact(124999998861, 1000000000000));
    EXPECT_EQ(Exact(9996, 1000).toFigures(3), Exact(10));
    EXPECT_EQ(Exact(4557, 100000).lastPlace(3), Exact(1, 10000));
    EXPECT_EQ(Exact(100).lastPlace(3), Exact(1));
    EXPECT_EQ(Exact(99).lastPlace(3), Exact(1, 10));
}

TEST(ExactTest, ThrowsRatherThanOverflows)
{
    const Exact great(std::numeric_limits<std::int64_t>::max());
    EXPECT_THROW(great * 2, std::overflow_error);
    EXPECT_THROW(great + great, std::overflow_error);
    EXPECT_THROW(great / 0, std::domain_error);
}

TEST(ExactTest, CountsFigures)
{
    EXPECT_EQ(figuresOf("0.0500"), 3);
    EXPECT_EQ(figuresOf("10.00"), 4);
    EXPECT_EQ(figuresOf("250"), 3);
    EXPECT_EQ(figuresOf("0"), 0);
}

} // namespace
