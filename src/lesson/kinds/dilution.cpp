#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

#include "lesson/compound.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/kinds/quantities.hpp"
#include "lesson/reaction.hpp"

namespace lesson
{

namespace
{

// c1V1 = c2V2, with index 1 before the dilution and 2 after it. Level 1 asks for c2, level 2 for V1
// or c1, level 3 for the water that makes V1 into V2.
enum class Asked { c2, V1, c1, water };

struct Dilution {
    const SoluteRow* solute;
    Asked asked;
    Ratio c1;
    Ratio V1;
    Ratio c2;
    Ratio V2;
};

// ---------------------------------------------------------------------------------- the draw

// In mL, and in 0.0001 mol/L.
constexpr int startingVolumes[] = {5, 10, 20, 25, 40, 50, 100, 200};
constexpr int finalVolumes[] = {100, 150, 200, 250, 300, 400, 500, 750, 1000, 2000};
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

// Works out what is asked for from the others; for the water that is V2.
void solve(Dilution& dilution)
{
    auto& [solute, asked, c1, V1, c2, V2] = dilution;
    switch (asked) {
    case Asked::c2:
        c2 = c1 * V1 / V2;
        break;
    case Asked::V1:
        V1 = c2 * V2 / c1;
        break;
    case Asked::c1:
        c1 = c2 * V2 / V1;
        break;
    case Asked::water:
        V2 = c1 * V1 / c2;
        break;
    }
}

// A given c2 has three figures, so that the others fit it only nearly: what is asked for is then
// worked out from it.
Dilution drawOnce(Draws& draws, Asked asked)
{
    Dilution drawn = {};
    drawn.solute = &drawSolute(draws);
    drawn.asked = asked;
    drawn.c1 = molesPerLitre(draws.oneOf(concentrations));
    drawn.V1 = litres(draws.oneOf(startingVolumes));
    drawn.V2 = litres(draws.oneOf(finalVolumes));
    drawn.c2 = valueOf(roundedTo(drawn.c1 * drawn.V1 / drawn.V2, 3));
    solve(drawn);
    return drawn;
}

template <std::size_t N>
bool isWithin(const int (&table)[N], Ratio lastPlace, Ratio value)
{
    return ratio(table[0]) * lastPlace <= value && value <= ratio(table[N - 1]) * lastPlace;
}

bool isInRange(const Dilution& drawn)
{
    const Ratio factor = drawn.V2 / drawn.V1;
    return ratio(2) <= factor && factor <= ratio(50) &&
           isWithin(concentrations, molesPerLitre(1), drawn.c1) &&
           isWithin(startingVolumes, litres(1), drawn.V1) &&
           isWithin(finalVolumes, litres(1), drawn.V2);
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
    return drawn.asked != Asked::water || findAcid(drawn.solute->formula) == nullptr ||
           drawn.c1 <= ratio(2);
}

// Who takes the whole volume for the water must not seem to have rounded it to two figures.
bool isWaterToldFromWhole(const Dilution& drawn)
{
    const Ratio whole = valueOf(roundedTo(drawn.V2 * ratio(1000), 3));
    const Ratio water = (drawn.V2 - drawn.V1) * ratio(1000);
    return drawn.asked != Asked::water || valueOf(roundedTo(water, 2)) != whole;
}

bool isSensible(const Dilution& drawn)
{
    return isInRange(drawn) && isWaterToldFromWhole(drawn) &&
           drawn.c1 <= ratio(drawn.solute->ceiling, 100) && isAffordable(drawn) && isSafe(drawn);
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

// By way of the amount, or of how many times the volume grows.
Ratio byAmount(const Dilution& drawn, StepRounding& rounded)
{
    Dilution rough = drawn;
    switch (drawn.asked) {
    case Asked::c2:
        rough.c2 = rounded(drawn.c1 * drawn.V1) / drawn.V2;
        break;
    case Asked::V1:
        rough.V1 = rounded(drawn.c2 * drawn.V2) / drawn.c1;
        break;
    case Asked::c1:
        rough.c1 = rounded(drawn.c2 * drawn.V2) / drawn.V1;
        break;
    case Asked::water:
        rough.V2 = rounded(rounded(drawn.c1 * drawn.V1) / drawn.c2);
        break;
    }
    return answerOf(rough);
}

Ratio byFactor(const Dilution& drawn, StepRounding& rounded)
{
    Dilution rough = drawn;
    const Ratio factor = rounded(drawn.V2 / drawn.V1);
    rough.c2 = drawn.c1 / factor;
    rough.c1 = drawn.c2 * factor;
    rough.V1 = drawn.asked == Asked::V1 ? drawn.V2 / factor : drawn.V1;
    rough.V2 = drawn.asked == Asked::water ? rounded(drawn.V1 * factor) : drawn.V2;
    return answerOf(rough);
}

// In one go; only the water has a step before the last.
Ratio atOnce(const Dilution& drawn, StepRounding& rounded)
{
    Dilution rough = drawn;
    rough.V2 = rounded(drawn.V2);
    return answerOf(drawn.asked == Asked::water ? rough : drawn);
}

bool bearsRounding(const Dilution& drawn)
{
    const Ratio answer = answerOf(drawn);
    return staysCorrect(answer, drawn, byAmount) && staysCorrect(answer, drawn, byFactor) &&
           staysCorrect(answer, drawn, atOnce);
}

Dilution draw(const Place& place)
{
    Draws draws = drawsFor(place);
    const Asked asked = drawAsked(draws, place.level);
    for (;;) {
        const Dilution drawn = drawOnce(draws, asked);
        if (isSensible(drawn) && bearsRounding(drawn)) {
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
        return {Form::number, "c2", of, "mol/L", 3, {}};
    case Asked::c1:
        return {Form::number, "c1", of, "mol/L", 3, {}};
    case Asked::V1:
        return {Form::number, "V1", of, "mL", 3, {}};
    case Asked::water:
        break;
    }
    return {Form::number, "V", "H2O", "mL", 3, {}};
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
    const Spans solution = solutionOf(*drawn.solute);
    const auto& [c1, V1, c2, V2] = quantities;
    switch (drawn.asked) {
    case Asked::c2:
        return line(told(V1), " of ", told(c1), " ", solution, " is diluted to ", told(V2),
                    ". Calculate the concentration of the diluted solution in ", unit("mol/L"),
                    ".");
    case Asked::V1:
        return line("Calculate the volume, in ", unit("mL"), ", of ", told(c1), " ", solution,
                    " that has to be diluted to make ", told(V2), " of ", told(c2), " solution.");
    case Asked::c1:
        return line(told(V1), " of ", solution, " is diluted to ", told(V2),
                    ". The diluted solution has a concentration of ", told(c2),
                    ". Calculate the original concentration in ", unit("mol/L"), ".");
    case Asked::water:
        break;
    }
    return line("Calculate the volume of water, in ", unit("mL"), ", that has to be added to ",
                told(V1), " of ", told(c1), " ", solution, " to bring its concentration down to ",
                told(c2), ". Assume that the volumes add up.");
}

// ------------------------------------------------------------------------------ the solution

// The symbol with its index.
Span before(const char* symbol)
{
    return quantity(symbol, "", "1");
}
Span after(const char* symbol)
{
    return quantity(symbol, "", "2");
}

Span shownInMillilitres(Ratio litres)
{
    return number(shown(litres * ratio(1000), 3));
}

// How many times the volume grows, and the solution gets weaker: 6.25, or four figures.
Span factorOf(const Dilution& drawn)
{
    const Ratio factor = drawn.V2 / drawn.V1;
    const bool isShort = valueOf(roundedTo(factor, 4)) == factor;
    return number(isShort ? exactText(factor) : shown(factor, 4));
}

std::vector<Step> stepsToNewConcentration(const Dilution& drawn, const Spans& key)
{
    const Span c1 = number(shown(drawn.c1, 3));
    const Span V1 = shownInMillilitres(drawn.V1);
    const Span V2 = shownInMillilitres(drawn.V2);
    const Span factor = factorOf(drawn);
    return {
        {line("Rearrange; both volumes in the same unit."),
         line(after("c"), " = ", fraction({before("c"), before("V")}, {after("V")}), " = ",
              fraction(line(c1, " × ", V1), {V2}), " = ", key)},
        {line("Check: ", factor, " times the volume, ", factor, " times weaker."),
         line(after("c"), " = ", fraction({c1}, {factor}), " = ", key)},
    };
}

std::vector<Step> stepsToOriginalConcentration(const Dilution& drawn, const Spans& key)
{
    const Span c2 = number(shown(drawn.c2, 3));
    const Span V1 = shownInMillilitres(drawn.V1);
    const Span V2 = shownInMillilitres(drawn.V2);
    const Span factor = factorOf(drawn);
    return {
        {line("Rearrange; both volumes in the same unit."),
         line(before("c"), " = ", fraction({after("c"), after("V")}, {before("V")}), " = ",
              fraction(line(c2, " × ", V2), {V1}), " = ", key)},
        {line("Check: ", factor, " times the volume, ", factor, " times weaker."),
         line(before("c"), " = ", factor, " × ", c2, " = ", key)},
    };
}

std::vector<Step> stepsToOriginalVolume(const Dilution& drawn, const Spans& key)
{
    const Span c1 = number(shown(drawn.c1, 3));
    const Span c2 = number(shown(drawn.c2, 3));
    const Span V2 = shownInMillilitres(drawn.V2);
    const Span factor = factorOf(drawn);
    return {
        {line("Rearrange; both volumes in the same unit."),
         line(before("V"), " = ", fraction({after("c"), after("V")}, {before("c")}), " = ",
              fraction(line(c2, " × ", V2), {c1}), " = ", key)},
        {line("Check: ", factor, " times weaker, ", factor, " times the volume."),
         line(before("V"), " = ", fraction({V2}, {factor}), " = ", key)},
    };
}

std::vector<Step> stepsToWater(const Dilution& drawn, const Spans& key)
{
    const Span c1 = number(shown(drawn.c1, 3));
    const Span c2 = number(shown(drawn.c2, 3));
    const Span V1 = shownInMillilitres(drawn.V1);
    const Span V2 = between(drawn.V2 * ratio(1000));
    const Span factor = factorOf(drawn);
    return {
        {line("Rearrange; both volumes in the same unit."),
         line(after("V"), " = ", fraction({before("c"), before("V")}, {after("c")}), " = ",
              fraction(line(c1, " × ", V1), {c2}), " = ", V2, unit("mL"))},
        {line("Check: ", factor, " times weaker, ", factor, " times the volume."),
         line(after("V"), " = ", factor, " × ", V1, " = ", V2, unit("mL"))},
        {line("The water is the rest of the diluted solution."),
         line(quantity("V", "H2O"), " = ", after("V"), " − ", before("V"), " = ", V2, " − ", V1,
              " = ", key)},
    };
}

std::vector<Step> stepsOf(const Dilution& drawn, const Spans& key)
{
    switch (drawn.asked) {
    case Asked::c2:
        return stepsToNewConcentration(drawn, key);
    case Asked::V1:
        return stepsToOriginalVolume(drawn, key);
    case Asked::c1:
        return stepsToOriginalConcentration(drawn, key);
    case Asked::water:
        break;
    }
    return stepsToWater(drawn, key);
}

std::vector<Step> workedSolution(const Dilution& drawn, const Spans& key)
{
    std::vector<Step> steps = stepsOf(drawn, key);
    steps.insert(steps.begin(), {line("The amount stays the same."),
                                 line(before("c"), before("V"), " = ", after("c"), after("V"))});
    return steps;
}

// --------------------------------------------------------------------------------- the slips

constexpr const char* isTurnedOver = "Should the result be larger or smaller?";
constexpr const char* isNotWholeVolume = "V2 is the volume of the whole diluted solution.";
constexpr const char* isOtherVolume = "Read again which volume is asked for.";

void addSlips(Exercise& exercise, const Dilution& drawn)
{
    const auto& [solute, asked, c1, V1, c2, V2] = drawn;
    const Ratio inMillilitres = ratio(1000);
    switch (asked) {
    case Asked::c2:
        addSlip(exercise, c1 * V2 / V1, isTurnedOver);
        addSlip(exercise, c1 * V1 / (V1 + V2), isNotWholeVolume);
        addSlip(exercise, c1 * V1 / (V2 - V1), isNotWholeVolume);
        break;
    case Asked::c1:
        addSlip(exercise, c2 * V1 / V2, isTurnedOver);
        addSlip(exercise, c2 * (V1 + V2) / V1, isNotWholeVolume);
        addSlip(exercise, c2 * (V2 - V1) / V1, isNotWholeVolume);
        break;
    case Asked::V1:
        addSlip(exercise, inMillilitres * c1 * V2 / c2, isTurnedOver);
        addSlip(exercise, inMillilitres * (V2 - V1), isOtherVolume);
        // V1 + V2 for V2, and V2 - V1, solved for V1.
        addSlip(exercise, inMillilitres * c2 * V2 / (c1 - c2), isNotWholeVolume);
        addSlip(exercise, inMillilitres * c2 * V2 / (c1 + c2), isNotWholeVolume);
        break;
    case Asked::water:
        addSlip(exercise, inMillilitres * V2, isOtherVolume);
        addSlip(exercise, inMillilitres * (V1 - c2 * V1 / c1), isTurnedOver);
        addSlip(exercise, inMillilitres * (V1 + V2), isNotWholeVolume);
        break;
    }
}

} // namespace

Exercise dilutionExercise(const Place& place)
{
    const Dilution drawn = draw(place);
    const Quantities quantities = quantitiesOf(drawn);
    Exercise exercise = numberExercise(place, askOf(drawn), {answerOf(drawn), {}, false, true});
    exercise.prompt = promptOf(drawn, quantities);
    exercise.given = givenOf(drawn, quantities);
    exercise.solution = workedSolution(drawn, keyMeasure(exercise));
    addSlips(exercise, drawn);
    return exercise;
}

} // namespace lesson
