#include "questions/neutralisation.hpp"

#include "questions/text.hpp"

QandA neutralisationQuestion()
{
    return neutralisationQuestion(drawNeutralisation());
}

QandA neutralisationQuestion(const Neutralisation& reaction)
{
    return {joined("Write a balanced equation for ", reaction.acidName, " plus ", reaction.baseName,
                   ".\n"),
            equationLine(reaction, "Computer does not have the answer for this question.")};
}
