#pragma once

#include <optional>
#include <vector>

#include "lesson/chemistry/compounds.hpp"
#include "lesson/words/sentences.hpp"

namespace lesson
{

// The reason why the compound of the two is not asked for by name or formula, which takes no
// arguments: it does not exist, or not under this formula. None where it is asked; so it is for 227
// pairs.
std::optional<Sentence> whyFormulaIsNotAsked(const Pair& pair);

// The reason why it is not asked whether the compound dissolves: the above, or it reacts with
// water, or school tables differ. None where it is asked; so it is for 153 pairs.
std::optional<Sentence> whySolubilityIsNotAsked(const Pair& pair);

// The pairs that are asked, by cation, then by anion, in the order of the tables.
const std::vector<Pair>& pairsForFormulas();
const std::vector<Pair>& pairsForSolubility();

} // namespace lesson
