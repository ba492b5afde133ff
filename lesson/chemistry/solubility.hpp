#pragma once

#include <vector>

#include "lesson/chemistry/compounds.hpp"
#include "lesson/words/sentences.hpp"

namespace lesson
{

// The rules that are learnt as one; draws walk through them in this order.
enum class Family {
    carbonatesAndPhosphates,
    ethanoates,
    halides,
    hydrogencarbonates,
    hydroxides,
    nitrates,
    sulfates,
    sulfides,
};

// What school tables say about the compounds of one anion.
struct SolubilityRule {
    Ion anion = {};
    bool isSoluble = false; // all but the exceptions
    IonSet exceptions = {}; // cations
    Family family = {};
    Sentence sentence = {}; // for a learner; it takes the compounds: "chlorides"
};
const std::vector<SolubilityRule>& solubilityRules();

// The rule for the anion; null for one whose solubility is never asked.
const SolubilityRule* ruleFor(const IonRow& anion);

// For a pair whose solubility is asked.
bool isException(const Pair& pair);
bool isSoluble(const Pair& pair);

} // namespace lesson
