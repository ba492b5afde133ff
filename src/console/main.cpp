#include <cstdlib>
#include <ctime>

#include "console/menu.hpp"
#include "console/practice.hpp"
#include "data/soluble.hpp"

int main()
{
    std::srand(static_cast<unsigned int>(std::time(nullptr)));
    initSolubles();
    printMenu();
    const QuestionType kind = readChoice();
    for (;;) {
        practise(kind);
    }
}
