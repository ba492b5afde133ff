#include "lesson/exercise.hpp"

#include "lesson/kinds/kinds.hpp"

namespace lesson
{

namespace
{

// Keeps the streams of draws apart.
enum StreamOfDraws : std::uint32_t { quantities = 1, walk = 2 };

} // namespace

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

Draws drawsFor(const Place& place)
{
    return Draws({quantities, place.paper, static_cast<std::uint32_t>(place.kind),
                  static_cast<std::uint32_t>(place.level), place.number});
}

int memberFor(const Place& place, const Pool& pool)
{
    return memberOnWalk(pool,
                        {walk, place.paper, static_cast<std::uint32_t>(place.kind),
                         static_cast<std::uint32_t>(place.level)},
                        place.number);
}

} // namespace lesson
