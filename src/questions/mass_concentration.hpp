#pragma once

#include "console/q_and_a.hpp"
#include "data/soluble.hpp"

// Returns a question about a compound dissolved in water, which asks for the concentration or for
// the mass, each for half of the draws. Draws the compound, which of the two, the mass, the volume.
QandA massConcentrationQuestion();

// Asks for the concentration that a mass of the compound gives. Draws the mass, then the volume.
QandA concentrationFromMass(const Soluble& compound);

// Asks for the mass that a concentration of the compound needs. Draws the mass, which is the
// answer, then the volume.
QandA massForConcentration(const Soluble& compound);
