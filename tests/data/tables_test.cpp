#include "data/tables.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>

#include "chem/formula.hpp"
#include "support/scripted_draws.hpp"

namespace
{

using Rows = std::array<std::size_t, 3>;

Rows rows()
{
    return {aMasses.size(), ion.size(), dissolvable.size()};
}

// Counts the rows before the first test can fill a table, but not in a static initialiser: that of
// another source file, which makes the tables, may come later.
class RowsAtStart : public testing::Environment
{
public:
    void SetUp() override
    {
        counted = rows();
    }
    static inline Rows counted = {1, 1, 1};
};
testing::Environment* const rowsAtStart = testing::AddGlobalTestEnvironment(new RowsAtStart);

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
    EXPECT_EQ(RowsAtStart::counted, (Rows{0, 0, 0}));
}

TEST_F(TablesTest, FirstMolarMassFillsTheElementsAlone)
{
    calculateMM("");
    EXPECT_EQ(rows(), (Rows{110, 0, 0}));
}

TEST_F(TablesTest, FirstIonDrawFillsTheIonsAlone)
{
    const ScriptedDraws draws({drawOfIon(1)});
    randomIon();
    EXPECT_EQ(rows(), (Rows{0, 39, 0}));
}

TEST_F(TablesTest, CompoundsFillThemselvesAndTheElements)
{
    initSolubles();
    EXPECT_EQ(rows(), (Rows{110, 0, 10}));
}

} // namespace
