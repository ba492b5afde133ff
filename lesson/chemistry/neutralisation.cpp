#include "lesson/chemistry/neutralisation.hpp"

#include <numeric>

namespace lesson
{

Equation neutralisationOf(const AcidRow& acid, const Base& base)
{
    return neutralisationTo(anionOf(acid), acid, base);
}

// As many protons are given as are taken, and no fewer do: their least common multiple. The anions
// of the acid, which have a charge for each proton that it gave, tell how much salt that is.
Equation neutralisationTo(const IonRow& anion, const AcidRow& acid, const Base& base)
{
    const Uptake unit = uptakeOf(base);
    const int protons = -anion.charge;
    const int given = std::lcm(protons, unit.protons);
    const int ofAcid = given / protons;
    const int ofBase = given / unit.protons;
    const int ofSalt = ofAcid / anionsIn(*base.cation, anion);
    Equation equation;
    equation.left = {{ofAcid, std::string(acid.formula)}, {ofBase, formulaOf(base)}};
    equation.right = {{ofSalt, compoundFormula(*base.cation, anion)}};
    if (unit.water > 0) {
        equation.right.emplace_back(ofBase * unit.water, "H2O");
    }
    if (unit.carbonDioxide > 0) {
        equation.right.emplace_back(ofBase * unit.carbonDioxide, "CO2");
    }
    return equation;
}

} // namespace lesson
