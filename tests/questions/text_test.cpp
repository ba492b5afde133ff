#include "questions/text.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <iomanip>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <string_view>

namespace
{

using Limits = std::numeric_limits<float>;

// What an output stream shows, which is what every number has to look like.
std::string streamed(float number, int digits)
{
    static std::ostringstream stream;
    stream.str("");
    stream << std::setprecision(digits) << number;
    return stream.str();
}

std::string shown(float number, int digits)
{
    Text text;
    text << Digits{digits} << number;
    return text.str;
}

float numberOfBits(std::uint32_t bits)
{
    float number = 0.0f;
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

TEST(TextTest, PiecesFollowEachOther)
{
    Text text;
    EXPECT_EQ(text.str, "");
    text << "V = " << 0.5f << " L of " << std::string("NaOH") << "\n";
    EXPECT_EQ(text.str, "V = 0.5 L of NaOH\n");
}

TEST(TextTest, NumbersHaveSixDigitsUntilAnotherPrecisionIsPutIn)
{
    Text text;
    text << 58.4412345f << " " << 1234567.0f << " " << 0.00001f;
    EXPECT_EQ(text.str, "58.4412 1.23457e+06 1e-05");
}

TEST(TextTest, ThePrecisionStaysUntilTheNextOne)
{
    Text text;
    text << Digits{3} << 58.4412345f << "/" << 0.342231f << " " << Digits{2} << 0.342231f << " x "
         << 9.96f << " " << Digits{7} << 58.4412345f;
    EXPECT_EQ(text.str, "58.4/0.342 0.34 x 10 58.44123");
}

TEST(TextTest, GeneralNotation)
{
    struct Case {
        float number;
        int digits;
        const char* expected;
    };
    const Case cases[] = {
        {50.0f, 3, "50"},
        {0.05f, 6, "0.05"},
        {0.0001f, 3, "0.0001"},
        {0.00009999f, 3, "0.0001"},
        {0.00005f, 3, "5e-05"},
        {999.4f, 3, "999"},
        {999.6f, 3, "1e+03"},
        {2.5f, 1, "2"}, // A tie goes to the even digit.
        {3.5f, 1, "4"},
        {-0.0f, 6, "-0"},
        {Limits::max(), 6, "3.40282e+38"},
        {Limits::infinity(), 3, "inf"},
        {-Limits::infinity(), 3, "-inf"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(shown(c.number, c.digits), c.expected) << c.number << " to " << c.digits;
    }
}

TEST(TextTest, EveryNumberLooksAsInAnOutputStream)
{
    std::mt19937 bits(20240229);
    for (int i = 0; i < 300000; ++i) {
        const float number = numberOfBits(static_cast<std::uint32_t>(bits()));
        const int digits = i % 13;
        ASSERT_EQ(shown(number, digits), streamed(number, digits)) << "to " << digits << " digits";
    }
}

TEST(TextTest, NumbersAsQuestionsHaveThemLookAsInAnOutputStream)
{
    std::mt19937 random(1789);
    std::uniform_int_distribution<int> thousandths(0, 1000000);
    for (int i = 0; i < 100000; ++i) {
        const float number = static_cast<float>(thousandths(random)) / 1000.0f;
        const int digits = 1 + i % 6;
        ASSERT_EQ(shown(number, digits), streamed(number, digits)) << "to " << digits << " digits";
    }
}

TEST(TextTest, ExtremesLookAsInAnOutputStreamAtAnyPrecision)
{
    const float numbers[] = {
        0.0f,
        -0.0f,
        Limits::denorm_min(),
        -Limits::denorm_min(),
        Limits::min(),
        numberOfBits(0x007FFFFF), // The greatest denormal, with the most digits of all.
        numberOfBits(0x00800001),
        Limits::lowest(),
        Limits::max(),
        Limits::epsilon(),
        0.0001f,
        0.000099999f,
        16777216.0f,
        Limits::infinity(),
        -Limits::infinity(),
        Limits::quiet_NaN(),
        -Limits::quiet_NaN(),
    };
    for (const float number : numbers) {
        for (const int digits : {-1, 0, 1, 6, 17, 38, 39, 40, 111, 112, 113, 149, 150, 1000}) {
            EXPECT_EQ(shown(number, digits), streamed(number, digits))
                << "to " << digits << " digits";
        }
    }
}

TEST(GeneralTest, LooksAsInAText)
{
    EXPECT_EQ(general(0.342231f, 3), "0.342");
    EXPECT_EQ(general(0.342231f, 6), "0.342231");
    EXPECT_EQ(general(1000.0f, 3), "1e+03");
    EXPECT_EQ(general(-0.04f, 1), "-0.04");
}

TEST(JoinedTest, PiecesOfAnyKindFollowEachOther)
{
    const std::string formula = "Fe2(SO4)3";
    const std::string_view unit = "mol";
    EXPECT_EQ(joined("n(", formula, ") = ", std::to_string(2), " ", unit, "\n"),
              "n(Fe2(SO4)3) = 2 mol\n");
    EXPECT_EQ(joined(formula), formula);
}

TEST(JoinedTest, EmptyPiecesLeaveNoTrace)
{
    EXPECT_EQ(joined("", std::string()), "");
    EXPECT_EQ(joined("", "a", std::string(), "b", std::string_view()), "ab");
}

TEST(JoinedTest, LongTextsAreWhole)
{
    const std::string line(1000, '-');
    EXPECT_EQ(joined(line, "|", line), line + "|" + line);
}

} // namespace
