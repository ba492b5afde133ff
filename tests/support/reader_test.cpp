#include "support/reader.hpp"

#include <gtest/gtest.h>

#include <stdexcept>

// Guards the tests that read texts back: a reader that took anything would prove nothing.

TEST(ReaderTest, ReadsWordsAndNumbers)
{
    Reader reader("V = 0.05 L, 12 of 10 mL x NaCl.\n");
    reader.expect("V = ");
    EXPECT_EQ(reader.volume(3).value, 0.05);
    EXPECT_FALSE(reader.accept("; "));
    EXPECT_TRUE(reader.accept(", "));
    EXPECT_EQ(reader.wholeNumber(), 12);
    reader.expect(" of ");
    EXPECT_EQ(reader.volume(3).value, 0.01);
    EXPECT_EQ(reader.upTo("NaCl"), " x ");
    EXPECT_THROW(reader.end(), std::runtime_error);
    reader.expect(".\n");
    reader.end();
}

TEST(ReaderTest, NumbersAreInGeneralNotationOfSoManyDigits)
{
    const struct {
        const char* text;
        double value;
    } good[] = {{"1", 1}, {"0.0171", 0.0171}, {"58.4x", 58.4}, {"166", 166}, {"6.67e-05", 6.67e-5}};
    for (const auto& c : good) {
        EXPECT_EQ(Reader(c.text).number(3).value, c.value) << c.text;
    }
    for (const char* text : {"", "x", "0", "58.44", "0.01710", "1.", "1.0", "-1", "1234"}) {
        EXPECT_THROW(Reader(text).number(3), std::runtime_error) << text;
    }
}

TEST(ReaderTest, ANumberAgreesWithWhatItMayHaveBeenRoundedFrom)
{
    const Shown number = {0.342, 3};
    EXPECT_TRUE(agree(number, exactly(0.342231)));
    EXPECT_TRUE(agree(number, exactly(0.3416)));
    EXPECT_FALSE(agree(number, exactly(0.3414)));
    EXPECT_FALSE(agree(number, exactly(0.3426)));
    EXPECT_FALSE(agree({1, 3}, exactly(1.006)));
    for (const double power : {1e-5, 1e-4, 1e-3, 0.01, 0.1, 1.0, 10.0, 100.0, 1000.0}) {
        EXPECT_TRUE(agree({power, 3}, exactly(1.004 * power))) << power;
        EXPECT_FALSE(agree({power, 3}, exactly(1.006 * power))) << power;
    }
    EXPECT_FALSE(agree({58.44, 6}, exactly(58.4401)));
    EXPECT_TRUE(agree({1, 3}, within({0.0171, 3}) * exactly(58.44)));
    EXPECT_FALSE(agree({1, 3}, within({0.0173, 3}) * exactly(58.44)));
    EXPECT_TRUE(agree({0.04, 3}, exactly(0.05) - exactly(0.01)));
    EXPECT_TRUE(agree({2, 1}, exactly(1) / within({0.4, 1})));
}
