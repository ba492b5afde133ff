#include <csignal>
#include <cstdlib>
#include <ctime>

#include "console/menu.hpp"
#include "console/practice.hpp"
#include "data/soluble.hpp"

int main()
{
    // A parent may have these ignored; then nothing would end the loop when its reader is gone.
    std::signal(SIGPIPE, SIG_DFL);
    std::signal(SIGHUP, SIG_DFL);

    std::srand(static_cast<unsigned int>(std::time(nullptr)));
    initSolubles();
    printMenu();
    const QuestionType kind = readChoice();
    for (;;) {
        practise(kind);
    }
}
