#include "lesson/tables/elements.hpp"

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
    {1, "H", "hydrogen", "", 1008, "1.008", 1, 1},
    {2, "He", "helium", "", 4003, "4.003", 1, 18},
    {3, "Li", "lithium", "", 6940, "6.940", 2, 1},
    {4, "Be", "beryllium", "", 9012, "9.012", 2, 2},
    {5, "B", "boron", "", 10810, "10.81", 2, 13},
    {6, "C", "carbon", "", 12010, "12.01", 2, 14},
    {7, "N", "nitrogen", "", 14010, "14.01", 2, 15},
    {8, "O", "oxygen", "", 16000, "16.00", 2, 16},
    {9, "F", "fluorine", "", 19000, "19.00", 2, 17},
    {10, "Ne", "neon", "", 20180, "20.18", 2, 18},
    {11, "Na", "sodium", "", 22990, "22.99", 3, 1},
    {12, "Mg", "magnesium", "", 24310, "24.31", 3, 2},
    {13, "Al", "aluminium", "aluminum", 26980, "26.98", 3, 13},
    {14, "Si", "silicon", "", 28090, "28.09", 3, 14},
    {15, "P", "phosphorus", "", 30970, "30.97", 3, 15},
    {16, "S", "sulfur", "", 32060, "32.06", 3, 16},
    {17, "Cl", "chlorine", "", 35450, "35.45", 3, 17},
    {18, "Ar", "argon", "", 39950, "39.95", 3, 18},
    {19, "K", "potassium", "", 39100, "39.10", 4, 1},
    {20, "Ca", "calcium", "", 40080, "40.08", 4, 2},
    {21, "Sc", "scandium", "", 44960, "44.96", 4, 3},
    {22, "Ti", "titanium", "", 47870, "47.87", 4, 4},
    {23, "V", "vanadium", "", 50940, "50.94", 4, 5},
    {24, "Cr", "chromium", "", 52000, "52.00", 4, 6},
    {25, "Mn", "manganese", "", 54940, "54.94", 4, 7},
    {26, "Fe", "iron", "", 55850, "55.85", 4, 8},
    {27, "Co", "cobalt", "", 58930, "58.93", 4, 9},
    {28, "Ni", "nickel", "", 58690, "58.69", 4, 10},
    {29, "Cu", "copper", "", 63550, "63.55", 4, 11},
    {30, "Zn", "zinc", "", 65380, "65.38", 4, 12},
    {31, "Ga", "gallium", "", 69720, "69.72", 4, 13},
    {32, "Ge", "germanium", "", 72630, "72.63", 4, 14},
    {33, "As", "arsenic", "", 74920, "74.92", 4, 15},
    {34, "Se", "selenium", "", 78970, "78.97", 4, 16},
    {35, "Br", "bromine", "", 79900, "79.90", 4, 17},
    {36, "Kr", "krypton", "", 83800, "83.80", 4, 18},
    {37, "Rb", "rubidium", "", 85470, "85.47", 5, 1},
    {38, "Sr", "strontium", "", 87620, "87.62", 5, 2},
    {39, "Y", "yttrium", "", 88910, "88.91", 5, 3},
    {40, "Zr", "zirconium", "", 91220, "91.22", 5, 4},
    {41, "Nb", "niobium", "", 92910, "92.91", 5, 5},
    {42, "Mo", "molybdenum", "", 95950, "95.95", 5, 6},
    {43, "Tc", "technetium", "", 97000, "[97]", 5, 7},
    {44, "Ru", "ruthenium", "", 101100, "101.1", 5, 8},
    {45, "Rh", "rhodium", "", 102900, "102.9", 5, 9},
    {46, "Pd", "palladium", "", 106400, "106.4", 5, 10},
    {47, "Ag", "silver", "", 107900, "107.9", 5, 11},
    {48, "Cd", "cadmium", "", 112400, "112.4", 5, 12},
    {49, "In", "indium", "", 114800, "114.8", 5, 13},
    {50, "Sn", "tin", "", 118700, "118.7", 5, 14},
    {51, "Sb", "antimony", "", 121800, "121.8", 5, 15},
    {52, "Te", "tellurium", "", 127600, "127.6", 5, 16},
    {53, "I", "iodine", "", 126900, "126.9", 5, 17},
    {54, "Xe", "xenon", "", 131300, "131.3", 5, 18},
    {55, "Cs", "caesium", "cesium", 132900, "132.9", 6, 1},
    {56, "Ba", "barium", "", 137300, "137.3", 6, 2},
    {57, "La", "lanthanum", "", 138900, "138.9", 6, 0},
    {58, "Ce", "cerium", "", 140100, "140.1", 6, 0},
    {59, "Pr", "praseodymium", "", 140900, "140.9", 6, 0},
    {60, "Nd", "neodymium", "", 144200, "144.2", 6, 0},
    {61, "Pm", "promethium", "", 145000, "[145]", 6, 0},
    {62, "Sm", "samarium", "", 150400, "150.4", 6, 0},
    {63, "Eu", "europium", "", 152000, "152.0", 6, 0},
    {64, "Gd", "gadolinium", "", 157300, "157.3", 6, 0},
    {65, "Tb", "terbium", "", 158900, "158.9", 6, 0},
    {66, "Dy", "dysprosium", "", 162500, "162.5", 6, 0},
    {67, "Ho", "holmium", "", 164900, "164.9", 6, 0},
    {68, "Er", "erbium", "", 167300, "167.3", 6, 0},
    {69, "Tm", "thulium", "", 168900, "168.9", 6, 0},
    {70, "Yb", "ytterbium", "", 173000, "173.0", 6, 0},
    {71, "Lu", "lutetium", "", 175000, "175.0", 6, 0},
    {72, "Hf", "hafnium", "", 178500, "178.5", 6, 4},
    {73, "Ta", "tantalum", "", 180900, "180.9", 6, 5},
    {74, "W", "tungsten", "", 183800, "183.8", 6, 6},
    {75, "Re", "rhenium", "", 186200, "186.2", 6, 7},
    {76, "Os", "osmium", "", 190200, "190.2", 6, 8},
    {77, "Ir", "iridium", "", 192200, "192.2", 6, 9},
    {78, "Pt", "platinum", "", 195100, "195.1", 6, 10},
    {79, "Au", "gold", "", 197000, "197.0", 6, 11},
    {80, "Hg", "mercury", "", 200600, "200.6", 6, 12},
    {81, "Tl", "thallium", "", 204400, "204.4", 6, 13},
    {82, "Pb", "lead", "", 207200, "207.2", 6, 14},
    {83, "Bi", "bismuth", "", 209000, "209.0", 6, 15},
    {84, "Po", "polonium", "", 209000, "[209]", 6, 16},
    {85, "At", "astatine", "", 210000, "[210]", 6, 17},
    {86, "Rn", "radon", "", 222000, "[222]", 6, 18},
    {87, "Fr", "francium", "", 223000, "[223]", 7, 1},
    {88, "Ra", "radium", "", 226000, "[226]", 7, 2},
    {89, "Ac", "actinium", "", 227000, "[227]", 7, 0},
    {90, "Th", "thorium", "", 232000, "232.0", 7, 0},
    {91, "Pa", "protactinium", "", 231000, "231.0", 7, 0},
    {92, "U", "uranium", "", 238000, "238.0", 7, 0},
    {93, "Np", "neptunium", "", 237000, "[237]", 7, 0},
    {94, "Pu", "plutonium", "", 244000, "[244]", 7, 0},
    {95, "Am", "americium", "", 243000, "[243]", 7, 0},
    {96, "Cm", "curium", "", 247000, "[247]", 7, 0},
    {97, "Bk", "berkelium", "", 247000, "[247]", 7, 0},
    {98, "Cf", "californium", "", 251000, "[251]", 7, 0},
    {99, "Es", "einsteinium", "", 252000, "[252]", 7, 0},
    {100, "Fm", "fermium", "", 257000, "[257]", 7, 0},
    {101, "Md", "mendelevium", "", 258000, "[258]", 7, 0},
    {102, "No", "nobelium", "", 259000, "[259]", 7, 0},
    {103, "Lr", "lawrencium", "", 262000, "[262]", 7, 0},
    {104, "Rf", "rutherfordium", "", 267000, "[267]", 7, 4},
    {105, "Db", "dubnium", "", 268000, "[268]", 7, 5},
    {106, "Sg", "seaborgium", "", 269000, "[269]", 7, 6},
    {107, "Bh", "bohrium", "", 270000, "[270]", 7, 7},
    {108, "Hs", "hassium", "", 269000, "[269]", 7, 8},
    {109, "Mt", "meitnerium", "", 277000, "[277]", 7, 9},
    {110, "Ds", "darmstadtium", "", 281000, "[281]", 7, 10},
    {111, "Rg", "roentgenium", "", 282000, "[282]", 7, 11},
    {112, "Cn", "copernicium", "", 285000, "[285]", 7, 12},
    {113, "Nh", "nihonium", "", 286000, "[286]", 7, 13},
    {114, "Fl", "flerovium", "", 290000, "[290]", 7, 14},
    {115, "Mc", "moscovium", "", 290000, "[290]", 7, 15},
    {116, "Lv", "livermorium", "", 293000, "[293]", 7, 16},
    {117, "Ts", "tennessine", "", 294000, "[294]", 7, 17},
    {118, "Og", "oganesson", "", 294000, "[294]", 7, 18},
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
