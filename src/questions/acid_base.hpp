#pragma once

#include <string>

#include "data/ion.hpp"

// What the questions about an acid and a base share.

// An acid, told by its anion, and the base that it reacts with.
struct AcidAndBase {
    Ion acidAnion;
    Ion baseCation;
    Ion baseAnion;
};

// An anion whose acid has a name: the first such one of repeated `randomNeg` draws.
Ion drawAcidAnion();

// Draws the acid anion, the base cation and the base anion, in this order. The base anion is the
// first hydroxide, carbonate, oxide or bicarbonate of repeated `randomNeg` draws, which never give
// the last one.
AcidAndBase drawAcidAndBase();

// "hydrochloric acid", "H2SO4"; no brackets, whatever the anion.
std::string acidName(const Ion& acidAnion);
std::string acidFormula(const Ion& acidAnion);

// "iron(III) hydroxide", "Fe(OH)3".
std::string baseName(const AcidAndBase& pair);
std::string baseFormula(const AcidAndBase& pair);

// Balances the reaction, which leaves its coefficients in the five globals of `balance`, and writes
// it as a line: "2HCl + Na2CO3 -> 2NaCl + H2O + CO2\n". A coefficient of 1 is not written. If the
// reaction cannot be balanced the line is `excuse`.
std::string equationLine(const AcidAndBase& pair, const std::string& excuse);
