// Common things come sooner than rare ones: what the first ten exercises of many papers ask, and
// that neighbours with papers one after another have different ones.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "lesson/tests/every/learners.hpp"

namespace
{

constexpr unsigned firstNumbers = 10;

unsigned papers()
{
    return std::clamp(papersToCheck(), 300U, 3000U);
}

// How many of the first exercises of each paper are so, out of a hundred.
double percentOf(const std::string& kind, const std::function<bool(const std::string&)>& isSo)
{
    unsigned count = 0;
    for (unsigned paper = 1; paper <= papers(); ++paper) {
        for (unsigned number = 1; number <= firstNumbers; ++number) {
            count += isSo(exerciseText(kind, paper, number)) ? 1U : 0U;
        }
    }
    return 100.0 * count / (papers() * firstNumbers);
}

std::function<bool(const std::string&)> holds(const std::string& part)
{
    return [part](const std::string& exercise) { return exercise.find(part) != std::string::npos; };
}

// A given ion or compound: no span of a line has such members.
std::function<bool(const std::string&)> hasIon(int charge, const std::string& name)
{
    return holds("\"charge\":" + std::to_string(charge) + R"(,"name":")" + name + "\"");
}
std::function<bool(const std::string&)> hasCompound(const std::string& formula)
{
    return holds(R"("compound":")" + formula + "\"");
}

// What stands between two members of an exercise's text.
std::string between(const std::string& exercise, const std::string& from, const std::string& to)
{
    const std::size_t begin = exercise.find("\"" + from + "\":");
    return exercise.substr(begin, exercise.find(",\"" + to + "\":", begin) - begin);
}

TEST(CommonFirstTest, RareIonsAreRare)
{
    EXPECT_GE(percentOf("compound-formula:1", hasIon(-2, "oxide")), 5);
    EXPECT_LE(percentOf("compound-formula:1", hasIon(-3, "phosphide")), 5);
    EXPECT_LE(percentOf("compound-formula:1", hasIon(-3, "nitride")), 5);
    EXPECT_LE(percentOf("compound-formula:2", hasIon(-3, "phosphate")), 15);
    EXPECT_LE(percentOf("compound-formula:3", hasIon(3, "chromium(III)")), 12);
}

// A third, and what is left to chance.
TEST(CommonFirstTest, RareAcidsAndBasesAreRare)
{
    constexpr double third = 0.4;
    for (const char* const kind : {"neutralisation:1", "neutralisation:2", "neutralisation:3"}) {
        const double common = percentOf(kind, hasCompound("HCl"));
        EXPECT_GE(common, 5) << kind;
        EXPECT_LE(percentOf(kind, hasCompound("HBr")), third * common) << kind;
    }
    for (const char* const kind : {"neutralisation:1", "titration:1", "titration:2"}) {
        const double common = percentOf(kind, hasCompound("NaOH"));
        EXPECT_GE(common, 5) << kind;
        EXPECT_LE(percentOf(kind, hasCompound("LiOH")), third * common) << kind;
    }
}

std::set<std::string> keysOf(const std::string& kind, const char* member)
{
    std::set<std::string> keys;
    for (unsigned number = 1; number <= 400; ++number) {
        const Json exercise = exerciseAt(kind, 1, number);
        keys.insert(member[0] == 'o' ? exercise["ask"]["of"] : exercise["key"]["text"]);
    }
    return keys;
}

TEST(CommonFirstTest, NoPoolIsShort)
{
    constexpr std::size_t least = 12;
    for (const char* const kind : {"molar-mass:1", "molar-mass:2", "molar-mass:3"}) {
        EXPECT_GE(keysOf(kind, "of").size(), least) << kind;
    }
    for (const char* const kind : {"ion-formula:1", "ion-formula:2", "ion-formula:3",
                                   "compound-formula:1", "compound-formula:2"}) {
        EXPECT_GE(keysOf(kind, "key").size(), least) << kind;
    }
}

TEST(CommonFirstTest, MoleculesAreAsked)
{
    const std::set<std::string> asked = keysOf("molar-mass:1", "of");
    for (const char* const molecule :
         {"H2O", "CO2", "NH3", "CH4", "SO2", "C2H5OH", "C6H12O6", "H2O2", "HNO3", "H2SO4"}) {
        EXPECT_EQ(asked.count(molecule), 1U) << molecule;
    }
}

TEST(CommonFirstTest, TheLastLevelOfIonsIsMostlyNew)
{
    const std::set<std::string> known = keysOf("ion-formula:2", "key");
    const auto isKnown = [&known](const std::string& exercise) {
        return known.count(Json::parse("{" + between(exercise, "key", "solution") +
                                       "}")["key"]["text"]) == 1;
    };
    EXPECT_LT(percentOf("ion-formula:3", isKnown), 50);
}

// Sulfuric acid with the bases of iron(II), whose reason is nitric acid's.
TEST(CommonFirstTest, SulfuricAcidMeetsIron)
{
    bool isMet = false;
    for (unsigned number = 1; number <= 400 && !isMet; ++number) {
        const std::string exercise = exerciseText("neutralisation:2", 1, number);
        isMet = hasCompound("H2SO4")(exercise) && hasCompound("FeSO4")(exercise);
    }
    EXPECT_TRUE(isMet);
}

TEST(CommonFirstTest, NeighboursHaveOtherQuestions)
{
    constexpr double most = 2.5; // of a hundred
    for (const std::string& kind : everyKind()) {
        std::vector<std::string> before;
        unsigned same = 0;
        for (unsigned paper = 1; paper <= papers() + 1; ++paper) {
            std::vector<std::string> prompts;
            for (unsigned number = 1; number <= firstNumbers; ++number) {
                prompts.push_back(between(exerciseText(kind, paper, number), "prompt", "ask"));
                same += !before.empty() && before[number - 1] == prompts.back() ? 1U : 0U;
            }
            before = prompts;
        }
        EXPECT_LE(100.0 * same / (papers() * firstNumbers), most) << kind;
    }
}

} // namespace
