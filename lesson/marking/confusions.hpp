#pragma once

#include <string_view>
#include <vector>

#include "lesson/chemistry/ions.hpp"
#include "lesson/words/sentences.hpp"

namespace lesson
{

// What learners write for an ion: another ion, whose name or formula is like it, or a molecule.
struct Confusion {
    Ion of;
    std::string_view formula; // of the other one, without its charge
    int charge;               // of the other one; of a molecule that of the ion
    bool isGroup;             // of several atoms
    Sentence sentence;
};

// The commoner ones first.
std::vector<const Confusion*> confusionsOf(const IonRow& ion);

// Whether the metal of an ion has compounds with this charge beside that of the ion, as lead(II)
// has some with 4+.
bool hasOtherCharge(const IonRow& cation, int charge);

} // namespace lesson
