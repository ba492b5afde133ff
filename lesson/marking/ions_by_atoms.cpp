#include "lesson/marking/ions_by_atoms.hpp"

#include <algorithm>

#include "lesson/chemistry/elements.hpp"
#include "lesson/numbers/sort_few.hpp"

namespace lesson
{

namespace
{

// An element that the anion has and the cation has not tells how many anions there are, and the
// cation's own one how many cations are left then.
IonsIn countedIn(const Atoms& atoms, const Atoms& ofCation, const Atoms& ofAnion)
{
    const auto marker = std::find_if(ofAnion.begin(), ofAnion.end(), [&](const AtomCount& atom) {
        return atom.element != elements::hydrogen && countOf(ofCation, atom.element) == 0;
    });
    const int anions = countOf(atoms, marker->element) / marker->count;
    const AtomCount own = ofCation.back();
    const int cations =
        (countOf(atoms, own.element) - anions * countOf(ofAnion, own.element)) / own.count;
    return {cations, anions, 0};
}

} // namespace

Atoms atomsOf(std::string_view formula)
{
    Atoms atoms = compositionOf(formula).atoms;
    sortFew(atoms, [](AtomCount a, AtomCount b) { return a.element < b.element; });
    return atoms;
}

std::optional<IonsIn> ionsIn(const Atoms& atoms, const IonRow& cation, const IonRow& anion)
{
    constexpr int mostAtoms = 1000000;
    if (std::any_of(atoms.begin(), atoms.end(),
                    [](const AtomCount& atom) { return atom.count > mostAtoms; })) {
        return std::nullopt;
    }
    const Atoms ofCation = atomsOf(cation.formula);
    const Atoms ofAnion = atomsOf(anion.formula);
    IonsIn ions = countedIn(atoms, ofCation, ofAnion);
    const auto left = [&](int element) {
        return countOf(atoms, element) - ions.anions * countOf(ofAnion, element) -
               ions.cations * countOf(ofCation, element);
    };
    const auto fits = [&left](const AtomCount& atom) {
        return atom.element == elements::hydrogen ? left(elements::hydrogen) >= 0
                                                  : left(atom.element) == 0;
    };
    const bool isAll = std::all_of(atoms.begin(), atoms.end(), fits) &&
                       std::all_of(ofAnion.begin(), ofAnion.end(), fits) &&
                       std::all_of(ofCation.begin(), ofCation.end(), fits);
    if (ions.anions < 1 || ions.cations < 1 || !isAll) {
        return std::nullopt;
    }
    ions.protons = left(elements::hydrogen);
    return ions;
}

bool isAcidSalt(const IonsIn& ions, const IonRow& cation, const IonRow& anion)
{
    return ions.protons > 0 && anion.charge < -1 &&
           ions.cations * cation.charge + ions.protons + ions.anions * anion.charge == 0;
}

bool isAcidSaltOf(const Atoms& atoms, const IonRow& cation, const IonRow& anion)
{
    const std::optional<IonsIn> ions = ionsIn(atoms, cation, anion);
    return ions.has_value() && isAcidSalt(*ions, cation, anion);
}

} // namespace lesson
