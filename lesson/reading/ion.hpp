#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/reading/formula.hpp"

namespace lesson
{

// One way to read what was typed: "SO42-" is SO4 with 2-, or SO42 with 1-.
struct IonReading {
    std::string bare; // the formula as it was typed, without the charge and what lowers or raises
    TypedFormula formula;
    int charge; // with its sign; 0 where there is none
    bool hasLoweredCharge;
    bool hasRaisedCount; // a number of the formula, or a charge in its midst, is raised

    // With what was typed lowered and raised.
    bool agrees() const
    {
        return !hasLoweredCharge && !hasRaisedCount;
    }
};

struct TypedIon {
    // Those that agree with what was typed lowered and raised. At least one: where none agrees, all
    // of them.
    std::vector<IonReading> readings;
    std::vector<IonReading> misplaced; // the others
    bool hasSign;
    bool hasRaised;
};

// Reads an ion with its charge as people type it: "SO42-", "SO4-2", "O--", "SO4^2-", "Fe^+3",
// "Fe(3+)", or without a charge, "SO4". `marked` is what `markedTyped` gives.
//   A "_" lowers one digit or sign, or what is in the brackets behind it; a "^" raises a charge,
//   one digit, or what is in the brackets behind it. Brackets around a charge raise it, and so does
//   a blank between digits, "Cr2O7 2-".
TypedIon readIon(std::string_view marked);

// The ion in one spelling: no blanks, no state, round brackets, and before each digit or sign that
// is lowered or raised a "_" or "^" of its own. `readIon` reads it as it reads the other text.
//   "SO_{4}^{2-} (aq)" -> "SO_4^2^-"
std::string markedIon(std::string_view marked);

} // namespace lesson
