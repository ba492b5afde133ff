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

// A question about the dilution of a substance. Draws the substance, then V1, V2 and C1, then the
// variant. Kept: every draw gives a compound's formula, and the amount of water to add.
QandA dilutionQuestion();

// The variants. Values are shown to 3 digits as they were drawn, not worked out again.
QandA newConcentration(const Dilution& dilution);
QandA volumeToDilute(const Dilution& dilution);
QandA originalConcentration(const Dilution& dilution);
QandA waterToAdd(const Dilution& dilution);

// The designation of an acid or a compound by its name or its formula: "nitric acid", "HNO3".
std::string acidDesignation(const Ion& acidAnion, bool byName);
std::string compoundDesignation(const Soluble& compound, bool byName);

// A compound that is not a hydrate: the first such one of repeated `randomSoluble` draws. Throws
// std::out_of_range for a name of fewer than seven letters.
Soluble drawAnhydrousCompound();

// The least V2 for a V1, in steps of 0.05 L: the first step that is more than V1.
//   0.01 -> 1    0.2 -> 5    0.35 -> 8    0.5 -> 11
int leastFinalVolume(float V1);
