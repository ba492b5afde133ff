#include "lesson/chemistry/titrations.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <tuple>

#include "lesson/chemistry/composition.hpp"
#include "lesson/chemistry/elements.hpp"
#include "lesson/chemistry/solutes_and_ceilings.hpp"

namespace lesson
{

namespace
{

std::string acidIn(const TitrationRow& row)
{
    return std::string(rowOf(row.acid).formula);
}

std::string baseIn(const TitrationRow& row)
{
    return formulaOf(baseOf(row));
}

using Titration = std::tuple<std::string, std::string, Indicator, InBurette>;

// The titrations of a school laboratory, family by family.
std::set<Titration> expectedTitrations()
{
    std::set<Titration> expected;
    for (const char* acid : {"HCl", "HNO3", "H2SO4"}) {
        for (const char* alkali : {"NaOH", "KOH", "LiOH"}) {
            expected.insert({acid, alkali, Indicator::either, InBurette::either});
        }
        for (const char* carbonate : {"NaHCO3", "KHCO3", "Na2CO3", "K2CO3"}) {
            expected.insert({acid, carbonate, Indicator::methylOrange, InBurette::acid});
        }
    }
    for (const char* alkali : {"NaOH", "KOH", "LiOH"}) {
        expected.insert({"CH3COOH", alkali, Indicator::phenolphthalein, InBurette::base});
    }
    expected.insert({"H2SO4", "NH3", Indicator::methylOrange, InBurette::acid});
    expected.insert({"HCl", "NH3", Indicator::methylOrange, InBurette::acid});
    expected.insert({"H2C2O4", "NaOH", Indicator::phenolphthalein, InBurette::base});
    return expected;
}

TEST(TitrationPairsTest, TitrationsAreThoseTypedOnceMore)
{
    std::set<Titration> listed;
    for (const TitrationRow& row : titrations()) {
        listed.insert({acidIn(row), baseIn(row), row.indicator, row.inBurette});
    }
    EXPECT_EQ(listed.size(), titrations().size());
    EXPECT_EQ(listed, expectedTitrations());
}

int countOf(std::string_view symbol, std::string_view formula)
{
    const Atoms atoms = compositionOf(formula).atoms;
    const int wanted = findElement(symbol)->number;
    const auto found = std::find_if(atoms.begin(), atoms.end(),
                                    [wanted](AtomCount atom) { return atom.element == wanted; });
    return found == atoms.end() ? 0 : found->count;
}

// A base takes as many protons as it has metal ions, for each is left over with one charge; ammonia
// takes one. An acid gives its hydrogen but that of CH3.
TEST(TitrationPairsTest, ProtonsAreThoseOfTheFormulas)
{
    for (const TitrationRow& row : titrations()) {
        const std::string acid = acidIn(row);
        const std::string base = baseIn(row);
        const int metals = countOf("Li", base) + countOf("Na", base) + countOf("K", base);
        EXPECT_EQ(uptakeOf(baseOf(row)).protons, base == "NH3" ? 1 : metals) << base;
        const int fixed = acid == "CH3COOH" ? 3 : 0;
        EXPECT_EQ(protonsOf(rowOf(row.acid)), countOf("H", acid) - fixed) << acid;
    }
}

TEST(TitrationPairsTest, WhatIsTitratedHasAName)
{
    for (const TitrationRow& row : titrations()) {
        EXPECT_NE(findSolute(acidIn(row)), nullptr) << acidIn(row);
        EXPECT_NE(findSolute(baseIn(row)), nullptr) << baseIn(row);
    }
}

} // namespace

} // namespace lesson
