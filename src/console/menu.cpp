#include "console/menu.hpp"

#include <cstdlib>
#include <iostream>

using std::endl;

void printMenu()
{
    std::cout << "Chemical calculations practice" << endl;
    std::cout << "Note that due to the limitations of this program subscript and superscript don't "
                 "look how they should."
              << endl;
    std::cout << endl;
    std::cout << "Which kind of questions?" << endl;
    std::cout << "1. Mass and solution concentration calculations" << endl;
    std::cout << "2. Dilution calculations" << endl;
    std::cout << "3. Neutralisation equation writing and balancing" << endl;
    std::cout << "4. Acid-base titration calculations" << endl;
    std::cout << "0. Random" << endl;
}

QuestionType readChoice()
{
    std::string word;
    std::cin >> word;
    return kindOfWord(word);
}

QuestionType kindOfWord(const std::string& word)
{
    switch (std::atoi(word.c_str())) {
    case 1:
        return massConcentrationKind;
    case 2:
        return dilutionKind;
    case 3:
        return neutralisationKind;
    case 4:
        return titrationKind;
    default:
        return randomKind;
    }
}
