#include "lesson/kinds/molar_mass.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

#include "lesson/chemistry/solutes_and_ceilings.hpp"
#include "lesson/tests/support/calculation.hpp"
#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

const std::string& compoundOf(const Exercise& exercise)
{
    return std::get<GivenCompound>(exercise.given.at(0)).formula;
}

Exercise exerciseOf(unsigned number, int level)
{
    return makeExercise({4821, number, &molarMassKind, level});
}

// The exercise of a paper that is about a compound.
Exercise exerciseAbout(const std::string& formula, int level)
{
    for (unsigned number = 1; number <= 300; ++number) {
        Exercise exercise = exerciseOf(number, level);
        if (compoundOf(exercise) == formula) {
            return exercise;
        }
    }
    ADD_FAILURE() << "nothing about " << formula;
    return exerciseOf(1, level);
}

// The prefix of a hydrate's name counts its water.
TEST(MolarMassExerciseTest, NamesOfHydratesTellTheirWater)
{
    const std::map<int, std::string> prefixes = {
        {2, " dihydrate"},   {3, " trihydrate"},   {4, " tetrahydrate"}, {5, " pentahydrate"},
        {6, " hexahydrate"}, {7, " heptahydrate"}, {10, " decahydrate"}};
    for (unsigned number = 1; number <= 18; ++number) {
        const GivenCompound given = std::get<GivenCompound>(exerciseOf(number, 3).given.at(0));
        const int water = std::atoi(given.formula.c_str() + given.formula.find('.') + 1);
        const std::string& prefix = prefixes.at(water);
        const std::string name = british(given.name);
        EXPECT_EQ(name.substr(name.find_last_of(' ')), prefix) << given.formula;
    }
}

// The sum is shown with two decimals, and once where it has no more figures than are asked.
TEST(MolarMassExerciseTest, NoSumHasAThirdDecimal)
{
    for (const int level : {1, 2, 3}) {
        for (unsigned number = 1; number <= 160; ++number) {
            const Exercise exercise = exerciseOf(number, level);
            const std::string sum = textOf(exercise.solution.back().math);
            for (std::size_t point = sum.find('.'); point != std::string::npos;
                 point = sum.find('.', point + 1)) {
                EXPECT_LE(sum.find_first_not_of("0123456789", point + 1), point + 3) << sum;
            }
        }
    }
}

TEST(MolarMassExerciseTest, PagesWorkedByHand)
{
    EXPECT_EQ(pageOf(exerciseAbout("NaCl", 1)),
              "Calculate the molar mass of sodium chloride, NaCl, in g/mol.\n"
              "  Count the atoms. | Na + Cl\n"
              "  Put in the masses. | 22.99 + 35.45\n"
              "  Add. | M = 58.44 g/mol\n"
              "= 58.44 g/mol\n"
              "! 28.00 g/mol  Use the relative masses, not the atomic numbers.\n"
              "! 93.89 g/mol  In a compound each symbol is one atom.\n");
    EXPECT_EQ(pageOf(exerciseAbout("KI", 1)),
              "Calculate the molar mass of potassium iodide, KI, in g/mol.\n"
              "  Count the atoms. | K + I\n"
              "  Put in the masses. | 39.10 + 126.9\n"
              "  Add. | M = 166.0 g/mol\n"
              "= 166.0 g/mol\n"
              "! 72.00 g/mol  Use the relative masses, not the atomic numbers.\n"
              "! 292.9 g/mol  In a compound each symbol is one atom.\n");
    EXPECT_EQ(pageOf(exerciseAbout("Al2(SO4)3", 2)),
              "Calculate the molar mass of aluminium sulfate, Al2(SO4)3, in g/mol.\n"
              "  Count the atoms; the number after the bracket counts everything inside. | "
              "2 Al + 3(S + 4 O)\n"
              "  Put in the masses. | 2(26.98) + 3(32.06 + 4(16.00))\n"
              "  Add. | M = 342.14 = 342.1 g/mol\n"
              "= 342.1 g/mol\n"
              "! 150.0 g/mol  The number after the bracket counts everything inside.\n"
              "! 278.0 g/mol  The number after the bracket counts everything inside.\n"
              "! 214.1 g/mol  The number after the bracket counts everything inside.\n"
              "! 450.1 g/mol  The number after the bracket counts everything inside.\n"
              "! 171.2 g/mol  The small numbers count atoms: each of them has its mass.\n"
              "! 75.04 g/mol  The small numbers count atoms: each of them has its mass.\n"
              "! 315.2 g/mol  The small numbers count atoms: each of them has its mass.\n"
              "! 198.1 g/mol  The small numbers count atoms: each of them has its mass.\n"
              "! 170.0 g/mol  Use the relative masses, not the atomic numbers.\n"
              "! 37.00 g/mol  Use the relative masses, not the atomic numbers.\n"
              "! 534.1 g/mol  In a compound each symbol is one atom.\n");
    EXPECT_EQ(pageOf(exerciseAbout("Ca(CH3COO)2", 2)),
              "Calculate the molar mass of calcium ethanoate, Ca(CH3COO)2, in g/mol.\n"
              "  Count the atoms; the number after the bracket counts everything inside. | "
              "Ca + 2(2 C + 3 H + 2 O)\n"
              "  Put in the masses. | 40.08 + 2(2(12.01) + 3(1.008) + 2(16.00))\n"
              "  Add. | M = 158.17 = 158.2 g/mol\n"
              "= 158.2 g/mol\n"
              "! 99.12 g/mol  The number after the bracket counts everything inside.\n"
              "! 115.1 g/mol  The number after the bracket counts everything inside.\n"
              "! 111.1 g/mol  The number after the bracket counts everything inside.\n"
              "! 198.2 g/mol  The number after the bracket counts everything inside.\n"
              "! 154.1 g/mol  The small numbers count atoms: each of them has its mass.\n"
              "! 97.11 g/mol  The small numbers count atoms: each of them has its mass.\n"
              "! 69.10 g/mol  The small numbers count atoms: each of them has its mass.\n"
              "! 82.00 g/mol  Use the relative masses, not the atomic numbers.\n"
              "! 35.00 g/mol  Use the relative masses, not the atomic numbers.\n"
              "! 222.2 g/mol  In a compound each symbol is one atom.\n"
              "! 157.2 g/mol  Count the hydrogen atoms again.\n");
    EXPECT_EQ(pageOf(exerciseAbout("CuSO4.5H2O", 3)),
              "Calculate the molar mass of copper(II) sulfate pentahydrate, CuSO4.5H2O, in "
              "g/mol.\n"
              "  Count the atoms; the water belongs to the crystal. | Cu + S + 4 O + 5(2 H + O)\n"
              "  Put in the masses. | 63.55 + 32.06 + 4(16.00) + 5(18.016)\n"
              "  Add. | M = 249.69 = 249.7 g/mol\n"
              "= 249.7 g/mol\n"
              "! 159.6 g/mol  The number before H2O counts whole water molecules.\n"
              "! 177.6 g/mol  The number before H2O counts whole water molecules.\n"
              "! 185.7 g/mol  The number before H2O counts whole water molecules.\n"
              "! 14380 g/mol  The dot adds the water: it does not multiply.\n"
              "! 244.7 g/mol  The small numbers count atoms: each of them has its mass.\n"
              "! 888.1 g/mol  The number before H2O counts whole water molecules.\n"
              "! 201.7 g/mol  The small numbers count atoms: each of them has its mass.\n"
              "! 112.6 g/mol  The small numbers count atoms: each of them has its mass.\n"
              "! 536.5 g/mol  The small numbers count atoms: each of them has its mass.\n"
              "! 127.0 g/mol  Use the relative masses, not the atomic numbers.\n"
              "! 54.00 g/mol  Use the relative masses, not the atomic numbers.\n"
              "! 393.7 g/mol  In a compound each symbol is one atom.\n"
              "! 248.7 g/mol  Count the hydrogen atoms again.\n");
}

TEST(MolarMassExerciseTest, EachCommonMistakeIsToldByItsSentence)
{
    struct Row {
        const char* formula;
        int level;
        const char* typed;
        const char* sentence;
    };
    const char* const smallNumbers = "The small numbers count atoms: each of them has its mass.";
    const char* const bracket = "The number after the bracket counts everything inside.";
    const char* const water = "The number before H2O counts whole water molecules.";
    const Row rows[] = {
        {"Na2CO3", 1, "51.00", smallNumbers},
        {"Na2CO3", 1, "83.00", smallNumbers},
        {"AlF3", 1, "137.9", smallNumbers},
        {"C2H5OH", 1, "30.03", smallNumbers},
        {"C6H12O6", 1, "29.02", smallNumbers},
        {"H2O2", 1, "17.01", smallNumbers},
        {"C6H12O6", 1, "96", "Use the relative masses, not the atomic numbers."},
        {"NaCl", 1, "93.89", "In a compound each symbol is one atom."},
        {"Al2(SO4)3", 2, "150.0", bracket},
        {"Al2(SO4)3", 2, "278.0", bracket},
        {"Al2(SO4)3", 2, "214.1", bracket},
        {"Al2(SO4)3", 2, "315.2", smallNumbers},
        {"CuSO4.5H2O", 3, "159.6", water},
        {"CuSO4.5H2O", 3, "177.6", water},
        {"CuSO4.5H2O", 3, "185.7", water},
        {"CuSO4.5H2O", 3, "14380", "The dot adds the water: it does not multiply."},
        {"CuSO4.5H2O", 3, "248.7", "Count the hydrogen atoms again."},
    };
    for (const Row& row : rows) {
        const Mark mark = markOf(exerciseAbout(row.formula, row.level), row.typed);
        EXPECT_EQ(mark.verdict, Verdict::slip) << row.formula << " " << row.typed;
        EXPECT_EQ(textOf(mark.sentence), row.sentence) << row.formula << " " << row.typed;
    }
}

TEST(MolarMassExerciseTest, APromptNamesTheSubstanceInTheLanguageOfTheReader)
{
    const Spans aluminium = exerciseAbout("Al2(SO4)3", 2).prompt;
    EXPECT_EQ(plain(aluminium),
              "Calculate the molar mass of aluminium sulfate, Al2(SO4)3, in g/mol.");
    EXPECT_EQ(plainAmerican(aluminium),
              "Calculate the molar mass of aluminum sulfate, Al2(SO4)3, in g/mol.");
    const Spans sodium = exerciseAbout("NaCl", 1).prompt;
    EXPECT_EQ(plainAmerican(sodium), plain(sodium));
}

TEST(MolarMassExerciseTest, MassesToOneDecimalAndWholeOnesAreCorrectToo)
{
    struct Rounded {
        const char* formula;
        int level;
        const char* typed;
        Verdict verdict;
    };
    const Rounded cases[] = {
        {"NaCl", 1, "58.50", Verdict::correct}, // 23.0 + 35.5, 23 + 35.5
        {"NaCl", 1, "58.40", Verdict::correct}, // 23.0 + 35.4
        {"NaCl", 1, "58.47", Verdict::close},
        {"CuO", 1, "79.50", Verdict::correct},   // 63.5 + 16
        {"CuO", 1, "79.60", Verdict::correct},   // 63.6 + 16.0
        {"FeCl3", 1, "162.3", Verdict::correct}, // 55.8 + 3 x 35.5
        {"FeCl3", 1, "162.4", Verdict::correct}, // 55.9 + 3 x 35.5
        {"FeCl3", 1, "162.1", Verdict::correct}, // 55.9 + 3 x 35.4
        {"FeCl3", 1, "162.5", Verdict::correct}, // 56 + 3 x 35.5
        {"FeCl3", 1, "163.0", Verdict::close},
        {"CuSO4.5H2O", 3, "249.5", Verdict::correct}, // 63.5 + 32 + 9 x 16 + 10
        {"CuSO4.5H2O", 3, "250.0", Verdict::correct}, // 64 + 32 + 9 x 16 + 10
        {"CuSO4.5H2O", 3, "250.8", Verdict::close},
        // With as many figures as the sum has, or more.
        {"NaCl", 1, "58.5", Verdict::correct},
        {"NaCl", 1, "58.500", Verdict::correct},
        {"NaCl", 1, "58", Verdict::figures},
        {"AgBr", 1, "188", Verdict::correct}, // 108 + 80
        {"AgBr", 1, "190", Verdict::figures},
        {"MgO", 1, "40", Verdict::correct},   // 24 + 16
        {"MgO", 1, "40.3", Verdict::correct}, // 24.3 + 16.0
        {"MgO", 1, "4e1", Verdict::figures},
        {"(NH4)2CO3", 2, "96.11", Verdict::correct}, // 2(14.01 + 4 x 1.01) + 12.01 + 48.00
        // More figures that agree.
        {"Na2CO3", 1, "105.99", Verdict::correct},
        {"NaCl", 1, "58.443", Verdict::correct},
    };
    for (const auto& [formula, level, typed, verdict] : cases) {
        const Exercise exercise = exerciseAbout(formula, level);
        EXPECT_EQ(markOf(exercise, typed).verdict, verdict) << formula << ", " << typed;
    }
}

// In thousandths.
std::vector<int> roundedMassesOf(const char* formula)
{
    std::vector<int> thousandths;
    for (const Ratio mass : roundedMolarMasses(formula)) {
        thousandths.push_back(static_cast<int>((mass * ratio(1000)).numerator));
    }
    return thousandths;
}

TEST(RoundedMolarMassesTest, EachElementHasOneOfTheMassesThatTablesPrint)
{
    // 22.99, 23; 35.4, 35.45, 35.5, but not 35.
    EXPECT_EQ(roundedMassesOf("NaCl"),
              (std::vector<int>{58390, 58400, 58440, 58450, 58490, 58500}));
    // 63.5, 63.55, 63.6, 64.
    EXPECT_EQ(roundedMassesOf("CuO"), (std::vector<int>{79500, 79550, 79600, 80000}));
    // 65, 65.38, 65.4.
    EXPECT_EQ(roundedMassesOf("ZnO"), (std::vector<int>{81000, 81380, 81400}));
    // 32, 32.06, 32.07, 32.1, the same for both atoms; 1, 1.008, 1.01.
    EXPECT_EQ(roundedMassesOf("ZnS2"),
              (std::vector<int>{129000, 129120, 129140, 129200, 129380, 129400, 129500, 129520,
                                129540, 129580, 129600}));
    EXPECT_EQ(roundedMassesOf("H2O"), (std::vector<int>{18000, 18016, 18020}));
}

TEST(RoundedMolarMassesTest, StandInOrder)
{
    for (const SoluteRow& solute : solutes()) {
        const std::vector<Ratio> masses = roundedMolarMasses(solute.formula);
        EXPECT_TRUE(std::is_sorted(masses.begin(), masses.end())) << solute.formula;
        EXPECT_LE(masses.size(), 64U) << solute.formula;
    }
}

} // namespace

} // namespace lesson
