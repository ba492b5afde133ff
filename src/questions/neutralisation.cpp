#include "questions/neutralisation.hpp"

#include <utility>

QandA neutralisationQuestion()
{
    return neutralisationQuestion(drawNeutralisation());
}

QandA neutralisationQuestion(const Neutralisation& reaction)
{
    Text question;
    question << "Write a balanced equation for " << reaction.acidName << " plus "
             << reaction.baseName << ".\n";

    Text answer;
    writeEquation(answer, reaction, "Computer does not have the answer for this question.");
    return {std::move(question.str), std::move(answer.str)};
}
