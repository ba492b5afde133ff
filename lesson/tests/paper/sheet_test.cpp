#include "lesson/paper/sheet.hpp"
#include "lesson/tests/support/plain.hpp"

#include <gtest/gtest.h>

#include <string>

namespace lesson
{

namespace
{

// A sheet of paper 4821.
Sheet sheetNaming(const std::string& list)
{
    return readSheet("4821/" + list);
}

// "7:2*4 5:2*3@7 ", kinds by their numbers, or the error.
std::string textOf(const Sheet& sheet)
{
    std::string text = plain(sheet.error);
    for (const SheetEntry& entry : sheet.entries) {
        text += std::to_string(entry.kind.kind->seed) + ":" + std::to_string(entry.kind.level) +
                "*" + std::to_string(entry.count) +
                (entry.first == 1 ? "" : "@" + std::to_string(entry.first)) + " ";
    }
    return text;
}

TEST(SheetTest, KindsWithTheirCountsInTheOrderOfTheList)
{
    struct Case {
        const char* list;
        const char* expected;
    };
    const Case cases[] = {
        {"titration", "7:2*1 "},
        {"4*titration:2,3*dilution", "7:2*4 5:2*3 "},
        {"dilution:1,molar-mass,dilution:3", "5:1*1 0:2*1 5:3*1 "},
        {"1000*solubility", "3:2*1000 "},
        {"999*solubility:1,solubility:3", "3:1*999 3:3*1 "},
        {"0*titration,2*dilution", "7:2*0 5:2*2 "},
        {"007*ion-formula:3", "2:3*7 "},
        {"titration:1@5", "7:1*1@5 "},
        {"1*titration@999999", "7:2*1@999999 "},
        {"titration@1,titration@2", "7:2*1 7:2*1@2 "},
        {"2*titration,titration:2@9,dilution,titration@3", "7:2*2 7:2*1@9 5:2*1 7:2*1@3 "},
        {"5*dilution:3@007,6*dilution:3", "5:3*5@7 5:3*6 "},
        {"999*titration@999001", "7:2*999@999001 "},
        {"0*titration,titration", "7:2*0 7:2*1 "},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(textOf(sheetNaming(one.list)), one.expected) << one.list;
    }
}

TEST(SheetTest, WhatCannotBeReadIsToldInASentence)
{
    struct Case {
        std::string list;
        std::string error;
    };
    const std::string none = "A sheet has at least one exercise.";
    const std::string many = "A sheet has at most 1000 exercises.";
    const std::string name = "Name a kind of exercise.";
    const std::string mixed = "A sheet names each of its kinds, and mixed is none.";
    const auto noCount = [](const std::string& text) {
        return "The number of exercises has to be a whole number, not '" + text + "'.";
    };
    const auto noNumber = [](const std::string& text) {
        return "The number behind @ has to be from 1 to 999999, not '" + text + "'.";
    };
    const auto twice = [](unsigned number) {
        return "Exercise " + std::to_string(number) + " of titration:2 is there twice.";
    };
    const Case cases[] = {
        {"", none},
        {"0*titration", none},
        {"0*titration,0*dilution", none},
        {"1001*titration", many},
        {"999999999999999999999*titration", many},
        {"500*titration,501*dilution", many},
        {"1000*titration,1*dilution:3", many},
        {",", name},
        {"titration,", name},
        {"4*", name},
        {"4*:2", name},
        {"*titration", noCount("")},
        {"x*titration", noCount("x")},
        {"-1*titration", noCount("-1")},
        {"+1*titration", noCount("+1")},
        {"1.5*titration", noCount("1.5")},
        {" 4*titration", noCount(" 4")},
        {"4 *titration", noCount("4 ")},
        {"4x*titration", noCount("4x")},
        {"4* titration", "There is no kind of exercise called ' titration'."},
        {"4**titration", "There is no kind of exercise called '*titration'."},
        {"titration*4", noCount("titration")},
        {"4titration", "There is no kind of exercise called '4titration'."},
        {"Titration", "There is no kind of exercise called 'Titration'."},
        {"4*titration:0", "The level of titration has to be 1, 2 or 3."},
        {"4*titration:", "The level of titration has to be 1, 2 or 3."},
        {"titration:4", "The level of titration has to be 1, 2 or 3."},
        {"mixed", mixed},
        {"4*mixed", mixed},
        {"mixed:1,titration", mixed},
        {"titration,titration", twice(1)},
        {"titration,3*titration:2", twice(1)},
        {"5*titration,dilution,titration@5", twice(5)},
        {"titration@5,5*titration", twice(5)},
        {"3*titration@7,3*titration:2@9", twice(9)},
        {"titration@77,dilution@77,titration@77", twice(77)},
        {"titration@0", noNumber("0")},
        {"titration@", noNumber("")},
        {"titration@1000000", noNumber("1000000")},
        {"titration@99999999999999999999", noNumber("99999999999999999999")},
        {"titration@-1", noNumber("-1")},
        {"titration@5.5", noNumber("5.5")},
        {"titration@ 5", noNumber(" 5")},
        {"titration@5:2", noNumber("5:2")},
        {"titration@5@6", noNumber("5@6")},
        {"titration@5*2", noCount("titration@5")},
        {"@5", name},
        {"2*@5", name},
        {"mixed@5", mixed},
        {"5@titration", "There is no kind of exercise called '5'."},
        {"titration:4@5", "The level of titration has to be 1, 2 or 3."},
        {"2*titration@999999", "The exercises of titration:2 go beyond number 999999."},
        {"1001*titration@999999", "The exercises of titration:2 go beyond number 999999."},
        {"600*titration,401*titration@601", many},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(plain(sheetNaming(one.list).error), one.error) << one.list;
    }
}

TEST(SheetTest, ALongTextIsCutInTheSentence)
{
    for (const std::string& list :
         {std::string(1000000, 'x'), std::string(1000000, 'x') + "*",
          std::string(1000000, '9') + "*titration", "titration@" + std::string(1000000, '9')}) {
        EXPECT_LT(plain(sheetNaming(list).error).size(), 200U) << list.substr(0, 20);
    }
}

TEST(SheetTest, ALongListIsReadToItsEnd)
{
    std::string list;
    for (unsigned entry = 0; entry < 300000; ++entry) {
        list += "1000*titration@5,";
    }
    EXPECT_EQ(plain(sheetNaming(list + "titration").error), "A sheet has at most 1000 exercises.");
}

TEST(SheetTest, ExercisesNamedByTheirNumbersComeInTheOrderOfTheList)
{
    std::string text;
    for (const auto& [place, description] :
         referencesOf(sheetNaming("titration@9,2*titration,dilution:3@4,2*titration@7"))) {
        text += std::to_string(place.kind->seed) + ":" + std::to_string(place.level) + "#" +
                std::to_string(place.number) + " ";
    }
    EXPECT_EQ(text, "7:2#9 7:2#1 7:2#2 5:3#4 7:2#7 7:2#8 ");
}

TEST(SheetTest, EachKindAndLevelIsNumberedFromOne)
{
    std::string text;
    for (const auto& [place, description] :
         referencesOf(sheetNaming("2*titration,dilution:3,2*titration:1"))) {
        EXPECT_EQ(place.paper, 4821U);
        text += std::to_string(place.kind->seed) + ":" + std::to_string(place.level) + "#" +
                std::to_string(place.number) + " ";
    }
    EXPECT_EQ(text, "7:2#1 7:2#2 5:3#1 7:1#1 7:1#2 ");
}

TEST(SheetTest, DescriptionsStandInBracketsAmongTheOthersWithTheirCommas)
{
    const std::string titration = "titration;acid=H2SO4;base=LiOH;asked=base;c=0.0600;burette=acid;"
                                  "titre=15.35,14.45,14.55;pipette=25.0;"
                                  "indicator=phenolphthalein";
    const Sheet sheet = sheetNaming("dilution:1,[" + titration + "],[ion-formula;ion=Cl^-]");
    EXPECT_EQ(plain(sheet.error), "");
    std::string text;
    for (const auto& [place, description] : referencesOf(sheet)) {
        text += description.empty() ? nameOf({place.kind, place.level}) : description;
        text += "|";
    }
    EXPECT_EQ(text, "dilution:1|" + titration + "|ion-formula;ion=Cl^-|");
}

TEST(SheetTest, DescriptionsNeedNoPaper)
{
    EXPECT_EQ(plain(readSheet("[ion-formula;ion=Cl^-],[ion-formula;ion=Cl^-]").error), "");
    EXPECT_EQ(plain(readSheet("[ion-formula;ion=Cl^-],titration").error),
              "The paper has to be a number from 1 to 999999.");
}

} // namespace

} // namespace lesson
