#include "questions/titration.hpp"

#include <gtest/gtest.h>

#include <string>

#include "support/rare_draws.hpp"
#include "support/reaction.hpp"
#include "support/scripted_draws.hpp"

namespace
{

constexpr int firstWay = 0;           // below every threshold
constexpr int secondWay = 2147483647; // above every threshold

// The draws behind the acid and the base, in their order.
struct Draws {
    int aliquot = secondWay;
    int titre = 0;
    int concentration = 0;
    int known = secondWay;
    int titreSide = firstWay;
};

QandA questionOf(const Neutralisation& reaction, const Draws& draws)
{
    const ScriptedDraws script(
        {draws.aliquot, draws.titre, draws.concentration, draws.known, draws.titreSide});
    return titrationQuestion(reaction);
}

Neutralisation hydrochloricAndSodiumHydroxide()
{
    return reactionOf("chloride", "sodium", "hydroxide");
}

TEST(TitrationTest, TheAcidIsKnown)
{
    Draws draws;
    draws.known = secondWay;
    draws.titreSide = firstWay;
    const QandA made = questionOf(hydrochloricAndSodiumHydroxide(), draws);
    EXPECT_EQ(made.question,
              "Calculate the concentration of sodium hydroxide if 5 mL of it neutralises 20 mL of "
              "0.01 mol/L hydrochloric acid.\n");
    EXPECT_EQ(made.answer,
              "Solution of known concentration is HCl, unknown is NaOH\n"
              "V(NaOH) = 0.005 L   V(HCl) = 0.02 L   C(HCl) = 0.01 mol/L   C(NaOH) = ?\n"
              "n(HCl) = C(HCl) x V(HCl) = 0.01x0.02 = 0.0002 mol\n"
              "HCl + NaOH -> NaCl + H2O\n"
              "Mole ratio n(HCl) : n(NaOH)  is 1:1\n"
              "n(NaOH) = 0.0002 x 1/1 = 0.0002 mol\n"
              "C(NaOH) = n(NaOH) / V(NaOH) = 0.0002 / 0.005 = 0.04 mol/L\n");
}

// Kept: the mole ratio is base over acid although the acid is the unknown.
TEST(TitrationTest, TheBaseIsKnown)
{
    Draws draws;
    draws.aliquot = firstWay;
    draws.known = firstWay;
    draws.titreSide = secondWay;
    const QandA made = questionOf(reactionOf("sulphate", "sodium", "hydroxide"), draws);
    EXPECT_EQ(made.question,
              "Calculate the concentration of sulphuric acid if 25 mL of it is neutralised by 5 mL "
              "of 0.01 mol/L sodium hydroxide.\n");
    EXPECT_EQ(made.answer,
              "Solution of known concentration is NaOH, unknown is H2SO4\n"
              "V(H2SO4) = 0.025 L   V(NaOH) = 0.005 L   C(NaOH) = 0.01 mol/L   C(H2SO4) = ?\n"
              "n(NaOH) = C(NaOH) x V(NaOH) = 0.01x0.005 = 5e-05 mol\n"
              "H2SO4 + 2NaOH -> Na2SO4 + 2H2O\n"
              "Mole ratio n(H2SO4) : n(NaOH)  is 1:2\n"
              "n(H2SO4) = 5e-05 x 2/1 = 0.0001 mol\n"
              "C(H2SO4) = n(H2SO4) / V(H2SO4) = 0.0001 / 0.025 = 0.004 mol/L\n");
}

TEST(TitrationTest, ARatioOfTwoToThreeIsShownToThreeDigits)
{
    const QandA made = questionOf(reactionOf("phosphate", "magnesium", "carbonate"), {});
    EXPECT_EQ(made.question,
              "Calculate the concentration of magnesium carbonate if 5 mL of it neutralises 20 mL "
              "of 0.01 mol/L phosphoric acid.\n");
    EXPECT_EQ(made.answer,
              "Solution of known concentration is H3PO4, unknown is MgCO3\n"
              "V(MgCO3) = 0.005 L   V(H3PO4) = 0.02 L   C(H3PO4) = 0.01 mol/L   C(MgCO3) = ?\n"
              "n(H3PO4) = C(H3PO4) x V(H3PO4) = 0.01x0.02 = 0.0002 mol\n"
              "2H3PO4 + 3MgCO3 -> Mg3(PO4)2 + 3H2O + 3CO2\n"
              "Mole ratio n(H3PO4) : n(MgCO3)  is 2:3\n"
              "n(MgCO3) = 0.0002 x 3/2 = 0.0003 mol\n"
              "C(MgCO3) = n(MgCO3) / V(MgCO3) = 0.0003 / 0.005 = 0.06 mol/L\n");
}

TEST(TitrationTest, AThirdIsRoundedToThreeDigits)
{
    const QandA made = questionOf(reactionOf("nitrate", "iron(III)", "hydroxide"), {});
    EXPECT_EQ(made.answer,
              "Solution of known concentration is HNO3, unknown is Fe(OH)3\n"
              "V(Fe(OH)3) = 0.005 L   V(HNO3) = 0.02 L   C(HNO3) = 0.01 mol/L   C(Fe(OH)3) = ?\n"
              "n(HNO3) = C(HNO3) x V(HNO3) = 0.01x0.02 = 0.0002 mol\n"
              "3HNO3 + Fe(OH)3 -> Fe(NO3)3 + 3H2O\n"
              "Mole ratio n(HNO3) : n(Fe(OH)3)  is 3:1\n"
              "n(Fe(OH)3) = 0.0002 x 1/3 = 6.67e-05 mol\n"
              "C(Fe(OH)3) = n(Fe(OH)3) / V(Fe(OH)3) = 6.67e-05 / 0.005 = 0.0133 mol/L\n");
}

// The warning replaces the equation alone; the coefficients are those of the last attempt.
TEST(TitrationTest, AReactionThatCannotBeBalancedHasAWarningAndGoesOn)
{
    const QandA made = questionOf(reactionOf("chloride", "sodium", "sulfide"), {});
    EXPECT_EQ(made.question,
              "Calculate the concentration of sodium sulfide if 5 mL of it neutralises 20 mL of "
              "0.01 mol/L hydrochloric acid.\n");
    EXPECT_EQ(made.answer,
              "Solution of known concentration is HCl, unknown is Na2S\n"
              "V(Na2S) = 0.005 L   V(HCl) = 0.02 L   C(HCl) = 0.01 mol/L   C(Na2S) = ?\n"
              "n(HCl) = C(HCl) x V(HCl) = 0.01x0.02 = 0.0002 mol\n"
              "Computer had trouble with balancing, answer may be wrong.\n"
              "Mole ratio n(HCl) : n(Na2S)  is 2:1\n"
              "n(Na2S) = 0.0002 x 1/2 = 0.0001 mol\n"
              "C(Na2S) = n(Na2S) / V(Na2S) = 0.0001 / 0.005 = 0.02 mol/L\n");
}

std::string questionText(const Draws& draws)
{
    return questionOf(hydrochloricAndSodiumHydroxide(), draws).question;
}

const char* const usual = "Calculate the concentration of sodium hydroxide if 5 mL of it "
                          "neutralises 20 mL of 0.01 mol/L hydrochloric acid.\n";

TEST(TitrationTest, ADrawBelowAQuarterGivesTheLargerAliquot)
{
    const char* const larger = "Calculate the concentration of sodium hydroxide if 5 mL of it "
                               "neutralises 25 mL of 0.01 mol/L hydrochloric acid.\n";
    Draws draws;
    for (const int drawn : {0, 1, 536870910}) {
        draws.aliquot = drawn;
        EXPECT_EQ(questionText(draws), larger) << drawn;
    }
    for (const int drawn : {536870911, 536870912, 1073741823, 2147483647}) {
        draws.aliquot = drawn;
        EXPECT_EQ(questionText(draws), usual) << drawn;
    }
}

TEST(TitrationTest, ADrawBelowHalfMakesTheBaseKnown)
{
    const char* const baseKnown = "Calculate the concentration of hydrochloric acid if 5 mL of it "
                                  "neutralises 20 mL of 0.01 mol/L sodium hydroxide.\n";
    Draws draws;
    for (const int drawn : {0, 536870911, 1073741822}) {
        draws.known = drawn;
        EXPECT_EQ(questionText(draws), baseKnown) << drawn;
    }
    for (const int drawn : {1073741823, 1073741824, 2147483647}) {
        draws.known = drawn;
        EXPECT_EQ(questionText(draws), usual) << drawn;
    }
}

TEST(TitrationTest, ADrawBelowHalfGivesTheUnknownTheTitre)
{
    const char* const titreKnown = "Calculate the concentration of sodium hydroxide if 20 mL of it "
                                   "is neutralised by 5 mL of 0.01 mol/L hydrochloric acid.\n";
    Draws draws;
    for (const int drawn : {0, 536870911, 1073741822}) {
        draws.titreSide = drawn;
        EXPECT_EQ(questionText(draws), usual) << drawn;
    }
    for (const int drawn : {1073741823, 1073741824, 2147483647}) {
        draws.titreSide = drawn;
        EXPECT_EQ(questionText(draws), titreKnown) << drawn;
    }
}

// Kept: 5 mL in every question.
TEST(TitrationTest, NoDrawChangesTheTitre)
{
    for (const int drawn : tellingDraws) {
        Draws draws;
        draws.titre = drawn;
        EXPECT_EQ(questionText(draws), usual) << drawn;
    }
}

TEST(TitrationTest, NearlyNoDrawChangesTheConcentration)
{
    for (const int drawn : {0, 1 << 26, 1 << 27, 1 << 28, 1 << 30, 2147483647}) {
        Draws draws;
        draws.concentration = drawn;
        EXPECT_EQ(questionText(draws), usual) << drawn;
    }
}

TEST(TitrationTest, TwoDrawsGiveNoConcentration)
{
    for (const int drawn : {1 << 29, 3 << 29}) {
        Draws draws;
        draws.concentration = drawn;
        const QandA made = questionOf(hydrochloricAndSodiumHydroxide(), draws);
        EXPECT_EQ(made.question,
                  "Calculate the concentration of sodium hydroxide if 5 mL of it neutralises 20 mL "
                  "of 0 mol/L hydrochloric acid.\n");
        EXPECT_EQ(made.answer,
                  "Solution of known concentration is HCl, unknown is NaOH\n"
                  "V(NaOH) = 0.005 L   V(HCl) = 0.02 L   C(HCl) = 0 mol/L   C(NaOH) = ?\n"
                  "n(HCl) = C(HCl) x V(HCl) = 0x0.02 = 0 mol\n"
                  "HCl + NaOH -> NaCl + H2O\n"
                  "Mole ratio n(HCl) : n(NaOH)  is 1:1\n"
                  "n(NaOH) = 0 x 1/1 = 0 mol\n"
                  "C(NaOH) = n(NaOH) / V(NaOH) = 0 / 0.005 = 0 mol/L\n");
    }
}

TEST(TitrationTest, DrawsTheAcidAndTheBaseFirst)
{
    const ScriptedDraws draws({drawOfIon(35), drawOfIon(26), drawOfIon(36), firstWay, 1 << 30,
                               1 << 30, firstWay, secondWay});
    EXPECT_EQ(titrationQuestion().question,
              "Calculate the concentration of sulphuric acid if 25 mL of it is neutralised by 5 mL "
              "of 0.01 mol/L sodium hydroxide.\n");
}

} // namespace
