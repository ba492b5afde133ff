#include "lesson/chemistry/acids_and_bases.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>

namespace lesson
{

namespace
{

// clang-format off
constexpr AcidRow acidRows[] = {
    {Acid::hydrochloric, "HCl",     Ion::chloride,     5},
    {Acid::hydrobromic,  "HBr",     Ion::bromide,      1},
    {Acid::nitric,       "HNO3",    Ion::nitrate,      5},
    {Acid::sulfuric,     "H2SO4",   Ion::sulfate,      5},
    {Acid::phosphoric,   "H3PO4",   Ion::phosphate,    3},
    {Acid::ethanoic,     "CH3COOH", Ion::ethanoate,    4},
    {Acid::ethanedioic,  "H2C2O4",  Ion::ethanedioate, 1},
};

struct BaseRow {
    BaseKind kind = {};
    std::optional<Ion> anion;
    Uptake uptake = {}; // of one anion, or of one ammonia
};
constexpr BaseRow baseRows[] = {
    {BaseKind::hydroxide,         Ion::hydroxide,         {1, 1, 0}},
    {BaseKind::oxide,             Ion::oxide,             {2, 1, 0}},
    {BaseKind::carbonate,         Ion::carbonate,         {2, 1, 1}},
    {BaseKind::hydrogencarbonate, Ion::hydrogencarbonate, {1, 1, 1}},
    {BaseKind::ammonia,           std::nullopt,           {1, 0, 0}},
};
// clang-format on

static_assert(areAtTheirPlaces(acidRows, &AcidRow::id, Acid::ethanedioic),
              "every acid has its row");
static_assert(areAtTheirPlaces(baseRows, &BaseRow::kind, BaseKind::ammonia),
              "every base has its row");

const BaseRow& rowOf(BaseKind kind)
{
    return baseRows[static_cast<std::size_t>(kind)];
}

const BaseRow* findBase(std::optional<Ion> anion)
{
    const auto* const row =
        std::find_if(std::begin(baseRows), std::end(baseRows),
                     [anion](const BaseRow& base) { return base.anion == anion; });
    return row == std::end(baseRows) ? nullptr : row;
}

template <typename Wanted>
const AcidRow* findWhere(Wanted wanted)
{
    const auto* const row = std::find_if(std::begin(acidRows), std::end(acidRows), wanted);
    return row == std::end(acidRows) ? nullptr : row;
}

} // namespace

const AcidRow& rowOf(Acid acid)
{
    return acidRows[static_cast<std::size_t>(acid)];
}

const std::vector<const AcidRow*>& acids()
{
    static const std::vector<const AcidRow*> pointers = [] {
        std::vector<const AcidRow*> all;
        for (const AcidRow& row : acidRows) {
            all.push_back(&row);
        }
        return all;
    }();
    return pointers;
}

const AcidRow* findAcid(std::string_view formula)
{
    return findWhere([formula](const AcidRow& row) { return row.formula == formula; });
}

const AcidRow* findAcid(Ion anion)
{
    return findWhere([anion](const AcidRow& row) { return row.anion == anion; });
}

const IonRow& anionOf(const AcidRow& acid)
{
    return rowOf(acid.anion);
}

// Each leaves a negative charge behind.
int protonsOf(const AcidRow& acid)
{
    return -anionOf(acid).charge;
}

bool operator==(const Base& a, const Base& b)
{
    return a.cation == b.cation && a.anion == b.anion;
}

Base baseOf(BaseKind kind, Ion cation)
{
    const std::optional<Ion> anion = rowOf(kind).anion;
    return anion.has_value() ? Base{&rowOf(cation), &rowOf(*anion)} : ammonia();
}

Base ammonia()
{
    return {&rowOf(Ion::ammonium), nullptr};
}

BaseKind kindOf(const Base& base)
{
    return base.anion == nullptr ? BaseKind::ammonia : findBase(base.anion->id)->kind;
}

bool isOfBases(const IonRow& anion)
{
    return findBase(anion.id) != nullptr;
}

bool givesCarbonDioxide(BaseKind kind)
{
    return rowOf(kind).uptake.carbonDioxide > 0;
}

Uptake uptakeOf(const Base& base)
{
    const Uptake& one = rowOf(kindOf(base)).uptake;
    const int times = base.anion == nullptr ? 1 : anionsIn(*base.cation, *base.anion);
    return {times * one.protons, times * one.water, times * one.carbonDioxide};
}

std::string formulaOf(const Base& base)
{
    return base.anion == nullptr ? "NH3" : compoundFormula(*base.cation, *base.anion);
}

std::string saltFormula(const AcidRow& acid, const Base& base)
{
    return compoundFormula(*base.cation, anionOf(acid));
}

} // namespace lesson
