#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/chemistry/ions.hpp"

namespace lesson
{

// A cation and an anion of the tables.
struct Pair {
    const IonRow* cation;
    const IonRow* anion;
};
bool operator==(const Pair& a, const Pair& b);

// How common the compound is in comparison with others: the product of its ions' weights, 1 to 36.
int weightOf(const Pair& pair);

// The reason why the compound of the two is not asked for by name or formula, as a sentence: it
// does not exist, or not under this formula. Empty where it is asked; so it is for 227 pairs.
std::string_view whyFormulaIsNotAsked(const Pair& pair);

// The reason why it is not asked whether the compound dissolves: the above, or it reacts with
// water, or school tables differ. Empty where it is asked; so it is for 153 pairs.
std::string_view whySolubilityIsNotAsked(const Pair& pair);

// The pairs that are asked, by cation, then by anion, in the order of the tables.
const std::vector<Pair>& pairsForFormulas();
const std::vector<Pair>& pairsForSolubility();

// What school tables say about the compounds of one anion.
struct SolubilityRule {
    std::string_view anion;      // its name
    std::string_view family;     // rules that are learnt as one have the same: "halides"
    bool isSoluble;              // all but the exceptions
    std::string_view exceptions; // names of cations, a blank between them
    std::string_view sentence;   // for a learner
};
const std::vector<SolubilityRule>& solubilityRules();

// The rule for the anion; null for one whose solubility is never asked.
const SolubilityRule* ruleFor(const IonRow& anion);

// For a pair whose solubility is asked.
bool isException(const Pair& pair);
bool isSoluble(const Pair& pair);

} // namespace lesson
