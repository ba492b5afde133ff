#pragma once

#include <string>

#include "console/q_and_a.hpp"
#include "data/ion.hpp"
#include "data/soluble.hpp"

// A solution diluted with water: C1V1 = C2V2. Volumes in L, concentrations in mol/L.
struct Dilution {
    std::string substance;
    float V1;
    float V2;
    float C1;
    float C2;
};

// Returns a question about the dilution of a substance. Draws the substance, then V1, V2 and C1,
// then the variant. Kept: the substance is always a compound, named by its formula, and the variant
// always `waterToAdd`.
QandA dilutionQuestion();

// The variants, each named for what it asks. The texts show all quantities as they are given, to 3
// digits; none is worked out again from what is shown.
QandA newConcentration(const Dilution& dilution);
QandA volumeToDilute(const Dilution& dilution);
QandA originalConcentration(const Dilution& dilution);
QandA waterToAdd(const Dilution& dilution);

// Returns what a question calls an acid or a compound: its name, "nitric acid", or its formula,
// "HNO3".
std::string acidDesignation(const Ion& acidAnion, bool byName);
std::string compoundDesignation(const Soluble& compound, bool byName);

// Returns the first compound of repeated `randomSoluble` draws whose name does not end in
// "hydrate". Throws std::out_of_range when it draws a name of fewer than seven letters.
Soluble drawAnhydrousCompound();

// Returns the least V2 for a V1 in L, as a number of steps of 0.05 L: the first that is more than
// V1.
//   0.01 -> 1    0.2 -> 5    0.35 -> 8    0.5 -> 11
int leastFinalVolume(float V1);
