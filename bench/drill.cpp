// The practice loop of the program, for a number of questions.

#include <cstdlib>

#include "arguments.hpp"
#include "console/practice.hpp"
#include "data/soluble.hpp"

int main(int argc, char** argv)
{
    const Arguments arguments = readArguments(argc, argv);
    initSolubles();
    for (int question = 0; question < arguments.questions; ++question) {
        if (question % questionsInRound == 0) {
            std::srand(seedOfRound);
        }
        practise(arguments.kind);
    }
}
