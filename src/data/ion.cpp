#include "data/ion.hpp"

#include <utility>

namespace
{

// A subscript or charge as formulas show it: a 1 is not written.
const char* digit(short number)
{
    switch (number) {
    case 2:
        return "2";
    case 3:
        return "3";
    default:
        return "";
    }
}

// Adds one ion's share of a neutral compound: brackets only around a group that is taken more than
// once.
void addShare(std::string& compound, const Ion& own, const Ion& partner)
{
    if (own.charge == partner.charge) {
        compound += own.formula;
    } else if (own.polyatomic && partner.charge > 1) {
        compound += "(" + own.formula + ")" + digit(partner.charge);
    } else {
        compound += own.formula;
        compound += digit(partner.charge);
    }
}

} // namespace

Ion::Ion(std::string ionName, std::string ionFormula, bool isNegative, short chargeSize,
         bool isPolyatomic, std::string nameOfAcid)
    : name(std::move(ionName)), negative(isNegative), formula(std::move(ionFormula)),
      charge(chargeSize), polyatomic(isPolyatomic), acidName(std::move(nameOfAcid))
{
}

int Ion::getSubscript(Ion partner) const
{
    return subscript(charge, partner.charge);
}

std::string Ion::makeFormula() const
{
    return formula + digit(charge) + (negative ? "-" : "+");
}

int subscript(short ownCharge, short partnerCharge)
{
    if (ownCharge == partnerCharge) {
        return 1;
    }
    if (ownCharge != 4 && partnerCharge == 2) {
        return 2;
    }
    return partnerCharge == 3 ? 3 : 1;
}

std::string makeFormula(Ion first, Ion second)
{
    std::string compound;
    addShare(compound, first, second);
    addShare(compound, second, first);
    return compound;
}
