#include "questions/acid_base.hpp"

#include <gtest/gtest.h>

#include <string>

#include "chem/balance.hpp"
#include "data/tables.hpp"
#include "support/reaction.hpp"
#include "support/scripted_draws.hpp"

namespace
{

// The ion table is filled by the first draw after this.
class AcidBaseDrawTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ion.clear();
    }
    void TearDown() override
    {
        ion.clear();
    }
};

constexpr const char* excuse = "No equation.";

std::string equationOf(const char* acidAnion, const char* baseCation, const char* baseAnion)
{
    return equationLine(reactionOf(acidAnion, baseCation, baseAnion), excuse);
}

TEST(AcidBaseTest, NamesAndFormulas)
{
    struct Case {
        const char* acidAnion;
        const char* baseCation;
        const char* baseAnion;
        const char* acidName;
        const char* acidFormula;
        const char* baseName;
        const char* baseFormula;
        const char* saltFormula;
    };
    // clang-format off
    const Case cases[] = {
        {"chloride",  "sodium",    "hydroxide",   "hydrochloric acid", "HCl",   "sodium hydroxide",    "NaOH",       "NaCl"},
        {"sulphate",  "iron(III)", "hydroxide",   "sulphuric acid",    "H2SO4", "iron(III) hydroxide", "Fe(OH)3",    "Fe2(SO4)3"},
        {"nitrate",   "aluminium", "oxide",       "nitric acid",       "HNO3",  "aluminium oxide",     "Al2O3",      "Al(NO3)3"},
        {"phosphate", "ammonium",  "carbonate",   "phosphoric acid",   "H3PO4", "ammonium carbonate",  "(NH4)2CO3",  "(NH4)3PO4"},
        {"carbonate", "ammonium",  "oxide",       "carbonic acid",     "H2CO3", "ammonium oxide",      "(NH4)2O",    "(NH4)2CO3"},
        {"bromide",   "ammonium",  "hydroxide",   "hydrobromic acid",  "HBr",   "ammonium hydroxide",  "NH4OH",      "NH4Br"},
        {"sulphate",  "magnesium", "bicarbonate", "sulphuric acid",    "H2SO4", "magnesium bicarbonate", "Mg(HCO3)2", "MgSO4"},
    };
    // clang-format on
    for (const Case& c : cases) {
        const Neutralisation made = reactionOf(c.acidAnion, c.baseCation, c.baseAnion);
        SCOPED_TRACE(std::string(c.acidName) + ", " + c.baseName);
        EXPECT_EQ(made.acidAnion.name, c.acidAnion);
        EXPECT_EQ(made.baseCation.name, c.baseCation);
        EXPECT_EQ(made.baseAnion.name, c.baseAnion);
        EXPECT_EQ(made.acidName, c.acidName);
        EXPECT_EQ(made.acidFormula, c.acidFormula);
        EXPECT_EQ(made.baseName, c.baseName);
        EXPECT_EQ(made.baseFormula, c.baseFormula);
        EXPECT_EQ(made.saltFormula, c.saltFormula);
    }
}

TEST(AcidBaseTest, AnAcidsFormulaHasItsChargeFromTwoOnAndNoBrackets)
{
    EXPECT_EQ(acidFormulaOf(ionCalled("bromide")), "HBr");
    EXPECT_EQ(acidFormulaOf(ionCalled("nitrate")), "HNO3");
    EXPECT_EQ(acidFormulaOf(ionCalled("carbonate")), "H2CO3");
    EXPECT_EQ(acidFormulaOf(ionCalled("phosphate")), "H3PO4");
    EXPECT_EQ(acidFormulaOf(Ion("silicate", "SiO4", true, 4, true, "silicic")), "H4SiO4");
}

TEST(EquationTest, ACoefficientOfOneIsNotWrittenNorIsNoCarbonDioxide)
{
    struct Case {
        const char* acidAnion;
        const char* baseCation;
        const char* baseAnion;
        const char* expected;
    };
    // clang-format off
    const Case cases[] = {
        {"chloride",  "sodium",    "hydroxide",   "HCl + NaOH -> NaCl + H2O\n"},
        {"sulphate",  "sodium",    "hydroxide",   "H2SO4 + 2NaOH -> Na2SO4 + 2H2O\n"},
        {"chloride",  "sodium",    "carbonate",   "2HCl + Na2CO3 -> 2NaCl + H2O + CO2\n"},
        {"phosphate", "aluminium", "oxide",       "2H3PO4 + Al2O3 -> 2AlPO4 + 3H2O\n"},
        {"nitrate",   "aluminium", "oxide",       "6HNO3 + Al2O3 -> 2Al(NO3)3 + 3H2O\n"},
        {"nitrate",   "iron(III)", "hydroxide",   "3HNO3 + Fe(OH)3 -> Fe(NO3)3 + 3H2O\n"},
        {"carbonate", "ammonium",  "hydroxide",   "H2CO3 + 2NH4OH -> (NH4)2CO3 + 2H2O\n"},
        {"carbonate", "magnesium", "carbonate",   "H2CO3 + MgCO3 -> MgCO3 + H2O + CO2\n"},
        {"sulphate",  "aluminium", "carbonate",   "3H2SO4 + Al2(CO3)3 -> Al2(SO4)3 + 3H2O + 3CO2\n"},
        {"sulphate",  "sodium",    "bicarbonate", "H2SO4 + 2NaHCO3 -> Na2SO4 + 2H2O + 2CO2\n"},
        {"phosphate", "magnesium", "hydroxide",   "2H3PO4 + 3Mg(OH)2 -> Mg3(PO4)2 + 6H2O\n"},
    };
    // clang-format on
    for (const Case& c : cases) {
        EXPECT_EQ(equationOf(c.acidAnion, c.baseCation, c.baseAnion), c.expected);
    }
}

TEST(EquationTest, OneThatCannotBeBalancedIsTheExcuse)
{
    EXPECT_EQ(equationOf("chloride", "sodium", "sulfide"), "No equation.\n");
    EXPECT_EQ(equationOf("sulphate", "aluminium", "chloride"), "No equation.\n");
}

TEST(EquationTest, LeavesItsCoefficientsBehind)
{
    equationOf("phosphate", "magnesium", "carbonate");
    EXPECT_EQ(nacid, 2);
    EXPECT_EQ(nbase, 3);
    EXPECT_EQ(nsalt, 1);
    EXPECT_EQ(nH2O, 3);
    EXPECT_EQ(nCO2, 3);
}

TEST_F(AcidBaseDrawTest, TheAcidAnionIsTheFirstThatHasAnAcid)
{
    const struct {
        int row;
        const char* acidName;
    } cases[] = {
        {1, "hydrobromic"}, {3, "hydroiodic"},  {25, "hydrofluoric"}, {31, "hydrochloric"},
        {33, "nitric"},     {34, "phosphoric"}, {35, "sulphuric"},    {37, "carbonic"},
    };
    for (const auto& c : cases) {
        const ScriptedDraws draws({drawOfIon(c.row)});
        EXPECT_EQ(drawAcidAnion().acidName, c.acidName);
    }
    // Cations, anions without an acid, and draws that give no row are passed over.
    const ScriptedDraws draws({
        drawOfIon(2),
        drawOfIon(23),
        drawOfIon(24),
        0,
        drawOfIon(29),
        drawOfIon(30),
        39,
        drawOfIon(36),
        drawOfIon(38),
        drawOfIon(33),
    });
    EXPECT_EQ(drawAcidAnion().acidName, "nitric");
}

TEST_F(AcidBaseDrawTest, AcidAnionThenBaseCationThenBaseAnion)
{
    const ScriptedDraws draws({drawOfIon(35), drawOfIon(7), drawOfIon(36)});
    const Neutralisation drawn = drawNeutralisation();
    EXPECT_EQ(drawn.acidName, "sulphuric acid");
    EXPECT_EQ(drawn.baseName, "iron(III) hydroxide");
}

TEST_F(AcidBaseDrawTest, EachIsDrawnUntilItSuits)
{
    const ScriptedDraws draws({drawOfIon(24), drawOfIon(26), drawOfIon(34), // the acid anion
                               drawOfIon(36), drawOfIon(33), drawOfIon(28), // the base cation
                               drawOfIon(1), drawOfIon(3), drawOfIon(23), drawOfIon(25),
                               drawOfIon(29), drawOfIon(30), drawOfIon(31), drawOfIon(33),
                               drawOfIon(34), drawOfIon(35), drawOfIon(2), drawOfIon(24)});
    const Neutralisation drawn = drawNeutralisation();
    EXPECT_EQ(drawn.acidName, "phosphoric acid");
    EXPECT_EQ(drawn.baseName, "aluminium oxide");
}

TEST_F(AcidBaseDrawTest, HydroxideCarbonateAndOxideMakeABase)
{
    const struct {
        int row;
        const char* baseName;
    } cases[] = {{36, "sodium hydroxide"}, {37, "sodium carbonate"}, {24, "sodium oxide"}};
    for (const auto& c : cases) {
        const ScriptedDraws draws({drawOfIon(31), drawOfIon(26), drawOfIon(c.row)});
        EXPECT_EQ(drawNeutralisation().baseName, c.baseName);
    }
}

TEST_F(AcidBaseDrawTest, BicarbonateWouldMakeABaseIfItWereNotTheLastRow)
{
    ion = {ionCalled("chloride"), ionCalled("sodium"), ionCalled("bicarbonate"),
           ionCalled("oxide")};
    const ScriptedDraws draws({1, 2, 3});
    EXPECT_EQ(drawNeutralisation().baseName, "sodium bicarbonate");
}

} // namespace
