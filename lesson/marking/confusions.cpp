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
    {"oxide",             "OH",    -1, sentences::oxides},
    {"hydroxide",         "O",     -2, sentences::oxides},
    {"sulfate",           "S",     -2, sentences::ending},
    {"sulfate",           "SO3",   -2, sentences::moreOxygen},
    {"sulfate",           "HSO4",  -1, sentences::sulfates},
    {"sulfite",           "S",     -2, sentences::ending},
    {"sulfite",           "SO4",   -2, sentences::moreOxygen},
    {"sulfite",           "HSO3",  -1, sulfites},
    {"hydrogensulfite",   "SO3",   -2, sulfites},
    {"hydrogensulfite",   "HSO4",  -1, sentences::moreOxygen},
    {"thiosulfate",       "SO4",   -2, thio},
    {"thiosulfate",       "SO3",   -2, thio},
    {"sulfide",           "SO4",   -2, sentences::ending},
    {"sulfide",           "SO3",   -2, sentences::ending},
    {"hydrogensulfate",   "SO4",   -2, sentences::sulfates},
    {"hydrogensulfate",   "HSO3",  -1, sentences::moreOxygen},
    {"nitrate",           "N",     -3, sentences::ending},
    {"nitrate",           "NO2",   -1, sentences::moreOxygen},
    {"nitrite",           "N",     -3, sentences::ending},
    {"nitrite",           "NO3",   -1, sentences::moreOxygen},
    {"nitride",           "NO3",   -1, sentences::ending},
    {"nitride",           "NO2",   -1, sentences::ending},
    {"phosphate",         "P",     -3, sentences::ending},
    {"phosphate",         "PO3",   -3, sentences::moreOxygen},
    {"phosphate",         "HPO4",  -2, phosphates},
    {"phosphate",         "H2PO4", -1, dihydrogenphosphates},
    {"hydrogenphosphate", "PO4",   -3, phosphates},
    {"hydrogenphosphate", "H2PO4", -1, "How many hydrogens has a hydrogenphosphate?"},
    {"dihydrogenphosphate", "PO4", -3, dihydrogenphosphates},
    {"dihydrogenphosphate", "HPO4", -2, "What does di- tell you?"},
    {"phosphide",         "PO4",   -3, sentences::ending},
    {"phosphide",         "PO3",   -3, sentences::ending},
    {"carbonate",         "HCO3",  -1, sentences::carbonates},
    {"hydrogencarbonate", "CO3",   -2, sentences::carbonates},
    {"chloride",          "ClO3",  -1, sentences::ending},
    {"chlorate",          "Cl",    -1, sentences::ending},
    {"chlorate",          "ClO2",  -1, sentences::moreOxygen},
    {"chromate",          "Cr2O7", -2, "Chromate and dichromate are two different ions."},
    {"cyanide",           "CNO",   -1, sentences::ending},
    {"cyanide",           "OCN",   -1, sentences::ending},
    {"bromide",           "BrO3",  -1, sentences::ending},
    {"iodide",            "IO3",   -1, sentences::ending},
    {"ammonium",          "NH3",    1, sentences::ammonia},
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
        if (row.of == ion.name) {
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
