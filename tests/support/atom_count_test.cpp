#include "support/atom_count.hpp"

#include <gtest/gtest.h>

#include <stdexcept>

using Atoms = std::map<std::string, int>;

TEST(AtomCountTest, CountsElementsAndGroups)
{
    EXPECT_EQ(countAtoms("NaCl"), (Atoms{{"Na", 1}, {"Cl", 1}}));
    EXPECT_EQ(countAtoms("CO"), (Atoms{{"C", 1}, {"O", 1}}));
    EXPECT_EQ(countAtoms("Co"), (Atoms{{"Co", 1}}));
    EXPECT_EQ(countAtoms("C60"), (Atoms{{"C", 60}}));
    EXPECT_EQ(countAtoms("Al2(SO4)3"), (Atoms{{"Al", 2}, {"S", 3}, {"O", 12}}));
    EXPECT_EQ(countAtoms("(NH4)2CO3"), (Atoms{{"N", 2}, {"H", 8}, {"C", 1}, {"O", 3}}));
    EXPECT_EQ(countAtoms("((OH)2Fe)3"), (Atoms{{"O", 6}, {"H", 6}, {"Fe", 3}}));
}

TEST(AtomCountTest, RefusesWhatIsNoFormula)
{
    for (const char* text : {"2H", "h", "Na+", "(OH", "OH)", "(", ")(", "(2OH)2", "H O", "H2.O"}) {
        EXPECT_THROW(countAtoms(text), std::invalid_argument) << text;
    }
}
