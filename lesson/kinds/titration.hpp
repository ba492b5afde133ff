#pragma once

#include <vector>

#include "lesson/chemistry/equation.hpp"
#include "lesson/chemistry/solutes_and_ceilings.hpp"
#include "lesson/chemistry/titrations.hpp"
#include "lesson/exercise.hpp"
#include "lesson/kinds/description.hpp"
#include "lesson/numbers/ratio.hpp"
#include "lesson/words/spans.hpp"

// What the files of the titrations share.
namespace lesson
{

// An acid and a base, one of them pipetted into the flask, the other one run in from the burette;
// one concentration is known, the other one is asked for. Level 1 has those that react one to one,
// level 2 the others, both with the equation; level 3 has any, without it and with several titres.
struct Titration {
    const TitrationRow* pair;
    Indicator indicator; // one of the two
    bool isAcidInBurette;
    bool isAcidKnown;
    Ratio concentration;     // of the known, mol/L
    Ratio inFlask;           // L
    Ratio fromBurette;       // L; the mean where there are several titres
    std::vector<int> titres; // these, in hundredths of a millilitre, the rough one first
    Ratio answer;            // of the unknown, mol/L
};

// The one of a place. Every order of working it out ends at an answer that is correct, and who
// exchanges the volumes, does without them, copies the known concentration or averages the rough
// titre in is told so.
Titration drawTitration(const Place& place);

// Whether an exercise can be made of it, as `drawTitration` makes sure of.
bool isAskable(const Titration& titration);

// The mean of the titres but for the rough one, in L; and the answer, from all other quantities.
Ratio meanTitre(const std::vector<int>& titres);
Ratio workedOut(const Titration& titration);

// Its description, and the titration of one: values as in `FieldReader`.
Description descriptionOf(const Titration& drawn);
Titration titrationFrom(FieldReader& fields);
int levelOf(const Titration& titration);

bool isKnownInBurette(const Titration& drawn);

// Moles of the unknown for one of the known.
Ratio ratioOf(const Titration& drawn);

// In L.
struct Volumes {
    Ratio known;
    Ratio unknown;
};
Volumes volumesOf(const Titration& drawn);

// The answer with another volume from the burette, in L, such as the mean of all titres, the rough
// one included, or the rough one alone, or the sum of the others.
Ratio answerFor(const Titration& drawn, Ratio fromBurette);
Ratio meanWithRoughTitre(const Titration& drawn);
Ratio roughTitre(const Titration& drawn);

NumberAnswer numberAnswerOf(const Titration& drawn);

// The two solutions by their places and by what is known of them.
struct Solutions {
    const SoluteRow* inFlask;
    const SoluteRow* inBurette;
    const SoluteRow* known;
    const SoluteRow* unknown;
};

// The steps to the key, which is the asked concentration with its unit.
std::vector<Step> titrationSteps(const Titration& drawn, const Solutions& solutions,
                                 const Equation& equation, const Spans& key);

void addTitrationSlips(Exercise& exercise, const Titration& drawn);

} // namespace lesson
