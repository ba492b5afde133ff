#include "console/question_type.hpp"

#include <gtest/gtest.h>

namespace
{

TEST(QuestionTypeTest, KindsHaveTheNumbersOfTheMenu)
{
    EXPECT_EQ(static_cast<int>(randomKind), 0);
    EXPECT_EQ(static_cast<int>(massConcentrationKind), 1);
    EXPECT_EQ(static_cast<int>(dilutionKind), 2);
    EXPECT_EQ(static_cast<int>(neutralisationKind), 3);
    EXPECT_EQ(static_cast<int>(titrationKind), 4);
}

} // namespace
