#include <gtest/gtest.h>

#include <string>

#include "lesson/lesson.h"
#include "lesson/tests/support/reference.hpp"

namespace lesson
{

namespace
{

std::string fileOf(const char* sheet)
{
    return lesson_export(sheetOf(4821, sheet).c_str(), "moodle", nullptr);
}

bool holds(const std::string& file, const std::string& part)
{
    return file.find(part) != std::string::npos;
}

struct Part {
    const char* sheet; // of one exercise
    const char* part;
};

TEST(MoodleTest, AQuestionIsNamedAndTaggedByItsExercise)
{
    const Part parts[] = {
        {"titration:2@3", "<text>top/Chemical calculations practice/Paper 4821</text>"},
        {"titration:2@3", "<name><text>Paper 4821, titration, level 2, number 3</text></name>"},
        {"titration:2@3", "<idnumber>4821-titration-2-3</idnumber>"},
        {"titration:2@3", "<tags>\n<tag><text>titration</text></tag>\n"
                          "<tag><text>level 2</text></tag>\n</tags>\n</question>"},
        {"ion-formula:1@7", "<tags>\n<tag><text>ion-formula</text></tag>\n"
                            "<tag><text>level 1</text></tag>\n</tags>\n</question>"},
    };
    for (const Part& one : parts) {
        EXPECT_TRUE(holds(fileOf(one.sheet), one.part)) << one.part << " in " << one.sheet;
    }
}

TEST(MoodleTest, TheTypeOfAQuestionFitsItsAnswer)
{
    const Part parts[] = {
        {"molar-mass", "<question type=\"numerical\">"},
        {"titration", "<question type=\"numerical\">"},
        {"ion-formula", "<question type=\"shortanswer\">"},
        {"solubility:3", "<question type=\"shortanswer\">"},
        {"solubility:2", "<question type=\"multichoice\">"},
        {"neutralisation", "<question type=\"cloze\">"},
        {"solubility:2", "<single>true</single>\n<shuffleanswers>false</shuffleanswers>\n"
                         "<answernumbering>none</answernumbering>"},
        {"compound-formula", "<usecase>1</usecase>"},
        {"neutralisation", "<p>Type the smallest whole numbers, and 1 where a formula needs "
                           "none.</p>"},
        {"compound-formula", "<p>Type subscripts as ordinary digits, such as H2O.</p>"},
        {"ion-formula", "<p>Type subscripts as ordinary digits, such as H2O. The charge stands "
                        "behind a ^, such as ClO4^-.</p>"},
        {"molar-mass", "<p>The number alone, such as 1.23e-4, to 4 significant figures.</p>"},
        {"dilution", "<p>The number alone, such as 1.23e-4, to 3 significant figures.</p>"},
    };
    for (const Part& one : parts) {
        EXPECT_TRUE(holds(fileOf(one.sheet), one.part)) << one.part << " in " << one.sheet;
    }
}

// "None" is right as well, but "pbi2" is not.
TEST(MoodleTest, CapitalsAreOverlookedInWordsAlone)
{
    int none = 0;
    for (int number = 1; number <= 20; ++number) {
        const std::string file = fileOf(("solubility:3@" + std::to_string(number)).c_str());
        const bool isNone = holds(file, "<text>no precipitate</text>");
        none += isNone ? 1 : 0;
        EXPECT_EQ(holds(file, "<usecase>0</usecase>"), isNone) << file;
        EXPECT_EQ(holds(file, "<usecase>1</usecase>"), !isNone) << file;
    }
    EXPECT_GT(none, 0);
    EXPECT_LT(none, 20);
}

TEST(MoodleTest, UnitsAreTakenBehindANumberButNeitherAskedForNorGraded)
{
    const std::string file = fileOf("titration:2@3");
    EXPECT_TRUE(holds(file, "<units>\n<unit><multiplier>1</multiplier>"
                            "<unit_name>mol/L</unit_name></unit>\n"))
        << file;
    EXPECT_TRUE(
        holds(file, "<unit><multiplier>1000</multiplier><unit_name>mmol/L</unit_name></unit>\n"))
        << file;
    EXPECT_TRUE(holds(file, "</units>\n<unitgradingtype>0</unitgradingtype>\n"
                            "<unitpenalty>0</unitpenalty>\n<showunits>0</showunits>\n"
                            "<unitsleft>0</unitsleft>\n"))
        << file;
    EXPECT_FALSE(holds(fileOf("solubility:2,ion-formula,neutralisation"), "<unit"));
}

// The equation is 2HNO3 + Na2CO3 -> 2NaNO3 + H2O + CO2.
TEST(MoodleTest, AGapTellsWhatIsDoubledOrHalved)
{
    std::string file;
    for (int number = 1; !holds(file, "HNO<sub>3</sub> + {1:NUMERICAL:=1:0~%0%2:0#Are all doubled? "
                                      "Use the smallest whole numbers.~%0%0.5:0#Use whole "
                                      "numbers.} Na<sub>2</sub>CO<sub>3</sub> →");
         ++number) {
        ASSERT_LT(number, 400) << "nobody asks for nitric acid and sodium carbonate";
        file = fileOf(("neutralisation:2@" + std::to_string(number)).c_str());
    }
    const std::string two =
        "{1:NUMERICAL:=2:0~%0%4:0#Are all doubled? Use the smallest whole numbers.}";
    EXPECT_TRUE(holds(file, "<p>" + two + " HNO<sub>3</sub> + ")) << file;
    EXPECT_TRUE(holds(file, "→ " + two + " NaNO<sub>3</sub> + ")) << file;
    EXPECT_FALSE(holds(file, "<defaultgrade>")) << "its gaps have the grade";
}

TEST(MoodleTest, WhatIsReadIsAsTheReaderWritesAndWhatIsComparedHasThePoint)
{
    const std::string file = lesson_export("[dilution;substance=HCl;c1=6.00;V1=25.0;V2=500]",
                                           "moodle", "en-US;decimal=,;volume=cm3;per=power");
    for (const char* const part : {
             "25,0\u202Fcm<sup>3</sup>",
             "6,00\u202Fmol dm<sup>−3</sup>",
             "<text>0.300</text>",
             "<tolerance>0.001</tolerance>",
             "<unit_name>mol/L</unit_name>",
         }) {
        EXPECT_TRUE(holds(file, part)) << part << " in " << file;
    }
    const std::string last =
        file.substr(file.rfind("<hint"), file.rfind("</hint>") - file.rfind("<hint"));
    EXPECT_FALSE(holds(last, "0,300")) << "no hint gives the answer away: " << last;
}

TEST(MoodleTest, NamesAreThoseOfTheLanguage)
{
    const char* const sheet = "[compound-formula;cation=Al^3+;anion=SO4^2-]";
    const std::string british = lesson_export(sheet, "moodle", "en-GB");
    const std::string american = lesson_export(sheet, "moodle", "en-US");
    EXPECT_TRUE(holds(british, "aluminium sulfate")) << british;
    EXPECT_TRUE(holds(american, "aluminum sulfate")) << american;
    EXPECT_FALSE(holds(american, "aluminium")) << american;
}

TEST(MoodleTest, AWrongTryCostsAThirdAndShowsAHint)
{
    for (const char* const sheet : {"titration:3@1", "neutralisation:1@1"}) {
        const std::string file = fileOf(sheet);
        const bool hasGaps = holds(file, "cloze");
        EXPECT_TRUE(holds(file, "<penalty>0.3333333</penalty>\n<hidden>0</hidden>\n")) << file;
        EXPECT_TRUE(holds(file, "<hint format=\"html\"><text><![CDATA[")) << file;
        EXPECT_EQ(holds(file, "<shownumcorrect/>\n<clearwrong/>\n</hint>"), hasGaps) << file;
    }
}

} // namespace

} // namespace lesson
