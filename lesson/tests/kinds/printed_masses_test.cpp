#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "lesson/exercise.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/tests/support/plain.hpp"

// Molar masses as learners work them out with the tables that examination boards print, retyped
// here: whatever table is at hand, the answer is right.

namespace lesson
{

namespace
{

// In hundredths.
struct Board {
    const char* name;
    int decimals; // of its masses, as printed
    std::map<std::string, int> masses;
};

const std::vector<Board>& boards()
{
    // clang-format off
    static const std::vector<Board> all = {
        {"one decimal", 1, {
            {"H", 100}, {"Li", 690}, {"C", 1200}, {"N", 1400}, {"O", 1600}, {"F", 1900},
            {"Na", 2300}, {"Mg", 2430}, {"Al", 2700}, {"P", 3100}, {"S", 3210}, {"Cl", 3550},
            {"K", 3910}, {"Ca", 4010}, {"Cr", 5200}, {"Mn", 5490}, {"Fe", 5580}, {"Co", 5890},
            {"Ni", 5870}, {"Cu", 6350}, {"Zn", 6540}, {"Br", 7990}, {"Ag", 10790},
            {"Sn", 11870}, {"I", 12690}, {"Ba", 13730}, {"Pb", 20720}}},
        {"whole numbers", 0, {
            {"H", 100}, {"Li", 700}, {"C", 1200}, {"N", 1400}, {"O", 1600}, {"F", 1900},
            {"Na", 2300}, {"Mg", 2400}, {"Al", 2700}, {"P", 3100}, {"S", 3200}, {"Cl", 3550},
            {"K", 3900}, {"Ca", 4000}, {"Cr", 5200}, {"Mn", 5500}, {"Fe", 5600}, {"Co", 5900},
            {"Ni", 5900}, {"Cu", 6350}, {"Zn", 6500}, {"Br", 8000}, {"Ag", 10800},
            {"Sn", 11900}, {"I", 12700}, {"Ba", 13700}, {"Pb", 20700}}},
        {"whole numbers, copper too", 0, {
            {"H", 100}, {"Li", 700}, {"C", 1200}, {"N", 1400}, {"O", 1600}, {"F", 1900},
            {"Na", 2300}, {"Mg", 2400}, {"Al", 2700}, {"P", 3100}, {"S", 3200}, {"Cl", 3550},
            {"K", 3900}, {"Ca", 4000}, {"Cr", 5200}, {"Mn", 5500}, {"Fe", 5600}, {"Co", 5900},
            {"Ni", 5900}, {"Cu", 6400}, {"Zn", 6500}, {"Br", 8000}, {"Ag", 10800},
            {"Sn", 11900}, {"I", 12700}, {"Ba", 13700}, {"Pb", 20700}}},
        {"two decimals", 2, {
            {"H", 101}, {"Li", 694}, {"C", 1201}, {"N", 1401}, {"O", 1600}, {"F", 1900},
            {"Na", 2299}, {"Mg", 2431}, {"Al", 2698}, {"P", 3097}, {"S", 3207}, {"Cl", 3545},
            {"K", 3910}, {"Ca", 4008}, {"Cr", 5200}, {"Mn", 5494}, {"Fe", 5585}, {"Co", 5893},
            {"Ni", 5869}, {"Cu", 6355}, {"Zn", 6538}, {"Br", 7990}, {"Ag", 10787},
            {"Sn", 11871}, {"I", 12690}, {"Ba", 13733}, {"Pb", 20720}}},
        {"one decimal, hydrogen to two", 2, {
            {"H", 101}, {"Li", 690}, {"C", 1200}, {"N", 1400}, {"O", 1600}, {"F", 1900},
            {"Na", 2300}, {"Mg", 2430}, {"Al", 2700}, {"P", 3100}, {"S", 3210}, {"Cl", 3550},
            {"K", 3910}, {"Ca", 4010}, {"Cr", 5200}, {"Mn", 5490}, {"Fe", 5590}, {"Co", 5890},
            {"Ni", 5870}, {"Cu", 6360}, {"Zn", 6540}, {"Br", 7990}, {"Ag", 10790},
            {"Sn", 11870}, {"I", 12690}, {"Ba", 13730}, {"Pb", 20720}}},
    };
    // clang-format on
    return all;
}

// The number at the front of a text, 1 where there is none.
int takeNumber(std::string& text)
{
    std::size_t end = 0;
    while (end < text.size() && text[end] >= '0' && text[end] <= '9') {
        ++end;
    }
    const int number = end == 0 ? 1 : std::stoi(text.substr(0, end));
    text.erase(0, end);
    return number;
}

// Of a formula such as "(NH4)2SO4" or "CuSO4.5H2O", taken from its front to its end, a ")" or a
// ".".
int massOf(const Board& board, std::string& rest)
{
    int sum = 0;
    while (!rest.empty() && rest[0] != ')' && rest[0] != '.') {
        int mass = 0;
        if (rest[0] == '(') {
            rest.erase(0, 1);
            mass = massOf(board, rest);
            rest.erase(0, 1);
        } else {
            const std::size_t length = rest.size() > 1 && rest[1] >= 'a' && rest[1] <= 'z' ? 2 : 1;
            mass = board.masses.at(rest.substr(0, length));
            rest.erase(0, length);
        }
        sum += mass * takeNumber(rest);
    }
    return sum;
}

int molarMass(const Board& board, std::string formula)
{
    const int salt = massOf(board, formula);
    if (formula.empty()) {
        return salt;
    }
    formula.erase(0, 1);
    const int molecules = takeNumber(formula);
    return salt + molecules * massOf(board, formula);
}

std::string withDecimals(int hundredths, int decimals)
{
    std::string text = std::to_string(hundredths);
    text.insert(text.size() - 2, ".");
    return text.substr(0,
                       text.size() - (decimals == 0 ? 3 : static_cast<std::size_t>(2 - decimals)));
}

// What is written for a sum: with the table's decimals, without the zeros at the end, as a
// calculator shows it, to four figures, and with two decimals.
std::set<std::string> writtenBy(const Board& board, int hundredths)
{
    const int needed = hundredths % 100 == 0 ? 0 : hundredths % 10 == 0 ? 1 : 2;
    std::set<std::string> all = {withDecimals(hundredths, std::max(needed, board.decimals)),
                                 withDecimals(hundredths, needed), withDecimals(hundredths, 2)};
    all.insert(hundredths < 10000 ? withDecimals(hundredths, 2)
                                  : withDecimals((hundredths + 5) / 10 * 10, 1));
    return all;
}

TEST(PrintedMassesTest, EveryMolarMassIsRightByTheTableOfAnyBoard)
{
    std::set<std::string> formulas;
    for (int level = 1; level <= 3; ++level) {
        for (unsigned number = 1; number <= 320; ++number) {
            const Exercise exercise = makeExercise({1, number, &molarMassKind, level});
            if (!formulas.insert(exercise.ask.of).second) {
                continue;
            }
            for (const Board& board : boards()) {
                const int sum = molarMass(board, exercise.ask.of);
                for (const std::string& typed : writtenBy(board, sum)) {
                    const Mark mark = markAnswer(exercise, typed);
                    EXPECT_EQ(mark.verdict, Verdict::correct)
                        << typed << " for " << plain(exercise.key) << " of " << exercise.ask.of
                        << " by masses of " << board.name << ": " << plain(mark.sentence);
                }
            }
        }
    }
    EXPECT_GE(formulas.size(), 234U);
}

} // namespace

} // namespace lesson
