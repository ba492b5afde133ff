#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/numbers/ratio.hpp"
#include "lesson/reading/formula.hpp"

namespace lesson
{

// One species of a typed equation.
struct TypedTerm {
    Ratio coefficient = {1, 1}; // above 0, at most 99999, its denominator at most 10000
    std::string typed;          // all of it
    std::string text;           // the formula as it was typed
    TypedFormula formula;
    std::string state;  // "s", "l", "g", "aq"; empty where none was typed
    std::string unread; // the part that could not be read; empty where all could
};

enum class Arrow { none, toTheRight, toTheLeft, twoWay };

struct TypedEquation {
    Arrow arrow = Arrow::none;
    // What the arrow starts from and what it points to, so that behind an arrow to the left what
    // was typed on the left is `right`; without an arrow all is left. Terms that could not be read
    // stand among the others.
    std::vector<TypedTerm> left;
    std::vector<TypedTerm> right;
    std::string unread; // the first part that could not be read; empty where all could
};

// Reads an equation as people type it, in time proportional to the length: what
// `plainTyped` gives.
//   "1/2 H_2SO_4(aq)+NaOH = 0.5Na2SO4 + H2O (l)"
// More species than any equation has are not read: a limit to what hostile input costs.
TypedEquation readEquation(std::string_view typed);

} // namespace lesson
