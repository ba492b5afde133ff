#include "lesson/marking/confusions.hpp"

#include <algorithm>
#include <iterator>

namespace lesson
{

namespace
{

constexpr bool group = true;
constexpr bool atom = false;

// clang-format off
constexpr Confusion confusions[] = {
    {Ion::oxide,               "OH",    -1, group, Sentence::markOxides},
    {Ion::hydroxide,           "O",     -2, atom,  Sentence::markOxides},
    {Ion::sulfate,             "S",     -2, atom,  Sentence::markEnding},
    {Ion::sulfate,             "SO3",   -2, group, Sentence::markMoreOxygen},
    {Ion::sulfate,             "HSO4",  -1, group, Sentence::markSulfates},
    {Ion::sulfite,             "S",     -2, atom,  Sentence::markEnding},
    {Ion::sulfite,             "SO4",   -2, group, Sentence::markMoreOxygen},
    {Ion::sulfite,             "HSO3",  -1, group, Sentence::markSulfites},
    {Ion::hydrogensulfite,     "SO3",   -2, group, Sentence::markSulfites},
    {Ion::hydrogensulfite,     "HSO4",  -1, group, Sentence::markMoreOxygen},
    {Ion::thiosulfate,         "SO4",   -2, group, Sentence::markThio},
    {Ion::thiosulfate,         "SO3",   -2, group, Sentence::markThio},
    {Ion::sulfide,             "SO4",   -2, group, Sentence::markEnding},
    {Ion::sulfide,             "SO3",   -2, group, Sentence::markEnding},
    {Ion::hydrogensulfate,     "SO4",   -2, group, Sentence::markSulfates},
    {Ion::hydrogensulfate,     "HSO3",  -1, group, Sentence::markMoreOxygen},
    {Ion::nitrate,             "N",     -3, atom,  Sentence::markEnding},
    {Ion::nitrate,             "NO2",   -1, group, Sentence::markMoreOxygen},
    {Ion::nitrite,             "N",     -3, atom,  Sentence::markEnding},
    {Ion::nitrite,             "NO3",   -1, group, Sentence::markMoreOxygen},
    {Ion::nitride,             "NO3",   -1, group, Sentence::markEnding},
    {Ion::nitride,             "NO2",   -1, group, Sentence::markEnding},
    {Ion::phosphate,           "P",     -3, atom,  Sentence::markEnding},
    {Ion::phosphate,           "PO3",   -3, group, Sentence::markMoreOxygen},
    {Ion::phosphate,           "HPO4",  -2, group, Sentence::markPhosphates},
    {Ion::phosphate,           "H2PO4", -1, group, Sentence::markDihydrogenphosphates},
    {Ion::hydrogenphosphate,   "PO4",   -3, group, Sentence::markPhosphates},
    {Ion::hydrogenphosphate,   "H2PO4", -1, group, Sentence::markHydrogenphosphate},
    {Ion::dihydrogenphosphate, "PO4",   -3, group, Sentence::markDihydrogenphosphates},
    {Ion::dihydrogenphosphate, "HPO4",  -2, group, Sentence::markDi},
    {Ion::phosphide,           "PO4",   -3, group, Sentence::markEnding},
    {Ion::phosphide,           "PO3",   -3, group, Sentence::markEnding},
    {Ion::carbonate,           "HCO3",  -1, group, Sentence::markCarbonates},
    {Ion::hydrogencarbonate,   "CO3",   -2, group, Sentence::markCarbonates},
    {Ion::chloride,            "ClO3",  -1, group, Sentence::markEnding},
    {Ion::chlorate,            "Cl",    -1, atom,  Sentence::markEnding},
    {Ion::chlorate,            "ClO2",  -1, group, Sentence::markMoreOxygen},
    {Ion::chromate,            "Cr2O7", -2, group, Sentence::markChromates},
    {Ion::cyanide,             "CNO",   -1, group, Sentence::markEnding},
    {Ion::cyanide,             "OCN",   -1, group, Sentence::markEnding},
    {Ion::bromide,             "BrO3",  -1, group, Sentence::markEnding},
    {Ion::iodide,              "IO3",   -1, group, Sentence::markEnding},
    {Ion::ammonium,            "NH3",    1, group, Sentence::markAmmonia},
};

struct MetalCharge {
    int metal;
    int charge;
};
constexpr MetalCharge metalCharges[] = {
    {elements::chromium, 2}, {elements::chromium, 3}, {elements::chromium, 4}, {elements::chromium, 6},
    {elements::manganese, 2}, {elements::manganese, 3}, {elements::manganese, 4}, {elements::manganese, 6}, {elements::manganese, 7},
    {elements::iron, 2}, {elements::iron, 3},
    {elements::cobalt, 2}, {elements::cobalt, 3},
    {elements::nickel, 2}, {elements::nickel, 3}, {elements::nickel, 4},
    {elements::copper, 1}, {elements::copper, 2},
    {elements::tin, 2}, {elements::tin, 4},
    {elements::lead, 2}, {elements::lead, 4},
};
// clang-format on

} // namespace

std::vector<const Confusion*> confusionsOf(const IonRow& ion)
{
    std::vector<const Confusion*> found;
    for (const Confusion& row : confusions) {
        if (row.of == ion.id) {
            found.push_back(&row);
        }
    }
    return found;
}

bool hasOtherCharge(const IonRow& cation, int charge)
{
    const ElementRow* const metal = elementOf(cation);
    return metal != nullptr && charge != cation.charge &&
           std::any_of(std::begin(metalCharges), std::end(metalCharges),
                       [metal, charge](const MetalCharge& row) {
                           return row.metal == metal->number && row.charge == charge;
                       });
}

} // namespace lesson
