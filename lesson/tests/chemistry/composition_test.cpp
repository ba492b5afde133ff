#include "lesson/chemistry/composition.hpp"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "lesson/chemistry/compounds.hpp"
#include "lesson/chemistry/elements.hpp"
#include "support/atom_count.hpp"

namespace lesson
{

namespace
{

// "2 Al, 3 S", the order told as well.
std::string textOf(const Atoms& atoms)
{
    std::string text;
    for (const AtomCount atom : atoms) {
        text += text.empty() ? "" : ", ";
        text += std::to_string(atom.count) + " " + std::string(element(atom.element).symbol);
    }
    return text;
}

std::string textOf(const std::vector<FormulaPart>& parts)
{
    std::string text;
    for (const FormulaPart& part : parts) {
        text += text.empty() ? "" : " + ";
        text += std::to_string(part.times) + (part.isWater ? " water" : "");
        text += "(" + textOf(part.atoms) + ")";
    }
    return text;
}

struct Counted {
    const char* formula;
    const char* parts;
    const char* atoms;
};

// clang-format off
constexpr Counted countedByHand[] = {
    {"K",             "1(1 K)",                                   "1 K"},
    {"NaCl",          "1(1 Na, 1 Cl)",                            "1 Na, 1 Cl"},
    {"CO",            "1(1 C, 1 O)",                              "1 C, 1 O"},
    {"Co",            "1(1 Co)",                                  "1 Co"},
    {"Fe2O3",         "1(2 Fe, 3 O)",                             "2 Fe, 3 O"},
    {"Al2(SO4)3",     "1(2 Al) + 3(1 S, 4 O)",                    "2 Al, 3 S, 12 O"},
    {"Ca(CH3COO)2",   "1(1 Ca) + 2(2 C, 3 H, 2 O)",               "1 Ca, 4 C, 6 H, 4 O"},
    {"CH3COONa",      "1(2 C, 3 H, 2 O, 1 Na)",                   "2 C, 3 H, 2 O, 1 Na"},
    {"NH4NO3",        "1(2 N, 4 H, 3 O)",                         "2 N, 4 H, 3 O"},
    {"(NH4)2SO4",     "2(1 N, 4 H) + 1(1 S, 4 O)",                "2 N, 8 H, 1 S, 4 O"},
    {"(NH4)3PO4",     "3(1 N, 4 H) + 1(1 P, 4 O)",                "3 N, 12 H, 1 P, 4 O"},
    {"NH4HCO3",       "1(1 N, 5 H, 1 C, 3 O)",                    "1 N, 5 H, 1 C, 3 O"},
    {"CuSO4.5H2O",    "1(1 Cu, 1 S, 4 O) + 5 water(2 H, 1 O)",    "1 Cu, 1 S, 9 O, 10 H"},
    {"Na2CO3.10H2O",  "1(2 Na, 1 C, 3 O) + 10 water(2 H, 1 O)",   "2 Na, 1 C, 13 O, 20 H"},
    {"CaSO4.H2O",     "1(1 Ca, 1 S, 4 O) + 1 water(2 H, 1 O)",    "1 Ca, 1 S, 5 O, 2 H"},
    {"Mg(NO3)2.6H2O", "1(1 Mg) + 2(1 N, 3 O) + 6 water(2 H, 1 O)", "1 Mg, 2 N, 12 O, 12 H"},
    {"C12H22O11",     "1(12 C, 22 H, 11 O)",                      "12 C, 22 H, 11 O"},
    {"Fe(OH)12",      "1(1 Fe) + 12(1 O, 1 H)",                   "1 Fe, 12 O, 12 H"},
    {"Cr2O7",         "1(2 Cr, 7 O)",                             "2 Cr, 7 O"},
};
// clang-format on

TEST(CompoundTest, PartsAndAtomsAreThoseCountedByHand)
{
    for (const Counted& counted : countedByHand) {
        const Composition composition = compositionOf(counted.formula);
        EXPECT_EQ(textOf(composition.parts), counted.parts) << counted.formula;
        EXPECT_EQ(textOf(composition.atoms), counted.atoms) << counted.formula;
    }
}

struct Weighed {
    const char* formula;
    const char* sum;
};

// Added up on paper.
constexpr Weighed weighedByHand[] = {
    {"H2O", "18.016"},         {"NaCl", "58.44"},          {"NaOH", "39.998"},
    {"KI", "166.00"},          {"KBr", "119.00"},          {"PbI2", "461.00"},
    {"HCl", "36.458"},         {"H2SO4", "98.076"},        {"H2C2O4", "90.036"},
    {"LiOH", "23.948"},        {"AgNO3", "169.91"},        {"FeCl3", "162.20"},
    {"Cr2O3", "152.00"},       {"Mg3N2", "100.95"},        {"Na2CO3", "105.99"},
    {"NH4NO3", "80.052"},      {"(NH4)2SO4", "132.144"},   {"Ca(OH)2", "74.096"},
    {"CH3COONa", "82.034"},    {"Ca(CH3COO)2", "158.168"}, {"Al2(SO4)3", "342.14"},
    {"Fe2(SO4)3", "399.88"},   {"CuSO4.5H2O", "249.69"},   {"Na2CO3.10H2O", "286.15"},
    {"BaCl2.2H2O", "244.232"}, {"MgSO4.7H2O", "246.482"},  {"C12H22O11", "342.296"},
};

TEST(CompoundTest, MolarMassesAreThoseAddedUpByHand)
{
    for (const Weighed& weighed : weighedByHand) {
        const std::string sum = weighed.sum;
        const auto decimals = static_cast<int>(sum.size() - sum.find('.') - 1);
        const auto digits =
            std::stoll(sum.substr(0, sum.find('.')) + sum.substr(sum.find('.') + 1));
        EXPECT_EQ(molarMassOf(weighed.formula), ratio(digits) * powerOfTen(-decimals))
            << weighed.formula;
    }
}

TEST(CompoundTest, MassOfOneBracketOrWaterIsItsOwn)
{
    const Composition vitriol = compositionOf("CuSO4.5H2O");
    EXPECT_EQ(massOf(vitriol.parts.at(1).atoms), ratio(18016, 1000));
    EXPECT_EQ(massOf(compositionOf("Al2(SO4)3").parts.at(1).atoms), ratio(9606, 100));
    EXPECT_EQ(massOf({}), ratio(0));
}

TEST(CompoundTest, MassesAreShownAndGivenWithTwoDecimalsAHalfUpwards)
{
    struct MassCase {
        Ratio mass;
        Ratio rounded;
        const char* shown;
    };
    const MassCase cases[] = {
        {ratio(461), ratio(461), "461.00"},
        {ratio(1001, 10), ratio(10010, 100), "100.10"},
        {ratio(39998, 1000), ratio(40), "40.00"},
        {ratio(23948, 1000), ratio(2395, 100), "23.95"},
        {ratio(132144, 1000), ratio(13214, 100), "132.14"},
        {ratio(10004, 1000), ratio(10), "10.00"},
        {ratio(10005, 1000), ratio(1001, 100), "10.01"},
        {ratio(7, 1000), ratio(1, 100), "0.01"},
        {ratio(1, 8), ratio(13, 100), "0.13"},
    };
    for (const auto& [mass, rounded, shown] : cases) {
        EXPECT_EQ(toHundredths(mass), rounded) << shown;
        EXPECT_EQ(shownMass(mass), shown);
    }
}

std::map<std::string, int> bySymbol(const Atoms& atoms)
{
    std::map<std::string, int> counts;
    for (const AtomCount atom : atoms) {
        EXPECT_TRUE(counts.emplace(element(atom.element).symbol, atom.count).second)
            << "an element comes twice: " << textOf(atoms);
    }
    return counts;
}

// Every compound of two ions: the atoms by another count, the mass by its ions.
TEST(CompoundTest, EveryCompoundOfIonsHasTheAtomsAndTheMassOfItsIons)
{
    for (const IonRow* const cation : cations()) {
        for (const IonRow* const anion : anions()) {
            const std::string formula = compoundFormula(*cation, *anion);
            const Composition composition = compositionOf(formula);
            EXPECT_EQ(bySymbol(composition.atoms), countAtoms(formula)) << formula;

            const Ratio ofCations = ratio(-anion->charge) * molarMassOf(cation->formula);
            const Ratio ofAnions = ratio(cation->charge) * molarMassOf(anion->formula);
            const bool areEqual = cation->charge == -anion->charge;
            const Ratio reduced = areEqual ? ratio(1, cation->charge) : ratio(1);
            EXPECT_EQ(molarMassOf(formula), (ofCations + ofAnions) * reduced) << formula;
        }
    }
}

} // namespace

} // namespace lesson
