#include "lesson/kinds/dilution_parts.hpp"
#include "lesson/kinds/shared/quantities.hpp"

namespace lesson
{

namespace
{

// In moles, and in millimoles by who leaves the volume in millilitres.
void addAmount(Exercise& exercise, Ratio amount)
{
    addSlip(exercise, amount, Sentence::slipAmount);
    addSlip(exercise, amount * ratio(1000), Sentence::slipAmount);
}

void addFactor(Exercise& exercise, Ratio factor)
{
    addSlip(exercise, factor, Sentence::slipTimesVolume);
    addSlip(exercise, ratio(1) / factor, Sentence::slipPartOfVolume);
}

void addSlipsForNewConcentration(Exercise& exercise, const Dilution& drawn)
{
    const auto& [solute, asked, c1, V1, c2, V2] = drawn;
    addSlip(exercise, c1 * V2 / V1, Sentence::slipTurnedOver);
    addSlip(exercise, c1 * V1 / (V1 + V2), Sentence::slipNotWholeVolume);
    addSlip(exercise, c1 * V1 / (V2 - V1), Sentence::slipNotWholeVolume);
    addAmount(exercise, c1 * V1);
    addFactor(exercise, V2 / V1);
}

void addSlipsForOriginalConcentration(Exercise& exercise, const Dilution& drawn)
{
    const auto& [solute, asked, c1, V1, c2, V2] = drawn;
    addSlip(exercise, c2 * V1 / V2, Sentence::slipTurnedOver);
    addSlip(exercise, c2 * (V1 + V2) / V1, Sentence::slipNotWholeVolume);
    addSlip(exercise, c2 * (V2 - V1) / V1, Sentence::slipNotWholeVolume);
    addAmount(exercise, c2 * V2);
    addFactor(exercise, V2 / V1);
}

void addSlipsForOriginalVolume(Exercise& exercise, const Dilution& drawn)
{
    const auto& [solute, asked, c1, V1, c2, V2] = drawn;
    const Ratio inMillilitres = ratio(1000);
    addSlip(exercise, inMillilitres * c1 * V2 / c2, Sentence::slipTurnedOver);
    addSlip(exercise, inMillilitres * (V2 - V1), Sentence::slipOtherVolume);
    // V1 + V2 for V2, and V2 - V1, solved for V1.
    addSlip(exercise, inMillilitres * c2 * V2 / (c1 - c2), Sentence::slipNotWholeVolume);
    addSlip(exercise, inMillilitres * c2 * V2 / (c1 + c2), Sentence::slipNotWholeVolume);
    addAmount(exercise, c2 * V2);
    addFactor(exercise, c1 / c2);
}

void addSlipsForWater(Exercise& exercise, const Dilution& drawn)
{
    const auto& [solute, asked, c1, V1, c2, V2] = drawn;
    const Ratio inMillilitres = ratio(1000);
    addSlip(exercise, inMillilitres * V2, Sentence::slipOtherVolume);
    addSlip(exercise, inMillilitres * (V1 - c2 * V1 / c1), Sentence::slipTurnedOver);
    addSlip(exercise, inMillilitres * c2 * V1 / c1, Sentence::slipTurnedOver);
    addSlip(exercise, inMillilitres * (V1 + V2), Sentence::slipNotWholeVolume);
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
