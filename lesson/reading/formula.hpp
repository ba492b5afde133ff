#pragma once

#include <string>
#include <string_view>

#include "lesson/chemistry/composition.hpp"
#include "lesson/words/spans.hpp"

namespace lesson
{

// What a typed formula says. All but `unread` is empty where it could not be read.
struct TypedFormula {
    bool isRead = false;
    // The part that could not be read, as it was typed; empty where nothing was typed. Numbers too
    // large for any formula are such a part, so that no overflow can equal anything.
    std::string unread;
    // In one spelling, so that two formulas are written alike where their texts are equal: round
    // brackets, subscripts as plain digits, "." for the dot, no 1, no blank, no charge.
    std::string text;
    // The text without the brackets that change nothing: "(Na)2S(O4)" -> "Na2SO4".
    std::string simplest;
    Atoms atoms;                  // by atomic number, so that equal ones compare as equal
    std::string state;            // "s", "l", "g", "aq"; empty where none was typed
    bool hasCharge = false;       // a charge stands at the end or amidst: "Na+Cl-"
    bool hasRaisedNumber = false; // a raised number without a sign, read as a subscript: "H^2O"
};

// Reads the formula of a substance as people type it, in time proportional to the length and with
// no recursion. `plain` is what `plainTyped` gives, without a coefficient of an equation.
//   "Ca(OH)_2 (s)" -> "Ca(OH)2", state "s"    "[Na]_{2} SO4" -> "(Na)2SO4", simplest "Na2SO4"
TypedFormula readFormula(std::string_view plain);

// Whether all of the text is a formula of several elements without a charge.
bool isCompound(std::string_view plain);

// What was read as it is typeset; nothing where it could not be read. What was typed raised stays
// so: "Na+Cl-" -> ions Na and Cl, "H^2O" -> H with a raised 2, O.
Spans formulaSpans(std::string_view plain);

} // namespace lesson
