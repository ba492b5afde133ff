#include "lesson/chemistry/elements.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>

#include "lesson/numbers/decimal.hpp"

namespace lesson
{

namespace
{

// IUPAC's standard atomic weights of 2021 to four figures: the conventional value where the
// standard is an interval (H, Li, B, C, N, O, Mg, Si, S, Cl, Ar, Br, Tl, Pb), so that a class has
// one number. In brackets, where no isotope is stable and nature has no usual mixture, the mass
// number of a long-lived isotope, as on IUPAC's periodic table of 2022.
//
// What other tables may have:
//   - Li 6.941, S 32.07, Zn 65.41, Ge 72.64, Se 78.96, Mo 95.94 are older standards.
//   - Gd 157.2 is the revision of 2024 (157.249); no exercise has gadolinium.
//   - Tc [98] lives as long as [97] within the uncertainty; the isotopes of the elements from 104
//     on change with each discovery.
//   - La or Lu, Ac or Lr in group 3 is open; here, as on IUPAC's table, all fifteen of a row stand
//     below it.
constexpr bool mean = false;
constexpr bool massNumber = true;

// clang-format off
constexpr ElementRow rows[] = {
    {1,   1008,   mean,       "H",  1, 1},
    {2,   4003,   mean,       "He", 1, 18},
    {3,   6940,   mean,       "Li", 2, 1},
    {4,   9012,   mean,       "Be", 2, 2},
    {5,   10810,  mean,       "B",  2, 13},
    {6,   12010,  mean,       "C",  2, 14},
    {7,   14010,  mean,       "N",  2, 15},
    {8,   16000,  mean,       "O",  2, 16},
    {9,   19000,  mean,       "F",  2, 17},
    {10,  20180,  mean,       "Ne", 2, 18},
    {11,  22990,  mean,       "Na", 3, 1},
    {12,  24310,  mean,       "Mg", 3, 2},
    {13,  26980,  mean,       "Al", 3, 13},
    {14,  28090,  mean,       "Si", 3, 14},
    {15,  30970,  mean,       "P",  3, 15},
    {16,  32060,  mean,       "S",  3, 16},
    {17,  35450,  mean,       "Cl", 3, 17},
    {18,  39950,  mean,       "Ar", 3, 18},
    {19,  39100,  mean,       "K",  4, 1},
    {20,  40080,  mean,       "Ca", 4, 2},
    {21,  44960,  mean,       "Sc", 4, 3},
    {22,  47870,  mean,       "Ti", 4, 4},
    {23,  50940,  mean,       "V",  4, 5},
    {24,  52000,  mean,       "Cr", 4, 6},
    {25,  54940,  mean,       "Mn", 4, 7},
    {26,  55850,  mean,       "Fe", 4, 8},
    {27,  58930,  mean,       "Co", 4, 9},
    {28,  58690,  mean,       "Ni", 4, 10},
    {29,  63550,  mean,       "Cu", 4, 11},
    {30,  65380,  mean,       "Zn", 4, 12},
    {31,  69720,  mean,       "Ga", 4, 13},
    {32,  72630,  mean,       "Ge", 4, 14},
    {33,  74920,  mean,       "As", 4, 15},
    {34,  78970,  mean,       "Se", 4, 16},
    {35,  79900,  mean,       "Br", 4, 17},
    {36,  83800,  mean,       "Kr", 4, 18},
    {37,  85470,  mean,       "Rb", 5, 1},
    {38,  87620,  mean,       "Sr", 5, 2},
    {39,  88910,  mean,       "Y",  5, 3},
    {40,  91220,  mean,       "Zr", 5, 4},
    {41,  92910,  mean,       "Nb", 5, 5},
    {42,  95950,  mean,       "Mo", 5, 6},
    {43,  97000,  massNumber, "Tc", 5, 7},
    {44,  101100, mean,       "Ru", 5, 8},
    {45,  102900, mean,       "Rh", 5, 9},
    {46,  106400, mean,       "Pd", 5, 10},
    {47,  107900, mean,       "Ag", 5, 11},
    {48,  112400, mean,       "Cd", 5, 12},
    {49,  114800, mean,       "In", 5, 13},
    {50,  118700, mean,       "Sn", 5, 14},
    {51,  121800, mean,       "Sb", 5, 15},
    {52,  127600, mean,       "Te", 5, 16},
    {53,  126900, mean,       "I",  5, 17},
    {54,  131300, mean,       "Xe", 5, 18},
    {55,  132900, mean,       "Cs", 6, 1},
    {56,  137300, mean,       "Ba", 6, 2},
    {57,  138900, mean,       "La", 6, 0},
    {58,  140100, mean,       "Ce", 6, 0},
    {59,  140900, mean,       "Pr", 6, 0},
    {60,  144200, mean,       "Nd", 6, 0},
    {61,  145000, massNumber, "Pm", 6, 0},
    {62,  150400, mean,       "Sm", 6, 0},
    {63,  152000, mean,       "Eu", 6, 0},
    {64,  157300, mean,       "Gd", 6, 0},
    {65,  158900, mean,       "Tb", 6, 0},
    {66,  162500, mean,       "Dy", 6, 0},
    {67,  164900, mean,       "Ho", 6, 0},
    {68,  167300, mean,       "Er", 6, 0},
    {69,  168900, mean,       "Tm", 6, 0},
    {70,  173000, mean,       "Yb", 6, 0},
    {71,  175000, mean,       "Lu", 6, 0},
    {72,  178500, mean,       "Hf", 6, 4},
    {73,  180900, mean,       "Ta", 6, 5},
    {74,  183800, mean,       "W",  6, 6},
    {75,  186200, mean,       "Re", 6, 7},
    {76,  190200, mean,       "Os", 6, 8},
    {77,  192200, mean,       "Ir", 6, 9},
    {78,  195100, mean,       "Pt", 6, 10},
    {79,  197000, mean,       "Au", 6, 11},
    {80,  200600, mean,       "Hg", 6, 12},
    {81,  204400, mean,       "Tl", 6, 13},
    {82,  207200, mean,       "Pb", 6, 14},
    {83,  209000, mean,       "Bi", 6, 15},
    {84,  209000, massNumber, "Po", 6, 16},
    {85,  210000, massNumber, "At", 6, 17},
    {86,  222000, massNumber, "Rn", 6, 18},
    {87,  223000, massNumber, "Fr", 7, 1},
    {88,  226000, massNumber, "Ra", 7, 2},
    {89,  227000, massNumber, "Ac", 7, 0},
    {90,  232000, mean,       "Th", 7, 0},
    {91,  231000, mean,       "Pa", 7, 0},
    {92,  238000, mean,       "U",  7, 0},
    {93,  237000, massNumber, "Np", 7, 0},
    {94,  244000, massNumber, "Pu", 7, 0},
    {95,  243000, massNumber, "Am", 7, 0},
    {96,  247000, massNumber, "Cm", 7, 0},
    {97,  247000, massNumber, "Bk", 7, 0},
    {98,  251000, massNumber, "Cf", 7, 0},
    {99,  252000, massNumber, "Es", 7, 0},
    {100, 257000, massNumber, "Fm", 7, 0},
    {101, 258000, massNumber, "Md", 7, 0},
    {102, 259000, massNumber, "No", 7, 0},
    {103, 262000, massNumber, "Lr", 7, 0},
    {104, 267000, massNumber, "Rf", 7, 4},
    {105, 268000, massNumber, "Db", 7, 5},
    {106, 269000, massNumber, "Sg", 7, 6},
    {107, 270000, massNumber, "Bh", 7, 7},
    {108, 269000, massNumber, "Hs", 7, 8},
    {109, 277000, massNumber, "Mt", 7, 9},
    {110, 281000, massNumber, "Ds", 7, 10},
    {111, 282000, massNumber, "Rg", 7, 11},
    {112, 285000, massNumber, "Cn", 7, 12},
    {113, 286000, massNumber, "Nh", 7, 13},
    {114, 290000, massNumber, "Fl", 7, 14},
    {115, 290000, massNumber, "Mc", 7, 15},
    {116, 293000, massNumber, "Lv", 7, 16},
    {117, 294000, massNumber, "Ts", 7, 17},
    {118, 294000, massNumber, "Og", 7, 18},
};
// clang-format on

constexpr bool areInOrder()
{
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        if (rows[i].number != static_cast<int>(i) + 1) {
            return false;
        }
    }
    return true;
}

static_assert(std::size(rows) == elementCount, "every element up to oganesson has a row");
static_assert(areInOrder(), "the row of an element is found by its atomic number");

struct Named {
    int element;
    std::string_view symbol;
};
constexpr Named named[] = {
    {elements::hydrogen, "H"},  {elements::carbon, "C"},    {elements::nitrogen, "N"},
    {elements::oxygen, "O"},    {elements::fluorine, "F"},  {elements::sulfur, "S"},
    {elements::chlorine, "Cl"}, {elements::chromium, "Cr"}, {elements::manganese, "Mn"},
    {elements::iron, "Fe"},     {elements::cobalt, "Co"},   {elements::nickel, "Ni"},
    {elements::copper, "Cu"},   {elements::bromine, "Br"},  {elements::tin, "Sn"},
    {elements::iodine, "I"},    {elements::lead, "Pb"},
};

constexpr bool areNamedRight()
{
    bool areRight = true;
    for (const Named& one : named) {
        areRight = areRight && rows[one.element - 1].symbol == one.symbol;
    }
    return areRight;
}
static_assert(areNamedRight(), "a name stands for its element");

// A symbol is a capital letter and, but for the shortest, a small one.
constexpr std::size_t letters = 26;
constexpr std::size_t noPlace = letters * (letters + 1);

constexpr std::size_t placeOf(std::string_view symbol)
{
    if (symbol.empty() || symbol.size() > 2 || symbol[0] < 'A' || symbol[0] > 'Z') {
        return noPlace;
    }
    const auto first = static_cast<std::size_t>(symbol[0] - 'A') * (letters + 1);
    if (symbol.size() == 1) {
        return first;
    }
    if (symbol[1] < 'a' || symbol[1] > 'z') {
        return noPlace;
    }
    return first + static_cast<std::size_t>(symbol[1] - 'a') + 1;
}

// The atomic number at the place of each symbol, 0 where there is none: formulas are read often.
using SymbolIndex = std::array<std::uint8_t, noPlace + 1>;

constexpr SymbolIndex makeIndex()
{
    SymbolIndex index = {};
    for (const ElementRow& row : rows) {
        index[placeOf(row.symbol)] = static_cast<std::uint8_t>(row.number);
    }
    return index;
}

constexpr SymbolIndex indexOfSymbols = makeIndex();
static_assert(indexOfSymbols[noPlace] == 0, "every symbol has a place of its own");

} // namespace

const ElementRow& element(int atomicNumber)
{
    return rows[atomicNumber - 1];
}

std::string shownMass(const ElementRow& row)
{
    if (row.isMassNumber) {
        return "[" + std::to_string(row.thousandths / 1000) + "]";
    }
    return plainText(roundedTo(ratio(row.thousandths, 1000), 4));
}

const ElementRow* findElement(std::string_view symbol)
{
    const int number = indexOfSymbols[placeOf(symbol)];
    return number == 0 ? nullptr : &element(number);
}

} // namespace lesson
