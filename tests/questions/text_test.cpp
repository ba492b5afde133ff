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

float numberOfBits(std::uint32_t bits)
{
    float number = 0.0f;
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

TEST(GeneralTest, HasAnExponentOnlyWhereItIsNeeded)
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
        EXPECT_EQ(general(c.number, c.digits), c.expected) << c.number << " to " << c.digits;
    }
}

TEST(GeneralTest, EveryNumberLooksAsInAnOutputStream)
{
    std::mt19937 bits(20240229);
    for (int i = 0; i < 300000; ++i) {
        const float number = numberOfBits(static_cast<std::uint32_t>(bits()));
        const int digits = i % 13;
        ASSERT_EQ(general(number, digits), streamed(number, digits))
            << "to " << digits << " digits";
    }
}

TEST(GeneralTest, NumbersAsQuestionsHaveThemLookAsInAnOutputStream)
{
    std::mt19937 random(1789);
    std::uniform_int_distribution<int> thousandths(0, 1000000);
    for (int i = 0; i < 100000; ++i) {
        const float number = static_cast<float>(thousandths(random)) / 1000.0f;
        const int digits = 1 + i % 6;
        ASSERT_EQ(general(number, digits), streamed(number, digits))
            << "to " << digits << " digits";
    }
}

TEST(GeneralTest, ExtremesLookAsInAnOutputStreamAtAnyPrecision)
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
            EXPECT_EQ(general(number, digits), streamed(number, digits))
                << "to " << digits << " digits";
        }
    }
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
