#include "data/soluble.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <stdexcept>
#include <string>
#include <type_traits>

#include "data/tables.hpp"
#include "support/captured_output.hpp"
#include "support/scripted_draws.hpp"

namespace
{

// The sums as they are promised: single precision, left to right, groups and hydrates on their own.
constexpr float hydrogen = 1.008f;
constexpr float carbon = 12.01f;
constexpr float nitrogen = 14.01f;
constexpr float oxygen = 16.0f;
constexpr float sulphur = 32.06f;
constexpr float water = 2.0f * hydrogen + oxygen;
constexpr float sulphate = sulphur + 4.0f * oxygen;
constexpr float acetate = carbon + 3.0f * hydrogen + carbon + oxygen + oxygen;

// The table once more, with the molar masses as sums and as numbers to three decimals.
struct Row {
    const char* name;
    const char* formula;
    float molarMass;
    double rounded;
};

// clang-format off
constexpr Row rows[] = {
    {"copper sulfate pentahydrate", "CuSO4.5H2O",  63.55f + sulphur + 4.0f * oxygen + water * 5.0f, 249.69},
    {"cobalt chloride hexahydrate", "CoCl2.6H2O",  58.93f + 2.0f * 35.45f + water * 6.0f, 237.926},
    {"sodium chloride",             "NaCl",        22.99f + 35.45f, 58.44},
    {"potassium iodide",            "KI",          39.1f + 126.9f, 166.0},
    {"silver nitrate",              "AgNO3",       107.9f + nitrogen + 3.0f * oxygen, 169.91},
    {"iron (III) sulfate",          "Fe2(SO4)3",   2.0f * 55.85f + sulphate * 3.0f, 399.88},
    {"sodium chloride",             "NaCl",        22.99f + 35.45f, 58.44},
    {"mercury sulfide",             "HgS",         200.6f + sulphur, 232.66},
    {"ammonium nitrate",            "NH4NO3",      nitrogen + 4.0f * hydrogen + nitrogen + 3.0f * oxygen, 80.052},
    {"calcium acetate",             "Ca(CH3COO)2", 40.08f + acetate * 2.0f, 158.168},
};
// clang-format on

class SolubleTest : public testing::Test
{
protected:
    void SetUp() override
    {
        aMasses.clear();
        dissolvable.clear();
    }
    void TearDown() override
    {
        dissolvable.clear();
        aMasses.clear();
    }
};

void expectRow(const Soluble& actual, const Row& expected)
{
    EXPECT_EQ(actual.name, expected.name);
    EXPECT_EQ(actual.formula, expected.formula);
    EXPECT_EQ(actual.molarMass, expected.molarMass) << expected.formula;
}

// Rows of different substances are told by a mark that the draw has to bring along.
void numberTheRows()
{
    for (std::size_t i = 0; i < dissolvable.size(); ++i) {
        dissolvable[i].molarMass = static_cast<float>(i + 1);
    }
}

int rowDrawnBy(int value)
{
    const ScriptedDraws draws({value});
    return static_cast<int>(randomSoluble().molarMass);
}

TEST_F(SolubleTest, TableHoldsEveryCompoundInOrderWithItsMolarMass)
{
    initSolubles();
    ASSERT_EQ(dissolvable.size(), std::size(rows));
    for (std::size_t i = 0; i < dissolvable.size(); ++i) {
        SCOPED_TRACE("row " + std::to_string(i + 1));
        expectRow(dissolvable[i], rows[i]);
        EXPECT_NEAR(static_cast<double>(dissolvable[i].molarMass), rows[i].rounded, 0.0005);
    }
}

TEST_F(SolubleTest, EveryFillAppendsAllRowsOnceMore)
{
    initSolubles();
    initSolubles();
    ASSERT_EQ(dissolvable.size(), 20u);
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        expectRow(dissolvable[i + 10], rows[i]);
    }
    EXPECT_EQ(aMasses.size(), 110u);
}

TEST_F(SolubleTest, NoFormulaIsReported)
{
    EXPECT_EQ(outputOf(initSolubles), "");
}

TEST_F(SolubleTest, ConstructorTakesNameThenFormula)
{
    const Soluble salt("table salt", "NaCl");
    EXPECT_EQ(salt.name, "table salt");
    EXPECT_EQ(salt.formula, "NaCl");
    EXPECT_EQ(salt.molarMass, 22.99f + 35.45f);
    static_assert(!std::is_default_constructible_v<Soluble>);
}

TEST_F(SolubleTest, FieldsAreMassNameAndFormulaInThisOrder)
{
    const auto [molarMass, name, formula] = Soluble("water", "H2O");
    static_assert(std::is_same_v<decltype(molarMass), const float>);
    EXPECT_EQ(molarMass, water);
    EXPECT_EQ(name, "water");
    EXPECT_EQ(formula, "H2O");
}

TEST_F(SolubleTest, EveryRowCanBeDrawn)
{
    initSolubles();
    for (int row = 1; row <= 10; ++row) {
        const ScriptedDraws draws({drawOfCompound(row)});
        expectRow(randomSoluble(), rows[row - 1]);
    }
}

// The first draw of each row. Single precision rounds draws near a tenth of the range up to it: in
// double precision each row would start a little later, at the exact tenth.
TEST_F(SolubleTest, RowsStartAtTheirTenthOfTheRangeInSinglePrecision)
{
    const struct {
        int firstDraw;
        int row;
        int exactTenth;
    } cases[] = {
        {214748361, 2, 214748365},   {429496721, 3, 429496730},   {644245088, 4, 644245095},
        {858993441, 5, 858993460},   {1073741792, 6, 1073741824}, {1288490176, 7, 1288490189},
        {1503238465, 8, 1503238554}, {1717986881, 9, 1717986919}, {1932735168, 10, 1932735284},
    };
    initSolubles();
    numberTheRows();
    for (const auto& [firstDraw, row, exactTenth] : cases) {
        EXPECT_EQ(rowDrawnBy(firstDraw - 1), row - 1) << firstDraw - 1;
        EXPECT_EQ(rowDrawnBy(firstDraw), row) << firstDraw;
        EXPECT_EQ(rowDrawnBy(exactTenth - 1), row) << exactTenth - 1;
        EXPECT_EQ(rowDrawnBy(exactTenth), row) << exactTenth;
    }
}

TEST_F(SolubleTest, LargestDrawsRoundUpAndGiveTheFirstRow)
{
    initSolubles();
    numberTheRows();
    EXPECT_EQ(rowDrawnBy(0), 1);
    EXPECT_EQ(rowDrawnBy(2147483583), 10);
    EXPECT_EQ(rowDrawnBy(2147483584), 1);
    EXPECT_EQ(rowDrawnBy(2147483647), 1);
}

TEST_F(SolubleTest, DrawsCoverATableOfAnyLength)
{
    initSolubles();
    dissolvable.erase(dissolvable.begin() + 3, dissolvable.end());
    numberTheRows();
    EXPECT_EQ(rowDrawnBy(700000000), 1);
    EXPECT_EQ(rowDrawnBy(720000000), 2);
    EXPECT_EQ(rowDrawnBy(1440000000), 3);
    EXPECT_EQ(rowDrawnBy(2147483583), 3);
    EXPECT_EQ(rowDrawnBy(2147483584), 1);
}

TEST_F(SolubleTest, DrawFromTheEmptyTableThrows)
{
    const ScriptedDraws draws({1000000});
    EXPECT_THROW(randomSoluble(), std::out_of_range);
    EXPECT_TRUE(dissolvable.empty());
}

} // namespace
