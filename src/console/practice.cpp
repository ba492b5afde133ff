#include "console/practice.hpp"

#include <cstdio>
#include <iostream>

#include "questions/question.hpp"

void practise(QuestionType kind)
{
    const QandA current = makeQuestion(kind);
    std::cout << current.question;
    std::cout << "Press enter to continue..." << std::endl;
    waitForKey();
    std::cout << "ANSWER:" << std::endl;
    std::cout << current.answer << std::endl;
}

void waitForKey()
{
    int key = 0;
    while (key == 0) {
        key = std::getchar();
    }
}
