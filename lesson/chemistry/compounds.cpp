#include "lesson/chemistry/compounds.hpp"

#include <cstdlib>
#include <numeric>

namespace lesson
{

namespace
{

// How often an ion stands in the neutral compound with a partner: as often as it takes to come to
// the least charge that both can make up.
int countOf(const IonRow& ion, const IonRow& partner)
{
    return std::lcm(ion.charge, partner.charge) / std::abs(ion.charge);
}

// An ion's share of a formula: brackets only around a group that comes more than once.
std::string shareOf(const IonRow& ion, int count)
{
    const std::string once(ion.formula);
    const std::string number = count == 1 ? "" : std::to_string(count);
    return (ion.isGroup && count > 1 ? "(" + once + ")" : once) + number;
}

} // namespace

bool operator==(const Pair& a, const Pair& b)
{
    return a.cation == b.cation && a.anion == b.anion;
}

int weightOf(const Pair& pair)
{
    return pair.cation->weight * pair.anion->weight;
}

// CH3COONa, as boards print an ethanoate that needs no number.
std::string compoundFormula(const IonRow& cation, const IonRow& anion)
{
    if (anion.id == Ion::ethanoate && cation.charge == 1) {
        return std::string(anion.formula) + std::string(cation.formula);
    }
    return shareOf(cation, cationsIn(cation, anion)) + shareOf(anion, anionsIn(cation, anion));
}

std::string hydrateFormula(const std::string& formula, int water)
{
    return formula + "." + (water == 1 ? "" : std::to_string(water)) + "H2O";
}

int cationsIn(const IonRow& cation, const IonRow& anion)
{
    return countOf(cation, anion);
}

int anionsIn(const IonRow& cation, const IonRow& anion)
{
    return countOf(anion, cation);
}

} // namespace lesson
