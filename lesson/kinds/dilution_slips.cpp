#include "lesson/kinds/dilution_parts.hpp"
#include "lesson/marking/number.hpp"

namespace lesson
{

namespace
{

constexpr const char* isTurnedOver = "Should the result be larger or smaller?";
constexpr const char* isNotWholeVolume = "V2 is the volume of the whole diluted solution.";
constexpr const char* isOtherVolume = "Read again which volume is asked for.";
constexpr const char* isAmount = "That is an amount. One step is left.";
constexpr const char* isFactor = "That is how many times the volume has grown. One step is left.";
constexpr const char* isPart = "That is the part of V2 that V1 is. One step is left.";

// In moles, and in millimoles by who leaves the volume in millilitres.
void addAmount(Exercise& exercise, Ratio amount)
{
    addSlip(exercise, amount, isAmount);
    addSlip(exercise, amount * ratio(1000), isAmount);
}

void addFactor(Exercise& exercise, Ratio factor)
{
    addSlip(exercise, factor, isFactor);
    addSlip(exercise, ratio(1) / factor, isPart);
}

void addSlipsForNewConcentration(Exercise& exercise, const Dilution& drawn)
{
    const auto& [solute, asked, c1, V1, c2, V2] = drawn;
    addSlip(exercise, c1 * V2 / V1, isTurnedOver);
    addSlip(exercise, c1 * V1 / (V1 + V2), isNotWholeVolume);
    addSlip(exercise, c1 * V1 / (V2 - V1), isNotWholeVolume);
    addAmount(exercise, c1 * V1);
    addFactor(exercise, V2 / V1);
}

void addSlipsForOriginalConcentration(Exercise& exercise, const Dilution& drawn)
{
    const auto& [solute, asked, c1, V1, c2, V2] = drawn;
    addSlip(exercise, c2 * V1 / V2, isTurnedOver);
    addSlip(exercise, c2 * (V1 + V2) / V1, isNotWholeVolume);
    addSlip(exercise, c2 * (V2 - V1) / V1, isNotWholeVolume);
    addAmount(exercise, c2 * V2);
    addFactor(exercise, V2 / V1);
}

void addSlipsForOriginalVolume(Exercise& exercise, const Dilution& drawn)
{
    const auto& [solute, asked, c1, V1, c2, V2] = drawn;
    const Ratio inMillilitres = ratio(1000);
    addSlip(exercise, inMillilitres * c1 * V2 / c2, isTurnedOver);
    addSlip(exercise, inMillilitres * (V2 - V1), isOtherVolume);
    // V1 + V2 for V2, and V2 - V1, solved for V1.
    addSlip(exercise, inMillilitres * c2 * V2 / (c1 - c2), isNotWholeVolume);
    addSlip(exercise, inMillilitres * c2 * V2 / (c1 + c2), isNotWholeVolume);
    addAmount(exercise, c2 * V2);
    addFactor(exercise, c1 / c2);
}

void addSlipsForWater(Exercise& exercise, const Dilution& drawn)
{
    const auto& [solute, asked, c1, V1, c2, V2] = drawn;
    const Ratio inMillilitres = ratio(1000);
    addSlip(exercise, inMillilitres * V2, isOtherVolume);
    addSlip(exercise, inMillilitres * (V1 - c2 * V1 / c1), isTurnedOver);
    addSlip(exercise, inMillilitres * c2 * V1 / c1, isTurnedOver);
    addSlip(exercise, inMillilitres * (V1 + V2), isNotWholeVolume);
    addAmount(exercise, c1 * V1);
    addFactor(exercise, c1 / c2);
}

} // namespace

void addDilutionSlips(Exercise& exercise, const Dilution& drawn)
{
    switch (drawn.asked) {
    case AskedOfDilution::c2:
        return addSlipsForNewConcentration(exercise, drawn);
    case AskedOfDilution::c1:
        return addSlipsForOriginalConcentration(exercise, drawn);
    case AskedOfDilution::V1:
        return addSlipsForOriginalVolume(exercise, drawn);
    case AskedOfDilution::water:
        return addSlipsForWater(exercise, drawn);
    }
}

} // namespace lesson
