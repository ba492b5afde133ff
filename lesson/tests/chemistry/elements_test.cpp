#include "lesson/chemistry/elements.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

// The masses once more, by symbol from A to Z, typed apart from the table.
struct TypedMass {
    const char* symbol;
    const char* shown;
};

// clang-format off
constexpr TypedMass typedMasses[] = {
    {"Ac", "[227]"}, {"Ag", "107.9"}, {"Al", "26.98"}, {"Am", "[243]"}, {"Ar", "39.95"},
    {"As", "74.92"}, {"At", "[210]"}, {"Au", "197.0"}, {"B", "10.81"}, {"Ba", "137.3"},
    {"Be", "9.012"}, {"Bh", "[270]"}, {"Bi", "209.0"}, {"Bk", "[247]"}, {"Br", "79.90"},
    {"C", "12.01"}, {"Ca", "40.08"}, {"Cd", "112.4"}, {"Ce", "140.1"}, {"Cf", "[251]"},
    {"Cl", "35.45"}, {"Cm", "[247]"}, {"Cn", "[285]"}, {"Co", "58.93"}, {"Cr", "52.00"},
    {"Cs", "132.9"}, {"Cu", "63.55"}, {"Db", "[268]"}, {"Ds", "[281]"}, {"Dy", "162.5"},
    {"Er", "167.3"}, {"Es", "[252]"}, {"Eu", "152.0"}, {"F", "19.00"}, {"Fe", "55.85"},
    {"Fl", "[290]"}, {"Fm", "[257]"}, {"Fr", "[223]"}, {"Ga", "69.72"}, {"Gd", "157.3"},
    {"Ge", "72.63"}, {"H", "1.008"}, {"He", "4.003"}, {"Hf", "178.5"}, {"Hg", "200.6"},
    {"Ho", "164.9"}, {"Hs", "[269]"}, {"I", "126.9"}, {"In", "114.8"}, {"Ir", "192.2"},
    {"K", "39.10"}, {"Kr", "83.80"}, {"La", "138.9"}, {"Li", "6.940"}, {"Lr", "[262]"},
    {"Lu", "175.0"}, {"Lv", "[293]"}, {"Mc", "[290]"}, {"Md", "[258]"}, {"Mg", "24.31"},
    {"Mn", "54.94"}, {"Mo", "95.95"}, {"Mt", "[277]"}, {"N", "14.01"}, {"Na", "22.99"},
    {"Nb", "92.91"}, {"Nd", "144.2"}, {"Ne", "20.18"}, {"Nh", "[286]"}, {"Ni", "58.69"},
    {"No", "[259]"}, {"Np", "[237]"}, {"O", "16.00"}, {"Og", "[294]"}, {"Os", "190.2"},
    {"P", "30.97"}, {"Pa", "231.0"}, {"Pb", "207.2"}, {"Pd", "106.4"}, {"Pm", "[145]"},
    {"Po", "[209]"}, {"Pr", "140.9"}, {"Pt", "195.1"}, {"Pu", "[244]"}, {"Ra", "[226]"},
    {"Rb", "85.47"}, {"Re", "186.2"}, {"Rf", "[267]"}, {"Rg", "[282]"}, {"Rh", "102.9"},
    {"Rn", "[222]"}, {"Ru", "101.1"}, {"S", "32.06"}, {"Sb", "121.8"}, {"Sc", "44.96"},
    {"Se", "78.97"}, {"Sg", "[269]"}, {"Si", "28.09"}, {"Sm", "150.4"}, {"Sn", "118.7"},
    {"Sr", "87.62"}, {"Ta", "180.9"}, {"Tb", "158.9"}, {"Tc", "[97]"}, {"Te", "127.6"},
    {"Th", "232.0"}, {"Ti", "47.87"}, {"Tl", "204.4"}, {"Tm", "168.9"}, {"Ts", "[294]"},
    {"U", "238.0"}, {"V", "50.94"}, {"W", "183.8"}, {"Xe", "131.3"}, {"Y", "88.91"},
    {"Yb", "173.0"}, {"Zn", "65.38"}, {"Zr", "91.22"},
};
// clang-format on

TEST(ElementsTest, HaveTheMassesTypedOnceMore)
{
    std::set<std::string> typed;
    for (const TypedMass& mass : typedMasses) {
        const ElementRow* const row = findElement(mass.symbol);
        ASSERT_NE(row, nullptr) << mass.symbol;
        EXPECT_EQ(shownMass(*row), mass.shown) << mass.symbol;
        typed.insert(mass.symbol);
    }
    EXPECT_EQ(typed.size(), 118u);
}

// The number that a shown mass stands for, in thousandths, read digit by digit.
int thousandthsIn(std::string shown)
{
    if (shown.front() == '[') {
        shown = shown.substr(1, shown.size() - 2);
    }
    const auto point = std::min(shown.find('.'), shown.size());
    std::string decimals = point < shown.size() ? shown.substr(point + 1) : "";
    decimals.resize(3, '0');
    return std::stoi(shown.substr(0, point) + decimals);
}

TEST(ElementsTest, ThousandthsAreTheShownMass)
{
    for (int number = 1; number <= elementCount; ++number) {
        const ElementRow& row = element(number);
        EXPECT_EQ(row.thousandths, thousandthsIn(shownMass(row))) << row.symbol;
    }
}

TEST(ElementsTest, MassesAreShownToFourFigures)
{
    for (int number = 1; number <= elementCount; ++number) {
        const std::string shown = shownMass(element(number));
        if (shown.front() == '[') {
            EXPECT_EQ(shown.find('.'), std::string::npos) << shown;
            EXPECT_EQ(shown.back(), ']');
        } else {
            EXPECT_EQ(std::count_if(shown.begin(), shown.end(),
                                    [](char c) { return c >= '0' && c <= '9'; }),
                      4)
                << shown;
            EXPECT_NE(shown.find('.'), std::string::npos) << shown;
        }
    }
}

// Technetium, promethium, and all from polonium on but for the three that are found in the earth.
TEST(ElementsTest, MassNumbersStandForElementsWithoutAStableIsotope)
{
    const std::set<int> found = {90, 91, 92};
    for (int number = 1; number <= elementCount; ++number) {
        const bool isUnstable =
            number == 43 || number == 61 || (number >= 84 && found.count(number) == 0);
        EXPECT_EQ(shownMass(element(number)).front() == '[', isUnstable) << element(number).symbol;
    }
}

TEST(ElementsTest, AreFoundByNumberAndBySymbol)
{
    std::set<std::string_view> symbols;
    std::set<std::string> names;
    for (int number = 1; number <= elementCount; ++number) {
        const ElementRow& row = element(number);
        EXPECT_EQ(row.number, number);
        EXPECT_EQ(findElement(row.symbol), &row) << row.symbol;
        symbols.insert(row.symbol);
        names.insert(british(nameOf(row)));
    }
    EXPECT_EQ(symbols.size(), 118u);
    EXPECT_EQ(names.size(), 118u);
}

TEST(ElementsTest, OtherSymbolsAreNotFound)
{
    for (const char* symbol :
         {"",    "A", "a",  "h", "na", "NA", "nA", "Xx", "D",        "T",    "Uuo",
          "He ", "1", "H1", "[", "@a", "Z`", "Z{", "Zz", "\xC3\xA4", "N\xC3"}) {
        EXPECT_EQ(findElement(symbol), nullptr) << "'" << symbol << "'";
    }
    EXPECT_EQ(findElement(std::string_view("H\0", 2)), nullptr);
}

TEST(ElementsTest, AmericanNamesAreThoseThatDiffer)
{
    const std::map<std::string, std::string> expected = {{"aluminium", "aluminum"},
                                                         {"caesium", "cesium"}};
    std::map<std::string, std::string> differing;
    for (int number = 1; number <= elementCount; ++number) {
        const Name name = nameOf(element(number));
        if (american(name) != british(name)) {
            differing[british(name)] = american(name);
        }
    }
    EXPECT_EQ(differing, expected);
}

struct NamedPlace {
    const char* symbol;
    const char* name;
    int period;
    int group;
};

// Corners of the periodic table, and the elements of the exercises.
constexpr NamedPlace namedPlaces[] = {
    {"H", "hydrogen", 1, 1},    {"He", "helium", 1, 18},       {"Li", "lithium", 2, 1},
    {"C", "carbon", 2, 14},     {"N", "nitrogen", 2, 15},      {"O", "oxygen", 2, 16},
    {"F", "fluorine", 2, 17},   {"Ne", "neon", 2, 18},         {"Na", "sodium", 3, 1},
    {"Mg", "magnesium", 3, 2},  {"Al", "aluminium", 3, 13},    {"P", "phosphorus", 3, 15},
    {"S", "sulfur", 3, 16},     {"Cl", "chlorine", 3, 17},     {"K", "potassium", 4, 1},
    {"Ca", "calcium", 4, 2},    {"Sc", "scandium", 4, 3},      {"Cr", "chromium", 4, 6},
    {"Mn", "manganese", 4, 7},  {"Fe", "iron", 4, 8},          {"Co", "cobalt", 4, 9},
    {"Ni", "nickel", 4, 10},    {"Cu", "copper", 4, 11},       {"Zn", "zinc", 4, 12},
    {"Br", "bromine", 4, 17},   {"Ag", "silver", 5, 11},       {"Sn", "tin", 5, 14},
    {"I", "iodine", 5, 17},     {"Ba", "barium", 6, 2},        {"La", "lanthanum", 6, 0},
    {"Lu", "lutetium", 6, 0},   {"Hf", "hafnium", 6, 4},       {"Pb", "lead", 6, 14},
    {"Rn", "radon", 6, 18},     {"Fr", "francium", 7, 1},      {"Ac", "actinium", 7, 0},
    {"Lr", "lawrencium", 7, 0}, {"Rf", "rutherfordium", 7, 4}, {"Og", "oganesson", 7, 18},
};

TEST(ElementsTest, StandAtTheirPlaces)
{
    for (const NamedPlace& place : namedPlaces) {
        const ElementRow* const row = findElement(place.symbol);
        ASSERT_NE(row, nullptr) << place.symbol;
        EXPECT_EQ(british(nameOf(*row)), place.name);
        EXPECT_EQ(row->period, place.period) << place.symbol;
        EXPECT_EQ(row->group, place.group) << place.symbol;
    }
}

// The rows of the periodic table end with the noble gases, and each cell has one element.
TEST(ElementsTest, FillThePeriodicTableCellByCell)
{
    const int nobleGases[] = {2, 10, 18, 36, 54, 86, 118};
    std::set<std::pair<int, int>> cells;
    std::map<int, int> belowTheTable;
    int previousGroup = 0;
    for (int number = 1; number <= elementCount; ++number) {
        const ElementRow& row = element(number);
        const int before =
            static_cast<int>(std::count_if(std::begin(nobleGases), std::end(nobleGases),
                                           [number](int nobleGas) { return nobleGas < number; }));
        EXPECT_EQ(row.period, before + 1) << row.symbol;
        if (row.group == 0) {
            ++belowTheTable[row.period];
            continue;
        }
        EXPECT_TRUE(cells.insert({row.period, row.group}).second) << row.symbol;
        EXPECT_TRUE(row.group > previousGroup || row.group == 1) << row.symbol;
        previousGroup = row.group;
    }
    EXPECT_EQ(cells.size(), 88u);
    EXPECT_EQ(belowTheTable, (std::map<int, int>{{6, 15}, {7, 15}}));
    EXPECT_EQ(cells.count({1, 2}), 0u);
    EXPECT_EQ(cells.count({2, 3}), 0u);
    EXPECT_EQ(cells.count({6, 3}), 0u);
}

} // namespace

} // namespace lesson
