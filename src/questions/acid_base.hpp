#pragma once

#include <string>
#include <string_view>

#include "data/ion.hpp"

// What the questions about an acid and a base share.

// An acid and a base that neutralise each other.
struct Neutralisation {
    Ion acidAnion;
    Ion baseCation;
    Ion baseAnion;
    std::string acidName;    // "sulphuric acid"
    std::string acidFormula; // "H2SO4"
    std::string baseName;    // "iron(III) hydroxide"
    std::string baseFormula; // "Fe(OH)3"
    std::string saltFormula; // "Fe2(SO4)3"
};

// Names and formulas for the three ions.
Neutralisation neutralisationOf(Ion acidAnion, Ion baseCation, Ion baseAnion);

// Draws the acid anion, the base cation and the base anion, in this order. The base anion is the
// first hydroxide, carbonate, oxide or bicarbonate of repeated `randomNeg` draws, which never give
// the last one.
Neutralisation drawNeutralisation();

// An anion whose acid has a name: the first such one of repeated `randomNeg` draws.
Ion drawAcidAnion();

// "nitric acid".
std::string acidNameOf(const Ion& acidAnion);

// "HNO3", "H2SO4"; no brackets, whatever the anion.
std::string acidFormulaOf(const Ion& acidAnion);

// Balances the reaction, which leaves its coefficients in the five globals of `balance`, and gives
// it as a line: "2HCl + Na2CO3 -> 2NaCl + H2O + CO2\n". A coefficient of 1 is not written. If the
// reaction cannot be balanced the line is `excuse`.
std::string equationLine(const Neutralisation& reaction, std::string_view excuse);
