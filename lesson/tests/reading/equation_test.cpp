#include "lesson/reading/equation.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "lesson/reading/typed.hpp"

namespace lesson
{

namespace
{

std::string textOf(Ratio value)
{
    const std::string numerator = std::to_string(value.numerator);
    return value.denominator == 1 ? numerator : numerator + "/" + std::to_string(value.denominator);
}

std::string textOf(const std::vector<TypedTerm>& side)
{
    std::string text;
    for (const TypedTerm& term : side) {
        text += (text.empty() ? "" : " + ") + textOf(term.coefficient) + " " + term.formula.text +
                (term.state.empty() ? "" : " " + term.state);
    }
    return text;
}

// "1 HCl aq + 1/2 O2 -> 1 H2O"; an arrow without a point where there is none.
std::string readBack(const std::string& typed)
{
    const TypedEquation equation = readEquation(plainTyped(typed));
    const char* const arrows[] = {" -- ", " -> ", " -> ", " <-> "};
    return textOf(equation.left) + arrows[static_cast<int>(equation.arrow)] +
           textOf(equation.right);
}

TEST(TypedEquationTest, CoefficientsInEverySpelling)
{
    const struct {
        const char* typed;
        const char* expected;
    } cases[] = {
        {"HCl", "1 HCl"},
        {"1HCl", "1 HCl"},
        {"2HCl", "2 HCl"},
        {"2 HCl", "2 HCl"},
        {"2*HCl", "2 HCl"},
        {"2 × HCl", "2 HCl"},
        {"2·HCl", "2 HCl"},
        {"2 x HCl", "2 HCl"},
        {"2. HCl", "2 HCl"},
        {"(2)HCl", "2 HCl"},
        {"02HCl", "2 HCl"},
        {"₂HCl", "2 HCl"},
        {"1/2HCl", "1/2 HCl"},
        {"1 / 2 HCl", "1/2 HCl"},
        {"1⁄2 HCl", "1/2 HCl"},
        {"(1/2) HCl", "1/2 HCl"},
        {"½HCl", "1/2 HCl"},
        {"⅓ HCl", "1/3 HCl"},
        {"1½ HCl", "3/2 HCl"},
        {"1 1/2 HCl", "3/2 HCl"},
        {"4/2 HCl", "2 HCl"},
        {"0.5HCl", "1/2 HCl"},
        {".5 HCl", "1/2 HCl"},
        {"0,5 HCl", "1/2 HCl"},
        {"2.0HCl", "2 HCl"},
        {"2(NH4)2SO4", "2 (NH4)2SO4"},
        {"2[Al](OH)3", "2 (Al)(OH)3"},
        {"99999HCl", "99999 HCl"},
    };
    for (const auto& c : cases) {
        const std::string typed = c.typed;
        EXPECT_EQ(readBack(typed + " -> NaCl"), std::string(c.expected) + " -> 1 NaCl");
        EXPECT_EQ(readEquation(plainTyped(typed + " -> NaCl")).unread, "") << typed;
    }
}

TEST(TypedEquationTest, ArrowsInEverySpelling)
{
    for (const char* const arrow : {"->",
                                    "-->",
                                    "--->",
                                    "=>",
                                    "==>",
                                    "=",
                                    "==",
                                    ">",
                                    "- >",
                                    "→",
                                    "⟶",
                                    "⇒",
                                    "➔",
                                    "➡️",
                                    "—>",
                                    "–>",
                                    "−>",
                                    "_>",
                                    "__>",
                                    "-_>",
                                    "~>",
                                    "—→",
                                    "\\rightarrow ",
                                    "\\longrightarrow ",
                                    "\\to ",
                                    "rarr",
                                    "rightarrow",
                                    "&rarr;",
                                    "-&gt;",
                                    "-\\>",
                                    "\uF0E0",
                                    "\uF0E8",
                                    "►"}) {
        EXPECT_EQ(readBack(std::string("HCl") + arrow + "NaCl"), "1 HCl -> 1 NaCl") << arrow;
        EXPECT_EQ(readBack(std::string("HCl ") + arrow + " NaCl"), "1 HCl -> 1 NaCl") << arrow;
    }
    for (const char* const word : {"to", "gives", "yields", "forms", "makes", "à"}) {
        EXPECT_EQ(readBack("HCl " + std::string(word) + " NaCl"), "1 HCl -> 1 NaCl") << word;
    }
    for (const char* const arrow :
         {"\\rightleftharpoons ", "<->", "<-->", "<=>", "<==>", "⇌", "⇋", "↔", "⇄", "<- ->"}) {
        EXPECT_EQ(readBack(std::string("HCl ") + arrow + " NaCl"), "1 HCl <-> 1 NaCl") << arrow;
    }
    for (const char* const arrow : {"<-", "<--", "<=", "←", "⟵", "⇐"}) {
        const std::string typed = std::string("HCl ") + arrow + " NaCl";
        EXPECT_EQ(readBack(typed), "1 NaCl -> 1 HCl") << arrow;
        EXPECT_EQ(readEquation(plainTyped(typed)).arrow, Arrow::toTheLeft) << arrow;
    }
}

TEST(TypedEquationTest, WithoutAnArrow)
{
    EXPECT_EQ(readBack("HCl + NaOH"), "1 HCl + 1 NaOH -- ");
    EXPECT_EQ(readBack("HCl - NaCl"), "1 HCl -- 1 NaCl");
    EXPECT_EQ(readBack("HCl — NaCl"), "1 HCl -- 1 NaCl");
}

TEST(TypedEquationTest, StatesInEverySpelling)
{
    for (const char* const typed :
         {"HCl(aq)", "HCl (aq)", "HCl(AQ)", "HCl(Aq)", "HCl ( aq )", "HCl(aq.)", "HCl_(aq)",
          "HCl_{(aq)}", "HCl_{ (aq) }", "2HCl(aq)"}) {
        const TypedEquation equation = readEquation(plainTyped(std::string(typed) + " -> NaCl"));
        ASSERT_EQ(equation.left.size(), 1U) << typed;
        EXPECT_EQ(equation.unread, "") << typed;
        EXPECT_EQ(equation.left[0].state, "aq") << typed;
        EXPECT_EQ(equation.left[0].formula.text, "HCl") << typed;
    }
    EXPECT_EQ(readBack("H2O(l)->H2O(L)+H2O(ℓ)"), "1 H2O l -> 1 H2O l + 1 H2O l");
    EXPECT_EQ(readBack("CO2(g)->CO2 (G)+CO2↑"), "1 CO2 g -> 1 CO2 g + 1 CO2 g");
    EXPECT_EQ(readBack("AgCl(s)->AgCl(S)+AgCl↓"), "1 AgCl s -> 1 AgCl s + 1 AgCl s");
    EXPECT_EQ(readBack("H2O(l) -> H2O (l) ."), "1 H2O l -> 1 H2O l");
    EXPECT_EQ(readBack("Ca(OH)2->Ca(OH)2(s)"), "1 Ca(OH)2 -> 1 Ca(OH)2 s");
}

TEST(TypedEquationTest, PlusesBlanksAndAFullStop)
{
    for (const char* const typed :
         {"HCl + NaOH -> NaCl + H2O", "HCl+NaOH->NaCl+H2O", "  HCl +NaOH  ->  NaCl+ H2O .",
          "+HCl + NaOH -> + NaCl + H2O", "H Cl + Na O H -> Na Cl + H 2 O",
          "HCl\n+\tNaOH\u00A0→ NaCl\u2009+ H₂O", "H_1Cl ＋ NaOH -> NaCl + H_{2}O."}) {
        EXPECT_EQ(readBack(typed), "1 HCl + 1 NaOH -> 1 NaCl + 1 H2O") << typed;
    }
    EXPECT_EQ(readBack("CH3-COOH -> CH3COO-Na"), "1 CH3COOH -> 1 CH3COONa");
}

TEST(TypedEquationTest, TheFirstPartThatCannotBeRead)
{
    const struct {
        const char* typed;
        const char* unread;
    } cases[] = {
        {"hcl + NaOH -> NaCl", "hcl"},
        {"HCl + sodium -> NaCl", "sodium"},
        {"0HCl -> NaCl", "0HCl"},
        {"0/3HCl -> NaCl", "0/3HCl"},
        {"3/0HCl -> NaCl", "/0HCl"},
        {"100000HCl -> NaCl", "100000HCl"},
        {"1/10001HCl -> NaCl", "1/10001HCl"},
        {"2 3HCl -> NaCl", "2 3HCl"},
        {"2 -> NaCl", "2"},
        {"(aq) -> NaCl", "(aq)"},
        {"H+ + OH- -> H2O", "H+"},
        {"Na+(aq) + Cl-(aq) -> NaCl", "Na+(aq)"},
        {"HCl + -> NaCl", "HCl +"},
        {"HCl -> NaCl -> X", "-> X"},
        {"HCl(aq)(aq) -> NaCl", "HCl(aq)(aq)"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(readEquation(plainTyped(c.typed)).unread, c.unread) << c.typed;
    }
}

TEST(TypedEquationTest, MoreSpeciesThanAnyEquationHasAreNotRead)
{
    std::string many = "H2";
    for (int i = 0; i < 100000; ++i) {
        many += "+H2";
    }
    const TypedEquation equation = readEquation(many + "->" + many);
    EXPECT_LE(equation.left.size() + equation.right.size(), 100U);
    EXPECT_NE(equation.unread, "");
}

} // namespace

} // namespace lesson
