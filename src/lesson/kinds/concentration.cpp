#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "lesson/compound.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/kinds/molar_mass.hpp"
#include "lesson/kinds/quantities.hpp"

namespace lesson
{

namespace
{

// A solution that is made up from a weighed substance. Level 1 asks for its concentration, level 2
// for the mass to weigh, level 3 for either of a hydrate, whose molar mass is not given.
struct Preparation {
    const SoluteRow* substance;
    bool asksForMass;
    bool isHydrate;
    Ratio molarMass;
    Ratio mass;
    Ratio volume;
    Ratio concentration;
};

// ---------------------------------------------------------------------------------- the draw

// Where the concentration is asked for: mL.
constexpr int volumes[] = {100, 150, 200, 250, 300, 400, 500, 750};
// Where the mass is asked for: mL, volumetric flasks; 0.0001 mol/L.
constexpr int flasks[] = {50, 100, 250, 500, 1000};
constexpr int concentrations[] = {500, 1000, 2000, 2500, 5000, 10000};

Ratio answerOf(const Preparation& drawn)
{
    return drawn.asksForMass ? drawn.mass : drawn.concentration;
}

Ratio massOf(const Preparation& drawn, Ratio molarMass)
{
    return drawn.concentration * drawn.volume * molarMass;
}

Ratio concentrationOf(const Preparation& drawn, Ratio molarMass)
{
    return drawn.mass / molarMass / drawn.volume;
}

// The answer for another molar mass.
Ratio answerFor(const Preparation& drawn, Ratio molarMass)
{
    return drawn.asksForMass ? massOf(drawn, molarMass) : concentrationOf(drawn, molarMass);
}

Preparation drawOnce(Draws& draws, bool isHydrate, bool asksForMass)
{
    Preparation drawn = {};
    drawn.substance = &draws.oneOf(isHydrate ? hydrates() : solutes());
    drawn.isHydrate = isHydrate;
    drawn.asksForMass = asksForMass;
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

// The molar mass is a step of its own where it is not given.
Ratio usedMolarMass(const Preparation& drawn, StepRounding& rounded)
{
    return drawn.isHydrate ? rounded(drawn.molarMass) : drawn.molarMass;
}

Ratio byAmount(const Preparation& drawn, StepRounding& rounded)
{
    const Ratio molarMass = usedMolarMass(drawn, rounded);
    return drawn.asksForMass ? rounded(drawn.concentration * drawn.volume) * molarMass
                             : rounded(drawn.mass / molarMass) / drawn.volume;
}

Ratio byGramsInLitre(const Preparation& drawn, StepRounding& rounded)
{
    const Ratio molarMass = usedMolarMass(drawn, rounded);
    return drawn.asksForMass ? rounded(drawn.concentration * molarMass) * drawn.volume
                             : rounded(drawn.mass / drawn.volume) / molarMass;
}

bool bearsRounding(const Preparation& drawn)
{
    const Ratio answer = answerOf(drawn);
    return staysCorrect(answer, drawn, byAmount) && staysCorrect(answer, drawn, byGramsInLitre);
}

Preparation draw(const Place& place)
{
    Draws draws = drawsFor(place);
    const bool isHydrate = place.level == 3;
    const bool asksForMass = isHydrate ? draws.below(2) == 1 : place.level == 2;
    for (;;) {
        const Preparation drawn = drawOnce(draws, isHydrate, asksForMass);
        if (isSensible(drawn) && bearsRounding(drawn)) {
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

// A hydrate is weighed, but its salt is what is dissolved: "CuSO4.5H2O" -> "CuSO4".
std::string_view withoutWater(std::string_view formula)
{
    return formula.substr(0, formula.find('.'));
}

Quantities quantitiesOf(const Preparation& drawn)
{
    const std::string_view weighed = drawn.substance->formula;
    const std::string_view dissolved = withoutWater(weighed);
    const GivenQuantity molarMass = givenMolarMass(weighed);
    return {givenMass(weighed, drawn.mass), drawn.isHydrate ? untold(molarMass) : molarMass,
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

// sodium chloride, NaCl (M = 58.44 g/mol),
Spans substanceOf(const Preparation& drawn, const GivenQuantity& molarMass)
{
    const Spans known =
        drawn.isHydrate ? Spans() : line(" (", quantity("M"), " = ", told(molarMass), ")");
    return line(nameOf(*drawn.substance), ", ", formula(std::string(drawn.substance->formula)),
                known, ",");
}

Spans promptOf(const Preparation& drawn, const Quantities& quantities)
{
    const Spans substance = substanceOf(drawn, quantities.molarMass);
    if (drawn.asksForMass) {
        return line("Calculate the mass, in ", unit("g"), ", of ", substance,
                    " that has to be dissolved in water and made up to ", told(quantities.volume),
                    " of solution to give a concentration of ", told(quantities.concentration),
                    ".");
    }
    return line(told(quantities.mass), " of ", substance, " is dissolved in water and made up to ",
                told(quantities.volume),
                " of solution. Calculate the concentration of the solution in ", unit("mol/L"),
                ".");
}

// ------------------------------------------------------------------------------ the solution

bool isInMillilitres(const GivenQuantity& volume)
{
    return volume.shownUnit == "mL";
}

Step molarMassStep(const Preparation& drawn)
{
    return {line("Molar mass; the water belongs to the crystal."),
            line(quantity("M"), " = ", sumOfMasses(drawn.substance->formula), " = ",
                 measure(shownMass(drawn.molarMass), "g/mol"))};
}

Step volumeStep(const GivenQuantity& volume)
{
    return {line("Convert the volume."),
            line(quantity("V"), " = ", told(volume), " = ", measure(shown(volume.value, 3), "L"))};
}

std::vector<Step> stepsToConcentration(const Preparation& drawn, const Quantities& quantities,
                                       const Spans& key)
{
    const Ratio amount = drawn.mass / drawn.molarMass;
    const Span mass = number(quantities.mass.shown);
    const Span molarMass = number(shownMass(drawn.molarMass));
    const Span volume = number(shown(drawn.volume, 3));
    return {
        {line("Amount from mass."),
         line(quantity("n"), " = ", fraction({quantity("m")}, {quantity("M")}), " = ",
              fraction({mass}, {molarMass}), " = ", between(amount), unit("mol"))},
        {line("Divide by the volume of solution."),
         line(quantity("c"), " = ", fraction({quantity("n")}, {quantity("V")}), " = ",
              fraction({between(amount)}, {volume}), " = ", key)},
    };
}

std::vector<Step> stepsToMass(const Preparation& drawn, const Quantities& quantities,
                              const Spans& key)
{
    const Ratio amount = drawn.concentration * drawn.volume;
    const Span concentration = number(quantities.concentration.shown);
    const Span volume = number(shown(drawn.volume, 3));
    const Span molarMass = number(shownMass(drawn.molarMass));
    return {
        {line("Amount from concentration."),
         line(quantity("n"), " = ", quantity("c"), quantity("V"), " = ", concentration, " × ",
              volume, " = ", between(amount), unit("mol"))},
        {line("Mass from amount."), line(quantity("m"), " = ", quantity("n"), quantity("M"), " = ",
                                         between(amount), " × ", molarMass, " = ", key)},
    };
}

std::vector<Step> workedSolution(const Preparation& drawn, const Quantities& quantities,
                                 const Spans& key)
{
    std::vector<Step> steps;
    if (drawn.isHydrate) {
        steps.push_back(molarMassStep(drawn));
    }
    if (isInMillilitres(quantities.volume)) {
        steps.push_back(volumeStep(quantities.volume));
    }
    for (Step& step :
         (drawn.asksForMass ? stepsToMass : stepsToConcentration)(drawn, quantities, key)) {
        steps.push_back(std::move(step));
    }
    return steps;
}

// --------------------------------------------------------------------------------- the slips

void addSlipsForConcentration(Exercise& exercise, const Preparation& drawn)
{
    const Ratio amount = drawn.mass / drawn.molarMass;
    addSlip(exercise, drawn.mass / drawn.volume, "That is in g/L. Turn the mass into moles first.");
    addSlip(exercise, amount, "That is an amount. One step is left.");
    addSlip(exercise, amount * drawn.volume,
            "Check how amount, concentration and volume are related.");
}

void addSlipsForMass(Exercise& exercise, const Preparation& drawn)
{
    addSlip(exercise, drawn.concentration * drawn.volume, "That is an amount. One step is left.");
    addSlip(exercise, drawn.concentration * drawn.molarMass / drawn.volume,
            "Check how amount, concentration and volume are related.");
}

void addSlips(Exercise& exercise, const Preparation& drawn, const GivenQuantity& volume)
{
    if (drawn.isHydrate) {
        const Ratio saltAlone = molarMassOf(withoutWater(drawn.substance->formula));
        addSlip(exercise, answerFor(drawn, saltAlone), "The water in the crystals has mass too.");
    }
    (drawn.asksForMass ? addSlipsForMass : addSlipsForConcentration)(exercise, drawn);
    if (isInMillilitres(volume)) {
        // Divided by 100, the volume comes out ten times too large.
        const Ratio tenfold = drawn.asksForMass ? ratio(10) : ratio(1, 10);
        addSlip(exercise, answerOf(drawn) * tenfold, "How many mL are in a litre?");
    }
}

std::vector<Ratio> answersWithRoundedMasses(const Preparation& drawn)
{
    std::vector<Ratio> answers;
    if (drawn.isHydrate) {
        for (const Ratio molarMass : roundedMolarMasses(drawn.substance->formula)) {
            answers.push_back(answerFor(drawn, molarMass));
        }
    }
    return answers;
}

} // namespace

Exercise concentrationExercise(const Place& place)
{
    const Preparation drawn = draw(place);
    const Quantities quantities = quantitiesOf(drawn);
    const GivenQuantity& asked = drawn.asksForMass ? quantities.mass : quantities.concentration;
    Exercise exercise =
        numberExercise(place, {Form::number, asked.quantity, asked.of, asked.unit, 3, {}},
                       {answerOf(drawn), answersWithRoundedMasses(drawn), false, true});
    exercise.prompt = promptOf(drawn, quantities);
    exercise.given = givenOf(drawn, quantities);
    exercise.solution = workedSolution(drawn, quantities, keyMeasure(exercise));
    addSlips(exercise, drawn, quantities.volume);
    return exercise;
}

} // namespace lesson
