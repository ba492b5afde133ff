#include "lesson/kinds/titration.hpp"

#include <string>
#include <string_view>
#include <vector>

#include "lesson/chemistry/neutralisation.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/kinds/shared/quantities.hpp"
#include "lesson/kinds/shared/record.hpp"
#include "lesson/kinds/shared/salts.hpp"

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
    given.role = Role::titre;
    return drawn.titres.empty() ? given : untold(given);
}

GivenQuantity givenFlask(const Titration& drawn, std::string_view of)
{
    GivenQuantity given = givenVolume("V", of, drawn.inFlask);
    given.role = Role::aliquot;
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
Spans withConcentration(const SoluteRow& solution, const Solutions& solutions,
                        const GivenQuantity& concentration)
{
    return &solution == solutions.known ? line(told(concentration), " ", solutionOf(solution))
                                        : solutionOf(solution);
}

// Halfway a carbonate has become a hydrogencarbonate, which other indicators show.
Spans endOf(const Titration& drawn)
{
    const Base base = baseOf(*drawn.pair);
    return givesCarbonDioxide(drawn.pair->base)
               ? line(", until the ", nameOf(*base.anion), " has reacted completely")
               : Spans();
}

Spans measureOfTitre(int hundredths)
{
    return measure(plainText({hundredths, -2}), "mL");
}

Spans titresSentence(const Titration& drawn)
{
    const std::vector<int>& titres = drawn.titres;
    if (titres.empty()) {
        return line("The titre is ", told(givenTitre("", drawn.fromBurette)), ".");
    }
    Spans sentence = line("The rough titre is ", measureOfTitre(titres[0]), ", and the others are ",
                          measureOfTitre(titres[1]));
    for (std::size_t i = 2; i < titres.size(); ++i) {
        const bool isLast = i + 1 == titres.size();
        append(sentence, line(isLast ? " and " : ", ", measureOfTitre(titres[i])));
    }
    append(sentence, ".");
    return sentence;
}

Spans promptOf(const Titration& drawn, const Solutions& solutions, const Quantities& quantities,
               const Equation& equation)
{
    const Spans flask = withConcentration(*solutions.inFlask, solutions, quantities.concentration);
    const Spans burette =
        withConcentration(*solutions.inBurette, solutions, quantities.concentration);
    const bool isEquationGiven = drawn.titres.empty();
    return line(told(quantities.inFlask), " of ", flask, " is titrated with ", burette,
                " from the burette, with ", nameOf(drawn.indicator), " as the indicator",
                endOf(drawn), ". ", titresSentence(drawn),
                isEquationGiven ? line(" The equation is ", spansOf(equation), ".") : Spans(),
                " Calculate the concentration of the ", solutionOf(*solutions.unknown), " in ",
                unit("mol/L"), ".");
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
