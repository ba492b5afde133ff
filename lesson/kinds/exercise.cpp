#include "lesson/exercise.hpp"

#include "lesson/kinds/kinds.hpp"

namespace lesson
{

Exercise makeExercise(const Place& place)
{
    switch (place.kind) {
    case Kind::molarMass:
        return molarMassExercise(place);
    case Kind::compoundFormula:
        return compoundFormulaExercise(place);
    case Kind::ionFormula:
        return ionFormulaExercise(place);
    case Kind::solubility:
        return solubilityExercise(place);
    case Kind::concentration:
        return concentrationExercise(place);
    case Kind::dilution:
        return dilutionExercise(place);
    case Kind::neutralisation:
        return neutralisationExercise(place);
    case Kind::titration:
        break;
    }
    return titrationExercise(place);
}

} // namespace lesson
