#include "data/soluble.hpp"

#include <cstdlib>
#include <iterator>
#include <utility>

#include "chem/formula.hpp"
#include "data/platform.hpp"
#include "data/tables.hpp"

namespace
{

struct CompoundRow {
    const char* name;
    const char* formula;
};

// The substances of the mass, concentration and dilution questions. Kept as they stand, these on
// purpose:
//   - sodium chloride stands twice, so it comes twice as often as any other.
//   - mercury sulfide hardly dissolves.
//   - iron (III) sulfate has a blank before the bracket, unlike the ion iron(III).
//   - The two hydrates, and no other name, end in "hydrate": dilutions pass them over by that.
// clang-format off
constexpr CompoundRow compoundRows[] = {
    {"copper sulfate pentahydrate", "CuSO4.5H2O"},   // 1
    {"cobalt chloride hexahydrate", "CoCl2.6H2O"},   // 2
    {"sodium chloride",             "NaCl"},         // 3
    {"potassium iodide",            "KI"},           // 4
    {"silver nitrate",              "AgNO3"},        // 5
    {"iron (III) sulfate",          "Fe2(SO4)3"},    // 6
    {"sodium chloride",             "NaCl"},         // 7
    {"mercury sulfide",             "HgS"},          // 8
    {"ammonium nitrate",            "NH4NO3"},       // 9
    {"calcium acetate",             "Ca(CH3COO)2"},  // 10
};
// clang-format on
static_assert(std::size(compoundRows) == 10);

} // namespace

Soluble::Soluble(std::string compoundName, std::string compoundFormula)
    : molarMass(calculateMM(compoundFormula)), name(std::move(compoundName)),
      formula(std::move(compoundFormula))
{
}

void initSolubles()
{
    for (const CompoundRow& row : compoundRows) {
        dissolvable.emplace_back(row.name, row.formula);
    }
}

Soluble randomSoluble()
{
    // Single precision throughout: in double, other rows would come for a few draws.
    float share = static_cast<float>(std::rand()) / 2147483648.0f;
    if (share == 1.0f) {
        share = 0.0f; // Kept: the largest draws round up to 1 and give the first row.
    }
    const auto rows = static_cast<float>(dissolvable.size());
    return dissolvable.at(static_cast<std::size_t>(rows * share));
}
