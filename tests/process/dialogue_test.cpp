#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <set>
#include <string>
#include <vector>

#include "process/dialogue.hpp"
#include "support/child_process.hpp"

// The shipped program at the other end of pipes.

namespace
{

using testing::EndsWith;

struct Word {
    std::string text;
    std::set<int> kinds; // the kinds of question that it brings
};

const std::set<int> random{1, 2, 4};

const std::vector<Word> words = {
    {"0\n", random},
    {"1\n", {1}},
    {"2\n", {2}},
    {"3\n", {3}},
    {"4\n", {4}},
    {"5\n", random},
    {"-3\n", random},
    {"07\n", random},
    {"abc\n", random},
    {"1abc\n", {1}},
    {"+1\n", {1}},
    {"3.9\n", {3}},
    {"03\n", {3}},
    {"", random},
    {"\n\n", random},
    {"\n\n \t\v\f\r 2", {2}},     // blanks in front, and the end of the input behind
    {"\x01\x1b[A\x7f\n", random}, // control characters, among them an arrow key
    {"3\x01\x1b\x7f\n", {3}},
    {"\xff\xfe\x85\xa0\n", random}, // bytes above 127, among them blanks of other alphabets
    {"3\xff\xfe\x85\xa0\n", {3}},
    {std::string("3\0004\n", 4), {3}}, // the number ends at the NUL
    {std::string("\0003\n", 3), random},
    {std::string(1000000, '9') + "\n", random},
    {std::string(1000000, 'x') + "\n", random},
    {"3" + std::string(1000000, 'x') + "\n", {3}},
};

std::string shortened(const std::string& text)
{
    return testing::PrintToString(text.substr(0, 40));
}

} // namespace

TEST(DialogueTest, MenuComesBeforeAnythingIsTyped)
{
    PipedProgram program(PROGRAM);
    EXPECT_EQ(program.output.until("0. Random\n"), menu);
    program.child.waitForSleep();
    EXPECT_FALSE(program.output.hasMore());
}

TEST(DialogueTest, WordChoosesTheKindOfEveryQuestion)
{
    for (const Word& word : words) {
        SCOPED_TRACE(shortened(word.text));
        PipedProgram program(PROGRAM);
        program.type(word.text);
        program.input.close();
        EXPECT_EQ(kindsIn(program.output.until("ANSWER:\n", 300)), word.kinds);
    }
}

TEST(DialogueTest, QuestionIsDeliveredBeforeItsKeyAndAnswerAfterIt)
{
    PipedProgram program(PROGRAM);
    program.type("3\n");
    program.skipToWait(2);
    for (int i = 0; i < 3; ++i) {
        program.expectsKey();
        program.type("\n");
        const std::string shown = program.output.until(prompt);
        EXPECT_EQ(shown.rfind("ANSWER:\n", 0), 0U) << shown;
        EXPECT_EQ(count(shown, "ANSWER:\n"), 1) << shown;
        EXPECT_THAT(shown, EndsWith(".\nPress enter to continue...\n"));
        EXPECT_EQ(count(shown, "\n\nWrite a balanced equation for "), 1) << shown;
    }
    program.expectsKey();
}

TEST(DialogueTest, NewlineBehindTheMenuWordReleasesTheFirstAnswer)
{
    PipedProgram program(PROGRAM);
    program.type("1\n");
    EXPECT_EQ(count(program.skipToWait(2), "ANSWER:\n"), 1);
    program.expectsKey();
}

TEST(DialogueTest, CharactersBehindTheMenuWordReleaseOneAnswerEach)
{
    PipedProgram program(PROGRAM);
    program.type("2 4\n");
    const std::string shown = program.skipToWait(4);
    EXPECT_EQ(kindsIn(shown), std::set<int>{2});
    EXPECT_EQ(count(shown, "ANSWER:\n"), 3);
    program.expectsKey();
}

TEST(DialogueTest, TwoLettersAndEnterReleaseThreeAnswers)
{
    PipedProgram program(PROGRAM);
    program.type("4\n");
    program.skipToWait(2);
    program.type("ab\n");
    program.skipToWait(3);
    program.expectsKey();
}

TEST(DialogueTest, NulAtAWaitIsSkipped)
{
    PipedProgram program(PROGRAM);
    program.type("4\n");
    program.skipToWait(2);
    program.type(std::string(1000, '\0'));
    program.expectsKey();
    program.type("\n");
    program.skipToWait(1);
    program.expectsKey();
}

TEST(DialogueTest, EveryOtherCharacterEndsAWait)
{
    PipedProgram program(PROGRAM);
    program.type("3\n");
    program.skipToWait(2);
    for (int key = 1; key <= 255; ++key) {
        SCOPED_TRACE(key);
        program.type(std::string(1, static_cast<char>(key)));
        program.skipToWait(1);
        program.expectsKey();
    }
}

TEST(DialogueTest, EndOfInputAtAWaitGoesOnWithoutPausing)
{
    PipedProgram program(PROGRAM);
    program.type("3\n");
    program.skipToWait(2);
    program.expectsKey();
    program.input.close();
    program.skipToWait(1000);
}
