#include "console/practice.hpp"

#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <iostream>

#include "questions/question.hpp"

namespace
{

// A terminal that goes away sends a hang-up only to the processes that it controls. Any other would
// go on for nobody, without a pause, and ends itself in the same way.
void endIfTerminalIsGone()
{
    if (!std::cout && isatty(STDOUT_FILENO) == 0 && errno == EIO) {
        std::raise(SIGHUP);
    }
}

} // namespace

void practise(QuestionType kind)
{
    const QandA current = makeQuestion(kind);
    std::cout << current.question;
    std::cout << "Press enter to continue..." << std::endl;
    waitForKey();
    std::cout << "ANSWER:" << std::endl;
    std::cout << current.answer << std::endl;
    endIfTerminalIsGone();
}

void waitForKey()
{
    int key = 0;
    while (key == 0) {
        key = std::getchar();
    }
}
