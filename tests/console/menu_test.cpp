#include "console/menu.hpp"

#include <gtest/gtest.h>

#include <iostream>
#include <sstream>
#include <string>

#include "support/redirected.hpp"

namespace
{

TEST(MenuTest, PrintsTitleNoteAndKinds)
{
    std::ostringstream printed;
    const Redirected output(std::cout, printed.rdbuf());
    printMenu();
    EXPECT_EQ(printed.str(),
              "Chemical calculations practice\n"
              "Note that due to the limitations of this program subscript and superscript don't "
              "look how they should.\n"
              "\n"
              "Which kind of questions?\n"
              "1. Mass and solution concentration calculations\n"
              "2. Dilution calculations\n"
              "3. Neutralisation equation writing and balancing\n"
              "4. Acid-base titration calculations\n"
              "0. Random\n");
}

TEST(MenuTest, TheWholeNumberAtTheFrontOfTheWordIsTheKind)
{
    struct Case {
        const char* word;
        int kind;
    };
    const Case cases[] = {
        {"1", 1},   {"2", 2},    {"3", 3},    {"4", 4},   {"1abc", 1},       {"+1", 1},
        {"+4x", 4}, {"3.9", 3},  {"2,5", 2},  {"01", 1},  {"004", 4},        {" 2", 2},
        {"\t3", 3}, {"4 1", 4},  {"0", 0},    {"5", 0},   {"6", 0},          {"-1", 0},
        {"-3", 0},  {"07", 0},   {"12", 0},   {"44", 0},  {"abc", 0},        {"x1", 0},
        {"", 0},    {"+", 0},    {"-", 0},    {"++1", 0}, {"+-1", 0},        {".1", 0},
        {"0x1", 0}, {"\xB9", 0}, {"\xFF", 0}, {"99", 0},  {"2147483647", 0}, {"1e3", 1},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(kindOfWord(c.word), c.kind) << "\"" << c.word << "\"";
    }
}

TEST(MenuTest, ANumberThatNoIntHoldsIsWhatTheLibraryMakesOfIt)
{
    // A long of 64 bits holds these and loses its upper half; one of 32 bits stops at its greatest.
    const bool longHoldsThem = sizeof(long) > 4;
    EXPECT_EQ(kindOfWord("4294967297"), longHoldsThem ? massConcentrationKind : randomKind);
    EXPECT_EQ(kindOfWord("-4294967292"), longHoldsThem ? titrationKind : randomKind);
    // Past any long: its greatest or least number, of which neither half is a kind.
    EXPECT_EQ(kindOfWord("18446744073709551617"), randomKind);
    EXPECT_EQ(kindOfWord("-18446744073709551615"), randomKind);
    EXPECT_EQ(kindOfWord(std::string(1000000, '1')), randomKind);
}

TEST(MenuTest, ANulCharacterEndsTheWordsNumber)
{
    EXPECT_EQ(kindOfWord(std::string("2\0003", 3)), dilutionKind);
    EXPECT_EQ(kindOfWord(std::string("\0002", 2)), randomKind);
}

struct Choice {
    const char* typed;
    int kind;
    const char* left;
};

TEST(MenuTest, ReadsOneWordAndLeavesTheRest)
{
    const Choice choices[] = {
        {"2\n", 2, "\n"},
        {"2 4\n", 2, " 4\n"},
        {"\n \t\n 3\tx", 3, "\tx"},
        {"1abc def\n", 1, " def\n"},
        {"4", 4, ""},
        {"abc\n1\n", 0, "\n1\n"},
        {"", 0, ""},
        {" \n\n", 0, ""},
    };
    for (const Choice& choice : choices) {
        std::stringbuf typed(choice.typed);
        const Redirected input(std::cin, &typed);
        EXPECT_EQ(readChoice(), choice.kind) << "\"" << choice.typed << "\"";
        EXPECT_EQ(std::string(std::istreambuf_iterator<char>(&typed), {}), choice.left)
            << "\"" << choice.typed << "\"";
    }
}

} // namespace
