#include "lesson/marking/equation_roles.hpp"

#include <algorithm>

#include "lesson/chemistry/neutralisation.hpp"
#include "lesson/chemistry/pairs_not_asked.hpp"
#include "lesson/chemistry/solubility.hpp"
#include "lesson/marking/equation_spellings.hpp"
#include "lesson/marking/ions_by_atoms.hpp"
#include "lesson/reading/coefficient.hpp"
#include "lesson/reading/formula.hpp"
#include "lesson/reading/formula_spelling.hpp"
#include "lesson/text/scan.hpp"

namespace lesson
{

namespace
{

constexpr States solidOrDissolved = {"s", "aq"};

States statesOfSalt(const Pair& pair)
{
    if (ruleFor(*pair.anion) == nullptr || whySolubilityIsNotAsked(pair).has_value()) {
        return solidOrDissolved;
    }
    return isSoluble(pair) ? States{"aq", ""} : States{"s", ""};
}

// One that dissolves may be taken as the solid all the same.
States statesOfBase(const Pair& pair)
{
    return statesOfSalt(pair) == States{"s", ""} ? States{"s", ""} : solidOrDissolved;
}

// The same atoms may make another substance: "HCOOCH3" is not CH3COOH.
bool isSpelledRight(const TypedTerm& term, const Role& role)
{
    const std::vector<std::string>& spellings = role.spellings;
    return term.unread.empty() && term.formula.atoms == role.atoms &&
           std::find(spellings.begin(), spellings.end(), term.formula.simplest) != spellings.end();
}

using IsSame = bool (*)(const TypedTerm&, const Role&);

// The place of the role that a term stands for; the number of roles where it stands for none.
std::size_t roleOf(const TermOnSide& typed, const Roles& roles, IsSame isSame)
{
    const auto found = std::find_if(roles.begin(), roles.end(), [&](const Role& role) {
        return role.isOnTheLeft == typed.isOnTheLeft && isSame(*typed.term, role);
    });
    return static_cast<std::size_t>(found - roles.begin());
}

void assign(const TermOnSide& typed, const Roles& roles, bool isAnyCase, Assignment& assignment)
{
    const TypedTerm& term = *typed.term;
    std::size_t i = roleOf(typed, roles, isSpelledRight);
    if (i == roles.size() && isAnyCase) {
        i = roleOf(typed, roles, isSpelledRightButForCapitals);
    }
    if (i == roles.size()) {
        assignment.extras.push_back(typed);
        return;
    }
    const Ratio sum = assignment.amounts[i] + term.coefficient;
    if (!isFitCoefficient(sum)) {
        assignment.tooMany = &term;
        return;
    }
    assignment.amounts[i] = sum;
    const States& states = roles[i].states;
    const bool isRightState =
        term.state.empty() || std::find(states.begin(), states.end(), term.state) != states.end();
    if (!isRightState && assignment.wrongState == nullptr) {
        assignment.wrongState = &term;
    }
}

} // namespace

Roles rolesOf(const EquationAnswer& answer)
{
    const Equation equation = neutralisationOf(*answer.acid, answer.base);
    const IonRow* const acidAnion = &anionOf(*answer.acid);
    const IonRow* const cation = answer.base.cation;
    const IonRow* const baseAnion = answer.base.anion;
    const States saltStates = statesOfSalt({cation, acidAnion});
    const Role inOrder[] = {
        {SpeciesKind::acid, {"aq"}, &rowOf(Ion::hydrogen), acidAnion},
        baseAnion == nullptr
            ? Role{SpeciesKind::base, {"aq", "g"}, nullptr, nullptr}
            : Role{SpeciesKind::base, statesOfBase({cation, baseAnion}), cation, baseAnion},
        {SpeciesKind::salt, saltStates, cation, acidAnion},
        {SpeciesKind::molecule, {"l"}, nullptr, nullptr},
        {SpeciesKind::molecule, {"g"}, nullptr, nullptr},
    };
    Roles roles;
    for (const bool isOnTheLeft : {true, false}) {
        for (const auto& [coefficient, formula] : isOnTheLeft ? equation.left : equation.right) {
            roles.push_back(inOrder[roles.size()]);
            roles.back().isOnTheLeft = isOnTheLeft;
            roles.back().coefficient = coefficient;
            roles.back().formula = formula;
            roles.back().atoms = atomsOf(formula);
            roles.back().spellings =
                spellingsInEquation(formula, roles.back().cation, roles.back().anion);
        }
    }
    return roles;
}

bool isSpelledRightButForCapitals(const TypedTerm& term, const Role& role)
{
    const std::string typed = withoutCapitals(term.text);
    return std::any_of(
        role.spellings.begin(), role.spellings.end(),
        [&typed](const std::string& spelling) { return lowerCase(spelling) == typed; });
}

Assignment assigned(const TypedEquation& typed, const Roles& roles, bool isAnyCase)
{
    Assignment assignment;
    assignment.amounts.resize(roles.size());
    for (const TypedTerm& term : typed.left) {
        assign({&term, true}, roles, isAnyCase, assignment);
    }
    for (const TypedTerm& term : typed.right) {
        assign({&term, false}, roles, isAnyCase, assignment);
    }
    return assignment;
}

bool isMissing(const Assignment& assignment, std::size_t role)
{
    return assignment.amounts[role] == ratio(0);
}

bool hasRightSubstances(const Assignment& assignment)
{
    return assignment.extras.empty() && assignment.tooMany == nullptr &&
           std::find(assignment.amounts.begin(), assignment.amounts.end(), ratio(0)) ==
               assignment.amounts.end();
}

std::optional<Ratio> multiplier(const Assignment& assignment, const Roles& roles)
{
    const Ratio first = assignment.amounts[0] / ratio(roles[0].coefficient);
    for (std::size_t i = 1; i < roles.size(); ++i) {
        if (assignment.amounts[i] != first * ratio(roles[i].coefficient)) {
            return std::nullopt;
        }
    }
    return first;
}

bool isRight(const TypedEquation& typed, const Assignment& assignment, const Roles& roles)
{
    return typed.arrow != Arrow::none && hasRightSubstances(assignment) &&
           assignment.wrongState == nullptr && multiplier(assignment, roles) == ratio(1);
}

} // namespace lesson
