#include "console/q_and_a.hpp"

#include <gtest/gtest.h>

namespace
{

TEST(QandATest, IsEmptyByDefault)
{
    const QandA none;
    EXPECT_EQ(none.question, "");
    EXPECT_EQ(none.answer, "");
}

TEST(QandATest, FieldsAreQuestionAndAnswerInThisOrder)
{
    const auto [question, answer] = QandA{"How much?\n", "1 g\n"};
    EXPECT_EQ(question, "How much?\n");
    EXPECT_EQ(answer, "1 g\n");
}

TEST(QandATest, CopiesHoldBothTexts)
{
    const QandA original{"How much?\n", "1 g\n"};
    const QandA copy = original;
    QandA assigned{"Which?\n", "None\n"};
    EXPECT_EQ(&(assigned = original), &assigned);
    for (const QandA& each : {copy, assigned}) {
        EXPECT_EQ(each.question, "How much?\n");
        EXPECT_EQ(each.answer, "1 g\n");
    }
}

} // namespace
