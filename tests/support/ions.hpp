#pragma once

#include "data/ion.hpp"

// Some ions of the catalogue, built by hand. The acid anions first.
const Ion bromide("bromide", "Br", true, 1, false, "hydrobromic");
const Ion chloride("chloride", "Cl", true, 1, false, "hydrochloric");
const Ion nitrate("nitrate", "NO3", true, 1, true, "nitric");
const Ion sulphate("sulphate", "SO4", true, 2, true, "sulphuric");
const Ion carbonate("carbonate", "CO3", true, 2, true, "carbonic");
const Ion phosphate("phosphate", "PO4", true, 3, true, "phosphoric");

const Ion hydroxide("hydroxide", "OH", true, 1, true, "");
const Ion bicarbonate("bicarbonate", "HCO3", true, 1, true, "");
const Ion oxide("oxide", "O", true, 2, false, "");
const Ion sulfide("sulfide", "S", true, 2, false, "");

const Ion sodium("sodium", "Na", false, 1, false, "");
const Ion ammonium("ammonium", "NH4", false, 1, true, "");
const Ion magnesium("magnesium", "Mg", false, 2, false, "");
const Ion aluminium("aluminium", "Al", false, 3, false, "");
const Ion iron3("iron(III)", "Fe", false, 3, false, "");
