#include "lesson/marking/confusions.hpp"

#include <algorithm>
#include <iterator>

namespace lesson
{

namespace
{

constexpr std::string_view phosphates = "Phosphate and hydrogenphosphate are two different ions.";
constexpr std::string_view dihydrogenphosphates =
    "Phosphate and dihydrogenphosphate are two different ions.";
constexpr std::string_view sulfites = "Sulfite and hydrogensulfite are two different ions.";
constexpr std::string_view thio = "Thio- stands for a sulfur in the place of an oxygen.";

// clang-format off
constexpr Confusion confusions[] = {
    {Ion::oxide,               "OH",    -1, sentences::oxides},
    {Ion::hydroxide,           "O",     -2, sentences::oxides},
    {Ion::sulfate,             "S",     -2, sentences::ending},
    {Ion::sulfate,             "SO3",   -2, sentences::moreOxygen},
    {Ion::sulfate,             "HSO4",  -1, sentences::sulfates},
    {Ion::sulfite,             "S",     -2, sentences::ending},
    {Ion::sulfite,             "SO4",   -2, sentences::moreOxygen},
    {Ion::sulfite,             "HSO3",  -1, sulfites},
    {Ion::hydrogensulfite,     "SO3",   -2, sulfites},
    {Ion::hydrogensulfite,     "HSO4",  -1, sentences::moreOxygen},
    {Ion::thiosulfate,         "SO4",   -2, thio},
    {Ion::thiosulfate,         "SO3",   -2, thio},
    {Ion::sulfide,             "SO4",   -2, sentences::ending},
    {Ion::sulfide,             "SO3",   -2, sentences::ending},
    {Ion::hydrogensulfate,     "SO4",   -2, sentences::sulfates},
    {Ion::hydrogensulfate,     "HSO3",  -1, sentences::moreOxygen},
    {Ion::nitrate,             "N",     -3, sentences::ending},
    {Ion::nitrate,             "NO2",   -1, sentences::moreOxygen},
    {Ion::nitrite,             "N",     -3, sentences::ending},
    {Ion::nitrite,             "NO3",   -1, sentences::moreOxygen},
    {Ion::nitride,             "NO3",   -1, sentences::ending},
    {Ion::nitride,             "NO2",   -1, sentences::ending},
    {Ion::phosphate,           "P",     -3, sentences::ending},
    {Ion::phosphate,           "PO3",   -3, sentences::moreOxygen},
    {Ion::phosphate,           "HPO4",  -2, phosphates},
    {Ion::phosphate,           "H2PO4", -1, dihydrogenphosphates},
    {Ion::hydrogenphosphate,   "PO4",   -3, phosphates},
    {Ion::hydrogenphosphate,   "H2PO4", -1, "How many hydrogens has a hydrogenphosphate?"},
    {Ion::dihydrogenphosphate, "PO4",   -3, dihydrogenphosphates},
    {Ion::dihydrogenphosphate, "HPO4",  -2, "What does di- tell you?"},
    {Ion::phosphide,           "PO4",   -3, sentences::ending},
    {Ion::phosphide,           "PO3",   -3, sentences::ending},
    {Ion::carbonate,           "HCO3",  -1, sentences::carbonates},
    {Ion::hydrogencarbonate,   "CO3",   -2, sentences::carbonates},
    {Ion::chloride,            "ClO3",  -1, sentences::ending},
    {Ion::chlorate,            "Cl",    -1, sentences::ending},
    {Ion::chlorate,            "ClO2",  -1, sentences::moreOxygen},
    {Ion::chromate,            "Cr2O7", -2, "Chromate and dichromate are two different ions."},
    {Ion::cyanide,             "CNO",   -1, sentences::ending},
    {Ion::cyanide,             "OCN",   -1, sentences::ending},
    {Ion::bromide,             "BrO3",  -1, sentences::ending},
    {Ion::iodide,              "IO3",   -1, sentences::ending},
    {Ion::ammonium,            "NH3",    1, sentences::ammonia},
};

struct MetalCharge {
    std::string_view metal;
    int charge;
};
constexpr MetalCharge metalCharges[] = {
    {"Mn", 2}, {"Mn", 3}, {"Mn", 4}, {"Mn", 6}, {"Mn", 7},
    {"Fe", 2}, {"Fe", 3},
    {"Co", 2}, {"Co", 3},
    {"Ni", 2}, {"Ni", 3}, {"Ni", 4},
    {"Cu", 1}, {"Cu", 2},
    {"Sn", 2}, {"Sn", 4},
    {"Pb", 2}, {"Pb", 4},
    {"Cr", 2}, {"Cr", 3}, {"Cr", 4}, {"Cr", 6},
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

bool isGroup(std::string_view formula)
{
    return formula.size() > 2 || (formula.size() == 2 && formula[1] < 'a');
}

bool hasOtherCharge(const IonRow& cation, int charge)
{
    return charge != cation.charge && std::any_of(std::begin(metalCharges), std::end(metalCharges),
                                                  [&](const MetalCharge& row) {
                                                      return row.metal == cation.formula &&
                                                             row.charge == charge;
                                                  });
}

} // namespace lesson
