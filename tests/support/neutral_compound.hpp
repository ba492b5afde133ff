#pragma once

#include <numeric>
#include <string>

#include "data/ion.hpp"

// Neutral compounds as a learner works them out, by the charges and the least common multiple; the
// program crosses the charges over instead.

// How many ions like `own` cancel the charges of ions like `partner`, with as few of both as can
// be.
//   aluminium, sulphate -> 2
inline int timesIn(const Ion& own, const Ion& partner)
{
    return std::lcm(own.charge, partner.charge) / own.charge;
}

// An ion taken so many times, as formulas show it.
//   sulphate, 3 -> "(SO4)3"    oxide, 3 -> "O3"    sulphate, 1 -> "SO4"
inline std::string takenTimes(const Ion& each, int times)
{
    if (times == 1) {
        return each.formula;
    }
    const std::string once = each.polyatomic ? "(" + each.formula + ")" : each.formula;
    return once + std::to_string(times);
}

// The formula of the compound.
//   aluminium, sulphate -> "Al2(SO4)3"
inline std::string neutralCompound(const Ion& first, const Ion& second)
{
    return takenTimes(first, timesIn(first, second)) + takenTimes(second, timesIn(second, first));
}

// The formula of the acid of an anion.
//   sulphate -> "H2SO4"
inline std::string acidOf(const Ion& anion)
{
    return neutralCompound(Ion("hydrogen", "H", false, 1, false, ""), anion);
}
