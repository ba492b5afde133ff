#include "chem/solubility.hpp"

#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <sstream>
#include <string>

#include "support/catalogue.hpp"

namespace
{

Ion ionOf(const std::string& formula)
{
    Ion built;
    built.formula = formula;
    return built;
}

// Y dissolves, N does not, a dot: no rule. The anions of the catalogue, and acetate in the last
// column; the cations of the catalogue by their formulas, and three that it does not hold.
const char* const anions = "Cl Br I  F  O  S  N  P  OH NO3 SO4 CO3 PO4 HCO3 CH3COO";
const char* const grid[] = {
    "H   Y  Y  Y  Y  Y  Y  Y  Y  Y  Y   Y   Y   Y   Y    Y",
    "Li  Y  Y  Y  Y  Y  Y  Y  Y  Y  Y   Y   Y   Y   Y    Y",
    "Na  Y  Y  Y  Y  Y  Y  Y  Y  Y  Y   Y   Y   Y   Y    Y",
    "K   Y  Y  Y  Y  Y  Y  Y  Y  Y  Y   Y   Y   Y   Y    Y",
    "NH4 Y  Y  Y  Y  Y  Y  Y  Y  Y  Y   Y   Y   Y   Y    Y",
    "Be  Y  Y  Y  N  N  Y  .  .  N  Y   Y   N   N   .    Y",
    "Mg  Y  Y  Y  N  N  Y  .  .  N  Y   Y   N   N   .    Y",
    "Ca  Y  Y  Y  N  Y  Y  .  .  N  Y   Y   N   N   .    Y",
    "Sr  Y  Y  Y  N  N  Y  .  .  N  Y   N   N   N   .    Y",
    "Ba  Y  Y  Y  N  Y  Y  .  .  N  Y   N   N   N   .    Y",
    "Al  Y  Y  Y  Y  N  N  .  .  N  Y   Y   N   N   .    Y",
    "Sn  Y  Y  Y  Y  N  N  .  .  N  Y   Y   N   N   .    Y",
    "Pb  N  N  N  N  N  N  .  .  N  Y   N   N   N   .    Y",
    "Cr  Y  Y  Y  Y  N  N  .  .  N  Y   Y   N   N   .    Y",
    "Mn  Y  Y  Y  N  N  N  .  .  N  Y   Y   N   N   .    Y",
    "Fe  Y  Y  Y  Y  N  N  .  .  N  Y   Y   N   N   .    Y",
    "Co  Y  Y  Y  Y  N  N  .  .  N  Y   Y   N   N   .    Y",
    "Ni  Y  Y  Y  Y  N  N  .  .  N  Y   Y   N   N   .    Y",
    "Cu  Y  Y  Y  Y  N  N  .  .  N  Y   Y   N   N   .    Y",
    "Zn  Y  Y  Y  Y  N  N  .  .  N  Y   Y   N   N   .    Y",
    "Cd  Y  Y  Y  Y  N  N  .  .  N  Y   Y   N   N   .    Y",
    "Ag  N  N  N  Y  N  N  .  .  N  Y   Y   N   N   .    Y",
    "Au  Y  Y  Y  Y  N  N  .  .  N  Y   Y   N   N   .    Y",
    "Hg  N  N  N  Y  N  N  .  .  N  Y   Y   N   N   .    Y",
};

// The verdict of the grid by cation and anion; 0 for a pair that is not in it.
char inGrid(const std::string& cation, const std::string& anion)
{
    for (const char* const row : grid) {
        std::istringstream columns(anions);
        std::istringstream cells(row);
        std::string formula;
        cells >> formula;
        if (formula != cation) {
            continue;
        }
        char verdict = 0;
        while (columns >> formula && cells >> verdict) {
            if (formula == anion) {
                return verdict == '.' ? ' ' : verdict;
            }
        }
    }
    return 0;
}

TEST(SolubilityTest, EveryPairOfTheGrid)
{
    int pairs = 0;
    for (const char* const row : grid) {
        const std::string cation = std::string(row).substr(0, std::string(row).find(' '));
        std::istringstream columns(anions);
        std::string anion;
        while (columns >> anion) {
            EXPECT_EQ(isSolubleChar(ionOf(cation), ionOf(anion)), inGrid(cation, anion))
                << cation << " " << anion;
            ++pairs;
        }
    }
    EXPECT_EQ(pairs, 24 * 15);
}

TEST(SolubilityTest, EveryPairOfTheCatalogue)
{
    int pairs = 0;
    for (const Ion& cation : catalogueCations()) {
        for (const Ion& anion : catalogueAnions()) {
            const char expected = inGrid(cation.formula, anion.formula);
            ASSERT_NE(expected, 0) << cation.formula << " " << anion.formula;
            EXPECT_EQ(isSolubleChar(cation, anion), expected) << cation.name << " " << anion.name;
            ++pairs;
        }
    }
    EXPECT_EQ(pairs, 25 * 14);
}

TEST(SolubilityTest, FormulasAreComparedWholeAndWithCase)
{
    const struct {
        std::string cation;
        std::string anion;
        char expected;
    } cases[] = {
        {"na", "O", 'N'},
        {"NA", "O", 'N'},
        {"Na ", "O", 'N'},
        {"", "O", 'N'},
        {"Na2", "O", 'N'},
        {"k", "S", 'N'},
        {"h", "OH", 'N'},
        {"ag", "Cl", 'Y'},
        {"AG", "Cl", 'Y'},
        {"Pb2", "SO4", 'Y'},
        {"ba", "SO4", 'Y'},
        {"ca", "O", 'N'},
        {"Fe", "cl", ' '},
        {"Fe", "CL", ' '},
        {"Fe", "Cl2", ' '},
        {"Fe", "", ' '},
        {"Fe", "so4", ' '},
        {"Fe", "no3", ' '},
        {"Fe", "SO", ' '},
        {"Fe", "o", ' '},
        {"Fe", "X", ' '},
        {"", "", ' '},
        {"", "NO3", 'Y'},
        {"Na", "X", 'Y'},
        {std::string("Na\0", 3), "O", 'N'},
        {"Fe", std::string("O\0", 2), ' '},
    };
    for (const auto& [cation, anion, expected] : cases) {
        EXPECT_EQ(isSolubleChar(ionOf(cation), ionOf(anion)), expected)
            << '"' << cation << "\" \"" << anion << '"';
    }
}

TEST(SolubilityTest, NothingButTheFormulasIsLookedAt)
{
    const Ion cation("chloride", "Ag", true, 3, true, "nitric");
    const Ion anion("sodium", "Cl", false, 2, true, "");
    EXPECT_EQ(isSolubleChar(cation, anion), 'N');
    // Given the wrong way round, the chloride is no cation that a rule knows.
    // NOLINTNEXTLINE(readability-suspicious-call-argument): that is the point
    EXPECT_EQ(isSolubleChar(anion, cation), ' ');
}

TEST(SolubilityTest, VerdictInWords)
{
    for (int code = CHAR_MIN; code <= CHAR_MAX; ++code) {
        const char verdict = static_cast<char>(code);
        std::string expected = "<an error occurred>";
        if (verdict == 'Y' || verdict == 'y') {
            expected = "soluble";
        } else if (verdict == 'N' || verdict == 'n') {
            expected = "insoluble";
        }
        EXPECT_EQ(isSolubleWord(verdict), expected) << code;
    }
}

} // namespace
