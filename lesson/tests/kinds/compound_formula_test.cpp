#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <string>

#include "lesson/tests/support/salt_exercise.hpp"

namespace lesson
{

namespace
{

constexpr unsigned pool[] = {65, 66, 96};

std::vector<Exercise> wholePool(int level)
{
    return saltExercises(12, &compoundFormulaKind, level, pool[level - 1]);
}

Exercise exerciseAbout(const std::string& compound)
{
    for (const int level : {1, 2, 3}) {
        for (const Exercise& exercise : wholePool(level)) {
            if (plain(exercise.key) == compound) {
                return exercise;
            }
        }
    }
    ADD_FAILURE() << compound << " is not asked";
    return {};
}

// The sum of the charges as the solution writes it, worked out anew: "2(+3) + 3(−2) = 0".
TEST(CompoundFormulaExerciseTest, TheChargesOfTheSolutionCancel)
{
    for (const int level : {1, 2, 3}) {
        for (const Exercise& exercise : wholePool(level)) {
            const std::string math = textOf(exercise.solution[1].math);
            int sum = 0;
            int times = 1;
            int sign = 0;
            for (std::size_t i = 0; i < math.find('='); ++i) {
                const bool isDigit = std::isdigit(static_cast<unsigned char>(math[i])) != 0;
                if (math[i] == '(') {
                    sign = math[i + 1] == '+' ? 1 : -1;
                } else if (isDigit && sign == 0) {
                    times = math[i] - '0';
                } else if (isDigit) {
                    sum += times * sign * (math[i] - '0');
                    times = 1;
                    sign = 0;
                }
            }
            EXPECT_EQ(sum, 0) << math;
            EXPECT_EQ(math.substr(math.size() - 4), " = 0") << math;
        }
    }
}

// One ion of each is the commonest ratio by far, but comes no more often than others at first, as
// far as these have common compounds.
TEST(CompoundFormulaExerciseTest, RatiosComeAsOftenAsTheirCommonCompoundsAllow)
{
    for (const int level : {1, 2, 3}) {
        const auto ratioOf = [](const Exercise& exercise) {
            return std::to_string(cationsIn(givenIon(exercise, 0), givenIon(exercise, 1))) + ":" +
                   std::to_string(anionsIn(givenIon(exercise, 0), givenIon(exercise, 1)));
        };
        std::map<std::string, double> weights;
        for (const Exercise& exercise : wholePool(level)) {
            double& weight = weights[ratioOf(exercise)];
            weight += givenIon(exercise, 0).weight * givenIon(exercise, 1).weight;
            weight = std::min(weight, 200.0);
        }
        double sum = 0;
        for (const auto& row : weights) {
            sum += row.second;
        }
        constexpr unsigned papers = 4000;
        std::map<std::string, int> counts;
        for (unsigned paper = 1; paper <= papers; ++paper) {
            ++counts[ratioOf(makeExercise({2 * paper, 1, &compoundFormulaKind, level}))];
        }
        for (const auto& [ratio, weight] : weights) {
            EXPECT_NEAR(counts[ratio], papers * weight / sum, 120) << ratio << ", level " << level;
        }
    }
}

TEST(CompoundFormulaExerciseTest, APageOfEachLevel)
{
    EXPECT_EQ(pageOf(exerciseAbout("MgCl2")),
              "Write the formula of magnesium chloride.\n"
              "  Magnesium chloride has these ions. | Mg^2+, Cl^-\n"
              "  Find the fewest ions whose charges cancel. | (+2) + 2(−1) = 0\n"
              "  Write the positive ion first; small numbers count the ions. | MgCl2\n"
              "= MgCl2\n"
              "! MgCl  The charges do not cancel yet. How many of each ion are needed?\n"
              "! Mg2Cl  The charges do not cancel yet. How many of each ion are needed?\n"
              "! Mg(ClO3)2  The ending tells you whether there is oxygen.\n"
              "! MnCl2  Check this symbol: Mn.\n"
              "! MCl2  Check this symbol: M.\n"
              "! MgC2  Check this symbol: C.\n"
              "! MgCh2  Check this symbol: Ch.\n"
              "! Mg^2+(Cl^-)2  A compound has no charge: leave out the charges of its ions.\n");
    EXPECT_EQ(pageOf(exerciseAbout("Al2(SO4)3")),
              "Write the formula of aluminium sulfate.\n"
              "  Aluminium sulfate has these ions. | Al^3+, SO4^2-\n"
              "  Find the fewest ions whose charges cancel. | 2(+3) + 3(−2) = 0\n"
              "  More than one group takes a bracket. | Al2(SO4)3\n"
              "= Al2(SO4)3\n"
              "! Al2SO43  What does the small number multiply?\n"
              "! AlSO4  The charges do not cancel yet. How many of each ion are needed?\n"
              "! Al3(SO4)2  The charges do not cancel yet. How many of each ion are needed?\n"
              "! Al2S3  The ending tells you whether there is oxygen.\n"
              "! Al2(SO3)3  Which one has more oxygen: -ite or -ate?\n"
              "! Al(HSO4)3  Sulfate and hydrogensulfate are two different ions.\n"
              "! A2(SO4)3  Check this symbol: A.\n"
              "! (Al^3+)2(SO4^2-)3  A compound has no charge: leave out the charges of its ions.\n"
              "! Al2(SO5)3  Check the number of oxygen atoms.\n");
    EXPECT_EQ(pageOf(exerciseAbout("CuO")),
              "Write the formula of copper(II) oxide.\n"
              "  Copper(II) oxide has these ions. The Roman numeral is the charge of the metal "
              "ion. | Cu^2+, O^2-\n"
              "  One of each: the charges cancel. | (+2) + (−2) = 0\n"
              "  Write the positive ion first, and leave out the charges. | CuO\n"
              "= CuO\n"
              "! Cu2O  The Roman numeral is the charge of the metal ion.\n"
              "! Cu2O2  Simplify.\n"
              "! Cu(OH)2  Oxide and hydroxide are two different ions.\n"
              "! CO  Check this symbol: C.\n"
              "! CoO  Check this symbol: Co.\n"
              "! CuOx  Check this symbol: Ox.\n"
              "! Cu^2+O^2-  A compound has no charge: leave out the charges of its ions.\n");
}

TEST(CompoundFormulaExerciseTest, AmericanNamesAreTold)
{
    const Exercise exercise = exerciseAbout("Ca(CH3COO)2");
    EXPECT_EQ(plainAmerican(exercise.prompt), "Write the formula of calcium acetate.");
    EXPECT_EQ(plainAmerican(exercise.solution[0].say), "Calcium acetate has these ions.");
}

// Sodium is written S, and potassium P; ammonium NH3.
TEST(CompoundFormulaExerciseTest, TheCommonSlipsAreListed)
{
    struct Row {
        const char* compound;
        const char* slip;
        const char* sentence;
    };
    const Row rows[] = {
        {"K2SO4", "P2SO4", "Check this symbol: P."},
        {"NaCl", "SCl", "Check this symbol: S."},
        {"(NH4)2SO4", "(NH3)2SO4", "That is ammonia. The ammonium ion has one hydrogen more."},
        {"(NH4)2SO4", "NH42SO4", "What does the small number multiply?"},
        {"FeCl3", "Fe3Cl", "The Roman numeral is a charge."},
        {"FeCl3", "FeCl2", "The Roman numeral is the charge of the metal ion."},
        {"FeCl2", "FeCl3", "The Roman numeral is the charge of the metal ion."},
        {"CuCl2", "CuCl", "The Roman numeral is the charge of the metal ion."},
        {"PbO", "PbO2", "The Roman numeral is the charge of the metal ion."},
        {"SnCl2", "SnCl4", "The Roman numeral is the charge of the metal ion."},
        {"CrCl3", "CrCl2", "The Roman numeral is the charge of the metal ion."},
        {"Na2SO4", "NaHSO4", "Sulfate and hydrogensulfate are two different ions."},
        {"Na3PO4", "Na2HPO4", "Phosphate and hydrogenphosphate are two different ions."},
        {"Na3PO4", "NaH2PO4", "Phosphate and dihydrogenphosphate are two different ions."},
        {"PbSO4", "Pb2SO4", "The Roman numeral is a charge."},
        {"NaNO3", "Na3N", "The ending tells you whether there is oxygen."},
        {"NaNO3", "NaNO2", "Which one has more oxygen: -ite or -ate?"},
        {"Li3N", "LiNO3", "The ending tells you whether there is oxygen."},
        {"MgO", "Mg2O2", "Simplify."},
        {"Ca(OH)2", "CaOH2", "What does the small number multiply?"},
        {"Ca(OH)2", "CaO", "Oxide and hydroxide are two different ions."},
        {"NaOH", "Na(OH)",
         "A bracket is needed only around a group of atoms that comes more than "
         "once."},
        {"Na2CO3", "NaHCO3", "Carbonate and hydrogencarbonate are two different ions."},
        {"NaCl", "Na^+Cl^-", "A compound has no charge: leave out the charges of its ions."},
        {"CaCO3", "CaCO2", "Check the number of oxygen atoms."},
    };
    for (const Row& row : rows) {
        const std::string page = pageOf(exerciseAbout(row.compound));
        EXPECT_NE(page.find(std::string("! ") + row.slip + "  " + row.sentence + "\n"),
                  std::string::npos)
            << row.slip << "\n"
            << page;
    }
}

} // namespace

} // namespace lesson
