#pragma once

#include <cstdint>

namespace lesson
{

// Every sentence that the library says, in the order in which the languages list them; en_GB.hpp
// has them in English.
enum class Sentence : std::uint16_t {
    // ---- kinds/molar_mass

    // ---- kinds/compound_formula

    // ---- kinds/ion_formula

    // ---- kinds/solubility

    // ---- kinds/concentration

    // ---- kinds/dilution
    dilutionOfNewConcentration,
    dilutionOfVolume,
    dilutionOfOriginalConcentration,
    dilutionOfWater,

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

    last,
};

} // namespace lesson
