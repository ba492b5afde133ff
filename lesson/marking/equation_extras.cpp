#include "lesson/marking/equation_extras.hpp"

#include <optional>

#include "lesson/marking/equation_misspelt.hpp"
#include "lesson/marking/ions_by_atoms.hpp"
#include "lesson/marking/other_substances.hpp"
#include "lesson/text/quotable.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

// With too little base the acid keeps a proton, with too little acid the carbonate takes only one;
// but not every hydrogencarbonate can be had.
std::optional<Extra> halfWay(const TermOnSide& typed, const Roles& roles)
{
    const TypedFormula& formula = typed.term->formula;
    const Role& base = baseOf(roles);
    const Role& salt = saltOf(roles);
    if (isAcidSaltOf(formula.atoms, *salt.cation, *salt.anion)) {
        return Extra{typed,
                     Mistake::acidSalt,
                     {say<Sentence::markAcidSalt>(typedFormula(*typed.term))},
                     &salt};
    }
    if (kindOfBase(roles) == BaseKind::carbonate &&
        isAcidSaltOf(formula.atoms, *base.cation, *base.anion) &&
        findSubstance(formula.atoms, base.kind) != nullptr) {
        return Extra{typed,
                     Mistake::halfCarbonate,
                     {say<Sentence::markHalfCarbonate>(typedFormula(*typed.term))}};
    }
    return std::nullopt;
}

std::optional<Extra> product(const TermOnSide& typed, const Roles& roles)
{
    static const Atoms carbonicAcid = atomsOf("H2CO3");
    static const Atoms hydrogenGas = atomsOf("H2");
    const Atoms& atoms = typed.term->formula.atoms;
    const bool hasCarbonDioxide = givesCarbonDioxide(kindOfBase(roles));
    if (hasCarbonDioxide && atoms == carbonicAcid) {
        return Extra{typed, Mistake::carbonicAcid, {say(Sentence::markCarbonicAcid)}};
    }
    if (atoms == hydrogenGas) {
        return Extra{typed, Mistake::hydrogenGas, {say(Sentence::markHydrogenGas)}};
    }
    return halfWay(typed, roles);
}

// "NH4OH", "NH3.H2O"
bool isAmmoniaAndWater(const TermOnSide& typed, BaseKind kind)
{
    static const Atoms both = atomsOf("NH4OH");
    return typed.isOnTheLeft && kind == BaseKind::ammonia && typed.term->formula.atoms == both;
}

Extra anElement(const TermOnSide& typed)
{
    const Sentence sentence =
        typed.isOnTheLeft ? Sentence::markElementOnTheLeft : Sentence::markElementOnTheRight;
    return {typed, Mistake::otherSubstance, {say(sentence, typedFormula(*typed.term))}};
}

// The species of its side that no term stands for.
std::vector<const Role*> missingBeside(const TermOnSide& typed, const Roles& roles,
                                       const Assignment& assignment)
{
    std::vector<const Role*> missing;
    for (std::size_t i = 0; i < roles.size(); ++i) {
        if (roles[i].isOnTheLeft == typed.isOnTheLeft && isMissing(assignment, i)) {
            missing.push_back(&roles[i]);
        }
    }
    return missing;
}

Extra explained(const TermOnSide& typed, const Roles& roles, const Assignment& assignment)
{
    if (isAmmoniaAndWater(typed, kindOfBase(roles))) {
        return {typed,
                Mistake::ammoniaAndWater,
                {say<Sentence::markAmmoniaAndWater>(typedFormula(*typed.term))},
                &baseOf(roles)};
    }
    const std::vector<const Role*> missing = missingBeside(typed, roles, assignment);
    for (const Role* const role : missing) {
        if (typed.term->formula.atoms == role->atoms) {
            return inDisorder(typed, *role);
        }
    }
    if (!typed.isOnTheLeft) {
        if (std::optional<Extra> known = product(typed, roles)) {
            return *known;
        }
    }
    for (const Role* const role : missing) {
        if (std::optional<Extra> wrong = misspelt(typed, *role)) {
            return *wrong;
        }
    }
    return typed.term->formula.atoms.size() == 1 ? anElement(typed) : Extra{typed};
}

} // namespace

Span typedFormula(const TypedTerm& term)
{
    return formula(quotable(term.formula.text));
}

std::vector<Extra> explainedExtras(const Roles& roles, const Assignment& assignment)
{
    std::vector<Extra> extras;
    for (const TermOnSide& typed : assignment.extras) {
        extras.push_back(explained(typed, roles, assignment));
    }
    return extras;
}

} // namespace lesson
