#include "data/atomic_mass.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

#include "data/tables.hpp"

namespace
{

struct ElementRow {
    const char* symbol;
    float mass;
};

// Relative atomic masses in g/mol, to the four digits of a school data table; synthetic and
// radioactive elements carry the mass number of one isotope. The values are this program's own
// and are kept as they stand, these on purpose:
//   - Sb holds the mass of Te; antimony's own is 121.8.
//   - Ti, Ni, Ge, Mo and others are older standard values (today 47.87, 58.69, 72.63, 95.95).
//   - Au holds 197.1; today's value is 197.0.
//   - Ta has no row, so a formula with tantalum is not understood.
// The order is hydrogen to lanthanum, hafnium to actinium, rutherfordium to roentgenium, the other
// lanthanides, the other actinides.
// clang-format off
constexpr ElementRow elementRows[] = {
    {"H", 1.008f},     // 1
    {"He", 4.003f},    // 2
    {"Li", 6.941f},    // 3
    {"Be", 9.012f},    // 4
    {"B", 10.81f},     // 5
    {"C", 12.01f},     // 6
    {"N", 14.01f},     // 7
    {"O", 16.0f},      // 8
    {"F", 19.0f},      // 9
    {"Ne", 20.18f},    // 10
    {"Na", 22.99f},    // 11
    {"Mg", 24.31f},    // 12
    {"Al", 26.98f},    // 13
    {"Si", 28.09f},    // 14
    {"P", 30.97f},     // 15
    {"S", 32.06f},     // 16
    {"Cl", 35.45f},    // 17
    {"Ar", 39.95f},    // 18
    {"K", 39.1f},      // 19
    {"Ca", 40.08f},    // 20
    {"Sc", 44.96f},    // 21
    {"Ti", 47.9f},     // 22
    {"V", 50.94f},     // 23
    {"Cr", 52.0f},     // 24
    {"Mn", 54.94f},    // 25
    {"Fe", 55.85f},    // 26
    {"Co", 58.93f},    // 27
    {"Ni", 58.7f},     // 28
    {"Cu", 63.55f},    // 29
    {"Zn", 65.38f},    // 30
    {"Ga", 69.72f},    // 31
    {"Ge", 72.59f},    // 32
    {"As", 74.92f},    // 33
    {"Se", 78.96f},    // 34
    {"Br", 79.9f},     // 35
    {"Kr", 83.8f},     // 36
    {"Rb", 85.47f},    // 37
    {"Sr", 87.62f},    // 38
    {"Y", 88.91f},     // 39
    {"Zr", 91.22f},    // 40
    {"Nb", 92.91f},    // 41
    {"Mo", 95.94f},    // 42
    {"Tc", 97.0f},     // 43
    {"Ru", 101.1f},    // 44
    {"Rh", 102.9f},    // 45
    {"Pd", 106.4f},    // 46
    {"Ag", 107.9f},    // 47
    {"Cd", 112.4f},    // 48
    {"In", 114.8f},    // 49
    {"Sn", 118.7f},    // 50
    {"Sb", 127.6f},    // 51
    {"Te", 127.6f},    // 52
    {"I", 126.9f},     // 53
    {"Xe", 131.3f},    // 54
    {"Cs", 132.9f},    // 55
    {"Ba", 137.3f},    // 56
    {"La", 138.9f},    // 57
    {"Hf", 178.5f},    // 58
    {"W", 183.9f},     // 59
    {"Re", 186.2f},    // 60
    {"Os", 190.2f},    // 61
    {"Ir", 192.2f},    // 62
    {"Pt", 195.1f},    // 63
    {"Au", 197.1f},    // 64
    {"Hg", 200.6f},    // 65
    {"Tl", 204.4f},    // 66
    {"Pb", 207.2f},    // 67
    {"Bi", 209.0f},    // 68
    {"Po", 209.0f},    // 69
    {"At", 210.0f},    // 70
    {"Rn", 222.0f},    // 71
    {"Fr", 223.0f},    // 72
    {"Ra", 226.0f},    // 73
    {"Ac", 227.0f},    // 74
    {"Rf", 267.0f},    // 75
    {"Db", 268.0f},    // 76
    {"Sg", 271.0f},    // 77
    {"Bh", 272.0f},    // 78
    {"Hs", 270.0f},    // 79
    {"Mt", 276.0f},    // 80
    {"Ds", 281.0f},    // 81
    {"Rg", 280.0f},    // 82
    {"Ce", 140.1f},    // 83
    {"Pr", 140.9f},    // 84
    {"Nd", 144.2f},    // 85
    {"Pm", 145.0f},    // 86
    {"Sm", 150.4f},    // 87
    {"Eu", 152.0f},    // 88
    {"Gd", 157.3f},    // 89
    {"Tb", 158.9f},    // 90
    {"Dy", 162.5f},    // 91
    {"Ho", 164.9f},    // 92
    {"Er", 167.3f},    // 93
    {"Tm", 168.9f},    // 94
    {"Yb", 173.0f},    // 95
    {"Lu", 175.0f},    // 96
    {"Th", 232.0f},    // 97
    {"Pa", 231.0f},    // 98
    {"U", 238.0f},     // 99
    {"Np", 237.0f},    // 100
    {"Pu", 244.0f},    // 101
    {"Am", 243.0f},    // 102
    {"Cm", 247.0f},    // 103
    {"Bk", 247.0f},    // 104
    {"Cf", 251.0f},    // 105
    {"Es", 252.0f},    // 106
    {"Fm", 257.0f},    // 107
    {"Md", 258.0f},    // 108
    {"No", 259.0f},    // 109
    {"Lr", 262.0f},    // 110
};
// clang-format on
static_assert(std::size(elementRows) == 110);

} // namespace

atomicMass::atomicMass(std::string elementSymbol, float relativeMass)
    : symbol(std::move(elementSymbol)), mass(relativeMass)
{
}

bool atomicMass::operator==(const atomicMass& other) const
{
    return symbol == other.symbol;
}

void initMasses()
{
    aMasses.reserve(aMasses.size() + std::size(elementRows));
    for (const ElementRow& row : elementRows) {
        aMasses.emplace_back(row.symbol, row.mass);
    }
}

float getAtomicMass(std::string symbol)
{
    const atomicMass probe(std::move(symbol), 0.0f);
    const auto row = std::find(aMasses.begin(), aMasses.end(), probe);
    return row == aMasses.end() ? 0.0f : row->mass;
}
