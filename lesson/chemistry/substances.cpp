#include "lesson/chemistry/substances.hpp"

#include <iterator>

namespace lesson
{

namespace
{

// clang-format off
constexpr int everyday = 36; // as of sodium chloride

constexpr SubstanceRow moleculeRows[] = {
    {"H2O",     "water",             "", everyday},
    {"CO2",     "carbon dioxide",    "", everyday},
    {"NH3",     "ammonia",           "", everyday},
    {"CH4",     "methane",           "", everyday},
    {"SO2",     "sulfur dioxide",    "", everyday},
    {"C2H5OH",  "ethanol",           "", everyday},
    {"C6H12O6", "glucose",           "", everyday},
    {"H2O2",    "hydrogen peroxide", "", everyday},
    {"HNO3",    "nitric acid",       "", everyday},
    {"H2SO4",   "sulfuric acid",     "", everyday},
};
static_assert(std::size(moleculeRows) == 10);

// 6 where many have grown or heated the crystals, 4 where they are weighed for a solution that is
// often made, 2 or 3 where they are met now and then, 1 where they are rare.
constexpr SubstanceRow crystalRows[] = {
    {"CuSO4.5H2O",     "copper(II) sulfate pentahydrate",   "", 6}, // grown, and heated white
    {"MgSO4.7H2O",     "magnesium sulfate heptahydrate",    "", 6}, // Epsom salt, heated to constant mass
    {"Na2CO3.10H2O",   "sodium carbonate decahydrate",      "", 6}, // washing soda
    {"CaSO4.2H2O",     "calcium sulfate dihydrate",         "", 6}, // gypsum
    {"FeSO4.7H2O",     "iron(II) sulfate heptahydrate",     "", 4}, // iron tablets
    {"ZnSO4.7H2O",     "zinc sulfate heptahydrate",         "", 4}, // for cells
    {"Na2S2O3.5H2O",   "sodium thiosulfate pentahydrate",   "", 4}, // for iodine
    {"H2C2O4.2H2O",    "ethanedioic acid dihydrate", "oxalic acid dihydrate", 4}, // for titrations
    {"Na2SO4.10H2O",   "sodium sulfate decahydrate",        "", 3}, // Glauber's salt
    {"BaCl2.2H2O",     "barium chloride dihydrate",         "", 3}, // the test for sulfate
    {"CoCl2.6H2O",     "cobalt(II) chloride hexahydrate",   "", 3}, // the test for water
    {"CaCl2.2H2O",     "calcium chloride dihydrate",        "", 3}, // for drying
    {"FeCl3.6H2O",     "iron(III) chloride hexahydrate",    "", 3}, // for etching
    {"MgCl2.6H2O",     "magnesium chloride hexahydrate",    "", 2}, // of the sea
    {"CuCl2.2H2O",     "copper(II) chloride dihydrate",     "", 2}, // for electrolysis
    {"Cu(NO3)2.3H2O",  "copper(II) nitrate trihydrate",     "", 2},
    {"Ca(NO3)2.4H2O",  "calcium nitrate tetrahydrate",      "", 1},
    {"NiSO4.6H2O",     "nickel(II) sulfate hexahydrate",    "", 1},
};
static_assert(std::size(crystalRows) == 18);
// clang-format on

} // namespace

const std::vector<SubstanceRow>& molecules()
{
    static const std::vector<SubstanceRow> rows(std::begin(moleculeRows), std::end(moleculeRows));
    return rows;
}

const std::vector<SubstanceRow>& crystals()
{
    static const std::vector<SubstanceRow> rows(std::begin(crystalRows), std::end(crystalRows));
    return rows;
}

} // namespace lesson
