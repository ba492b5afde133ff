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

// Returns the reaction of the three ions, with its names and formulas.
Neutralisation neutralisationOf(Ion acidAnion, Ion baseCation, Ion baseAnion);

// Returns a reaction of drawn ions: the acid anion, the base cation and the base anion, in this
// order. The base anion is the first hydroxide, carbonate, oxide or bicarbonate of repeated
// `randomNeg` draws, which never give bicarbonate.
Neutralisation drawNeutralisation();

// Returns the first anion of repeated `randomNeg` draws whose acid has a name.
Ion drawAcidAnion();

// Returns the name of an anion's acid: "nitric acid".
std::string acidNameOf(const Ion& acidAnion);

// Returns the formula of an anion's acid, "HNO3" or "H2SO4", without brackets whatever the anion.
std::string acidFormulaOf(const Ion& acidAnion);

// Balances the reaction, which leaves its coefficients in the five globals of `balance`, and
// returns its equation as a line: "2HCl + Na2CO3 -> 2NaCl + H2O + CO2\n". A coefficient of 1 is not
// written. Returns the excuse as a line if the reaction cannot be balanced.
std::string equationLine(const Neutralisation& reaction, std::string_view excuse);
