#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "lesson/chemistry/composition.hpp"
#include "lesson/kinds/dilution_parts.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/kinds/shared/orders.hpp"
#include "lesson/kinds/shared/quantities.hpp"
#include "lesson/kinds/shared/record.hpp"
#include "lesson/marking/number.hpp"
#include "lesson/paper/seeds.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

// Level 1 asks for c2, level 2 for V1 or c1, level 3 for the water.
using Asked = AskedOfDilution;

constexpr int figures = 3;

// ---------------------------------------------------------------------------------- the draw

// In mL, pipettes and volumetric flasks, and in 0.0001 mol/L.
constexpr int startingVolumes[] = {5, 10, 20, 25, 40, 50, 100, 200};
constexpr int finalVolumes[] = {100, 200, 250, 500, 1000, 2000};
constexpr int concentrations[] = {500,   1000,  2000,  2500,  4000,  5000, 8000,
                                  10000, 15000, 20000, 30000, 40000, 60000};

Asked drawAsked(Draws& draws, int level)
{
    if (level == 2) {
        return draws.below(2) == 0 ? Asked::V1 : Asked::c1;
    }
    return level == 1 ? Asked::c2 : Asked::water;
}

const SoluteRow& drawSolute(Draws& draws)
{
    const std::size_t salts = solutes().size();
    const std::size_t all = salts + acidSolutions().size();
    const std::size_t drawn = draws.below(static_cast<std::uint32_t>(all));
    return drawn < salts ? solutes()[drawn] : acidSolutions()[drawn - salts];
}

Dilution drawOnce(Draws& draws, Asked asked)
{
    Dilution drawn = {};
    drawn.solute = &drawSolute(draws);
    drawn.asked = asked;
    drawn.c1 = molesPerLitre(draws.oneOf(concentrations));
    drawn.V1 = litres(draws.oneOf(startingVolumes));
    drawn.V2 = litres(draws.oneOf(finalVolumes));
    drawn.c2 = drawn.c1 * drawn.V1 / drawn.V2;
    return drawn;
}

bool isInRange(const Dilution& drawn)
{
    const Ratio factor = drawn.V2 / drawn.V1;
    return ratio(2) <= factor && factor <= ratio(50);
}

// A given c2 is told as it is, so that the others come out as drawn.
bool isTold(const Dilution& drawn)
{
    return drawn.asked == Asked::c2 || valueOf(roundedTo(drawn.c2, figures)) == drawn.c2;
}

bool isAffordable(const Dilution& drawn)
{
    const SoluteRow& solute = *drawn.solute;
    return solute.greatestMass == 0 ||
           drawn.c1 * drawn.V1 * molarMassOf(solute.formula) <= ratio(solute.greatestMass, 100);
}

// Strong acid goes into water, never water into strong acid.
bool isSafe(const Dilution& drawn)
{
    return drawn.asked != Asked::water || drawn.solute->kind != SoluteKind::acid ||
           drawn.c1 <= ratio(2);
}

bool isSensible(const Dilution& drawn)
{
    return isInRange(drawn) && isTold(drawn) && drawn.c1 <= ratio(drawn.solute->ceiling, 100) &&
           isAffordable(drawn) && isSafe(drawn);
}

// In the asked unit.
Ratio answerOf(const Dilution& drawn)
{
    const Ratio inMillilitres = ratio(1000);
    switch (drawn.asked) {
    case Asked::c2:
        return drawn.c2;
    case Asked::c1:
        return drawn.c1;
    case Asked::V1:
        return drawn.V1 * inMillilitres;
    case Asked::water:
        break;
    }
    return (drawn.V2 - drawn.V1) * inMillilitres;
}

// Volumes in millilitres.
Calculation calculationOf(const Dilution& drawn)
{
    const Ratio V1 = drawn.V1 * ratio(1000);
    const Ratio V2 = drawn.V2 * ratio(1000);
    switch (drawn.asked) {
    case Asked::c2:
        return {{drawn.c1, V1}, {V2}};
    case Asked::V1:
        return {{drawn.c2, V2}, {drawn.c1}};
    case Asked::c1:
        return {{drawn.c2, V2}, {V1}};
    case Asked::water:
        break;
    }
    return {{drawn.c1, V1}, {drawn.c2}, V1};
}

NumberAnswer numberOf(const Dilution& drawn)
{
    return {answerOf(drawn), {}, false, true};
}

// Who takes the whole volume for the water, or the one that is there before, must not seem right.
bool isWaterToldFromOthers(const Dilution& drawn)
{
    const auto isShown = [&](Ratio volume) {
        return isVisible(numberOf(drawn), figures, volume * ratio(1000));
    };
    return drawn.asked != Asked::water || (isShown(drawn.V1) && isShown(drawn.V2));
}

bool isAskable(const Dilution& drawn)
{
    return isSensible(drawn) && isWaterToldFromOthers(drawn) &&
           CorrectAnswers(answerOf(drawn)).haveEveryOrderOf(calculationOf(drawn));
}

Dilution draw(const Place& place)
{
    Draws draws = drawsFor(place);
    const Asked asked = drawAsked(draws, place.level);
    for (;;) {
        const Dilution drawn = drawOnce(draws, asked);
        if (isAskable(drawn)) {
            return drawn;
        }
    }
}

// -------------------------------------------------------------------------------- the prompt

// As the prompt tells them, but for the one that is asked for.
struct Quantities {
    GivenQuantity c1;
    GivenQuantity V1;
    GivenQuantity c2;
    GivenQuantity V2;
};

Quantities quantitiesOf(const Dilution& drawn)
{
    const std::string_view of = drawn.solute->formula;
    return {givenConcentration("c1", of, drawn.c1), givenVolume("V1", of, drawn.V1),
            givenConcentration("c2", of, drawn.c2), givenVolume("V2", of, drawn.V2)};
}

Ask askOf(const Dilution& drawn)
{
    const std::string of(drawn.solute->formula);
    switch (drawn.asked) {
    case Asked::c2:
        return {Form::number, "c2", of, "mol/L", figures, {}};
    case Asked::c1:
        return {Form::number, "c1", of, "mol/L", figures, {}};
    case Asked::V1:
        return {Form::number, "V1", of, "mL", figures, {}};
    case Asked::water:
        break;
    }
    return {Form::number, "V", "H2O", "mL", figures, {}};
}

std::vector<Given> givenOf(const Dilution& drawn, const Quantities& quantities)
{
    const GivenCompound solute = givenCompound(*drawn.solute);
    const auto& [c1, V1, c2, V2] = quantities;
    switch (drawn.asked) {
    case Asked::c2:
        return {solute, c1, V1, V2};
    case Asked::V1:
        return {solute, c1, c2, V2};
    case Asked::c1:
        return {solute, V1, c2, V2};
    case Asked::water:
        break;
    }
    return {solute, c1, V1, c2};
}

Spans promptOf(const Dilution& drawn, const Quantities& quantities)
{
    const Span solution = solutionOf(*drawn.solute);
    const auto& [c1, V1, c2, V2] = quantities;
    switch (drawn.asked) {
    case Asked::c2:
        return {say<Sentence::dilutionOfNewConcentration>(told(V1), told(c1), solution, told(V2))};
    case Asked::V1:
        return {say<Sentence::dilutionOfVolume>(told(c1), solution, told(V2), told(c2))};
    case Asked::c1:
        return {
            say<Sentence::dilutionOfOriginalConcentration>(told(V1), solution, told(V2), told(c2))};
    case Asked::water:
        break;
    }
    return {say<Sentence::dilutionOfWater>(told(V1), told(c1), solution, told(c2))};
}

// ---------------------------------------------------------------------- draw, write, read, make

// The quantities but for the one that is asked for; without V2 it is the water.
Description write(const Dilution& drawn)
{
    Description description;
    description.with("substance", drawn.solute->formula);
    if (drawn.asked != Asked::c1) {
        description.with("c1", shown(drawn.c1, figures));
    }
    if (drawn.asked != Asked::V1) {
        description.with("V1", inMillilitres(drawn.V1));
    }
    if (drawn.asked != Asked::c2) {
        description.with("c2", shown(drawn.c2, figures));
    }
    if (drawn.asked != Asked::water) {
        description.with("V2", inMillilitres(drawn.V2));
    }
    return description;
}

const SoluteRow& soluteFrom(FieldReader& fields)
{
    const std::string_view formula = fields.text("substance");
    for (const auto* const list : {&solutes(), &acidSolutions()}) {
        for (const SoluteRow& row : *list) {
            if (row.formula == formula) {
                return row;
            }
        }
    }
    fields.failAsNotAsked("substance", formula);
    return solutes().front();
}

Asked askedIn(const FieldReader& fields)
{
    return !fields.has("c1")   ? Asked::c1
           : !fields.has("V1") ? Asked::V1
           : !fields.has("c2") ? Asked::c2
                               : Asked::water;
}

// The one that is left out follows from the others.
Dilution read(FieldReader& fields)
{
    const auto unless = [&](bool isLeftOut, std::string_view name) {
        return isLeftOut ? ratio(1) : fields.number(name);
    };
    Dilution made = {};
    made.solute = &soluteFrom(fields);
    made.asked = askedIn(fields);
    made.c1 = unless(made.asked == Asked::c1, "c1");
    made.V1 = unless(made.asked == Asked::V1, "V1") / ratio(1000);
    made.c2 = unless(made.asked == Asked::c2, "c2");
    made.V2 = unless(made.asked == Asked::water, "V2") / ratio(1000);
    if (made.asked == Asked::c1) {
        made.c1 = made.c2 * made.V2 / made.V1;
    } else if (made.asked == Asked::V1) {
        made.V1 = made.c2 * made.V2 / made.c1;
    } else if (made.asked == Asked::c2) {
        made.c2 = made.c1 * made.V1 / made.V2;
    } else {
        made.V2 = made.c1 * made.V1 / made.c2;
    }
    if (!isAskable(made)) {
        fields.fail(say<Sentence::errorValuesNotAsked>());
    }
    return made;
}

int levelOf(const Dilution& drawn)
{
    return drawn.asked == Asked::c2 ? 1 : drawn.asked == Asked::water ? 3 : 2;
}

Exercise make(const Place& place, const Dilution& drawn)
{
    const Quantities quantities = quantitiesOf(drawn);
    Exercise exercise = numberExercise(place, askOf(drawn), numberOf(drawn));
    exercise.prompt = promptOf(drawn, quantities);
    exercise.given = givenOf(drawn, quantities);
    exercise.solution = dilutionSolution(drawn, exercise.key);
    addDilutionSlips(exercise, drawn);
    return exercise;
}

} // namespace

const Kind dilutionKind = {
    5,
    1,
    "dilution",
    Sentence::dilutionTitle,
    {Sentence::dilutionLevel1, Sentence::dilutionLevel2, Sentence::dilutionLevel3},
    false,
    drawnExercise<draw, write, levelOf, make>,
    describedExercise<read, write, levelOf, make>,
    Drawing::dilution,
};

} // namespace lesson
