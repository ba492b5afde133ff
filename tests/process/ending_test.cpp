#include <fcntl.h>
#include <gtest/gtest.h>

#include <csignal>
#include <string>

#include "process/dialogue.hpp"
#include "support/child_process.hpp"

// How the program ends, and what does not end it.

namespace
{

std::string endBySignal(int signal)
{
    return "signal " + std::to_string(signal);
}

// More keys than the 65,536 that a pipe holds: they can only be written if the program goes on.
const std::string manyKeys(70000, '\n');

} // namespace

TEST(EndingTest, ClosedReaderEndsItQuietly)
{
    PipedProgram program(PROGRAM);
    program.type("1\n");
    program.skipToWait(2);
    program.source.close();
    program.type("\n");
    EXPECT_EQ(program.child.waitForEnd(), endBySignal(SIGPIPE));
    EXPECT_EQ(program.child.errors(), "");
}

TEST(EndingTest, ClosedReaderEndsItAtTheEndOfTheInputToo)
{
    PipedProgram program(PROGRAM);
    program.input.close();
    program.skipToWait(100);
    program.source.close();
    EXPECT_EQ(program.child.waitForEnd(), endBySignal(SIGPIPE));
    EXPECT_EQ(program.child.errors(), "");
}

TEST(EndingTest, ClosedReaderEndsItUnderAParentThatIgnoresTheSignal)
{
    Pipe keys = makePipe();
    Pipe text = makePipe();
    ChildProcess child(PROGRAM,
                       {keys.readEnd.number(), text.writeEnd.number(), Place::besideTheTest, true});
    text.writeEnd.close();
    keys.writeEnd.close();
    Output(text.readEnd).until(prompt, 2);
    text.readEnd.close();
    EXPECT_EQ(child.waitForEnd(), endBySignal(SIGPIPE));
    EXPECT_EQ(child.errors(), "");
}

TEST(EndingTest, InterruptEndsItAtTheMenu)
{
    PipedProgram program(PROGRAM);
    program.output.until(menu);
    program.expectsKey();
    program.child.send(SIGINT);
    EXPECT_EQ(program.child.waitForEnd(), endBySignal(SIGINT));
    EXPECT_EQ(program.child.errors(), "");
}

TEST(EndingTest, InterruptEndsItAtAWait)
{
    PipedProgram program(PROGRAM);
    program.type("2\n");
    program.skipToWait(2);
    program.expectsKey();
    program.child.send(SIGINT);
    EXPECT_EQ(program.child.waitForEnd(), endBySignal(SIGINT));
    EXPECT_EQ(program.child.errors(), "");
}

TEST(EndingTest, InterruptEndsItWhilePrinting)
{
    PipedProgram program(PROGRAM);
    program.input.close();
    program.skipToWait(100);
    program.child.send(SIGINT);
    EXPECT_EQ(program.child.waitForEnd(), endBySignal(SIGINT));
    EXPECT_EQ(program.child.errors(), "");
}

TEST(EndingTest, TerminationEndsIt)
{
    PipedProgram program(PROGRAM);
    program.output.until(menu);
    program.child.send(SIGTERM);
    EXPECT_EQ(program.child.waitForEnd(), endBySignal(SIGTERM));
}

TEST(EndingTest, StoppedProgramContinuesWhereItWas)
{
    PipedProgram program(PROGRAM);
    program.type("3\n");
    program.skipToWait(2);
    program.expectsKey();
    // A launcher may know no stop at the keyboard, which is the other signal.
    program.child.send(hasLauncher() ? SIGSTOP : SIGTSTP);
    program.child.waitForStop();
    program.child.send(SIGCONT);
    program.expectsKey();
    program.type("\n");
    EXPECT_EQ(count(program.skipToWait(1), "ANSWER:\n"), 1);
}

TEST(EndingTest, InputClosedFromTheStartIsTheEndOfTheInput)
{
    Pipe text = makePipe();
    ChildProcess child(PROGRAM, {-1, text.writeEnd.number()});
    text.writeEnd.close();
    Output output(text.readEnd);
    EXPECT_EQ(output.until("0. Random\n"), menu);
    EXPECT_EQ(kindsIn(output.until(prompt, 300)), (std::set<int>{1, 2, 4}));
    text.readEnd.close();
    EXPECT_EQ(child.waitForEnd(), endBySignal(SIGPIPE));
    EXPECT_EQ(child.errors(), "");
}

TEST(EndingTest, OutputClosedFromTheStartDoesNotEndIt)
{
    Pipe keys = makePipe();
    ChildProcess child(PROGRAM, {keys.readEnd.number(), -1});
    keys.readEnd.close();
    writeAll(keys.writeEnd.number(), "4\n" + manyKeys);
    child.send(SIGINT);
    EXPECT_EQ(child.waitForEnd(), endBySignal(SIGINT));
    EXPECT_EQ(child.errors(), "");
}

TEST(EndingTest, FullDeviceDoesNotEndIt)
{
    Pipe keys = makePipe();
    const Descriptor full(open("/dev/full", O_WRONLY | O_CLOEXEC));
    ASSERT_GE(full.number(), 0);
    ChildProcess child(PROGRAM, {keys.readEnd.number(), full.number()});
    keys.readEnd.close();
    writeAll(keys.writeEnd.number(), "4\n" + manyKeys);
    child.send(SIGINT);
    EXPECT_EQ(child.waitForEnd(), endBySignal(SIGINT));
    EXPECT_EQ(child.errors(), "");
}

TEST(EndingTest, TerminalThatRefusesToShowAnythingDoesNotEndIt)
{
    if (!hasTerminals()) {
        GTEST_SKIP() << "no pseudo-terminals here";
    }
    Pipe keys = makePipe();
    Terminal terminal = makeTerminal();
    ChildProcess child(PROGRAM,
                       {keys.readEnd.number(), terminal.program.number(), Place::inTheBackground});
    keys.readEnd.close();
    terminal.program.close();
    writeAll(keys.writeEnd.number(), "4\n" + manyKeys);
    EXPECT_FALSE(Output(terminal.person).hasMore());
    child.send(SIGINT);
    EXPECT_EQ(child.waitForEnd(), endBySignal(SIGINT));
    EXPECT_EQ(child.errors(), "");
}
