#include "lesson/marking/confusions.hpp"

#include <algorithm>
#include <iterator>

namespace lesson
{

namespace
{

constexpr bool group = true;
constexpr bool atom = false;

constexpr std::string_view phosphates = "Phosphate and hydrogenphosphate are two different ions.";
constexpr std::string_view dihydrogenphosphates =
    "Phosphate and dihydrogenphosphate are two different ions.";
constexpr std::string_view sulfites = "Sulfite and hydrogensulfite are two different ions.";
constexpr std::string_view thio = "Thio- stands for a sulfur in the place of an oxygen.";

// clang-format off
constexpr Confusion confusions[] = {
    {Ion::oxide,               "OH",    -1, group, sentences::oxides},
    {Ion::hydroxide,           "O",     -2, atom,  sentences::oxides},
    {Ion::sulfate,             "S",     -2, atom,  sentences::ending},
    {Ion::sulfate,             "SO3",   -2, group, sentences::moreOxygen},
    {Ion::sulfate,             "HSO4",  -1, group, sentences::sulfates},
    {Ion::sulfite,             "S",     -2, atom,  sentences::ending},
    {Ion::sulfite,             "SO4",   -2, group, sentences::moreOxygen},
    {Ion::sulfite,             "HSO3",  -1, group, sulfites},
    {Ion::hydrogensulfite,     "SO3",   -2, group, sulfites},
    {Ion::hydrogensulfite,     "HSO4",  -1, group, sentences::moreOxygen},
    {Ion::thiosulfate,         "SO4",   -2, group, thio},
    {Ion::thiosulfate,         "SO3",   -2, group, thio},
    {Ion::sulfide,             "SO4",   -2, group, sentences::ending},
    {Ion::sulfide,             "SO3",   -2, group, sentences::ending},
    {Ion::hydrogensulfate,     "SO4",   -2, group, sentences::sulfates},
    {Ion::hydrogensulfate,     "HSO3",  -1, group, sentences::moreOxygen},
    {Ion::nitrate,             "N",     -3, atom,  sentences::ending},
    {Ion::nitrate,             "NO2",   -1, group, sentences::moreOxygen},
    {Ion::nitrite,             "N",     -3, atom,  sentences::ending},
    {Ion::nitrite,             "NO3",   -1, group, sentences::moreOxygen},
    {Ion::nitride,             "NO3",   -1, group, sentences::ending},
    {Ion::nitride,             "NO2",   -1, group, sentences::ending},
    {Ion::phosphate,           "P",     -3, atom,  sentences::ending},
    {Ion::phosphate,           "PO3",   -3, group, sentences::moreOxygen},
    {Ion::phosphate,           "HPO4",  -2, group, phosphates},
    {Ion::phosphate,           "H2PO4", -1, group, dihydrogenphosphates},
    {Ion::hydrogenphosphate,   "PO4",   -3, group, phosphates},
    {Ion::hydrogenphosphate,   "H2PO4", -1, group, "How many hydrogens has a hydrogenphosphate?"},
    {Ion::dihydrogenphosphate, "PO4",   -3, group, dihydrogenphosphates},
    {Ion::dihydrogenphosphate, "HPO4",  -2, group, "What does di- tell you?"},
    {Ion::phosphide,           "PO4",   -3, group, sentences::ending},
    {Ion::phosphide,           "PO3",   -3, group, sentences::ending},
    {Ion::carbonate,           "HCO3",  -1, group, sentences::carbonates},
    {Ion::hydrogencarbonate,   "CO3",   -2, group, sentences::carbonates},
    {Ion::chloride,            "ClO3",  -1, group, sentences::ending},
    {Ion::chlorate,            "Cl",    -1, atom,  sentences::ending},
    {Ion::chlorate,            "ClO2",  -1, group, sentences::moreOxygen},
    {Ion::chromate,            "Cr2O7", -2, group, "Chromate and dichromate are two different ions."},
    {Ion::cyanide,             "CNO",   -1, group, sentences::ending},
    {Ion::cyanide,             "OCN",   -1, group, sentences::ending},
    {Ion::bromide,             "BrO3",  -1, group, sentences::ending},
    {Ion::iodide,              "IO3",   -1, group, sentences::ending},
    {Ion::ammonium,            "NH3",    1, group, sentences::ammonia},
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
