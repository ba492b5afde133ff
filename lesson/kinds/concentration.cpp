#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "lesson/chemistry/composition.hpp"
#include "lesson/kinds/concentration_parts.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/kinds/molar_mass.hpp"
#include "lesson/kinds/shared/orders.hpp"
#include "lesson/kinds/shared/quantities.hpp"
#include "lesson/kinds/shared/record.hpp"
#include "lesson/paper/seeds.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

// ---------------------------------------------------------------------------------- the draw

constexpr int figures = 3;

// In mL, volumetric flasks: where the concentration is asked for, and where the mass is.
constexpr int volumes[] = {50, 100, 200, 250, 500, 1000};
constexpr int flasks[] = {50, 100, 250, 500, 1000};
// In 0.0001 mol/L.
constexpr int concentrations[] = {500, 1000, 2000, 2500, 5000, 10000};

Ratio massOf(const Preparation& drawn, Ratio molarMass)
{
    return drawn.concentration * drawn.volume * molarMass;
}

Ratio concentrationOf(const Preparation& drawn, Ratio molarMass)
{
    return drawn.mass / molarMass / drawn.volume;
}

Preparation drawOnce(Draws& draws, int level, bool asksForMass)
{
    Preparation drawn = {};
    drawn.substance = &draws.oneOf(level == 3 ? hydrates() : weighedSolutes());
    drawn.asksForMass = asksForMass;
    drawn.isMolarMassTold = level == 1;
    drawn.molarMass = toHundredths(molarMassOf(drawn.substance->formula));
    if (asksForMass) {
        drawn.concentration = molesPerLitre(draws.oneOf(concentrations));
        drawn.volume = litres(draws.oneOf(flasks));
        drawn.mass = massOf(drawn, drawn.molarMass);
    } else {
        drawn.mass = ratio(draws.between(100, 1000), 100);
        drawn.volume = litres(draws.oneOf(volumes));
        drawn.concentration = concentrationOf(drawn, drawn.molarMass);
    }
    return drawn;
}

bool isSensible(const Preparation& drawn)
{
    const SoluteRow& substance = *drawn.substance;
    const bool isBelowCeiling = drawn.concentration <= ratio(substance.ceiling, 100);
    const bool isAffordable =
        substance.greatestMass == 0 || drawn.mass <= ratio(substance.greatestMass, 100);
    const bool isInRange =
        drawn.asksForMass ? ratio(1, 10) <= drawn.mass && drawn.mass <= ratio(50)
                          : ratio(2, 100) <= drawn.concentration && drawn.concentration <= ratio(2);
    return isBelowCeiling && isAffordable && isInRange;
}

Calculation calculationOf(const Preparation& drawn, Ratio molarMass)
{
    if (drawn.asksForMass) {
        return {{drawn.concentration, drawn.volume, molarMass}, {}};
    }
    return {{drawn.mass}, {molarMass, drawn.volume}};
}

// Where the molar mass is not told it is worked out beforehand.
bool bearsEveryOrder(const Preparation& drawn)
{
    const CorrectAnswers correct(drawn.asksForMass ? drawn.mass : drawn.concentration);
    const std::vector<Ratio> used = drawn.isMolarMassTold ? std::vector<Ratio>{drawn.molarMass}
                                                          : roundedOrKept(drawn.molarMass);
    return std::all_of(used.begin(), used.end(), [&](Ratio molarMass) {
        return correct.haveEveryOrderOf(calculationOf(drawn, molarMass));
    });
}

Preparation draw(const Place& place)
{
    Draws draws = drawsFor(place);
    const bool asksForMass = place.level == 3 ? draws.below(2) == 1 : place.level == 2;
    for (;;) {
        const Preparation drawn = drawOnce(draws, place.level, asksForMass);
        if (isSensible(drawn) && bearsEveryOrder(drawn)) {
            return drawn;
        }
    }
}

// -------------------------------------------------------------------------------- the prompt

// As the prompt tells them, but for the one that is asked for.
struct Quantities {
    GivenQuantity mass;
    GivenQuantity molarMass;
    GivenQuantity volume;
    GivenQuantity concentration;
};

Quantities quantitiesOf(const Preparation& drawn)
{
    const std::string_view weighed = drawn.substance->formula;
    const std::string_view dissolved = drawn.substance->anhydrous;
    const GivenQuantity molarMass = givenMolarMass(weighed);
    return {givenMass(weighed, drawn.mass), drawn.isMolarMassTold ? molarMass : untold(molarMass),
            givenVolume("V", dissolved, drawn.volume),
            givenConcentration("c", dissolved, drawn.concentration)};
}

std::vector<Given> givenOf(const Preparation& drawn, const Quantities& quantities)
{
    const GivenCompound substance = givenCompound(*drawn.substance);
    const auto& [mass, molarMass, volume, concentration] = quantities;
    if (drawn.asksForMass) {
        return {substance, molarMass, volume, concentration};
    }
    return {substance, mass, molarMass, volume};
}

// Anhydrous sodium carbonate, or its name alone.
Span nameOfWeighed(const SoluteRow& substance)
{
    return substance.weighed == Weighed::asAnhydrous
               ? say<Sentence::concentrationAnhydrous>(substance.name)
               : name(substance.name);
}

// Na2CO3 (M = 105.99 g/mol)
Spans formulaWithMolarMass(const Preparation& drawn, const GivenQuantity& molarMass)
{
    return line(formula(drawn.substance->formula),
                drawn.isMolarMassTold ? line(" (", quantity("M"), " = ", told(molarMass), ")")
                                      : Spans());
}

Spans promptOf(const Preparation& drawn, const Quantities& quantities)
{
    const Span substance = nameOfWeighed(*drawn.substance);
    const Spans itsFormula = formulaWithMolarMass(drawn, quantities.molarMass);
    const auto& [mass, molarMass, volume, concentration] = quantities;
    if (drawn.asksForMass) {
        return {say<Sentence::concentrationMassFor>(substance, itsFormula, told(volume),
                                                    told(concentration))};
    }
    return {say<Sentence::concentrationOfMass>(told(mass), substance, itsFormula, told(volume))};
}

std::vector<Ratio> answersWithRoundedMasses(const Preparation& drawn)
{
    std::vector<Ratio> answers;
    if (!drawn.isMolarMassTold) {
        for (const Ratio molarMass : roundedMolarMasses(drawn.substance->formula)) {
            answers.push_back(answerFor(drawn, molarMass));
        }
    }
    return answers;
}

} // namespace

Ratio answerFor(const Preparation& drawn, Ratio molarMass)
{
    return drawn.asksForMass ? massOf(drawn, molarMass) : concentrationOf(drawn, molarMass);
}

namespace
{

// ---------------------------------------------------------------------- draw, write, read, make

Description write(const Preparation& drawn)
{
    Description description;
    description.with("substance", drawn.substance->formula);
    if (drawn.asksForMass) {
        description.with("c", shown(drawn.concentration, figures));
    } else {
        description.with("m", shownMass(drawn.mass));
    }
    description.with("V", inMillilitres(drawn.volume));
    if (drawn.isMolarMassTold) {
        description.with("M", shownMass(drawn.molarMass));
    }
    return description;
}

const SoluteRow& substanceFrom(FieldReader& fields)
{
    const std::string_view formula = fields.text("substance");
    for (const auto* const list : {&weighedSolutes(), &hydrates()}) {
        for (const SoluteRow& row : *list) {
            if (row.formula == formula) {
                return row;
            }
        }
    }
    fields.failAsNotAsked("substance", formula);
    return weighedSolutes().front();
}

// Asked for is the mass unless it is there.
Preparation read(FieldReader& fields)
{
    Preparation made = {};
    made.substance = &substanceFrom(fields);
    made.asksForMass = !fields.has("m");
    made.molarMass = toHundredths(molarMassOf(made.substance->formula));
    made.volume = fields.number("V") / ratio(1000);
    if (made.asksForMass) {
        made.concentration = fields.number("c");
        made.mass = massOf(made, made.molarMass);
    } else {
        made.mass = fields.number("m");
        made.concentration = concentrationOf(made, made.molarMass);
    }
    made.isMolarMassTold = fields.has("M");
    if (made.isMolarMassTold && fields.text("M") != shownMass(made.molarMass)) {
        fields.fail(say<Sentence::errorMolarMass>(formula(made.substance->formula),
                                                  measure(shownMass(made.molarMass), "g/mol")));
    }
    if (!isSensible(made) || !bearsEveryOrder(made)) {
        fields.fail(say<Sentence::errorValuesNotAsked>());
    }
    return made;
}

int levelOf(const Preparation& drawn)
{
    return drawn.isMolarMassTold ? 1 : isHydrate(drawn) ? 3 : 2;
}

Exercise make(const Place& place, const Preparation& drawn)
{
    const Quantities quantities = quantitiesOf(drawn);
    const GivenQuantity& asked = drawn.asksForMass ? quantities.mass : quantities.concentration;
    Exercise exercise = numberExercise(
        place, {Form::number, asked.quantity, asked.of, asked.unit, figures, {}},
        {answerFor(drawn, drawn.molarMass), answersWithRoundedMasses(drawn), false, true});
    exercise.prompt = promptOf(drawn, quantities);
    exercise.given = givenOf(drawn, quantities);
    exercise.solution = concentrationSolution(drawn, exercise.key);
    addConcentrationSlips(exercise, drawn);
    return exercise;
}

} // namespace

const Kind concentrationKind = {
    4,
    1,
    "concentration",
    Sentence::concentrationTitle,
    {Sentence::concentrationLevel1, Sentence::concentrationLevel2, Sentence::concentrationLevel3},
    false,
    drawnExercise<draw, write, levelOf, make>,
    describedExercise<read, write, levelOf, make>,
    Drawing::none,
    true,
};

} // namespace lesson
