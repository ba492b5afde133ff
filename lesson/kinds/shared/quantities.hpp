#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/chemistry/solutes_and_ceilings.hpp"
#include "lesson/exercise.hpp"
#include "lesson/marking/number.hpp"
#include "lesson/numbers/decimal.hpp"
#include "lesson/numbers/ratio.hpp"
#include "lesson/paper/draws.hpp"
#include "lesson/words/spans.hpp"

// What the pages on calculations share: quantities as a prompt shows them, answers that are
// numbers.
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

// A solution of a substance: "sodium chloride solution", "ammonia solution", "hydrochloric acid".
Span solutionOf(const SoluteRow& solute);
GivenCompound givenCompound(const SoluteRow& solute);

// Litres from whole millilitres, and mol/L from whole tenths of a millimole per litre: the last
// places of the tables that quantities are drawn from.
Ratio litres(int millilitres);
Ratio molesPerLitre(int tenThousandths);

// A volume as descriptions write it: 0.025 -> "25.0".
std::string inMillilitres(Ratio litres);

// An exercise that asks for a number; prompt, given, solution and slips are still to be written.
Exercise numberExercise(const Place& place, Ask ask, NumberAnswer answer);

// The slip of a number, as marking/number.hpp has it, with a sentence that takes no arguments.
void addSlip(Exercise& exercise, Ratio value, Sentence sentence);

// A value that a solution goes on with: one figure more than answers of three figures have.
Span between(Ratio value);

} // namespace lesson
