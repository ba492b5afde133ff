#include "lesson/chemistry/elements.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>

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
// clang-format off
constexpr ElementRow rows[] = {
    {1, 1008, "H", "hydrogen", "", "1.008", 1, 1},
    {2, 4003, "He", "helium", "", "4.003", 1, 18},
    {3, 6940, "Li", "lithium", "", "6.940", 2, 1},
    {4, 9012, "Be", "beryllium", "", "9.012", 2, 2},
    {5, 10810, "B", "boron", "", "10.81", 2, 13},
    {6, 12010, "C", "carbon", "", "12.01", 2, 14},
    {7, 14010, "N", "nitrogen", "", "14.01", 2, 15},
    {8, 16000, "O", "oxygen", "", "16.00", 2, 16},
    {9, 19000, "F", "fluorine", "", "19.00", 2, 17},
    {10, 20180, "Ne", "neon", "", "20.18", 2, 18},
    {11, 22990, "Na", "sodium", "", "22.99", 3, 1},
    {12, 24310, "Mg", "magnesium", "", "24.31", 3, 2},
    {13, 26980, "Al", "aluminium", "aluminum", "26.98", 3, 13},
    {14, 28090, "Si", "silicon", "", "28.09", 3, 14},
    {15, 30970, "P", "phosphorus", "", "30.97", 3, 15},
    {16, 32060, "S", "sulfur", "", "32.06", 3, 16},
    {17, 35450, "Cl", "chlorine", "", "35.45", 3, 17},
    {18, 39950, "Ar", "argon", "", "39.95", 3, 18},
    {19, 39100, "K", "potassium", "", "39.10", 4, 1},
    {20, 40080, "Ca", "calcium", "", "40.08", 4, 2},
    {21, 44960, "Sc", "scandium", "", "44.96", 4, 3},
    {22, 47870, "Ti", "titanium", "", "47.87", 4, 4},
    {23, 50940, "V", "vanadium", "", "50.94", 4, 5},
    {24, 52000, "Cr", "chromium", "", "52.00", 4, 6},
    {25, 54940, "Mn", "manganese", "", "54.94", 4, 7},
    {26, 55850, "Fe", "iron", "", "55.85", 4, 8},
    {27, 58930, "Co", "cobalt", "", "58.93", 4, 9},
    {28, 58690, "Ni", "nickel", "", "58.69", 4, 10},
    {29, 63550, "Cu", "copper", "", "63.55", 4, 11},
    {30, 65380, "Zn", "zinc", "", "65.38", 4, 12},
    {31, 69720, "Ga", "gallium", "", "69.72", 4, 13},
    {32, 72630, "Ge", "germanium", "", "72.63", 4, 14},
    {33, 74920, "As", "arsenic", "", "74.92", 4, 15},
    {34, 78970, "Se", "selenium", "", "78.97", 4, 16},
    {35, 79900, "Br", "bromine", "", "79.90", 4, 17},
    {36, 83800, "Kr", "krypton", "", "83.80", 4, 18},
    {37, 85470, "Rb", "rubidium", "", "85.47", 5, 1},
    {38, 87620, "Sr", "strontium", "", "87.62", 5, 2},
    {39, 88910, "Y", "yttrium", "", "88.91", 5, 3},
    {40, 91220, "Zr", "zirconium", "", "91.22", 5, 4},
    {41, 92910, "Nb", "niobium", "", "92.91", 5, 5},
    {42, 95950, "Mo", "molybdenum", "", "95.95", 5, 6},
    {43, 97000, "Tc", "technetium", "", "[97]", 5, 7},
    {44, 101100, "Ru", "ruthenium", "", "101.1", 5, 8},
    {45, 102900, "Rh", "rhodium", "", "102.9", 5, 9},
    {46, 106400, "Pd", "palladium", "", "106.4", 5, 10},
    {47, 107900, "Ag", "silver", "", "107.9", 5, 11},
    {48, 112400, "Cd", "cadmium", "", "112.4", 5, 12},
    {49, 114800, "In", "indium", "", "114.8", 5, 13},
    {50, 118700, "Sn", "tin", "", "118.7", 5, 14},
    {51, 121800, "Sb", "antimony", "", "121.8", 5, 15},
    {52, 127600, "Te", "tellurium", "", "127.6", 5, 16},
    {53, 126900, "I", "iodine", "", "126.9", 5, 17},
    {54, 131300, "Xe", "xenon", "", "131.3", 5, 18},
    {55, 132900, "Cs", "caesium", "cesium", "132.9", 6, 1},
    {56, 137300, "Ba", "barium", "", "137.3", 6, 2},
    {57, 138900, "La", "lanthanum", "", "138.9", 6, 0},
    {58, 140100, "Ce", "cerium", "", "140.1", 6, 0},
    {59, 140900, "Pr", "praseodymium", "", "140.9", 6, 0},
    {60, 144200, "Nd", "neodymium", "", "144.2", 6, 0},
    {61, 145000, "Pm", "promethium", "", "[145]", 6, 0},
    {62, 150400, "Sm", "samarium", "", "150.4", 6, 0},
    {63, 152000, "Eu", "europium", "", "152.0", 6, 0},
    {64, 157300, "Gd", "gadolinium", "", "157.3", 6, 0},
    {65, 158900, "Tb", "terbium", "", "158.9", 6, 0},
    {66, 162500, "Dy", "dysprosium", "", "162.5", 6, 0},
    {67, 164900, "Ho", "holmium", "", "164.9", 6, 0},
    {68, 167300, "Er", "erbium", "", "167.3", 6, 0},
    {69, 168900, "Tm", "thulium", "", "168.9", 6, 0},
    {70, 173000, "Yb", "ytterbium", "", "173.0", 6, 0},
    {71, 175000, "Lu", "lutetium", "", "175.0", 6, 0},
    {72, 178500, "Hf", "hafnium", "", "178.5", 6, 4},
    {73, 180900, "Ta", "tantalum", "", "180.9", 6, 5},
    {74, 183800, "W", "tungsten", "", "183.8", 6, 6},
    {75, 186200, "Re", "rhenium", "", "186.2", 6, 7},
    {76, 190200, "Os", "osmium", "", "190.2", 6, 8},
    {77, 192200, "Ir", "iridium", "", "192.2", 6, 9},
    {78, 195100, "Pt", "platinum", "", "195.1", 6, 10},
    {79, 197000, "Au", "gold", "", "197.0", 6, 11},
    {80, 200600, "Hg", "mercury", "", "200.6", 6, 12},
    {81, 204400, "Tl", "thallium", "", "204.4", 6, 13},
    {82, 207200, "Pb", "lead", "", "207.2", 6, 14},
    {83, 209000, "Bi", "bismuth", "", "209.0", 6, 15},
    {84, 209000, "Po", "polonium", "", "[209]", 6, 16},
    {85, 210000, "At", "astatine", "", "[210]", 6, 17},
    {86, 222000, "Rn", "radon", "", "[222]", 6, 18},
    {87, 223000, "Fr", "francium", "", "[223]", 7, 1},
    {88, 226000, "Ra", "radium", "", "[226]", 7, 2},
    {89, 227000, "Ac", "actinium", "", "[227]", 7, 0},
    {90, 232000, "Th", "thorium", "", "232.0", 7, 0},
    {91, 231000, "Pa", "protactinium", "", "231.0", 7, 0},
    {92, 238000, "U", "uranium", "", "238.0", 7, 0},
    {93, 237000, "Np", "neptunium", "", "[237]", 7, 0},
    {94, 244000, "Pu", "plutonium", "", "[244]", 7, 0},
    {95, 243000, "Am", "americium", "", "[243]", 7, 0},
    {96, 247000, "Cm", "curium", "", "[247]", 7, 0},
    {97, 247000, "Bk", "berkelium", "", "[247]", 7, 0},
    {98, 251000, "Cf", "californium", "", "[251]", 7, 0},
    {99, 252000, "Es", "einsteinium", "", "[252]", 7, 0},
    {100, 257000, "Fm", "fermium", "", "[257]", 7, 0},
    {101, 258000, "Md", "mendelevium", "", "[258]", 7, 0},
    {102, 259000, "No", "nobelium", "", "[259]", 7, 0},
    {103, 262000, "Lr", "lawrencium", "", "[262]", 7, 0},
    {104, 267000, "Rf", "rutherfordium", "", "[267]", 7, 4},
    {105, 268000, "Db", "dubnium", "", "[268]", 7, 5},
    {106, 269000, "Sg", "seaborgium", "", "[269]", 7, 6},
    {107, 270000, "Bh", "bohrium", "", "[270]", 7, 7},
    {108, 269000, "Hs", "hassium", "", "[269]", 7, 8},
    {109, 277000, "Mt", "meitnerium", "", "[277]", 7, 9},
    {110, 281000, "Ds", "darmstadtium", "", "[281]", 7, 10},
    {111, 282000, "Rg", "roentgenium", "", "[282]", 7, 11},
    {112, 285000, "Cn", "copernicium", "", "[285]", 7, 12},
    {113, 286000, "Nh", "nihonium", "", "[286]", 7, 13},
    {114, 290000, "Fl", "flerovium", "", "[290]", 7, 14},
    {115, 290000, "Mc", "moscovium", "", "[290]", 7, 15},
    {116, 293000, "Lv", "livermorium", "", "[293]", 7, 16},
    {117, 294000, "Ts", "tennessine", "", "[294]", 7, 17},
    {118, 294000, "Og", "oganesson", "", "[294]", 7, 18},
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

const ElementRow* findElement(std::string_view symbol)
{
    const int number = indexOfSymbols[placeOf(symbol)];
    return number == 0 ? nullptr : &element(number);
}

} // namespace lesson
