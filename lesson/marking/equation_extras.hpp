#pragma once

#include <vector>

#include "lesson/marking/equation_roles.hpp"

namespace lesson
{

// What is wrong with a typed term that stands for no species of the equation.
enum class Mistake {
    unknown,
    ammoniaAndWater, // for ammonia, with the water in which it is dissolved
    carbonicAcid,
    hydrogenGas,
    otherSubstance, // one that another question asks for, or an element
    misspelt,       // a species of the equation, but for its formula
    acidSalt,       // what forms when the base runs out
    halfCarbonate,  // what forms when the acid runs out
};

struct Extra {
    TermOnSide typed;
    Mistake mistake = Mistake::unknown;
    Spans sentence = {};
    const Role* meant = nullptr; // the species instead of which it stands
};

// The formula of a term as sentences have it.
Span typedFormula(const TypedTerm& term);

// All of them, in the order in which they were typed.
std::vector<Extra> explainedExtras(const Roles& roles, const Assignment& assignment);

} // namespace lesson
