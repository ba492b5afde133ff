#include "questions/neutralisation.hpp"

QandA neutralisationQuestion()
{
    return neutralisationQuestion(drawAcidAndBase());
}

QandA neutralisationQuestion(const AcidAndBase& pair)
{
    QandA result;
    result.question = "Write a balanced equation for " + acidName(pair.acidAnion) + " plus " +
                      baseName(pair) + ".\n";
    result.answer = equationLine(pair, "Computer does not have the answer for this question.");
    return result;
}
