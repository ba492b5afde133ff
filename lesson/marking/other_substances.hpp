#pragma once

#include "lesson/chemistry/composition.hpp"
#include "lesson/chemistry/name.hpp"
#include "lesson/marking/equation_roles.hpp"

namespace lesson
{

// A substance that is right in another question.
struct OtherSubstance {
    Atoms atoms; // by atomic number, as those of a typed formula are
    Name name;
    SpeciesKind kind;
    const IonRow* cation; // null for an acid
    const IonRow* anion;
};

// The acid, base or salt with these atoms; null where no question asks for one.
const OtherSubstance* findSubstance(const Atoms& atoms, SpeciesKind kind);

} // namespace lesson
