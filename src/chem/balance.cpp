#include "chem/balance.hpp"

#include <algorithm>

// The method: count hydrogen, oxygen, carbon, base cations and acid anions on both sides; while a
// count differs, raise coefficients in a fixed order, pass after pass; at last divide by the
// greatest common divisor. Oxygen is never adjusted: it comes right with the others or not at all.
// Kept: a pass may overshoot by far, since it multiplies the acid instead of setting it; the
// division mends that.

int nacid = 1;
int nbase = 1;
int nsalt = 1;
int nH2O = 1;
int nCO2 = 0;

namespace
{

constexpr int mostPasses = 100;

// What one molecule or formula unit holds; it does not change while the coefficients do.
struct Units {
    int hydrogenInAcid;
    int hydrogenInBase;
    int oxygenInBase;
    int carbonInBase;
    int cationsInBase;
    int cationsInSalt;
    int anionsInSalt;
};

Units countUnits(const Ion& acidAnion, const Ion& baseCation, const Ion& baseAnion)
{
    Units units = {};
    units.hydrogenInAcid = acidAnion.charge;
    units.cationsInBase = subscript(baseCation.charge, baseAnion.charge);
    units.cationsInSalt = subscript(baseCation.charge, acidAnion.charge);
    units.anionsInSalt = subscript(acidAnion.charge, baseCation.charge);
    if (baseAnion.name == "hydroxide") {
        units.hydrogenInBase = baseCation.charge;
        units.oxygenInBase = baseCation.charge;
    } else if (baseAnion.name == "bicarbonate") {
        units.hydrogenInBase = baseCation.charge;
        units.oxygenInBase = 3 * baseCation.charge;
        units.carbonInBase = baseCation.charge;
    } else if (baseAnion.name == "carbonate") {
        units.oxygenInBase = 3 * subscript(baseAnion.charge, baseCation.charge);
        units.carbonInBase = subscript(baseAnion.charge, baseCation.charge);
    } else if (baseAnion.name == "oxide") {
        units.oxygenInBase = subscript(baseAnion.charge, baseCation.charge);
    }
    return units;
}

int hydrogenOnLeft(const Units& units)
{
    return units.hydrogenInAcid * nacid + units.hydrogenInBase * nbase;
}

int oxygenOnLeft(const Units& units)
{
    return units.oxygenInBase * nbase;
}

int carbonOnLeft(const Units& units)
{
    return units.carbonInBase * nbase;
}

int cationsOnLeft(const Units& units)
{
    return units.cationsInBase * nbase;
}

int cationsOnRight(const Units& units)
{
    return units.cationsInSalt * nsalt;
}

int anionsOnRight(const Units& units)
{
    return units.anionsInSalt * nsalt;
}

bool isBalanced(const Units& units)
{
    return hydrogenOnLeft(units) == HonRight() && oxygenOnLeft(units) == OonRight() &&
           carbonOnLeft(units) == ConRight() && cationsOnLeft(units) == cationsOnRight(units) &&
           anonLeft() == anionsOnRight(units);
}

void adjustAnions(const Units& units)
{
    if (anonLeft() < anionsOnRight(units)) {
        nacid = anionsOnRight(units) * nacid;
        return;
    }
    while (anonLeft() > anionsOnRight(units)) {
        ++nsalt;
    }
}

void adjustCations(const Units& units)
{
    while (cationsOnLeft(units) < cationsOnRight(units)) {
        ++nbase;
    }
    while (cationsOnLeft(units) > cationsOnRight(units)) {
        ++nsalt;
    }
}

void fillUpWater(const Units& units)
{
    while (hydrogenOnLeft(units) > HonRight()) {
        ++nH2O;
    }
}

void adjustHydrogen(const Units& units)
{
    while (hydrogenOnLeft(units) < HonRight()) {
        ++nacid;
    }
    fillUpWater(units);
    if (hydrogenOnLeft(units) < HonRight()) { // An odd count: twice of it is even.
        nacid *= 2;
        nbase *= 2;
        nsalt *= 2;
        fillUpWater(units);
    }
}

// Carbon never falls short on the left: the carbon dioxide is only ever raised to what the base
// has.
void adjustCarbon(const Units& units)
{
    while (carbonOnLeft(units) > ConRight()) {
        ++nCO2;
    }
}

void reduce()
{
    // Where there is carbon dioxide there is as much of it as water, so that it shares any divisor.
    const int divisor = hcm(nH2O, nacid, nbase, nsalt);
    nH2O /= divisor;
    nacid /= divisor;
    nbase /= divisor;
    nsalt /= divisor;
    nCO2 /= divisor;
}

} // namespace

bool balance(Ion acidAnion, Ion baseCation, Ion baseAnion)
{
    nacid = 1;
    nbase = 1;
    nsalt = 1;
    nH2O = 1;
    nCO2 = 0;

    const Units units = countUnits(acidAnion, baseCation, baseAnion);
    for (int pass = 0; pass < mostPasses && !isBalanced(units); ++pass) {
        adjustAnions(units);
        adjustCations(units);
        adjustHydrogen(units);
        adjustCarbon(units);
    }
    if (!isBalanced(units)) {
        return false;
    }
    reduce();
    return true;
}

int hcm(std::vector<int> v)
{
    int result = 1;
    int candidate = 1;
    while (lessthanall(candidate, v)) {
        ++candidate;
        if (alldivisible(candidate, v)) {
            result = candidate;
        }
    }
    return result;
}

int hcm(int a, int b, int c, int d)
{
    return hcm(std::vector<int>{a, b, c, d});
}

int hcm(int a, int b, int c, int d, int e)
{
    return hcm(std::vector<int>{a, b, c, d, e});
}

bool lessthanall(int x, std::vector<int> v)
{
    return std::all_of(v.begin(), v.end(), [x](int element) { return x < element; });
}

bool alldivisible(int x, std::vector<int> v)
{
    return std::all_of(v.begin(), v.end(), [x](int element) { return element % x == 0; });
}

int HonLeft(Ion acidAnion, Ion baseCation, Ion baseAnion)
{
    return hydrogenOnLeft(countUnits(acidAnion, baseCation, baseAnion));
}

int HonRight()
{
    return 2 * nH2O;
}

int OonLeft(Ion acidAnion, Ion baseCation, Ion baseAnion)
{
    return oxygenOnLeft(countUnits(acidAnion, baseCation, baseAnion));
}

int OonRight()
{
    return 2 * nCO2 + nH2O;
}

int ConLeft(Ion acidAnion, Ion baseCation, Ion baseAnion)
{
    return carbonOnLeft(countUnits(acidAnion, baseCation, baseAnion));
}

int ConRight()
{
    return nCO2;
}

int rponLeft(Ion acidAnion, Ion baseCation, Ion baseAnion)
{
    return cationsOnLeft(countUnits(acidAnion, baseCation, baseAnion));
}

int rponRight(Ion acidAnion, Ion baseCation, Ion baseAnion)
{
    return cationsOnRight(countUnits(acidAnion, baseCation, baseAnion));
}

int anonLeft()
{
    return nacid;
}

int anonRight(Ion acidAnion, Ion baseCation, Ion baseAnion)
{
    return anionsOnRight(countUnits(acidAnion, baseCation, baseAnion));
}
