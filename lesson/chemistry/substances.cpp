#include "lesson/chemistry/substances.hpp"

#include <iterator>
#include <string_view>

#include "lesson/chemistry/acids_and_bases.hpp"

namespace lesson
{

namespace
{

constexpr int everyday = 36; // as of sodium chloride

struct MoleculeRow {
    std::string_view formula;
    std::string_view name;
};

struct CrystalRow {
    Ion cation; // hydrogen of an acid
    Ion anion;
    int water;
    int weight;
};

// clang-format off
constexpr MoleculeRow moleculeRows[] = {
    {"H2O",     "water"},
    {"CO2",     "carbon dioxide"},
    {"NH3",     "ammonia"},
    {"CH4",     "methane"},
    {"SO2",     "sulfur dioxide"},
    {"C2H5OH",  "ethanol"},
    {"C6H12O6", "glucose"},
    {"H2O2",    "hydrogen peroxide"},
};
constexpr Acid acidsOfMolecules[] = {Acid::nitric, Acid::sulfuric};

// 6 where many have grown or heated the crystals, 4 where they are weighed for a solution that is
// often made, 2 or 3 where they are met now and then, 1 where they are rare.
constexpr CrystalRow crystalRows[] = {
    {Ion::copper2,   Ion::sulfate,       5, 6}, // grown, and heated white
    {Ion::magnesium, Ion::sulfate,       7, 6}, // Epsom salt, heated to constant mass
    {Ion::sodium,    Ion::carbonate,    10, 6}, // washing soda
    {Ion::calcium,   Ion::sulfate,       2, 6}, // gypsum
    {Ion::iron2,     Ion::sulfate,       7, 4}, // iron tablets
    {Ion::zinc,      Ion::sulfate,       7, 4}, // for cells
    {Ion::sodium,    Ion::thiosulfate,   5, 4}, // for iodine
    {Ion::hydrogen,  Ion::ethanedioate,  2, 4}, // for titrations
    {Ion::sodium,    Ion::sulfate,      10, 3}, // Glauber's salt
    {Ion::barium,    Ion::chloride,      2, 3}, // the test for sulfate
    {Ion::cobalt2,   Ion::chloride,      6, 3}, // the test for water
    {Ion::calcium,   Ion::chloride,      2, 3}, // for drying
    {Ion::iron3,     Ion::chloride,      6, 3}, // for etching
    {Ion::magnesium, Ion::chloride,      6, 2}, // of the sea
    {Ion::copper2,   Ion::chloride,      2, 2}, // for electrolysis
    {Ion::copper2,   Ion::nitrate,       3, 2},
    {Ion::calcium,   Ion::nitrate,       4, 1},
    {Ion::nickel2,   Ion::sulfate,       6, 1},
};
static_assert(std::size(crystalRows) == 18);
// clang-format on

SubstanceRow withWater(const SubstanceRow& dry, int water)
{
    return {hydrateFormula(dry.formula, water), hydrateName(dry.name, water),
            dry.american.empty() ? "" : hydrateName(dry.american, water), dry.weight};
}

SubstanceRow substanceOf(const AcidRow& acid, int weight)
{
    return {std::string(acid.formula), std::string(acid.name), std::string(acid.american), weight};
}

SubstanceRow substanceOf(const CrystalRow& row)
{
    const IonRow& cation = rowOf(row.cation);
    const IonRow& anion = rowOf(row.anion);
    if (row.cation == Ion::hydrogen) {
        return withWater(substanceOf(*findAcid(row.anion), row.weight), row.water);
    }
    return withWater({compoundFormula(cation, anion), compoundName(cation, anion),
                      americanName(cation, anion), row.weight},
                     row.water);
}

std::vector<SubstanceRow> everyMolecule()
{
    std::vector<SubstanceRow> all;
    for (const MoleculeRow& row : moleculeRows) {
        all.push_back({std::string(row.formula), std::string(row.name), "", everyday});
    }
    for (const Acid acid : acidsOfMolecules) {
        all.push_back(substanceOf(rowOf(acid), everyday));
    }
    return all;
}

std::vector<SubstanceRow> everyCrystal()
{
    std::vector<SubstanceRow> all;
    for (const CrystalRow& row : crystalRows) {
        all.push_back(substanceOf(row));
    }
    return all;
}

} // namespace

const std::vector<SubstanceRow>& molecules()
{
    static const std::vector<SubstanceRow> rows = everyMolecule();
    return rows;
}

const std::vector<SubstanceRow>& crystals()
{
    static const std::vector<SubstanceRow> rows = everyCrystal();
    return rows;
}

} // namespace lesson
