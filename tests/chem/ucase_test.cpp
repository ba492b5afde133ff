#include "chem/ucase.hpp"

#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <string>

namespace
{

TEST(UcaseTest, EveryCharacter)
{
    const std::string lower = "abcdefghijklmnopqrstuvwxyz";
    const std::string upper = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    for (int code = CHAR_MIN; code <= CHAR_MAX; ++code) {
        const char letter = static_cast<char>(code);
        const std::size_t place = lower.find(letter);
        EXPECT_EQ(ucase(letter), place == std::string::npos ? letter : upper[place]) << code;
    }
}

TEST(UcaseTest, AText)
{
    EXPECT_EQ(ucase("Al2(SO4)3 is {soluble}, `z\xe9\xff"), "AL2(SO4)3 IS {SOLUBLE}, `Z\xe9\xff");
    EXPECT_EQ(ucase(std::string()), "");
    EXPECT_EQ(ucase(std::string("a\0b", 3)), std::string("A\0B", 3));
    EXPECT_EQ(ucase(std::string(1000000, 'q')), std::string(1000000, 'Q'));
}

} // namespace
