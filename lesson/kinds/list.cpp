#include "lesson/kinds/list.hpp"

#include <algorithm>
#include <iterator>

namespace lesson
{

namespace
{

// clang-format off
constexpr KindRows rows = {
    {Kind::molarMass, "molar-mass", "Molar mass",
     {"Formulas without brackets", "Formulas with brackets", "Hydrates"}},
    {Kind::compoundFormula, "compound-formula", "Formula of a compound",
     {"Ions of one atom", "Ions that are groups of atoms", "Names with Roman numerals"}},
    {Kind::ionFormula, "ion-formula", "Formula of an ion",
     {"Ions of one atom", "Common groups of atoms", "All ions, with -ite and -ate"}},
    {Kind::solubility, "solubility", "Solubility in water",
     {"The rules", "The rules and their exceptions", "The precipitate of two solutions"}},
    {Kind::concentration, "concentration", "Mass and concentration",
     {"The concentration of a solution", "The mass for a solution",
      "Hydrates, molar mass not given"}},
    {Kind::dilution, "dilution", "Dilution",
     {"The new concentration", "The volume to take or the original concentration",
      "The water to add"}},
    {Kind::neutralisation, "neutralisation", "Equations of neutralisation",
     {"Acids and hydroxides", "Oxides, carbonates, hydrogencarbonates and ammonia",
      "Ratios with a 3 or a 6"}},
    {Kind::titration, "titration", "Acid-base titration",
     {"Ratio 1:1", "Other ratios", "Several titres, equation not given"}},
};
// clang-format on

constexpr bool areInOrder()
{
    for (int i = 0; i < kindCount; ++i) {
        if (rows[i].kind != static_cast<Kind>(i)) {
            return false;
        }
    }
    return true;
}
static_assert(areInOrder(), "a kind is the place of its row");

} // namespace

const KindRows& kinds()
{
    return rows;
}

const KindRow& rowOf(Kind kind)
{
    return rows[static_cast<int>(kind)];
}

const KindRow* findKind(std::string_view slug)
{
    const auto* const found = std::find_if(std::begin(rows), std::end(rows),
                                           [slug](const KindRow& row) { return row.slug == slug; });
    return found == std::end(rows) ? nullptr : found;
}

} // namespace lesson
