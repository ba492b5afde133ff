#include "lesson/marking/other_substances.hpp"

#include <algorithm>
#include <vector>

#include "lesson/chemistry/pairs_not_asked.hpp"
#include "lesson/marking/ions_by_atoms.hpp"

namespace lesson
{

namespace
{

std::vector<OtherSubstance> everySubstance()
{
    std::vector<OtherSubstance> all;
    for (const AcidRow* const acid : acids()) {
        all.push_back({atomsOf(acid->formula), nameOf(*acid), SpeciesKind::acid, nullptr, nullptr});
    }
    for (const Pair& pair : pairsForFormulas()) {
        all.push_back({atomsOf(compoundFormula(*pair.cation, *pair.anion)),
                       nameOf(*pair.cation, *pair.anion),
                       isOfBases(*pair.anion) ? SpeciesKind::base : SpeciesKind::salt, pair.cation,
                       pair.anion});
    }
    return all;
}

} // namespace

const OtherSubstance* findSubstance(const Atoms& atoms, SpeciesKind kind)
{
    static const std::vector<OtherSubstance> all = everySubstance();
    const auto found = std::find_if(all.begin(), all.end(), [&](const OtherSubstance& substance) {
        return substance.kind == kind && substance.atoms == atoms;
    });
    return found == all.end() ? nullptr : &*found;
}

} // namespace lesson
