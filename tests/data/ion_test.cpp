#include "data/ion.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

#include "data/tables.hpp"
#include "support/atom_count.hpp"
#include "support/catalogue.hpp"
#include "support/neutral_compound.hpp"
#include "support/scripted_draws.hpp"

namespace
{

// The table once more, with the charged formulas: to be read against the program's own.
struct Row {
    const char* name;
    const char* formula;
    bool negative;
    short charge;
    bool polyatomic;
    const char* acidName;
    const char* charged;
};

// clang-format off
constexpr Row rows[] = {
    {"bromide",     "Br",   true,  1, false, "hydrobromic", "Br-"},
    {"barium",      "Ba",   false, 2, false, "", "Ba2+"},
    {"iodide",      "I",    true,  1, false, "hydroiodic", "I-"},
    {"manganese",   "Mn",   false, 2, false, "", "Mn2+"},
    {"iron",        "Fe",   false, 2, false, "", "Fe2+"},
    {"iron(II)",    "Fe",   false, 2, false, "", "Fe2+"},
    {"iron(III)",   "Fe",   false, 3, false, "", "Fe3+"},
    {"copper",      "Cu",   false, 2, false, "", "Cu2+"},
    {"copper(II)",  "Cu",   false, 2, false, "", "Cu2+"},
    {"copper(III)", "Cu",   false, 3, false, "", "Cu3+"},
    {"cobalt",      "Co",   false, 2, false, "", "Co2+"},
    {"nickel",      "Ni",   false, 2, false, "", "Ni2+"},
    {"zinc",        "Zn",   false, 2, false, "", "Zn2+"},
    {"cadmium",     "Cd",   false, 2, false, "", "Cd2+"},
    {"tin(II)",     "Sn",   false, 2, false, "", "Sn2+"},
    {"gold",        "Au",   false, 2, false, "", "Au2+"},
    {"mercury",     "Hg",   false, 2, false, "", "Hg2+"},
    {"lead(II)",    "Pb",   false, 2, false, "", "Pb2+"},
    {"chromium",    "Cr",   false, 3, false, "", "Cr3+"},
    {"silver",      "Ag",   false, 1, false, "", "Ag+"},
    {"lithium",     "Li",   false, 1, false, "", "Li+"},
    {"beryllium",   "Be",   false, 2, false, "", "Be2+"},
    {"nitride",     "N",    true,  3, false, "", "N3-"},
    {"oxide",       "O",    true,  2, false, "", "O2-"},
    {"fluoride",    "F",    true,  1, false, "hydrofluoric", "F-"},
    {"sodium",      "Na",   false, 1, false, "", "Na+"},
    {"magnesium",   "Mg",   false, 2, false, "", "Mg2+"},
    {"aluminium",   "Al",   false, 3, false, "", "Al3+"},
    {"phosphide",   "P",    true,  3, false, "", "P3-"},
    {"sulfide",     "S",    true,  2, false, "", "S2-"},
    {"chloride",    "Cl",   true,  1, false, "hydrochloric", "Cl-"},
    {"potassium",   "K",    false, 1, false, "", "K+"},
    {"nitrate",     "NO3",  true,  1, true,  "nitric", "NO3-"},
    {"phosphate",   "PO4",  true,  3, true,  "phosphoric", "PO43-"},
    {"sulphate",    "SO4",  true,  2, true,  "sulphuric", "SO42-"},
    {"hydroxide",   "OH",   true,  1, true,  "", "OH-"},
    {"carbonate",   "CO3",  true,  2, true,  "carbonic", "CO32-"},
    {"ammonium",    "NH4",  false, 1, true,  "", "NH4+"},
    {"bicarbonate", "HCO3", true,  1, true,  "", "HCO3-"},
};
// clang-format on
constexpr int rowCount = 39;

class IonTest : public testing::Test
{
protected:
    void SetUp() override
    {
        std::vector<Ion>().swap(ion);
    }
    void TearDown() override
    {
        ion.clear();
    }
};

void expectRow(const Ion& actual, const Row& expected)
{
    EXPECT_EQ(actual.name, expected.name);
    EXPECT_EQ(actual.formula, expected.formula) << expected.name;
    EXPECT_EQ(actual.negative, expected.negative) << expected.name;
    EXPECT_EQ(actual.charge, expected.charge) << expected.name;
    EXPECT_EQ(actual.polyatomic, expected.polyatomic) << expected.name;
    EXPECT_EQ(actual.acidName, expected.acidName) << expected.name;
}

Ion withCharge(short charge)
{
    return Ion("ion", "X", false, charge, false, "");
}

Ion groupWithCharge(short charge)
{
    return Ion("group", "XO", false, charge, true, "");
}

TEST_F(IonTest, TableHoldsEveryIonInOrder)
{
    initIons();
    ASSERT_EQ(ion.size(), std::size(rows));
    for (std::size_t i = 0; i < ion.size(); ++i) {
        SCOPED_TRACE("row " + std::to_string(i + 1));
        expectRow(ion[i], rows[i]);
    }
}

TEST_F(IonTest, EveryFillAppendsAllRowsOnceMore)
{
    initIons();
    initIons();
    ASSERT_EQ(ion.size(), 78u);
    EXPECT_EQ(ion[39].name, "bromide");
    EXPECT_EQ(ion[77].name, "bicarbonate");
}

TEST_F(IonTest, DefaultIonIsNamelessAndHasCharge1)
{
    const Ion none;
    EXPECT_EQ(none.name, "");
    EXPECT_FALSE(none.negative);
    EXPECT_EQ(none.formula, "");
    EXPECT_EQ(none.charge, 1);
    EXPECT_FALSE(none.polyatomic);
    EXPECT_EQ(none.acidName, "");
}

TEST_F(IonTest, FieldsStandInAnotherOrderThanTheArguments)
{
    const auto [name, negative, formula, charge, polyatomic, acidName] =
        Ion("a name", "a formula", true, 3, false, "an acid");
    static_assert(std::is_same_v<decltype(negative), const bool>);
    static_assert(std::is_same_v<decltype(charge), const short>);
    EXPECT_EQ(name, "a name");
    EXPECT_TRUE(negative);
    EXPECT_EQ(formula, "a formula");
    EXPECT_EQ(charge, 3);
    EXPECT_FALSE(polyatomic);
    EXPECT_EQ(acidName, "an acid");
}

TEST_F(IonTest, ChargedFormulaOfEveryIon)
{
    initIons();
    for (std::size_t i = 0; i < ion.size(); ++i) {
        EXPECT_EQ(ion[i].makeFormula(), rows[i].charged) << rows[i].name;
    }
}

TEST_F(IonTest, ChargedFormulaWritesOnlyTheDigits2And3)
{
    const struct {
        short charge;
        const char* expected;
    } cases[] = {{-2, "X+"}, {0, "X+"}, {1, "X+"}, {2, "X2+"}, {3, "X3+"}, {4, "X+"}, {12, "X+"}};
    for (const auto& [charge, expected] : cases) {
        EXPECT_EQ(withCharge(charge).makeFormula(), expected) << charge;
    }
    EXPECT_EQ(Ion().makeFormula(), "+");
}

TEST_F(IonTest, SubscriptIsThePartnersChargeCrossedOver)
{
    // Own charge, partner's charge, subscript.
    const struct {
        short own;
        short partner;
        int expected;
    } cases[] = {
        {1, 1, 1}, {1, 2, 2}, {1, 3, 3}, {1, 4, 1}, {1, 5, 1},  {2, 1, 1}, {2, 2, 1},  {2, 3, 3},
        {2, 4, 1}, {3, 1, 1}, {3, 2, 2}, {3, 3, 1}, {3, 4, 1},  {4, 1, 1}, {4, 2, 1},  {4, 3, 3},
        {4, 4, 1}, {5, 2, 2}, {5, 3, 3}, {5, 4, 1}, {-2, 2, 2}, {0, 3, 3}, {2, -2, 1}, {3, 0, 1},
    };
    for (const auto& [own, partner, expected] : cases) {
        EXPECT_EQ(withCharge(own).getSubscript(withCharge(partner)), expected)
            << own << " against " << partner;
    }
    EXPECT_EQ(ionCalled("sodium").getSubscript(ionCalled("sulphate")), 2);
    EXPECT_EQ(ionCalled("sulphate").getSubscript(ionCalled("sodium")), 1);
    EXPECT_EQ(ionCalled("aluminium").getSubscript(ionCalled("oxide")), 2);
    EXPECT_EQ(ionCalled("oxide").getSubscript(ionCalled("aluminium")), 3);
    EXPECT_EQ(Ion().getSubscript(ionCalled("sodium")), 1);
    EXPECT_EQ(ionCalled("sodium").getSubscript(Ion()), 1);
}

TEST_F(IonTest, CompoundFormulas)
{
    const struct {
        const char* cation;
        const char* anion;
        const char* expected;
    } cases[] = {
        {"sodium", "chloride", "NaCl"},         {"barium", "chloride", "BaCl2"},
        {"aluminium", "oxide", "Al2O3"},        {"barium", "hydroxide", "Ba(OH)2"},
        {"aluminium", "hydroxide", "Al(OH)3"},  {"aluminium", "sulphate", "Al2(SO4)3"},
        {"barium", "phosphate", "Ba3(PO4)2"},   {"ammonium", "sulphate", "(NH4)2SO4"},
        {"ammonium", "phosphate", "(NH4)3PO4"}, {"ammonium", "nitrate", "NH4NO3"},
        {"ammonium", "oxide", "(NH4)2O"},       {"barium", "carbonate", "BaCO3"},
        {"barium", "bicarbonate", "Ba(HCO3)2"}, {"iron(III)", "carbonate", "Fe2(CO3)3"},
        {"iron(III)", "oxide", "Fe2O3"},        {"magnesium", "nitride", "Mg3N2"},
        {"aluminium", "phosphate", "AlPO4"},
    };
    for (const auto& [cation, anion, expected] : cases) {
        EXPECT_EQ(makeFormula(ionCalled(cation), ionCalled(anion)), expected);
    }
}

TEST_F(IonTest, CompoundFormulasOfChargesOutsideTheTable)
{
    // Charges of the first and of the second ion; both ions are groups.
    const struct {
        short first;
        short second;
        const char* expected;
    } cases[] = {
        {4, 4, "XOXO"},      {1, 4, "(XO)XO"},     {4, 1, "XO(XO)"},  {2, 4, "(XO)(XO)2"},
        {4, 2, "(XO)2(XO)"}, {3, 4, "(XO)(XO)3"},  {0, 1, "XOXO"},    {1, 0, "XOXO"},
        {-1, 2, "(XO)2XO"},  {2, -1, "XO(XO)2"},   {-2, -3, "XOXO"},  {-2, -2, "XOXO"},
        {-2, 2, "(XO)2XO"},  {2, 3, "(XO)3(XO)2"}, {0, 3, "(XO)3XO"},
    };
    for (const auto& [first, second, expected] : cases) {
        EXPECT_EQ(makeFormula(groupWithCharge(first), groupWithCharge(second)), expected)
            << first << " with " << second;
    }
}

TEST_F(IonTest, EveryPairIsNeutralInLowestTermsWithBracketsOnlyWhereNeeded)
{
    int pairs = 0;
    for (const Ion& first : catalogueIons()) {
        for (const Ion& second : catalogueIons()) {
            const std::string formula = makeFormula(first, second);
            EXPECT_EQ(formula, neutralCompound(first, second));
            EXPECT_EQ(first.getSubscript(second), timesIn(first, second)) << formula;

            std::map<std::string, int> atoms;
            addAtoms(atoms, timesIn(first, second), first.formula);
            addAtoms(atoms, timesIn(second, first), second.formula);
            EXPECT_EQ(countAtoms(formula), atoms) << formula;
            ++pairs;
        }
    }
    EXPECT_EQ(pairs, 39 * 39);
}

TEST_F(IonTest, FirstDrawFillsTheTableAndLaterDrawsDoNot)
{
    for (const auto draw : {randomIon, randomNeg, randomPos}) {
        ion.clear();
        {
            const ScriptedDraws draws({draw == randomPos ? 2 : 1});
            draw();
        }
        EXPECT_EQ(ion.size(), 39u);
        {
            const ScriptedDraws draws({1, 1, 2});
            randomIon();
            randomNeg();
            randomPos();
        }
        ASSERT_EQ(ion.size(), 39u);
        expectRow(ion.front(), rows[0]);
        expectRow(ion.back(), rows[38]);
    }
}

TEST_F(IonTest, RemainderOfADrawIsTheRow)
{
    for (int row = 1; row < rowCount; ++row) {
        for (const int multiple : {0, 1, 2, 1000, 55063682}) {
            const ScriptedDraws draws({multiple * rowCount + row});
            expectRow(randomIon(), rows[row - 1]);
        }
    }
}

TEST_F(IonTest, LargestDrawIsRow10)
{
    const ScriptedDraws draws({2147483647});
    expectRow(randomIon(), rows[9]);
}

TEST_F(IonTest, MultiplesOfTheRowCountAreDrawnAgain)
{
    for (const int multiple : {0, 39, 78, 39000, 2147483637}) {
        const ScriptedDraws draws({multiple, 5});
        expectRow(randomIon(), rows[4]);
    }
    const ScriptedDraws draws({0, 39, 0, 2147483637, 38});
    expectRow(randomIon(), rows[37]);
}

TEST_F(IonTest, EveryAnionButTheLastCanBeDrawn)
{
    std::set<std::string> drawn;
    for (int row = 1; row < rowCount; ++row) {
        if (rows[row - 1].negative) {
            const ScriptedDraws draws({row});
            const Ion anion = randomNeg();
            expectRow(anion, rows[row - 1]);
            drawn.insert(anion.name);
        }
    }
    EXPECT_EQ(drawn.size(), 13u);
    EXPECT_EQ(drawn.count("bicarbonate"), 0u);
}

TEST_F(IonTest, EveryCationCanBeDrawn)
{
    std::set<std::string> drawn;
    for (int row = 1; row < rowCount; ++row) {
        if (!rows[row - 1].negative) {
            const ScriptedDraws draws({row});
            const Ion cation = randomPos();
            expectRow(cation, rows[row - 1]);
            drawn.insert(cation.name);
        }
    }
    EXPECT_EQ(drawn.size(), 25u);
}

TEST_F(IonTest, IonsOfTheOtherSignAreDrawnAgain)
{
    // All that comes before bromide, and before barium, is of the other sign or no row.
    {
        const ScriptedDraws draws({2, 38, 0, 39, 28, 1});
        expectRow(randomNeg(), rows[0]);
    }
    {
        const ScriptedDraws draws({1, 37, 0, 39, 23, 2});
        expectRow(randomPos(), rows[1]);
    }
}

} // namespace
