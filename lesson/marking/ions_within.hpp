#pragma once

#include <string>
#include <string_view>

#include "lesson/chemistry/ions.hpp"

namespace lesson
{

// The ions that a formula is made of, in the spelling of `TypedFormula::simplest`.

// An ion as it is written in a formula.
struct WrittenIon {
    std::string_view formula; // without the charge
    bool isGroup;
};
WrittenIon written(const IonRow& ion);

// As often as it is asked, in brackets if it needs them: "SO4", 3 -> "(SO4)3".
std::string repeated(const WrittenIon& ion, int times);

// How often each of two ions stands in a formula; none in one that is not made of them.
struct Counts {
    int positive = 0;
    int negative = 0;
};
Counts countsIn(std::string_view formula, const WrittenIon& cation, const WrittenIon& anion);

// Whether their compound has more than one of an ion that is a group.
bool repeatsGroup(const IonRow& cation, const IonRow& anion);

// Whether a formula has the ions of their compound, and one that comes more than once is written
// each time: "PbOHOH", "MgClCl", "Al2SO4SO4SO4". Which ion stands first is all one.
bool isWrittenOut(std::string_view formula, const IonRow& cation, const IonRow& anion);

} // namespace lesson
