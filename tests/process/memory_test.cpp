#include <gtest/gtest.h>

#include <string>

#include "process/dialogue.hpp"

#ifndef __has_feature
#define __has_feature(name) 0
#endif
#if defined(__SANITIZE_ADDRESS__) || __has_feature(address_sanitizer)
constexpr bool memoryIsTheProgramsOwn = false; // the sanitizer keeps what the program has freed
#else
constexpr bool memoryIsTheProgramsOwn = true;
#endif

// The system counts the pages of a process for each processor and adds them up now and then, so
// that a reading may be some pages off. Three bytes lost per question would show.
constexpr long slackInKiB = 256;

class MemoryTest : public testing::TestWithParam<std::string>
{
};

TEST_P(MemoryTest, DoesNotGrowFromQuestionToQuestion)
{
    if (!memoryIsTheProgramsOwn || hasLauncher()) {
        GTEST_SKIP() << "another program's memory would be measured with it";
    }
    if (!tellsOfProcesses()) {
        GTEST_SKIP() << "no /proc here";
    }
    PipedProgram program(FIXED_PROGRAM);
    program.type(GetParam());
    program.input.close();
    program.skipToWait(1000);
    const long early = program.child.peakMemory();
    program.skipToWait(99000);
    const long late = program.child.peakMemory();
    RecordProperty("early", std::to_string(early));
    RecordProperty("late", std::to_string(late));
    EXPECT_LE(late, early + slackInKiB) << "KiB, after 1,000 and 100,000 questions";
}

INSTANTIATE_TEST_SUITE_P(EveryKind, MemoryTest, testing::Values("0", "1", "2", "3", "4"));
