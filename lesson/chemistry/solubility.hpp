#pragma once

#include <string_view>
#include <vector>

#include "lesson/chemistry/compounds.hpp"

namespace lesson
{

// What school tables say about the compounds of one anion.
struct SolubilityRule {
    Ion anion;
    bool isSoluble;            // all but the exceptions
    IonSet exceptions;         // cations
    std::string_view family;   // rules that are learnt as one have the same: "halides"
    std::string_view sentence; // for a learner
};
const std::vector<SolubilityRule>& solubilityRules();

// The rule for the anion; null for one whose solubility is never asked.
const SolubilityRule* ruleFor(const IonRow& anion);

// For a pair whose solubility is asked.
bool isException(const Pair& pair);
bool isSoluble(const Pair& pair);

} // namespace lesson
