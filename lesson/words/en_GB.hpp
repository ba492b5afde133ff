#pragma once

#include <array>
#include <cstddef>

#include "lesson/words/language.hpp"
#include "lesson/words/pattern.hpp"

namespace lesson
{

// clang-format off
constexpr Word<Sentence> britishSentences[] = {
    // ---- kinds/molar_mass

    // ---- kinds/compound_formula

    // ---- kinds/ion_formula

    // ---- kinds/solubility

    // ---- kinds/concentration

    // ---- kinds/dilution
    {Sentence::dilutionOfNewConcentration,      "{volume} of {concentration} {solution} is diluted to {total}. Calculate the concentration of the diluted solution in {unit mol/L}."},
    {Sentence::dilutionOfVolume,                "Calculate the volume, in {unit mL}, of {concentration} {solution} needed to make {total} of a {diluted} solution."},
    {Sentence::dilutionOfOriginalConcentration, "{volume} of {solution} is diluted to {total}. The diluted solution has a concentration of {diluted}. Calculate the original concentration in {unit mol/L}."},
    {Sentence::dilutionOfWater,                 "Calculate the volume of water, in {unit mL}, that has to be added to {volume} of {concentration} {solution} to bring its concentration down to {diluted}. Assume that the volumes add up."},

    // ---- kinds/neutralisation

    // ---- kinds/titration

    // ---- kinds/shared

    // ---- chemistry/solubility

    // ---- chemistry/pairs_not_asked

    // ---- marking, what several forms say

    // ---- marking/number

    // ---- marking/formula

    // ---- marking/ion

    // ---- marking/solubility

    // ---- marking/equation

    // ---- paper and descriptions

    // ---- export

    // ---- border
};
// clang-format on

constexpr bool haveAllSentences()
{
    std::size_t place = 0;
    for (const Word<Sentence>& row : britishSentences) {
        if (row.id != static_cast<Sentence>(place++)) {
            return false;
        }
    }
    return static_cast<Sentence>(place) == Sentence::last;
}
static_assert(haveAllSentences(), "each sentence stands at its place");

// How many arguments a sentence takes.
constexpr std::size_t argumentCount(Sentence sentence)
{
    return argumentCount(britishSentences[static_cast<std::size_t>(sentence)].text);
}

} // namespace lesson
