#include "data/tables.hpp"

#include <gtest/gtest.h>

#include <type_traits>

#include "chem/formula.hpp"
#include "support/scripted_draws.hpp"

namespace
{

// Looks at the tables before the first test of a run can fill one.
class TablesAtStart : public testing::Environment
{
public:
    void SetUp() override
    {
        EXPECT_TRUE(aMasses.empty());
        EXPECT_TRUE(ion.empty());
        EXPECT_TRUE(dissolvable.empty());
        looked = true;
    }
    static bool looked;
};
bool TablesAtStart::looked = false;

testing::Environment* const tablesAtStart = testing::AddGlobalTestEnvironment(new TablesAtStart);

class TablesTest : public testing::Test
{
protected:
    void SetUp() override
    {
        aMasses.clear();
        ion.clear();
        dissolvable.clear();
    }
    void TearDown() override
    {
        SetUp();
    }
};

TEST_F(TablesTest, AreEmptyAtStart)
{
    // The environment above has failed this run if they were not.
    ASSERT_NE(tablesAtStart, nullptr);
    EXPECT_TRUE(TablesAtStart::looked);
}

TEST_F(TablesTest, AreVectorsOfTheirRecords)
{
    static_assert(std::is_same_v<decltype(aMasses), std::vector<atomicMass>>);
    static_assert(std::is_same_v<decltype(ion), std::vector<Ion>>);
    static_assert(std::is_same_v<decltype(dissolvable), std::vector<Soluble>>);
}

TEST_F(TablesTest, FirstMolarMassFillsTheElementsAlone)
{
    calculateMM("");
    EXPECT_EQ(aMasses.size(), 110u);
    EXPECT_TRUE(ion.empty());
    EXPECT_TRUE(dissolvable.empty());
}

TEST_F(TablesTest, FirstIonDrawFillsTheIonsAlone)
{
    const ScriptedDraws draws({drawOfIon(1)});
    randomIon();
    EXPECT_TRUE(aMasses.empty());
    EXPECT_EQ(ion.size(), 39u);
    EXPECT_TRUE(dissolvable.empty());
}

TEST_F(TablesTest, CompoundsFillThemselvesAndTheElements)
{
    initSolubles();
    EXPECT_EQ(aMasses.size(), 110u);
    EXPECT_TRUE(ion.empty());
    EXPECT_EQ(dissolvable.size(), 10u);
}

} // namespace
