#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "lesson/draws.hpp"
#include "lesson/exercise.hpp"
#include "lesson/marking/number.hpp"
#include "lesson/spans.hpp"
#include "lesson/tables/solutions.hpp"
#include "lesson/values/decimal.hpp"
#include "lesson/values/ratio.hpp"

// What the pages on calculations share: quantities as a prompt shows them, answers that are
// numbers, and the ways on which a learner may round.
namespace lesson
{

// Significant figures of an answer, molar masses apart.
constexpr int askedFigures = 3;

// Quantities of the substance with the formula `of`, as prompts tell them; `symbol` as in Ask.
GivenQuantity givenMass(std::string_view of, Ratio inGrams); // with two decimals
GivenQuantity givenMolarMass(std::string_view of);           // the same
// Three figures, in litres from 1 L.
GivenQuantity givenVolume(std::string symbol, std::string_view of, Ratio inLitres);
// From a burette: two decimals of a millilitre.
GivenQuantity givenTitre(std::string_view of, Ratio inLitres);
GivenQuantity givenConcentration(std::string symbol, std::string_view of, Ratio inMolesPerLitre);

// The same where the prompt does not tell it.
GivenQuantity untold(GivenQuantity given);

// As the prompt tells it: 250, "mL".
Spans told(const GivenQuantity& given);

// A substance by its name, and a solution of it: "sodium chloride solution", "ammonia solution",
// "hydrochloric acid".
Span nameOf(const SoluteRow& solute);
Spans solutionOf(const SoluteRow& solute);
GivenCompound givenCompound(const SoluteRow& solute);

// Litres from whole millilitres, and mol/L from whole tenths of a millimole per litre: the last
// places of the tables that quantities are drawn from.
Ratio litres(int millilitres);
Ratio molesPerLitre(int tenThousandths);

// An exercise that asks for a number; prompt, given, solution and slips are still to be written.
Exercise numberExercise(const Place& place, Ask ask, NumberAnswer answer);

// The asked number with its unit, as the last step shows it.
Spans keyMeasure(const Exercise& exercise);

// A value that a solution goes on with: one figure more than answers of three figures have.
Span between(Ratio value);

// Rounds the steps of one way to an answer. A half goes up or down, as people round: for the first
// half that is met the lowest bit of `downwards` tells, and so on.
class StepRounding
{
public:
    StepRounding(int figuresOfSteps, unsigned downwards);

    // A step, and the answer itself, to significant figures.
    Ratio operator()(Ratio value);
    Ratio to(int significantFigures, Ratio value);

    // How many halves have been met.
    unsigned halves() const;

private:
    int figures;
    unsigned directions;
    unsigned met = 0;
};

// Whether a learner who goes this way to an answer of three figures may round each step to three or
// to four figures, a half either way, and is still right. A way takes what was drawn, and a
// StepRounding that it puts each step through but the last.
template <typename Drawn>
bool staysCorrect(Ratio exact, const Drawn& drawn, Ratio (*way)(const Drawn&, StepRounding&))
{
    constexpr int asked = 3;
    for (const int figures : {3, 4}) {
        unsigned halves = 0;
        for (unsigned downwards = 0; downwards < (1U << halves); ++downwards) {
            StepRounding rounded(figures, downwards);
            const Ratio last = way(drawn, rounded);
            const Ratio answer = rounded.to(asked, last);
            if (!agrees(roundedTo(answer, asked), exact, asked, false)) {
                return false;
            }
            halves = std::max(halves, rounded.halves());
        }
    }
    return true;
}

} // namespace lesson
