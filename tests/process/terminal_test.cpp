#include <gtest/gtest.h>

#include <csignal>
#include <memory>
#include <string>

#include "process/dialogue.hpp"
#include "support/child_process.hpp"

// The program on a terminal, which shows what is typed and ends its lines with "\r\n".

namespace
{

const std::string terminalPrompt = "Press enter to continue...\r\n";
const std::string hangUp = "signal " + std::to_string(SIGHUP);
const std::string interrupt = "signal " + std::to_string(SIGINT);
const std::string controlC = "\x03";
const std::string controlD = "\x04";

class LostTerminalTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!hasTerminals()) {
            GTEST_SKIP() << "no pseudo-terminals here";
        }
    }
};

class TerminalTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!hasTerminals()) {
            GTEST_SKIP() << "no pseudo-terminals here";
        }
        terminal = makeTerminal();
        const int side = terminal.program.number();
        child =
            std::make_unique<ChildProcess>(PROGRAM, Surroundings{side, side, Place::onItsTerminal});
        terminal.program.close();
        screen = std::make_unique<Output>(terminal.person);
        screen->until("0. Random\r\n");
    }

    void type(const std::string& keys) const
    {
        writeAll(terminal.person.number(), keys);
    }

    void expectKeyIsAwaited()
    {
        child->waitForSleep();
        EXPECT_FALSE(screen->hasMore());
    }

    Terminal terminal;
    std::unique_ptr<ChildProcess> child;
    std::unique_ptr<Output> screen;
};

} // namespace

TEST_F(TerminalTest, FirstAnswerComesAtOnceAndLaterOnesOnEnter)
{
    type("4\n");
    EXPECT_EQ(count(screen->until(terminalPrompt, 2), "ANSWER:\r\n"), 1);
    for (int i = 0; i < 3; ++i) {
        expectKeyIsAwaited();
        type("\n");
        EXPECT_EQ(count(screen->until(terminalPrompt), "ANSWER:\r\n"), 1);
    }
    expectKeyIsAwaited();
}

TEST_F(TerminalTest, LettersBeforeEnterReleaseAnAnswerEach)
{
    type("4\n");
    screen->until(terminalPrompt, 2);
    type("ab\n");
    screen->until(terminalPrompt, 3);
    expectKeyIsAwaited();
}

TEST_F(TerminalTest, InterruptEndsItAtTheMenu)
{
    expectKeyIsAwaited();
    type(controlC);
    EXPECT_EQ(child->waitForEnd(), interrupt);
    EXPECT_EQ(child->errors(), "");
}

TEST_F(TerminalTest, InterruptEndsItAtAWait)
{
    type("1\n");
    screen->until(terminalPrompt, 2);
    expectKeyIsAwaited();
    type(controlC);
    EXPECT_EQ(child->waitForEnd(), interrupt);
    EXPECT_EQ(child->errors(), "");
}

TEST_F(TerminalTest, InterruptEndsItWhilePrinting)
{
    type(controlD);
    screen->until(terminalPrompt, 100);
    type(controlC);
    EXPECT_EQ(child->waitForEnd(), interrupt);
    EXPECT_EQ(child->errors(), "");
}

TEST_F(TerminalTest, HangUpEndsItAtTheMenu)
{
    expectKeyIsAwaited();
    terminal.person.close();
    EXPECT_EQ(child->waitForEnd(), hangUp);
    EXPECT_EQ(child->errors(), "");
}

TEST_F(TerminalTest, HangUpEndsItAtAWait)
{
    type("3\n");
    screen->until(terminalPrompt, 2);
    expectKeyIsAwaited();
    terminal.person.close();
    EXPECT_EQ(child->waitForEnd(), hangUp);
    EXPECT_EQ(child->errors(), "");
}

TEST_F(TerminalTest, HangUpEndsItWhilePrinting)
{
    type(controlD);
    screen->until(terminalPrompt, 100);
    terminal.person.close();
    EXPECT_EQ(child->waitForEnd(), hangUp);
    EXPECT_EQ(child->errors(), "");
}

TEST_F(LostTerminalTest, HangUpEndsItUnderAParentThatIgnoresTheSignal)
{
    Terminal terminal = makeTerminal();
    const int side = terminal.program.number();
    ChildProcess child(PROGRAM, {side, side, Place::onItsTerminal, true});
    terminal.program.close();
    Output(terminal.person).until("0. Random\r\n");
    terminal.person.close();
    EXPECT_EQ(child.waitForEnd(), hangUp);
    EXPECT_EQ(child.errors(), "");
}

// A terminal that does not control the program sends it no signal when it goes away.
TEST_F(LostTerminalTest, TerminalOfOthersEndsItLikeAHangUpAtTheMenu)
{
    Terminal terminal = makeTerminal();
    const int side = terminal.program.number();
    ChildProcess child(PROGRAM, {side, side});
    terminal.program.close();
    Output(terminal.person).until("0. Random\r\n");
    child.waitForSleep();
    terminal.person.close();
    EXPECT_EQ(child.waitForEnd(), hangUp);
    EXPECT_EQ(child.errors(), "");
}

TEST_F(LostTerminalTest, TerminalOfOthersEndsItLikeAHangUpAtAWait)
{
    Terminal terminal = makeTerminal();
    const int side = terminal.program.number();
    ChildProcess child(PROGRAM, {side, side});
    terminal.program.close();
    writeAll(terminal.person.number(), "2\n");
    Output(terminal.person).until(terminalPrompt, 2);
    child.waitForSleep();
    terminal.person.close();
    EXPECT_EQ(child.waitForEnd(), hangUp);
    EXPECT_EQ(child.errors(), "");
}

TEST_F(LostTerminalTest, TerminalOfOthersEndsItLikeAHangUpWhilePrinting)
{
    Terminal terminal = makeTerminal();
    ChildProcess child(PROGRAM, {-1, terminal.program.number()});
    terminal.program.close();
    Output(terminal.person).until(terminalPrompt, 100);
    terminal.person.close();
    EXPECT_EQ(child.waitForEnd(), hangUp);
    EXPECT_EQ(child.errors(), "");
}

TEST_F(LostTerminalTest, InputFromALostTerminalIsTheEndOfTheInput)
{
    Terminal terminal = makeTerminal();
    Pipe text = makePipe();
    ChildProcess child(PROGRAM, {terminal.program.number(), text.writeEnd.number()});
    terminal.program.close();
    text.writeEnd.close();
    Output output(text.readEnd);
    writeAll(terminal.person.number(), "2\n");
    output.until(prompt, 2);
    terminal.person.close();
    output.until(prompt, 100);
    text.readEnd.close();
    EXPECT_EQ(child.waitForEnd(), "signal " + std::to_string(SIGPIPE));
    EXPECT_EQ(child.errors(), "");
}
