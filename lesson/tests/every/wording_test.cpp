// How exercises are worded, over many of every kind and level.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <vector>

#include "lesson/tests/every/learners.hpp"

namespace
{

// clang-format off
constexpr const char* unwanted[] = {
    "weaker",                               // of an acid it means something else
    "Amount of the known.", "Ratio.",       // known to whom, of what
    "has become carbon dioxide",
    "that has to be dissolved",
    " .", " ,", "..", ",,", "()", "( ", " )",
    "a ammonia", "a acid", "a ethan", "a iron", "a alum", "an nitr", "an sulf", "an carb",
    "NaCH3COO", "LiCH3COO", "NH4CH3COO", "AgCH3COO", // as nobody prints them; KCH3COO likewise
    " KCH3COO", "hydrogen carbonate", "aluminum", "sulph",
};
// clang-format on

struct Line {
    std::string text;
    bool isSentence;
};

// All that an exercise shows.
std::vector<Line> linesOf(const Json& exercise)
{
    std::vector<Line> lines = {{textOf(exercise["prompt"]), true}};
    for (const Json& step : exercise["solution"]) {
        lines.push_back({textOf(step["say"]), true});
        lines.push_back({textOf(step["math"]), false});
        if (!step["hint"].empty()) {
            lines.push_back({textOf(step["hint"]), true});
        }
    }
    for (const Json& slip : exercise["slips"]) {
        lines.push_back({textOf(slip["sentence"]), true});
    }
    return lines;
}

bool isWhole(const std::string& sentence)
{
    const std::string ends = ".?!";
    const auto first = static_cast<unsigned char>(sentence[0]);
    const bool beginsWell = std::islower(first) == 0;
    return beginsWell && ends.find(sentence.back()) != std::string::npos;
}

void forEachExercise(Problems& problems, void (*check)(Problems&, const Asked&))
{
    for (const std::string& kind : everyKind()) {
        for (const Asked& asked : firstExercises(kind, std::min(papersToCheck(), 2000U))) {
            problems.at(kind, asked.paper, asked.number);
            check(problems, asked);
        }
    }
}

void checkLines(Problems& problems, const Asked& asked)
{
    for (const Line& line : linesOf(asked.exercise)) {
        for (const char* const words : unwanted) {
            problems.expect(line.text.find(words) == std::string::npos, words, line.text);
        }
        problems.expect(!line.isSentence || isWhole(line.text), "a sentence is whole", line.text);
    }
}

TEST(WordingTest, NothingUnwantedIsSaid)
{
    Problems problems;
    forEachExercise(problems, checkLines);
    EXPECT_EQ(problems.text(), "");
}

// Masses of elements have two decimals at most but for hydrogen and lithium, and so has their sum.
void checkMolarMass(Problems& problems, const Asked& asked)
{
    for (const Json& one : asked.exercise["given"]) {
        if (one.contains("quantity") && one["quantity"] == "M") {
            const std::string value = one["value"];
            const std::string shown = one["shown"];
            const Exact hundredths = Exact::read(value) * 100;
            problems.expect(hundredths.isWhole(), "a molar mass has two decimals", one.dump());
            problems.expect(shown.empty() || Exact::read(shown) == Exact::read(value),
                            "a molar mass is worked with as it is shown", one.dump());
            problems.expect(shown.empty() || (shown.size() > 3 && shown[shown.size() - 3] == '.'),
                            "a molar mass is shown with two decimals", one.dump());
        }
    }
}

TEST(WordingTest, MolarMassesHaveTwoDecimals)
{
    Problems problems;
    forEachExercise(problems, checkMolarMass);
    EXPECT_EQ(problems.text(), "");
}

// What is sold with its water, and weighed without it, is called so.
void checkAnhydrous(Problems& problems, const Asked& asked)
{
    static const std::set<std::string> soldWithWater = {
        "CuSO4",  "CoCl2",     "MgSO4",    "FeSO4",    "ZnSO4",       "Na2CO3",    "BaCl2",
        "Na2SO4", "CaCl2",     "MgCl2",    "CuCl2",    "NiSO4",       "MnSO4",     "Na3PO4",
        "LiOH",   "Fe2(SO4)3", "Ca(NO3)2", "CH3COONa", "Cu(CH3COO)2", "Al2(SO4)3", "Ca(CH3COO)2"};
    if (asked.slug() == "concentration") {
        const Json& given = asked.exercise["given"][0];
        const std::string name = " anhydrous " + given["name"].get<std::string>() + ", ";
        const bool isCalledAnhydrous = asked.prompt().find(name) != std::string::npos;
        problems.expect(isCalledAnhydrous == (soldWithWater.count(given["compound"]) == 1),
                        "a salt without its water is called anhydrous", asked.prompt());
    }
}

TEST(WordingTest, SaltsOfHydratesAreCalledAnhydrous)
{
    Problems problems;
    forEachExercise(problems, checkAnhydrous);
    EXPECT_EQ(problems.text(), "");
}

// What is calculated, and in which unit.
void checkNumberAskedFor(Problems& problems, const Asked& asked)
{
    const Json& ask = asked.exercise["ask"];
    if (ask["form"] == "number") {
        const std::string unit = "in " + ask["unit"].get<std::string>();
        const bool isAsked = asked.prompt().find("Calculate the ") != std::string::npos;
        problems.expect(isAsked && asked.prompt().find(unit) != std::string::npos,
                        "a number is asked for in its unit", asked.prompt());
    }
}

TEST(WordingTest, NumbersAreAskedForInTheirUnit)
{
    Problems problems;
    forEachExercise(problems, checkNumberAskedFor);
    EXPECT_EQ(problems.text(), "");
}

} // namespace
