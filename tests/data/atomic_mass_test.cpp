#include "data/atomic_mass.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <string>
#include <type_traits>
#include <vector>

#include "data/tables.hpp"

namespace
{

// The table once more, five elements a line, to be read against the program's own.
struct Element {
    const char* symbol;
    float mass;
};

// clang-format off
constexpr Element elements[] = {
    {"H", 1.008f}, {"He", 4.003f}, {"Li", 6.941f}, {"Be", 9.012f}, {"B", 10.81f},
    {"C", 12.01f}, {"N", 14.01f}, {"O", 16.0f}, {"F", 19.0f}, {"Ne", 20.18f},
    {"Na", 22.99f}, {"Mg", 24.31f}, {"Al", 26.98f}, {"Si", 28.09f}, {"P", 30.97f},
    {"S", 32.06f}, {"Cl", 35.45f}, {"Ar", 39.95f}, {"K", 39.1f}, {"Ca", 40.08f},
    {"Sc", 44.96f}, {"Ti", 47.9f}, {"V", 50.94f}, {"Cr", 52.0f}, {"Mn", 54.94f},
    {"Fe", 55.85f}, {"Co", 58.93f}, {"Ni", 58.7f}, {"Cu", 63.55f}, {"Zn", 65.38f},
    {"Ga", 69.72f}, {"Ge", 72.59f}, {"As", 74.92f}, {"Se", 78.96f}, {"Br", 79.9f},
    {"Kr", 83.8f}, {"Rb", 85.47f}, {"Sr", 87.62f}, {"Y", 88.91f}, {"Zr", 91.22f},
    {"Nb", 92.91f}, {"Mo", 95.94f}, {"Tc", 97.0f}, {"Ru", 101.1f}, {"Rh", 102.9f},
    {"Pd", 106.4f}, {"Ag", 107.9f}, {"Cd", 112.4f}, {"In", 114.8f}, {"Sn", 118.7f},
    {"Sb", 127.6f}, {"Te", 127.6f}, {"I", 126.9f}, {"Xe", 131.3f}, {"Cs", 132.9f},
    {"Ba", 137.3f}, {"La", 138.9f}, {"Hf", 178.5f}, {"W", 183.9f}, {"Re", 186.2f},
    {"Os", 190.2f}, {"Ir", 192.2f}, {"Pt", 195.1f}, {"Au", 197.1f}, {"Hg", 200.6f},
    {"Tl", 204.4f}, {"Pb", 207.2f}, {"Bi", 209.0f}, {"Po", 209.0f}, {"At", 210.0f},
    {"Rn", 222.0f}, {"Fr", 223.0f}, {"Ra", 226.0f}, {"Ac", 227.0f}, {"Rf", 267.0f},
    {"Db", 268.0f}, {"Sg", 271.0f}, {"Bh", 272.0f}, {"Hs", 270.0f}, {"Mt", 276.0f},
    {"Ds", 281.0f}, {"Rg", 280.0f}, {"Ce", 140.1f}, {"Pr", 140.9f}, {"Nd", 144.2f},
    {"Pm", 145.0f}, {"Sm", 150.4f}, {"Eu", 152.0f}, {"Gd", 157.3f}, {"Tb", 158.9f},
    {"Dy", 162.5f}, {"Ho", 164.9f}, {"Er", 167.3f}, {"Tm", 168.9f}, {"Yb", 173.0f},
    {"Lu", 175.0f}, {"Th", 232.0f}, {"Pa", 231.0f}, {"U", 238.0f}, {"Np", 237.0f},
    {"Pu", 244.0f}, {"Am", 243.0f}, {"Cm", 247.0f}, {"Bk", 247.0f}, {"Cf", 251.0f},
    {"Es", 252.0f}, {"Fm", 257.0f}, {"Md", 258.0f}, {"No", 259.0f}, {"Lr", 262.0f},
};
// clang-format on

class AtomicMassTest : public testing::Test
{
protected:
    void SetUp() override
    {
        std::vector<atomicMass>().swap(aMasses);
    }
    void TearDown() override
    {
        aMasses.clear();
    }
};

TEST_F(AtomicMassTest, EveryLookupInTheEmptyTableGivesZero)
{
    for (const char* symbol : {"H", "O", "Lr", "Ta", ""}) {
        EXPECT_EQ(getAtomicMass(symbol), 0.0f) << symbol;
    }
    EXPECT_TRUE(aMasses.empty());
}

TEST_F(AtomicMassTest, TableHoldsEveryElementInOrder)
{
    initMasses();
    ASSERT_EQ(aMasses.size(), std::size(elements));
    for (std::size_t i = 0; i < aMasses.size(); ++i) {
        EXPECT_EQ(aMasses[i].symbol, elements[i].symbol) << "row " << i + 1;
        EXPECT_EQ(aMasses[i].mass, elements[i].mass) << elements[i].symbol;
    }
}

TEST_F(AtomicMassTest, EverySymbolFindsItsOwnMass)
{
    initMasses();
    for (const Element& element : elements) {
        EXPECT_EQ(getAtomicMass(element.symbol), element.mass) << element.symbol;
    }
}

TEST_F(AtomicMassTest, WhatIsNoSymbolHasNoMass)
{
    initMasses();
    for (const char* text : {"", "Ta", "h", "CO", "cl", "CL", "HE", "J", "Uu", "Cn", "H ", " H",
                             "H2", "Hee", "(", ".", "1"}) {
        EXPECT_EQ(getAtomicMass(text), 0.0f) << '"' << text << '"';
    }
    EXPECT_EQ(getAtomicMass(std::string("H\0", 2)), 0.0f);
}

TEST_F(AtomicMassTest, EveryFillAppendsAllRowsOnceMore)
{
    initMasses();
    initMasses();
    ASSERT_EQ(aMasses.size(), 220u);
    for (std::size_t i = 0; i < std::size(elements); ++i) {
        EXPECT_EQ(aMasses[i + 110].symbol, elements[i].symbol) << "row " << i + 111;
        EXPECT_EQ(aMasses[i + 110].mass, elements[i].mass) << elements[i].symbol;
    }
}

TEST_F(AtomicMassTest, LookupTakesTheFirstOfEqualSymbols)
{
    aMasses.push_back(atomicMass("X", 1.5f));
    aMasses.push_back(atomicMass("X", 2.5f));
    EXPECT_EQ(getAtomicMass("X"), 1.5f);
}

TEST_F(AtomicMassTest, LookupReachesTheLastRow)
{
    aMasses.push_back(atomicMass("X", 1.5f));
    aMasses.push_back(atomicMass("Y", 2.5f));
    EXPECT_EQ(getAtomicMass("Y"), 2.5f);
}

TEST_F(AtomicMassTest, RowsAreEqualWhenTheirSymbolsAre)
{
    EXPECT_TRUE(atomicMass("H", 1.0f) == atomicMass("H", 2.0f));
    EXPECT_FALSE(atomicMass("H", 1.0f) == atomicMass("h", 1.0f));
    EXPECT_FALSE(atomicMass("H", 1.0f) == atomicMass("He", 1.0f));
}

TEST_F(AtomicMassTest, FieldsAreSymbolAndMassInThisOrder)
{
    const auto [symbol, mass] = atomicMass("H", 1.5f);
    static_assert(std::is_same_v<decltype(mass), const float>);
    EXPECT_EQ(symbol, "H");
    EXPECT_EQ(mass, 1.5f);
}

} // namespace
