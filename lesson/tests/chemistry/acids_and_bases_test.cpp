#include "lesson/chemistry/acids_and_bases.hpp"

#include <gtest/gtest.h>

#include <map>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include "lesson/chemistry/neutralisation.hpp"
#include "lesson/chemistry/pairs_not_asked.hpp"
#include "lesson/tests/support/plain.hpp"
#include "support/atom_count.hpp"

namespace lesson
{

namespace
{

using Side = std::vector<std::pair<int, std::string>>;

Base baseOf(const char* cation, const char* anion)
{
    return {findIon(cation), findIon(anion)};
}

std::vector<Base> everyBase()
{
    std::vector<Base> bases = {ammonia()};
    for (const IonRow* const cation : cations()) {
        for (const char* const anion : {"hydroxide", "oxide", "carbonate", "hydrogencarbonate"}) {
            if (!whyFormulaIsNotAsked({cation, findIon(anion)})) {
                bases.push_back({cation, findIon(anion)});
            }
        }
    }
    return bases;
}

std::map<std::string, int> atomsOn(const Side& side)
{
    std::map<std::string, int> atoms;
    for (const auto& [coefficient, species] : side) {
        for (const auto& [symbol, count] : countAtoms(species)) {
            atoms[symbol] += coefficient * count;
        }
    }
    return atoms;
}

int commonDivisor(const Equation& equation)
{
    int divisor = 0;
    for (const Side* const side : {&equation.left, &equation.right}) {
        for (const auto& [coefficient, species] : *side) {
            divisor = std::gcd(divisor, coefficient);
        }
    }
    return divisor;
}

TEST(AcidsAndBasesTest, EquationsOfTheTextbook)
{
    const struct {
        const char* acid;
        Base base;
        const char* expected;
    } cases[] = {
        {"HCl", baseOf("sodium", "hydroxide"), "HCl + NaOH -> NaCl + H2O"},
        {"HCl", baseOf("sodium", "carbonate"), "2HCl + Na2CO3 -> 2NaCl + H2O + CO2"},
        {"HCl", baseOf("aluminium", "oxide"), "6HCl + Al2O3 -> 2AlCl3 + 3H2O"},
        {"HBr", baseOf("ammonium", "carbonate"), "2HBr + (NH4)2CO3 -> 2NH4Br + H2O + CO2"},
        {"HNO3", baseOf("silver", "oxide"), "2HNO3 + Ag2O -> 2AgNO3 + H2O"},
        {"HNO3", baseOf("calcium", "hydrogencarbonate"),
         "2HNO3 + Ca(HCO3)2 -> Ca(NO3)2 + 2H2O + 2CO2"},
        {"H2SO4", baseOf("aluminium", "hydroxide"), "3H2SO4 + 2Al(OH)3 -> Al2(SO4)3 + 6H2O"},
        {"H2SO4", baseOf("sodium", "hydrogencarbonate"), "H2SO4 + 2NaHCO3 -> Na2SO4 + 2H2O + 2CO2"},
        {"H3PO4", baseOf("potassium", "hydroxide"), "H3PO4 + 3KOH -> K3PO4 + 3H2O"},
        {"H3PO4", baseOf("calcium", "oxide"), "2H3PO4 + 3CaO -> Ca3(PO4)2 + 3H2O"},
        {"H3PO4", baseOf("aluminium", "hydroxide"), "H3PO4 + Al(OH)3 -> AlPO4 + 3H2O"},
        {"CH3COOH", baseOf("sodium", "hydroxide"), "CH3COOH + NaOH -> CH3COONa + H2O"},
        {"CH3COOH", baseOf("copper(II)", "carbonate"),
         "2CH3COOH + CuCO3 -> Cu(CH3COO)2 + H2O + CO2"},
        {"H2C2O4", baseOf("sodium", "hydroxide"), "H2C2O4 + 2NaOH -> Na2C2O4 + 2H2O"},
        {"HCl", ammonia(), "HCl + NH3 -> NH4Cl"},
        {"H2SO4", ammonia(), "H2SO4 + 2NH3 -> (NH4)2SO4"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(textOf(neutralisationOf(*findAcid(c.acid), c.base)), c.expected);
    }
}

TEST(AcidsAndBasesTest, EveryAcidAndBaseConserveTheirAtomsInLowestTerms)
{
    for (const AcidRow* const acid : acids()) {
        for (const Base& base : everyBase()) {
            const Equation equation = neutralisationOf(*acid, base);
            EXPECT_EQ(atomsOn(equation.left), atomsOn(equation.right)) << textOf(equation);
            EXPECT_EQ(commonDivisor(equation), 1) << textOf(equation);
            for (const Side* const side : {&equation.left, &equation.right}) {
                for (const auto& [coefficient, species] : *side) {
                    EXPECT_GT(coefficient, 0) << textOf(equation);
                }
            }
        }
    }
}

// The protons of the acids and the ions that they leave, typed anew.
TEST(AcidsAndBasesTest, AcidsLoseTheirProtonsToBecomeTheirIons)
{
    const struct {
        const char* acid;
        const char* name;
        const char* anion;
        int charge;
    } rows[] = {
        {"HCl", "hydrochloric acid", "Cl", -1},     {"HBr", "hydrobromic acid", "Br", -1},
        {"HNO3", "nitric acid", "NO3", -1},         {"H2SO4", "sulfuric acid", "SO4", -2},
        {"H3PO4", "phosphoric acid", "PO4", -3},    {"CH3COOH", "ethanoic acid", "CH3COO", -1},
        {"H2C2O4", "ethanedioic acid", "C2O4", -2},
    };
    ASSERT_EQ(acids().size(), std::size(rows));
    for (const auto& row : rows) {
        const AcidRow* const acid = findAcid(row.acid);
        ASSERT_NE(acid, nullptr) << row.acid;
        EXPECT_EQ(british(nameOf(*acid)), row.name);
        EXPECT_EQ(protonsOf(*acid), -row.charge) << row.acid;
        EXPECT_EQ(anionOf(*acid).formula, row.anion);
        EXPECT_EQ(anionOf(*acid).charge, row.charge) << row.acid;
        std::map<std::string, int> atoms = countAtoms(row.anion);
        atoms["H"] -= row.charge;
        EXPECT_EQ(atoms, countAtoms(row.acid)) << row.acid;
    }
    EXPECT_EQ(findAcid("H2CO3"), nullptr);
}

TEST(AcidsAndBasesTest, EveryIdHasARowThatIsListedOnce)
{
    const Acid ids[] = {Acid::hydrochloric, Acid::hydrobromic, Acid::nitric,     Acid::sulfuric,
                        Acid::phosphoric,   Acid::ethanoic,    Acid::ethanedioic};
    ASSERT_EQ(acids().size(), std::size(ids));
    for (std::size_t i = 0; i < std::size(ids); ++i) {
        EXPECT_EQ(rowOf(ids[i]).id, ids[i]) << i;
        EXPECT_EQ(acids()[i], &rowOf(ids[i])) << i;
    }
}

TEST(AcidsAndBasesTest, ABaseIsFoundByWhatItIsMadeOf)
{
    const struct {
        BaseKind kind;
        const char* formula;
    } rows[] = {
        {BaseKind::hydroxide, "Ca(OH)2"}, {BaseKind::oxide, "CaO"},
        {BaseKind::carbonate, "CaCO3"},   {BaseKind::hydrogencarbonate, "Ca(HCO3)2"},
        {BaseKind::ammonia, "NH3"},
    };
    ASSERT_EQ(std::size(baseKinds), std::size(rows));
    for (const auto& row : rows) {
        const Base base = baseOf(row.kind, Ion::calcium);
        EXPECT_EQ(formulaOf(base), row.formula);
        EXPECT_EQ(kindOf(base), row.kind) << row.formula;
    }
}

TEST(AcidsAndBasesTest, OnlyFourAnionsMakeBases)
{
    std::string formulas;
    for (const IonRow* const anion : anions()) {
        formulas += isOfBases(*anion) ? std::string(anion->formula) + " " : "";
    }
    EXPECT_EQ(formulas, "OH HCO3 O CO3 ");
}

TEST(AcidsAndBasesTest, NamesOfAcidsAndBasesInBothLanguages)
{
    const struct {
        Name name;
        const char* british;
        const char* american;
    } rows[] = {
        {nameOf(*findAcid("HCl")), "hydrochloric acid", "hydrochloric acid"},
        {nameOf(*findAcid("CH3COOH")), "ethanoic acid", "acetic acid"},
        {nameOf(*findAcid("H2C2O4")), "ethanedioic acid", "oxalic acid"},
        {nameOf(*findAcid("H2C2O4"), 2), "ethanedioic acid dihydrate", "oxalic acid dihydrate"},
        {nameOf(baseOf("sodium", "hydroxide")), "sodium hydroxide", "sodium hydroxide"},
        {nameOf(baseOf("aluminium", "oxide")), "aluminium oxide", "aluminum oxide"},
        {nameOf(ammonia()), "ammonia solution", "ammonia solution"},
        {nameOf(rowOf(Ion::sodium), anionOf(*findAcid("CH3COOH"))), "sodium ethanoate",
         "sodium acetate"},
        {nameOf(rowOf(Ion::sodium), anionOf(*findAcid("H2C2O4"))), "sodium ethanedioate",
         "sodium oxalate"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(british(row.name), row.british);
        EXPECT_EQ(american(row.name), row.american);
    }
}

TEST(AcidsAndBasesTest, AnEquationIsTypesetAsItIsTyped)
{
    const Equation equation = neutralisationOf(*findAcid("HCl"), baseOf("sodium", "carbonate"));
    std::string text;
    std::vector<std::string> formulas;
    for (const Span& span : spansOf(equation)) {
        text += span.text;
        if (span.kind == Span::Kind::formula) {
            formulas.push_back(span.text);
        }
    }
    EXPECT_EQ(text, "2HCl + Na2CO3 → 2NaCl + H2O + CO2");
    EXPECT_EQ(formulas, (std::vector<std::string>{"HCl", "Na2CO3", "NaCl", "H2O", "CO2"}));
}

} // namespace

} // namespace lesson
