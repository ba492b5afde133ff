#include "lesson/chemistry/solutions.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace lesson
{

namespace
{

// Ceilings are well below what dissolves at room temperature, so that no exercise asks for a
// solution that nobody could make; for acids and alkalis, what a school bench has. Of silver
// nitrate nobody weighs more than 2 g: its price.
// clang-format off
constexpr SoluteRow soluteRows[] = {
    {"AgNO3", "silver nitrate", "", 20, Weighed::asItIs, 200},
    {"Ba(NO3)2", "barium nitrate", "", 30, Weighed::asItIs},
    {"Cu(CH3COO)2", "copper(II) ethanoate", "copper(II) acetate", 30, Weighed::asAnhydrous},
    {"K2SO4", "potassium sulfate", "", 50, Weighed::asItIs},
    {"Na3PO4", "sodium phosphate", "", 60, Weighed::asAnhydrous},
    {"Al2(SO4)3", "aluminium sulfate", "aluminum sulfate", 80, Weighed::asAnhydrous},
    {"NaHCO3", "sodium hydrogencarbonate", "sodium hydrogen carbonate", 100, Weighed::asItIs},
    {"CuSO4", "copper(II) sulfate", "", 100, Weighed::asAnhydrous},
    {"Na2SO4", "sodium sulfate", "", 100, Weighed::asAnhydrous},
    {"Fe2(SO4)3", "iron(III) sulfate", "", 100, Weighed::asAnhydrous},
    {"Pb(NO3)2", "lead(II) nitrate", "", 100, Weighed::asItIs},
    {"Na2CO3", "sodium carbonate", "", 150, Weighed::asAnhydrous},
    {"FeSO4", "iron(II) sulfate", "", 150, Weighed::asAnhydrous},
    {"BaCl2", "barium chloride", "", 150, Weighed::asAnhydrous},
    {"Ca(CH3COO)2", "calcium ethanoate", "calcium acetate", 150, Weighed::asAnhydrous},
    {"KNO3", "potassium nitrate", "", 200, Weighed::asItIs},
    {"MgSO4", "magnesium sulfate", "", 200, Weighed::asAnhydrous},
    {"ZnSO4", "zinc sulfate", "", 200, Weighed::asAnhydrous},
    {"KHCO3", "potassium hydrogencarbonate", "potassium hydrogen carbonate", 200, Weighed::asItIs},
    {"NiSO4", "nickel(II) sulfate", "", 200, Weighed::asAnhydrous},
    {"MnSO4", "manganese(II) sulfate", "", 200, Weighed::asAnhydrous},
    {"CoCl2", "cobalt(II) chloride", "", 200, Weighed::asAnhydrous},
    {"KCl", "potassium chloride", "", 300, Weighed::asItIs},
    {"KBr", "potassium bromide", "", 300, Weighed::asItIs},
    {"NaBr", "sodium bromide", "", 300, Weighed::asItIs},
    {"KI", "potassium iodide", "", 300, Weighed::asItIs},
    {"NaNO3", "sodium nitrate", "", 300, Weighed::asItIs},
    {"NH4Cl", "ammonium chloride", "", 300, Weighed::asItIs},
    {"(NH4)2SO4", "ammonium sulfate", "", 300, Weighed::asItIs},
    {"LiCl", "lithium chloride", "", 300, Weighed::asItIs},
    {"CaCl2", "calcium chloride", "", 300, Weighed::asAnhydrous},
    {"MgCl2", "magnesium chloride", "", 300, Weighed::asAnhydrous},
    {"ZnCl2", "zinc chloride", "", 300, Weighed::asItIs},
    {"CuCl2", "copper(II) chloride", "", 300, Weighed::asAnhydrous},
    {"FeCl3", "iron(III) chloride", "", 300, Weighed::never},
    {"K2CO3", "potassium carbonate", "", 300, Weighed::asItIs},
    {"CH3COONa", "sodium ethanoate", "sodium acetate", 300, Weighed::asAnhydrous},
    {"Mg(NO3)2", "magnesium nitrate", "", 300, Weighed::never},
    {"Ca(NO3)2", "calcium nitrate", "", 300, Weighed::asAnhydrous},
    {"Zn(NO3)2", "zinc nitrate", "", 300, Weighed::never},
    {"Cu(NO3)2", "copper(II) nitrate", "", 300, Weighed::never},
    {"NH4NO3", "ammonium nitrate", "", 300, Weighed::asItIs},
    {"NaCl", "sodium chloride", "", 400, Weighed::asItIs},
    {"NaOH", "sodium hydroxide", "", 400, Weighed::asItIs},
    {"KOH", "potassium hydroxide", "", 400, Weighed::asItIs},
    {"LiOH", "lithium hydroxide", "", 400, Weighed::asAnhydrous},
};
static_assert(std::size(soluteRows) == 46);

constexpr SoluteRow hydrateRows[] = {
    {"CuSO4.5H2O", "copper(II) sulfate pentahydrate", "", 100, Weighed::asItIs},
    {"CoCl2.6H2O", "cobalt(II) chloride hexahydrate", "", 200, Weighed::asItIs},
    {"MgSO4.7H2O", "magnesium sulfate heptahydrate", "", 200, Weighed::asItIs},
    {"FeSO4.7H2O", "iron(II) sulfate heptahydrate", "", 150, Weighed::asItIs},
    {"ZnSO4.7H2O", "zinc sulfate heptahydrate", "", 200, Weighed::asItIs},
    {"Na2CO3.10H2O", "sodium carbonate decahydrate", "", 150, Weighed::asItIs},
    {"BaCl2.2H2O", "barium chloride dihydrate", "", 150, Weighed::asItIs},
};
static_assert(std::size(hydrateRows) == 7);

constexpr SoluteRow acidRows[] = {
    {"HCl", "hydrochloric acid", "", 600, Weighed::never},
    {"HNO3", "nitric acid", "", 600, Weighed::never},
    {"CH3COOH", "ethanoic acid", "acetic acid", 600, Weighed::never},
    {"H2SO4", "sulfuric acid", "", 300, Weighed::never},
};
static_assert(std::size(acidRows) == 4);

constexpr SoluteRow furtherTitrantRows[] = {
    {"NH3", "ammonia solution", "", 0, Weighed::never},
    {"H2C2O4", "ethanedioic acid", "oxalic acid", 0, Weighed::never},
};
static_assert(std::size(furtherTitrantRows) == 2);
// clang-format on

template <typename Row, std::size_t N>
std::vector<Row> listOf(const Row (&rows)[N])
{
    return std::vector<Row>(std::begin(rows), std::end(rows));
}

} // namespace

const std::vector<SoluteRow>& solutes()
{
    static const std::vector<SoluteRow> rows = listOf(soluteRows);
    return rows;
}

const std::vector<SoluteRow>& weighedSolutes()
{
    static const std::vector<SoluteRow> rows = [] {
        std::vector<SoluteRow> weighed;
        std::copy_if(std::begin(soluteRows), std::end(soluteRows), std::back_inserter(weighed),
                     [](const SoluteRow& row) { return row.weighed != Weighed::never; });
        return weighed;
    }();
    return rows;
}

const std::vector<SoluteRow>& hydrates()
{
    static const std::vector<SoluteRow> rows = listOf(hydrateRows);
    return rows;
}

const std::vector<SoluteRow>& acidSolutions()
{
    static const std::vector<SoluteRow> rows = listOf(acidRows);
    return rows;
}

const std::vector<SoluteRow>& furtherTitrants()
{
    static const std::vector<SoluteRow> rows = listOf(furtherTitrantRows);
    return rows;
}

const SoluteRow* findSolute(std::string_view formula)
{
    for (const auto* const list : {&solutes(), &hydrates(), &acidSolutions(), &furtherTitrants()}) {
        for (const SoluteRow& row : *list) {
            if (row.formula == formula) {
                return &row;
            }
        }
    }
    return nullptr;
}

} // namespace lesson
