#include "lesson/chemistry/substances.hpp"

#include <iterator>
#include <string_view>

namespace lesson
{

namespace
{

constexpr int everyday = 36; // as of sodium chloride

struct MoleculeRow {
    std::string_view formula;
    Molecule molecule;
};

struct CrystalRow {
    Ion cation; // hydrogen of an acid
    Ion anion;
    int water;
    int weight;
};

// clang-format off
constexpr MoleculeRow moleculeRows[] = {
    {"H2O",     Molecule::water},
    {"CO2",     Molecule::carbonDioxide},
    {"NH3",     Molecule::ammonia},
    {"CH4",     Molecule::methane},
    {"SO2",     Molecule::sulfurDioxide},
    {"C2H5OH",  Molecule::ethanol},
    {"C6H12O6", Molecule::glucose},
    {"H2O2",    Molecule::hydrogenPeroxide},
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

SubstanceRow substanceOf(const CrystalRow& row)
{
    const IonRow& cation = rowOf(row.cation);
    const IonRow& anion = rowOf(row.anion);
    if (row.cation == Ion::hydrogen) {
        const AcidRow& acid = *findAcid(row.anion);
        return {hydrateFormula(std::string(acid.formula), row.water), nameOf(acid, row.water),
                row.weight};
    }
    return {hydrateFormula(compoundFormula(cation, anion), row.water),
            nameOf(cation, anion, row.water), row.weight};
}

std::vector<SubstanceRow> everyMolecule()
{
    std::vector<SubstanceRow> all;
    for (const MoleculeRow& row : moleculeRows) {
        all.push_back({std::string(row.formula), nameOf(row.molecule), everyday});
    }
    for (const Acid acid : acidsOfMolecules) {
        all.push_back({std::string(rowOf(acid).formula), nameOf(rowOf(acid)), everyday});
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
