#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "process/dialogue.hpp"

// Whole dialogues of the program with the fixed generator, as they were approved. When one is meant
// to change, scripts/approve writes them anew, to be read before they are committed.

namespace
{

std::string approvedDialogue(const std::string& kind)
{
    std::ifstream file(APPROVED_FOLDER "/kind" + kind + ".txt", std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

// What the program prints in answer to the keys, as far as the approved dialogue goes.
std::string dialogue(const std::string& keys, std::size_t length)
{
    PipedProgram program(FIXED_PROGRAM);
    program.type(keys);
    program.input.close();
    return program.output.bytes(length);
}

class TranscriptTest : public testing::TestWithParam<std::string>
{
};

} // namespace

TEST_P(TranscriptTest, DialogueIsTheApprovedOne)
{
    const std::string approved = approvedDialogue(GetParam());
    ASSERT_GE(count(approved, "ANSWER:\n"), 8);
    EXPECT_EQ(dialogue(GetParam() + "\n", approved.size()), approved);
}

TEST_P(TranscriptTest, KeysDoNotChangeIt)
{
    const std::string approved = approvedDialogue(GetParam());
    for (const std::string& keys : {
             std::string(""),                          // the end of the input
             std::string("\n\n\n\n\n\n\n\n\n\n"),      //
             std::string(" 1 2 3 4 quit exit 0\n"),    //
             std::string("x\xff\x80\x01\x1b[A\x7f\n"), //
             std::string("\n\0\0\n\0\n", 6),           //
             "\n" + std::string(10000, 'k'),
         }) {
        EXPECT_EQ(dialogue(GetParam() + keys, approved.size()), approved)
            << testing::PrintToString(keys.substr(0, 40));
    }
}

INSTANTIATE_TEST_SUITE_P(EveryKind, TranscriptTest, testing::Values("0", "1", "2", "3", "4"));
