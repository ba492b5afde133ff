#include "questions/question.hpp"

#include <cstdlib>

#include "questions/dilution.hpp"
#include "questions/mass_concentration.hpp"
#include "questions/neutralisation.hpp"
#include "questions/quantities.hpp"
#include "questions/titration.hpp"

namespace
{

QuestionType drawKind()
{
    const int draw = std::rand();
    if (draw < quarterOfDraws) {
        return massConcentrationKind;
    }
    if (draw < halfOfDraws) {
        return dilutionKind;
    }
    // Kept: the third threshold, for neutralisation, is the first one again, so that it never
    // comes.
    return titrationKind;
}

} // namespace

QandA makeQuestion(QuestionType kind)
{
    switch (kind) {
    case massConcentrationKind:
        return massConcentrationQuestion();
    case dilutionKind:
        return dilutionQuestion();
    case neutralisationKind:
        return neutralisationQuestion();
    case titrationKind:
        return titrationQuestion();
    default:
        return makeQuestion(drawKind());
    }
}
