#include "grading/grading.hpp"

#include <cstdio>

#include "chem/solubility.hpp"

namespace
{

int gradeFormula(const std::string& expected, const std::string& answer)
{
    if (answer == expected) {
        std::puts("Correct.");
        return 1;
    }
    if (ucase(expected) == ucase(answer)) {
        std::printf("Close; correct answer is %s\n", expected.c_str());
    } else {
        std::printf("Incorrect; correct answer is %s\n", expected.c_str());
    }
    return 0;
}

} // namespace

int getResponse(Ion cation, Ion anion, std::string answer)
{
    return gradeFormula(makeFormula(cation, anion), answer);
}

int Ion::getResponse(std::string answer) const
{
    return gradeFormula(makeFormula(), answer);
}

int getSolResponse(Ion cation, Ion anion, std::string answer)
{
    const char verdict = isSolubleChar(cation, anion);
    const char given = answer.c_str()[0]; // NUL for an empty answer, which no verdict is.
    if (ucase(given) == ucase(verdict)) {
        std::puts("Correct.");
        return 1;
    }
    std::printf("Incorrect; %s is %s\n", makeFormula(cation, anion).c_str(),
                isSolubleWord(verdict).c_str());
    return 0;
}
