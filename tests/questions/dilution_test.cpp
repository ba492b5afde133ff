#include "questions/dilution.hpp"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "support/catalogue.hpp"
#include "support/compounds.hpp"
#include "support/scripted_draws.hpp"

namespace
{

// 0/0 has the sign that the machine gives it: "-nan" on x86, "nan" on ARM.
std::string withoutSignOfNan(std::string text)
{
    for (std::size_t at = text.find("-nan"); at != std::string::npos; at = text.find("-nan", at)) {
        text.erase(at, 1);
    }
    return text;
}

class DilutionTest : public WithCompounds
{
};

// The draws of one question, in their order; sodium chloride unless another compound is given.
struct Draws {
    int kindOfSubstance = 0;
    std::vector<int> compounds = {drawOfCompound(3)};
    int nameOrFormula = 0;
    int V1 = 0;
    int V2 = 0;
    int C1 = 0;
    int variant = 0;
};

QandA questionOf(const Draws& draws)
{
    std::vector<int> script = {draws.kindOfSubstance};
    script.insert(script.end(), draws.compounds.begin(), draws.compounds.end());
    script.insert(script.end(), {draws.nameOrFormula, draws.V1, draws.V2, draws.C1, draws.variant});
    const ScriptedDraws scripted(script);
    return dilutionQuestion();
}

void expectText(const QandA& made, const std::string& question, const std::string& answer)
{
    EXPECT_EQ(made.question, question);
    EXPECT_EQ(made.answer, answer);
}

void expectUsualText(const QandA& made, const std::string& substance)
{
    expectText(made,
               "To dilute 10 mL of 0.1 mol/L " + substance +
                   " to 0.02 mol/L, how much water does it need to be added to?\n",
               "V1 = 0.01 L   C1 = 0.1 mol/L   C2 = 0.02 mol/L   V2 = ?\n"
               "C1V1 = C2V2\n"
               "V2 = C1V1/C2 = 0.1x0.01/0.02 = 0.05 L\n"
               "V2 - V1 = 0.05 - 0.01 = 0.04 L\n"
               "So add it to 0.04 L of water\n");
}

TEST_F(DilutionTest, AsksHowMuchWaterToAdd)
{
    expectUsualText(questionOf({}), "NaCl");
}

TEST_F(DilutionTest, AHydrateIsDrawnAgainWithoutAnyOtherDraw)
{
    Draws draws;
    draws.compounds = {drawOfCompound(1), drawOfCompound(2), drawOfCompound(1), drawOfCompound(9)};
    expectUsualText(questionOf(draws), "NH4NO3");
}

// Kept: neither of the draws between two ways ever gives the second one.
TEST_F(DilutionTest, TheSubstanceIsAlwaysTheFormulaOfACompound)
{
    for (const int drawn : {0, 1, 1 << 29, 1073741823, 1 << 30, 1073741825, 2147483647}) {
        SCOPED_TRACE(drawn);
        Draws draws;
        draws.kindOfSubstance = drawn;
        expectUsualText(questionOf(draws), "NaCl");
        draws.kindOfSubstance = 0;
        draws.nameOrFormula = drawn;
        expectUsualText(questionOf(draws), "NaCl");
    }
}

TEST_F(DilutionTest, TheVariantIsTheLastOneForEveryDrawFromZeroOn)
{
    for (const int drawn : {0, 1, 536870911, 1 << 30, 2147483647}) {
        SCOPED_TRACE(drawn);
        Draws draws;
        draws.variant = drawn;
        expectUsualText(questionOf(draws), "NaCl");
    }
}

TEST_F(DilutionTest, AGeneratorThatGaveNegativeNumbersWouldLeadToTheFirstVariant)
{
    for (const int drawn : {-1, -2147483647}) {
        Draws draws;
        draws.variant = drawn;
        EXPECT_EQ(questionOf(draws).question, "10 mL of 0.1 mol/L NaCl is added to 40 mL of water. "
                                              "What is the new concentration?\n");
    }
}

// V1 has 50 steps, V2 40, C1 60: each has few draws that give one less than the least.

TEST_F(DilutionTest, OneDrawGivesNoFirstVolume)
{
    Draws draws;
    draws.V1 = 1 << 30;
    expectText(questionOf(draws),
               "To dilute 0 mL of 0.1 mol/L NaCl to 0 mol/L, how much water does it need to be "
               "added to?\n",
               "V1 = 0 L   C1 = 0.1 mol/L   C2 = 0 mol/L   V2 = ?\n"
               "C1V1 = C2V2\n"
               "V2 = C1V1/C2 = 0.1x0/0 = 0.05 L\n"
               "V2 - V1 = 0.05 - 0 = 0.05 L\n"
               "So add it to 0.05 L of water\n");
}

TEST_F(DilutionTest, AFewDrawsGiveNoFinalVolume)
{
    for (const int drawn : {1 << 28, 3 << 28, 5 << 28, 7 << 28}) {
        Draws draws;
        draws.V2 = drawn;
        expectText(questionOf(draws),
                   "To dilute 10 mL of 0.1 mol/L NaCl to inf mol/L, how much water does it need to "
                   "be added to?\n",
                   "V1 = 0.01 L   C1 = 0.1 mol/L   C2 = inf mol/L   V2 = ?\n"
                   "C1V1 = C2V2\n"
                   "V2 = C1V1/C2 = 0.1x0.01/inf = 0 L\n"
                   "V2 - V1 = 0 - 0.01 = -0.01 L\n"
                   "So add it to -0.01 L of water\n");
    }
}

TEST_F(DilutionTest, AFewDrawsGiveNoFirstConcentration)
{
    for (const int drawn : {1 << 29, 3 << 29}) {
        Draws draws;
        draws.C1 = drawn;
        expectText(questionOf(draws),
                   "To dilute 10 mL of 0 mol/L NaCl to 0 mol/L, how much water does it need to be "
                   "added to?\n",
                   "V1 = 0.01 L   C1 = 0 mol/L   C2 = 0 mol/L   V2 = ?\n"
                   "C1V1 = C2V2\n"
                   "V2 = C1V1/C2 = 0x0.01/0 = 0.05 L\n"
                   "V2 - V1 = 0.05 - 0.01 = 0.04 L\n"
                   "So add it to 0.04 L of water\n");
    }
}

TEST_F(DilutionTest, NeitherVolumeMakesTheConcentrationNoNumber)
{
    Draws draws;
    draws.V1 = 1 << 30;
    draws.V2 = 1 << 28;
    const QandA made = questionOf(draws);
    EXPECT_EQ(withoutSignOfNan(made.question),
              "To dilute 0 mL of 0.1 mol/L NaCl to nan mol/L, how much water does it need to be "
              "added to?\n");
    EXPECT_EQ(withoutSignOfNan(made.answer), "V1 = 0 L   C1 = 0.1 mol/L   C2 = nan mol/L   V2 = ?\n"
                                             "C1V1 = C2V2\n"
                                             "V2 = C1V1/C2 = 0.1x0/nan = 0 L\n"
                                             "V2 - V1 = 0 - 0 = 0 L\n"
                                             "So add it to 0 L of water\n");
}

TEST_F(DilutionTest, NoOtherDrawChangesAQuantity)
{
    for (const int drawn : {1 << 26, 1 << 27, 1 << 29, 2147483647}) {
        Draws draws;
        draws.V1 = drawn;
        draws.V2 = drawn;
        expectUsualText(questionOf(draws), "NaCl");
    }
    for (const int drawn : {1 << 26, 1 << 27, 1 << 28, 1 << 30, 2147483647}) {
        Draws draws;
        draws.C1 = drawn;
        expectUsualText(questionOf(draws), "NaCl");
    }
}

// Quantities in the middle of their ranges, one above a litre; and some that no question has, which
// show how many digits each number gets and that nothing is worked out again.
const Dilution plain = {"HNO3", 0.5f, 2.0f, 6.0f, 1.5f};
const Dilution odd = {"sodium chloride", 0.123456f, 1.456789f, 2.345678f, 9.876543f};

TEST(DilutionVariantTest, NewConcentration)
{
    expectText(newConcentration(plain),
               "500 mL of 6 mol/L HNO3 is added to 1.5 L of water. What is the new "
               "concentration?\n",
               "V1 = 0.5 L   C1 = 6 mol/L   V2 = 0.5 + 1.5 = 2 L   C2 = ?\n"
               "C1V1 = C2V2\n"
               "C2 = C1V1/V2 = 6x0.5/2 = 1.5 mol/L\n");
    expectText(newConcentration(odd),
               "123 mL of 2.35 mol/L sodium chloride is added to 1.33 L of water. What is the new "
               "concentration?\n",
               "V1 = 0.123 L   C1 = 2.35 mol/L   V2 = 0.123 + 1.33 = 1.46 L   C2 = ?\n"
               "C1V1 = C2V2\n"
               "C2 = C1V1/V2 = 2.35x0.123/1.46 = 9.88 mol/L\n");
}

TEST(DilutionVariantTest, VolumeToDilute)
{
    expectText(
        volumeToDilute(plain),
        "How much 6 mol/L HNO3 needs to be diluted (added to water) to make 2 L of 1.5 mol/L "
        "HNO3?\n",
        "V1 = ?   C1 = 6 mol/L   V2 = 2 L   C2 = 1.5 mol/L\n"
        "C1V1 = C2V2\n"
        "V1 = C2V2/C1 = 1.5x2/6 = 0.5 L\n");
    expectText(volumeToDilute(odd),
               "How much 2.35 mol/L sodium chloride needs to be diluted (added to water) to make "
               "1.46 L of 9.88 mol/L sodium chloride?\n",
               "V1 = ?   C1 = 2.35 mol/L   V2 = 1.46 L   C2 = 9.88 mol/L\n"
               "C1V1 = C2V2\n"
               "V1 = C2V2/C1 = 9.88x1.46/2.35 = 0.123 L\n");
}

// Kept: the line of givens tells C1, asks for it all the same, and has no C2.
TEST(DilutionVariantTest, OriginalConcentration)
{
    expectText(originalConcentration(plain),
               "What was the original concentration of HNO3 if there was 500 mL before dilution "
               "and 2 L of 1.5 mol/L HNO3 afterwards?\n",
               "C1 = 6 mol/L   V1 = 0.5 L   V2 = 2 L   C1 = ?\n"
               "C1V1 = C2V2\n"
               "C1 = C2V2/V1 = 1.5x2/0.5 = 6 mol/L\n");
    expectText(originalConcentration(odd),
               "What was the original concentration of sodium chloride if there was 123 mL before "
               "dilution and 1.46 L of 9.88 mol/L sodium chloride afterwards?\n",
               "C1 = 2.35 mol/L   V1 = 0.123 L   V2 = 1.46 L   C1 = ?\n"
               "C1V1 = C2V2\n"
               "C1 = C2V2/V1 = 9.88x1.46/0.123 = 2.35 mol/L\n");
}

TEST(DilutionVariantTest, WaterToAdd)
{
    expectText(waterToAdd(plain),
               "To dilute 500 mL of 6 mol/L HNO3 to 1.5 mol/L, how much water does it need to be "
               "added to?\n",
               "V1 = 0.5 L   C1 = 6 mol/L   C2 = 1.5 mol/L   V2 = ?\n"
               "C1V1 = C2V2\n"
               "V2 = C1V1/C2 = 6x0.5/1.5 = 2 L\n"
               "V2 - V1 = 2 - 0.5 = 1.5 L\n"
               "So add it to 1.5 L of water\n");
    expectText(waterToAdd(odd),
               "To dilute 123 mL of 2.35 mol/L sodium chloride to 9.88 mol/L, how much water does "
               "it need to be added to?\n",
               "V1 = 0.123 L   C1 = 2.35 mol/L   C2 = 9.88 mol/L   V2 = ?\n"
               "C1V1 = C2V2\n"
               "V2 = C1V1/C2 = 2.35x0.123/9.88 = 1.46 L\n"
               "V2 - V1 = 1.46 - 0.123 = 1.33 L\n"
               "So add it to 1.33 L of water\n");
}

TEST(DilutionVariantTest, AVolumeAboveOneLitreIsInLitres)
{
    const Dilution large = {"KI", 1.25f, 2.5f, 2.0f, 1.0f};
    EXPECT_EQ(newConcentration(large).question, "1.25 L of 2 mol/L KI is added to 1.25 L of water. "
                                                "What is the new concentration?\n");
    EXPECT_EQ(waterToAdd(large).question, "To dilute 1.25 L of 2 mol/L KI to 1 mol/L, how much "
                                          "water does it need to be added to?\n");
}

TEST(DesignationTest, AnAcidByItsNameOrItsFormula)
{
    struct Case {
        const char* anion;
        const char* name;
        const char* formula;
    };
    const Case cases[] = {
        {"bromide", "hydrobromic acid", "HBr"},  {"iodide", "hydroiodic acid", "HI"},
        {"fluoride", "hydrofluoric acid", "HF"}, {"chloride", "hydrochloric acid", "HCl"},
        {"nitrate", "nitric acid", "HNO3"},      {"phosphate", "phosphoric acid", "H3PO4"},
        {"sulphate", "sulphuric acid", "H2SO4"}, {"carbonate", "carbonic acid", "H2CO3"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(acidDesignation(ionCalled(c.anion), true), c.name);
        EXPECT_EQ(acidDesignation(ionCalled(c.anion), false), c.formula);
    }
}

TEST(DesignationTest, ACompoundByItsNameOrItsFormula)
{
    const Soluble compound("iron (III) sulfate", "Fe2(SO4)3");
    EXPECT_EQ(compoundDesignation(compound, true), "iron (III) sulfate");
    EXPECT_EQ(compoundDesignation(compound, false), "Fe2(SO4)3");
}

TEST_F(DilutionTest, AnhydrousCompoundsTakeOneDrawHydratesAnother)
{
    for (int row = 3; row <= 10; ++row) {
        const ScriptedDraws draws({drawOfCompound(1), drawOfCompound(2), drawOfCompound(row)});
        EXPECT_EQ(drawAnhydrousCompound().name,
                  dissolvable[static_cast<std::size_t>(row - 1)].name);
    }
    const ScriptedDraws draws({drawOfCompound(10)});
    EXPECT_EQ(drawAnhydrousCompound().name, "calcium acetate");
}

TEST_F(DilutionTest, OnlyTheLastSevenLettersOfANameTellAHydrate)
{
    dissolvable = {Soluble("hydrate", "H2O"), Soluble("chloral Hydrate", "C2H3Cl3O2")};
    const int first = 0;
    const int second = 1 << 30;
    {
        const ScriptedDraws draws({first, first, second});
        EXPECT_EQ(drawAnhydrousCompound().name, "chloral Hydrate");
    }
    dissolvable[1].name = "hydrate of sodium";
    const ScriptedDraws draws({first, second});
    EXPECT_EQ(drawAnhydrousCompound().name, "hydrate of sodium");
}

TEST_F(DilutionTest, ANameOfFewerThanSevenLettersThrows)
{
    for (const char* name : {"saline", "hydrat", "salt", ""}) {
        dissolvable = {Soluble(name, "NaCl")};
        const ScriptedDraws draws({0});
        EXPECT_THROW(drawAnhydrousCompound(), std::out_of_range) << name;
    }
}

TEST_F(DilutionTest, NoCompoundsThrow)
{
    dissolvable.clear();
    const ScriptedDraws draws({0});
    EXPECT_THROW(drawAnhydrousCompound(), std::out_of_range);
}

// Steps of 5 hundredths of a litre; whole numbers leave no doubt where a step is full.
TEST(LeastFinalVolumeTest, IsOneStepAboveTheFullStepsOfTheFirstVolume)
{
    for (int hundredths = 0; hundredths <= 50; ++hundredths) {
        const auto V1 = static_cast<float>(static_cast<double>(hundredths) * 0.01);
        EXPECT_EQ(leastFinalVolume(V1), 1 + hundredths / 5) << V1 << " L";
    }
}

TEST(LeastFinalVolumeTest, SinglePrecisionMatters)
{
    // In double precision these two would be one step less.
    EXPECT_EQ(leastFinalVolume(0.35f), 8);
    EXPECT_EQ(leastFinalVolume(0.45f), 10);
    EXPECT_EQ(leastFinalVolume(0.2f), 5);
    EXPECT_EQ(leastFinalVolume(0.19f), 4);
    EXPECT_EQ(leastFinalVolume(0.5f), 11);
}

TEST(LeastFinalVolumeTest, AStepIsNotFullShortlyBeforeItsEnd)
{
    EXPECT_EQ(leastFinalVolume(0.0499f), 1);
    EXPECT_EQ(leastFinalVolume(0.0999f), 2);
    EXPECT_EQ(leastFinalVolume(0.4999f), 10);
}

} // namespace
