#include "lesson/numbers/ratio.hpp"

#include <gtest/gtest.h>

#include <ostream>

namespace lesson
{

void PrintTo(Ratio value, std::ostream* out)
{
    *out << value.numerator << '/' << value.denominator;
}

namespace
{

TEST(RatioTest, IsInLowestTermsWithTheSignAbove)
{
    EXPECT_EQ(ratio(6, 4).numerator, 3);
    EXPECT_EQ(ratio(6, 4).denominator, 2);
    EXPECT_EQ(ratio(6, -4).numerator, -3);
    EXPECT_EQ(ratio(6, -4).denominator, 2);
    EXPECT_EQ(ratio(0, -7).numerator, 0);
    EXPECT_EQ(ratio(0, -7).denominator, 1);
}

TEST(RatioTest, AddsSubtractsMultipliesAndDivides)
{
    const Ratio half = {1, 2};
    const Ratio third = {1, 3};
    EXPECT_EQ(half + third, (Ratio{5, 6}));
    EXPECT_EQ(half - third, (Ratio{1, 6}));
    EXPECT_EQ(third - half, (Ratio{-1, 6}));
    EXPECT_EQ(half * third, (Ratio{1, 6}));
    EXPECT_EQ(half / third, (Ratio{3, 2}));
    EXPECT_EQ(half / (third - half), (Ratio{-3, 1}));
    EXPECT_EQ(half + half, (Ratio{1, 1}));
}

// Reduced before they are multiplied: the products alone would not fit.
TEST(RatioTest, MultipliesLargeNumbersThatCancel)
{
    const Ratio large = {1'000'000'000'000, 7};
    const Ratio small = {7, 1'000'000'000'001};
    EXPECT_EQ(large * small, (Ratio{1'000'000'000'000, 1'000'000'000'001}));
}

TEST(RatioTest, ComparesByValue)
{
    EXPECT_LT((Ratio{1, 3}), (Ratio{1, 2}));
    EXPECT_LT((Ratio{-1, 2}), (Ratio{1, 3}));
    EXPECT_FALSE((Ratio{1, 2}) < (Ratio{1, 2}));
    EXPECT_LE((Ratio{1, 2}), (Ratio{1, 2}));
    EXPECT_NE((Ratio{1, 2}), (Ratio{1, 3}));
    EXPECT_EQ(magnitude({-1, 2}), (Ratio{1, 2}));
}

TEST(RatioTest, PowersOfTenGoBothWays)
{
    EXPECT_EQ(powerOfTen(0), (Ratio{1, 1}));
    EXPECT_EQ(powerOfTen(3), (Ratio{1000, 1}));
    EXPECT_EQ(powerOfTen(-3), (Ratio{1, 1000}));
    EXPECT_EQ(powerOfTen(18), (Ratio{1'000'000'000'000'000'000, 1}));
}

} // namespace

} // namespace lesson
