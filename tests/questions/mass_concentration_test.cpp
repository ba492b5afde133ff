#include "questions/mass_concentration.hpp"

#include <gtest/gtest.h>

#include "support/compounds.hpp"
#include "support/rare_draws.hpp"
#include "support/scripted_draws.hpp"

namespace
{

class MassConcentrationTest : public WithCompounds
{
};

void expectConcentrationFromMass(const Soluble& compound, const char* question, const char* answer)
{
    const ScriptedDraws draws({0, 0});
    const QandA made = concentrationFromMass(compound);
    EXPECT_EQ(made.question, question);
    EXPECT_EQ(made.answer, answer);
}

void expectMassForConcentration(const Soluble& compound, const char* question, const char* answer)
{
    const ScriptedDraws draws({0, 0});
    const QandA made = massForConcentration(compound);
    EXPECT_EQ(made.question, question);
    EXPECT_EQ(made.answer, answer);
}

TEST_F(MassConcentrationTest, ConcentrationFromAMass)
{
    expectConcentrationFromMass(
        Soluble("sodium chloride", "NaCl"),
        "Calculate the concentration (in mol/L) if 1 g of sodium chloride is dissolved in 50 mL of "
        "water.\n",
        "m = 1 g   V = 0.05 L   C = ?\n"
        "Formula is NaCl  so M = 58.44 g/mol\n"
        "n = m/M = 1/58.4 = 0.0171 mol\n"
        "C = n/V = 0.0171/0.05 = 0.342 mol/L\n");
    expectConcentrationFromMass(
        Soluble("copper sulfate pentahydrate", "CuSO4.5H2O"),
        "Calculate the concentration (in mol/L) if 1 g of copper sulfate pentahydrate is dissolved "
        "in 50 mL of water.\n",
        "m = 1 g   V = 0.05 L   C = ?\n"
        "Formula is CuSO4.5H2O  so M = 249.69 g/mol\n"
        "n = m/M = 1/250 = 0.004 mol\n"
        "C = n/V = 0.004/0.05 = 0.0801 mol/L\n");
    expectConcentrationFromMass(
        Soluble("cobalt chloride hexahydrate", "CoCl2.6H2O"),
        "Calculate the concentration (in mol/L) if 1 g of cobalt chloride hexahydrate is dissolved "
        "in 50 mL of water.\n",
        "m = 1 g   V = 0.05 L   C = ?\n"
        "Formula is CoCl2.6H2O  so M = 237.926 g/mol\n"
        "n = m/M = 1/238 = 0.0042 mol\n"
        "C = n/V = 0.0042/0.05 = 0.0841 mol/L\n");
}

TEST_F(MassConcentrationTest, MassForAConcentration)
{
    expectMassForConcentration(
        Soluble("sodium chloride", "NaCl"),
        "Calculate the mass (in g) of sodium chloride needed to make up 50 mL of 0.34 mol/L "
        "solution.\n",
        "m = ?   V = 0.05 L   C = 0.34 mol/L\n"
        "n = CV = 0.34x0.05 = 0.0171 mol\n"
        "Formula is NaCl  so M = 58.44 g/mol\n"
        "m = nM = 0.0171x58.44 = 1 g\n");
    expectMassForConcentration(
        Soluble("copper sulfate pentahydrate", "CuSO4.5H2O"),
        "Calculate the mass (in g) of copper sulfate pentahydrate needed to make up 50 mL of 0.08 "
        "mol/L solution.\n",
        "m = ?   V = 0.05 L   C = 0.08 mol/L\n"
        "n = CV = 0.08x0.05 = 0.004 mol\n"
        "Formula is CuSO4.5H2O  so M = 249.7 g/mol\n"
        "m = nM = 0.004x249.7 = 1 g\n");
    expectMassForConcentration(
        Soluble("iron (III) sulfate", "Fe2(SO4)3"),
        "Calculate the mass (in g) of iron (III) sulfate needed to make up 50 mL of 0.05 mol/L "
        "solution.\n",
        "m = ?   V = 0.05 L   C = 0.05 mol/L\n"
        "n = CV = 0.05x0.05 = 0.0025 mol\n"
        "Formula is Fe2(SO4)3  so M = 399.9 g/mol\n"
        "m = nM = 0.0025x399.9 = 1 g\n");
}

// The masses have no room for these digits in the catalogue; the precisions have to hold all the
// same, each from its place on.
TEST_F(MassConcentrationTest, EachNumberHasItsOwnDigits)
{
    Soluble compound("benzene", "C6H6");
    compound.molarMass = 123.456789f;
    expectConcentrationFromMass(compound,
                                "Calculate the concentration (in mol/L) if 1 g of benzene is "
                                "dissolved in 50 mL of water.\n",
                                "m = 1 g   V = 0.05 L   C = ?\n"
                                "Formula is C6H6  so M = 123.457 g/mol\n"
                                "n = m/M = 1/123 = 0.0081 mol\n"
                                "C = n/V = 0.0081/0.05 = 0.162 mol/L\n");
    expectMassForConcentration(
        compound,
        "Calculate the mass (in g) of benzene needed to make up 50 mL of 0.16 mol/L solution.\n",
        "m = ?   V = 0.05 L   C = 0.16 mol/L\n"
        "n = CV = 0.16x0.05 = 0.0081 mol\n"
        "Formula is C6H6  so M = 123.5 g/mol\n"
        "m = nM = 0.0081x123.5 = 1 g\n");
}

TEST_F(MassConcentrationTest, ADrawBelowHalfAsksForTheConcentration)
{
    struct Case {
        int drawn;
        const char* begin;
    };
    const Case cases[] = {
        {0, "Calculate the concentration (in mol/L) if 1 g of potassium iodide "},
        {1073741822, "Calculate the concentration (in mol/L) if 1 g of potassium iodide "},
        {1073741823, "Calculate the mass (in g) of potassium iodide "},
        {2147483647, "Calculate the mass (in g) of potassium iodide "},
    };
    for (const Case& c : cases) {
        const ScriptedDraws draws({drawOfCompound(4), c.drawn, 0, 0});
        EXPECT_EQ(massConcentrationQuestion().question.rfind(c.begin, 0), 0U) << c.drawn;
    }
}

// Kept: 1 g and 50 mL in every question.
TEST_F(MassConcentrationTest, NoDrawChangesTheMassOrTheVolume)
{
    const Soluble compound("sodium chloride", "NaCl");
    for (const int mass : tellingDraws) {
        for (const int volume : tellingDraws) {
            SCOPED_TRACE(testing::Message() << "mass " << mass << ", volume " << volume);
            {
                const ScriptedDraws draws({mass, volume});
                const QandA made = concentrationFromMass(compound);
                EXPECT_EQ(made.answer.rfind("m = 1 g   V = 0.05 L   C = ?\n", 0), 0U);
            }
            const ScriptedDraws draws({mass, volume});
            const QandA made = massForConcentration(compound);
            EXPECT_EQ(made.answer.rfind("m = ?   V = 0.05 L   C = 0.34 mol/L\n", 0), 0U);
        }
    }
}

} // namespace
