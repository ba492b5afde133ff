#include "lesson/chemistry/solutes_and_ceilings.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace lesson
{

namespace
{

struct SaltRow {
    Ion cation;
    Ion anion;
    int ceiling; // hundredths of mol/L
    Weighed weighed;
    int greatestMass = 0; // hundredths of a gram
};

struct HydrateRow {
    Ion cation;
    Ion anion;
    int water;
};

struct AcidSolutionRow {
    Acid acid;
    int ceiling;
};

// Ceilings are well below what dissolves at room temperature, so that no exercise asks for a
// solution that nobody could make; for acids and alkalis, what a school bench has. Of silver
// nitrate nobody weighs more than 2 g: its price.
// clang-format off
constexpr SaltRow saltRows[] = {
    {Ion::silver,     Ion::nitrate,            20, Weighed::asItIs, 200},
    {Ion::barium,     Ion::nitrate,            30, Weighed::asItIs},
    {Ion::copper2,    Ion::ethanoate,          30, Weighed::asAnhydrous},
    {Ion::potassium,  Ion::sulfate,            50, Weighed::asItIs},
    {Ion::sodium,     Ion::phosphate,          60, Weighed::asAnhydrous},
    {Ion::aluminium,  Ion::sulfate,            80, Weighed::asAnhydrous},
    {Ion::sodium,     Ion::hydrogencarbonate, 100, Weighed::asItIs},
    {Ion::copper2,    Ion::sulfate,           100, Weighed::asAnhydrous},
    {Ion::sodium,     Ion::sulfate,           100, Weighed::asAnhydrous},
    {Ion::iron3,      Ion::sulfate,           100, Weighed::asAnhydrous},
    {Ion::lead2,      Ion::nitrate,           100, Weighed::asItIs},
    {Ion::sodium,     Ion::carbonate,         150, Weighed::asAnhydrous},
    {Ion::iron2,      Ion::sulfate,           150, Weighed::asAnhydrous},
    {Ion::barium,     Ion::chloride,          150, Weighed::asAnhydrous},
    {Ion::calcium,    Ion::ethanoate,         150, Weighed::asAnhydrous},
    {Ion::potassium,  Ion::nitrate,           200, Weighed::asItIs},
    {Ion::magnesium,  Ion::sulfate,           200, Weighed::asAnhydrous},
    {Ion::zinc,       Ion::sulfate,           200, Weighed::asAnhydrous},
    {Ion::potassium,  Ion::hydrogencarbonate, 200, Weighed::asItIs},
    {Ion::nickel2,    Ion::sulfate,           200, Weighed::asAnhydrous},
    {Ion::manganese2, Ion::sulfate,           200, Weighed::asAnhydrous},
    {Ion::cobalt2,    Ion::chloride,          200, Weighed::asAnhydrous},
    {Ion::potassium,  Ion::chloride,          300, Weighed::asItIs},
    {Ion::potassium,  Ion::bromide,           300, Weighed::asItIs},
    {Ion::sodium,     Ion::bromide,           300, Weighed::asItIs},
    {Ion::potassium,  Ion::iodide,            300, Weighed::asItIs},
    {Ion::sodium,     Ion::nitrate,           300, Weighed::asItIs},
    {Ion::ammonium,   Ion::chloride,          300, Weighed::asItIs},
    {Ion::ammonium,   Ion::sulfate,           300, Weighed::asItIs},
    {Ion::lithium,    Ion::chloride,          300, Weighed::asItIs},
    {Ion::calcium,    Ion::chloride,          300, Weighed::asAnhydrous},
    {Ion::magnesium,  Ion::chloride,          300, Weighed::asAnhydrous},
    {Ion::zinc,       Ion::chloride,          300, Weighed::asItIs},
    {Ion::copper2,    Ion::chloride,          300, Weighed::asAnhydrous},
    {Ion::iron3,      Ion::chloride,          300, Weighed::never},
    {Ion::potassium,  Ion::carbonate,         300, Weighed::asItIs},
    {Ion::sodium,     Ion::ethanoate,         300, Weighed::asAnhydrous},
    {Ion::magnesium,  Ion::nitrate,           300, Weighed::never},
    {Ion::calcium,    Ion::nitrate,           300, Weighed::asAnhydrous},
    {Ion::zinc,       Ion::nitrate,           300, Weighed::never},
    {Ion::copper2,    Ion::nitrate,           300, Weighed::never},
    {Ion::ammonium,   Ion::nitrate,           300, Weighed::asItIs},
    {Ion::sodium,     Ion::chloride,          400, Weighed::asItIs},
    {Ion::sodium,     Ion::hydroxide,         400, Weighed::asItIs},
    {Ion::potassium,  Ion::hydroxide,         400, Weighed::asItIs},
    {Ion::lithium,    Ion::hydroxide,         400, Weighed::asAnhydrous},
};
static_assert(std::size(saltRows) == 46);

constexpr HydrateRow hydrateRows[] = {
    {Ion::copper2, Ion::sulfate,    5},
    {Ion::cobalt2, Ion::chloride,   6},
    {Ion::magnesium, Ion::sulfate,    7},
    {Ion::iron2,   Ion::sulfate,    7},
    {Ion::zinc,    Ion::sulfate,    7},
    {Ion::sodium,  Ion::carbonate, 10},
    {Ion::barium,  Ion::chloride,   2},
};
static_assert(std::size(hydrateRows) == 7);

constexpr AcidSolutionRow acidRows[] = {
    {Acid::hydrochloric, 600},
    {Acid::nitric,       600},
    {Acid::ethanoic,     600},
    {Acid::sulfuric,     300},
};
static_assert(std::size(acidRows) == 4);
// clang-format on

// 0 where the salt has none.
constexpr int ceilingOf(const HydrateRow& hydrate)
{
    for (const SaltRow& salt : saltRows) {
        if (salt.cation == hydrate.cation && salt.anion == hydrate.anion) {
            return salt.ceiling;
        }
    }
    return 0;
}

constexpr bool haveCeilings()
{
    bool haveAll = true;
    for (const HydrateRow& hydrate : hydrateRows) {
        haveAll = haveAll && ceilingOf(hydrate) != 0;
    }
    return haveAll;
}
static_assert(haveCeilings(), "a hydrate's salt has a row");

SoluteRow soluteOf(const SaltRow& row)
{
    const IonRow& cation = rowOf(row.cation);
    const IonRow& anion = rowOf(row.anion);
    const std::string formula = compoundFormula(cation, anion);
    return {SoluteKind::salt,     formula, formula, row.ceiling, row.weighed, row.greatestMass,
            nameOf(cation, anion)};
}

SoluteRow soluteOf(const HydrateRow& row)
{
    const IonRow& cation = rowOf(row.cation);
    const IonRow& anion = rowOf(row.anion);
    const std::string salt = compoundFormula(cation, anion);
    return {SoluteKind::hydrate,
            hydrateFormula(salt, row.water),
            salt,
            ceilingOf(row),
            Weighed::asItIs,
            0,
            nameOf(cation, anion, row.water)};
}

SoluteRow soluteOf(Acid acid, int ceiling, Weighed weighed)
{
    const AcidRow& row = rowOf(acid);
    const std::string formula(row.formula);
    return {SoluteKind::acid, formula, formula, ceiling, weighed, 0, nameOf(row)};
}

SoluteRow soluteOf(const AcidSolutionRow& row)
{
    return soluteOf(row.acid, row.ceiling, Weighed::comesDissolved);
}

SoluteRow ammoniaSolution()
{
    const std::string formula = formulaOf(ammonia());
    return {SoluteKind::ammonia,     formula, formula,          0,
            Weighed::comesDissolved, 0,       nameOf(ammonia())};
}

template <typename Row, std::size_t N>
std::vector<SoluteRow> listOf(const Row (&rows)[N])
{
    std::vector<SoluteRow> list;
    list.reserve(N);
    for (const Row& row : rows) {
        list.push_back(soluteOf(row));
    }
    return list;
}

} // namespace

const std::vector<SoluteRow>& solutes()
{
    static const std::vector<SoluteRow> rows = listOf(saltRows);
    return rows;
}

const std::vector<SoluteRow>& weighedSolutes()
{
    static const std::vector<SoluteRow> rows = [] {
        std::vector<SoluteRow> weighed;
        std::copy_if(solutes().begin(), solutes().end(), std::back_inserter(weighed),
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
    static const std::vector<SoluteRow> rows = {
        ammoniaSolution(),
        soluteOf(Acid::ethanedioic, 0, Weighed::never),
    };
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
