#include "lesson/kinds/titration.hpp"

#include <string>
#include <string_view>
#include <vector>

#include "lesson/chemistry/neutralisation.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/kinds/shared/quantities.hpp"
#include "lesson/kinds/shared/record.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

// ----------------------------------------------------------------------- what it is about

Equation equationOf(const Titration& drawn)
{
    return neutralisationOf(rowOf(drawn.pair->acid), baseOf(*drawn.pair));
}

Solutions solutionsOf(const Titration& drawn)
{
    const SoluteRow* const acid = findSolute(rowOf(drawn.pair->acid).formula);
    const SoluteRow* const base = findSolute(formulaOf(baseOf(*drawn.pair)));
    return {drawn.isAcidInBurette ? base : acid, drawn.isAcidInBurette ? acid : base,
            drawn.isAcidKnown ? acid : base, drawn.isAcidKnown ? base : acid};
}

// As the prompt tells them.
struct Quantities {
    GivenQuantity concentration;
    GivenQuantity inFlask;
    GivenQuantity fromBurette;
};

GivenQuantity givenBurette(const Titration& drawn, std::string_view of)
{
    GivenQuantity given = givenTitre(of, drawn.fromBurette);
    given.titres = drawn.titres;
    given.role = VolumeRole::titre;
    return drawn.titres.empty() ? given : untold(given);
}

GivenQuantity givenFlask(const Titration& drawn, std::string_view of)
{
    GivenQuantity given = givenVolume("V", of, drawn.inFlask);
    given.role = VolumeRole::aliquot;
    return given;
}

Quantities quantitiesOf(const Titration& drawn, const Solutions& solutions)
{
    return {givenConcentration("c", solutions.known->formula, drawn.concentration),
            givenFlask(drawn, solutions.inFlask->formula),
            givenBurette(drawn, solutions.inBurette->formula)};
}

// -------------------------------------------------------------------------------- the prompt

// 0.105 mol/L hydrochloric acid, or its name alone.
Span withConcentration(const SoluteRow& solution, const Solutions& solutions,
                       const GivenQuantity& concentration)
{
    return &solution == solutions.known
               ? say<Sentence::solutionOfConcentration>(told(concentration), solutionOf(solution))
               : solutionOf(solution);
}

Span nameOf(Indicator indicator)
{
    return say(indicator == Indicator::phenolphthalein ? Sentence::indicatorPhenolphthalein
                                                       : Sentence::indicatorMethylOrange);
}

// Halfway a carbonate has become a hydrogencarbonate, which other indicators show.
Span titrationSentence(const Titration& drawn, const Solutions& solutions,
                       const Quantities& quantities)
{
    const Spans volume = told(quantities.inFlask);
    const Span flask = withConcentration(*solutions.inFlask, solutions, quantities.concentration);
    const Span burette =
        withConcentration(*solutions.inBurette, solutions, quantities.concentration);
    const Span indicator = nameOf(drawn.indicator);
    return givesCarbonDioxide(drawn.pair->base)
               ? say<Sentence::titrationUntilReacted>(volume, flask, burette, indicator,
                                                      nameOf(*baseOf(*drawn.pair).anion))
               : say<Sentence::titrationOf>(volume, flask, burette, indicator);
}

Spans measureOfTitre(int hundredths)
{
    return measure(plainText({hundredths, -2}), "mL");
}

Span titresSentence(const Titration& drawn)
{
    const std::vector<int>& titres = drawn.titres;
    if (titres.empty()) {
        return say<Sentence::titrationTitre>(told(givenTitre("", drawn.fromBurette)));
    }
    const Spans rough = measureOfTitre(titres[0]);
    const Spans first = measureOfTitre(titres[1]);
    const Spans second = measureOfTitre(titres[2]);
    return titres.size() == 3 ? say<Sentence::titrationTwoTitres>(rough, first, second)
                              : say<Sentence::titrationThreeTitres>(rough, first, second,
                                                                    measureOfTitre(titres[3]));
}

Spans promptOf(const Titration& drawn, const Solutions& solutions, const Quantities& quantities,
               const Equation& equation)
{
    const bool isEquationGiven = drawn.titres.empty();
    return line(titrationSentence(drawn, solutions, quantities), " ", titresSentence(drawn), " ",
                isEquationGiven ? line(say<Sentence::titrationEquation>(spansOf(equation)), " ")
                                : Spans(),
                say<Sentence::titrationQuestion>(solutionOf(*solutions.unknown)));
}

std::vector<Given> givenOf(const Solutions& solutions, const Quantities& quantities)
{
    return {givenCompound(*solutions.inFlask), givenCompound(*solutions.inBurette),
            quantities.inFlask, quantities.fromBurette, quantities.concentration};
}

Exercise make(const Place& place, const Titration& drawn)
{
    const Solutions solutions = solutionsOf(drawn);
    const Quantities quantities = quantitiesOf(drawn, solutions);
    const Equation equation = equationOf(drawn);
    Exercise exercise = numberExercise(
        place,
        {Form::number, "c", std::string(solutions.unknown->formula), "mol/L", askedFigures, {}},
        numberAnswerOf(drawn));
    exercise.prompt = promptOf(drawn, solutions, quantities, equation);
    exercise.given = givenOf(solutions, quantities);
    exercise.equation = equation;
    exercise.solution = titrationSteps(drawn, solutions, equation, exercise.key);
    addTitrationSlips(exercise, drawn);
    return exercise;
}

} // namespace

const Kind titrationKind = {
    7,
    1,
    "titration",
    Sentence::titrationTitle,
    {Sentence::titrationLevel1, Sentence::titrationLevel2, Sentence::titrationLevel3},
    false,
    drawnExercise<drawTitration, descriptionOf, levelOf, make>,
    describedExercise<titrationFrom, descriptionOf, levelOf, make>,
    Drawing::titration,
};

} // namespace lesson
