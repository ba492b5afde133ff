#include "data/atomic_mass.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "data/tables.hpp"

namespace
{

class AtomicMassTest : public testing::Test
{
protected:
    void SetUp() override
    {
        aMasses.clear();
    }
    void TearDown() override
    {
        aMasses.clear();
    }
};

TEST_F(AtomicMassTest, EveryLookupInTheEmptyTableGivesZero)
{
    for (const char* symbol : {"H", "O", "Lr", "Ta", ""}) {
        EXPECT_EQ(getAtomicMass(symbol), 0.0f) << symbol;
    }
    EXPECT_TRUE(aMasses.empty());
}

} // namespace
