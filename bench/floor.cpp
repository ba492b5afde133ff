// Writes what `drill` writes, with the same calls, the same flushes and the same reading of
// standard input, from texts that it prepares beforehand: the least that such a program can take.

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <vector>

#include "arguments.hpp"
#include "data/soluble.hpp"
#include "questions/question.hpp"

namespace
{

std::vector<QandA> prepareRound(QuestionType kind)
{
    initSolubles();
    std::srand(seedOfRound);
    std::vector<QandA> texts;
    for (int question = 0; question < questionsInRound; ++question) {
        texts.push_back(makeQuestion(kind));
    }
    return texts;
}

void show(const QandA& text)
{
    std::cout << text.question;
    std::cout << "Press enter to continue..." << std::endl;
    while (std::getchar() == 0) {
    }
    std::cout << "ANSWER:" << std::endl;
    std::cout << text.answer << std::endl;
}

} // namespace

int main(int argc, char** argv)
{
    const Arguments arguments = readArguments(argc, argv);
    const std::vector<QandA> texts = prepareRound(arguments.kind);
    for (int question = 0; question < arguments.questions; ++question) {
        show(texts[static_cast<std::size_t>(question % questionsInRound)]);
    }
}
