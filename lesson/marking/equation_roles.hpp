#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lesson/chemistry/composition.hpp"
#include "lesson/exercise.hpp"
#include "lesson/reading/equation.hpp"

namespace lesson
{

// The states that may be typed for a species, the second one empty where there is only one.
using States = std::array<std::string_view, 2>;

enum class SpeciesKind {
    acid,
    base,
    salt,
    molecule, // water or carbon dioxide
};

// A species of the equation that is asked for, and what may be typed for it.
struct Role {
    SpeciesKind kind;
    States states;
    const IonRow* cation; // null for a molecule
    const IonRow* anion;
    bool isOnTheLeft = false;
    int coefficient = 0;
    std::string formula = {};
    Atoms atoms = {};                        // by atomic number, as those of a typed formula are
    std::vector<std::string> spellings = {}; // of the formula, as `spellingsInEquation` has them
};

// Acid, base, salt, and then water and carbon dioxide as far as they form.
using Roles = std::vector<Role>;
Roles rolesOf(const EquationAnswer& answer);

inline const Role& baseOf(const Roles& roles)
{
    return roles[1];
}
inline BaseKind kindOfBase(const Roles& roles)
{
    return kindOf({baseOf(roles).cation, baseOf(roles).anion});
}
inline const Role& saltOf(const Roles& roles)
{
    return roles[2];
}

bool isSpelledRightButForCapitals(const TypedTerm& term, const Role& role);

struct TermOnSide {
    const TypedTerm* term;
    bool isOnTheLeft;
};

// Which typed term stands for which species.
struct Assignment {
    std::vector<Ratio> amounts;            // typed coefficient of each role, 0 where it is missing
    std::vector<TermOnSide> extras;        // that stand for none
    const TypedTerm* wrongState = nullptr; // the first one
    const TypedTerm* tooMany = nullptr;    // that adds up to a coefficient beyond all range
};

// Points into `typed`. With `isAnyCase` terms stand for a species whatever their capitals are.
Assignment assigned(const TypedEquation& typed, const Roles& roles, bool isAnyCase);

bool isMissing(const Assignment& assignment, std::size_t role);
bool hasRightSubstances(const Assignment& assignment);

// By what the equation in lowest terms was multiplied, with all substances right; none where it is
// not balanced.
std::optional<Ratio> multiplier(const Assignment& assignment, const Roles& roles);

bool isRight(const TypedEquation& typed, const Assignment& assignment, const Roles& roles);

} // namespace lesson
