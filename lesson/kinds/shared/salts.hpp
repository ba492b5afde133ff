#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/chemistry/compounds.hpp"
#include "lesson/chemistry/ions.hpp"
#include "lesson/chemistry/solubility.hpp"
#include "lesson/exercise.hpp"
#include "lesson/kinds/description.hpp"
#include "lesson/words/spans.hpp"

// What the pages on formulas, ions and solubility share.
namespace lesson
{

Span spanOf(const IonRow& ion);

// The charge as it stands in a sentence: "2−", "1+".
std::string chargeWords(const IonRow& ion);

// What is learnt of the compounds of an anion: "Chlorides are soluble, except …".
Span sentenceOf(const SolubilityRule& rule);

// An ion as descriptions write it, "SO4^2-", and the ones with such values; a problem, and any one,
// where there is none or, of two, where they are not among the `known`.
std::string describedIon(const IonRow& ion);
Description describedPair(const Pair& pair);
const IonRow& ionFrom(FieldReader& fields, std::string_view name);
Pair pairFrom(FieldReader& fields, std::string_view nameOfCation, std::string_view nameOfAnion,
              const std::vector<Pair>& known);

// Adds a slip to an exercise unless its text is right but for capitals, or that of an earlier slip.
// `right` holds the right texts, `text` has no blanks, and subscripts as plain digits.
void addSlip(Exercise& exercise, const std::vector<std::string>& right, std::string text,
             const Piece& sentence);

// What learners write for the symbol of an ion: "P" for potassium, "Ni" for nitride.
std::vector<std::string_view> wrongSymbolsOf(const IonRow& ion);

// The formula with one oxygen atom more or less, "SO5" for SO4; empty where that is not asked
// about.
std::string withOxygens(const IonRow& ion, int more);

} // namespace lesson
