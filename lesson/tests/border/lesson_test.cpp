#include "lesson/lesson.h"
#include "lesson/tests/support/reference.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <map>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "lesson/kinds/kinds.hpp"
#include "lesson/tests/digests/digest.hpp"

namespace lesson
{

namespace
{

using Json = nlohmann::ordered_json;

std::vector<std::string> members(const Json& object)
{
    std::vector<std::string> names;
    for (const auto& [name, value] : object.items()) {
        names.push_back(name);
    }
    return names;
}

Json exercise(unsigned paper, unsigned number, const std::string& kind)
{
    return Json::parse(lesson_exercise(drawn(paper, number, kind).c_str(), nullptr));
}

Json mark(unsigned paper, unsigned number, const std::string& kind, const std::string& typed)
{
    return Json::parse(lesson_mark(drawn(paper, number, kind).c_str(), typed.c_str(), nullptr));
}

TEST(InterfaceTest, TheKindsInOrderWithThreeLevelsEach)
{
    const Json rows = Json::parse(lesson_kinds(nullptr));
    ASSERT_EQ(rows.size(), allKinds().size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        Json bare = rows[i];
        bare.erase("drawing");
        EXPECT_EQ(members(bare),
                  (std::vector<std::string>{"kind", "version", "title", "levels", "masses"}));
        EXPECT_EQ(rows[i]["kind"], std::string(allKinds()[i]->slug));
        EXPECT_FALSE(rows[i]["title"].get<std::string>().empty());
        EXPECT_EQ(rows[i]["levels"].size(), 3U) << rows[i];
    }
}

TEST(InterfaceTest, AKindTellsItsDrawingAndWhetherItNeedsMasses)
{
    struct Row {
        const char* drawing; // null where there is none
        bool masses;
    };
    const std::map<std::string, Row> expected = {
        {"molar-mass", {nullptr, true}},      {"compound-formula", {nullptr, false}},
        {"ion-formula", {nullptr, false}},    {"solubility", {nullptr, false}},
        {"concentration", {nullptr, true}},   {"dilution", {"dilution", false}},
        {"neutralisation", {nullptr, false}}, {"titration", {"titration", false}},
    };
    for (const Json& row : Json::parse(lesson_kinds(nullptr))) {
        const auto& [drawing, masses] = expected.at(row["kind"]);
        EXPECT_EQ(row.value("drawing", ""), drawing == nullptr ? "" : drawing) << row;
        EXPECT_EQ(row.contains("drawing"), drawing != nullptr) << row;
        EXPECT_EQ(row["masses"], Json(masses)) << row;
    }
}

std::string fieldOf(const std::string& description, const std::string& name)
{
    const std::size_t from = description.find(";" + name + "=") + name.size() + 2;
    return description.substr(from, description.find(';', from) - from);
}

// Of which substances the volumes with a role are.
std::map<std::string, std::string> rolesIn(const Json& exercise)
{
    std::map<std::string, std::string> roles;
    for (const Json& given : exercise["given"]) {
        if (given.contains("role")) {
            EXPECT_EQ(given["quantity"], "V") << given;
            roles[given["role"].get<std::string>()] = given["of"].get<std::string>();
        }
    }
    return roles;
}

// The titre runs out of the burette, the aliquot is pipetted, whatever figures they are told with.
TEST(InterfaceTest, TheVolumesOfATitrationTellTheirRoles)
{
    for (const char* const kind : {"titration:1", "titration:2", "titration:3"}) {
        for (unsigned number = 1; number <= 20; ++number) {
            const Json made = exercise(4821, number, kind);
            const std::string description = made["description"];
            const bool isAcidInBurette = fieldOf(description, "burette") == "acid";
            const std::map<std::string, std::string> expected = {
                {"titre", fieldOf(description, isAcidInBurette ? "acid" : "base")},
                {"aliquot", fieldOf(description, isAcidInBurette ? "base" : "acid")},
            };
            EXPECT_EQ(rolesIn(made), expected) << description;
        }
    }
    EXPECT_TRUE(rolesIn(exercise(4821, 1, "dilution")).empty());
}

TEST(InterfaceTest, AnExerciseTellsWhichItIs)
{
    for (const std::string& kind : kindsAndLevels()) {
        const Json made = exercise(999999, 999999, kind);
        EXPECT_EQ(made["version"], 1) << kind;
        EXPECT_EQ(made["paper"], 999999) << kind;
        EXPECT_EQ(made["number"], 999999) << kind;
        EXPECT_EQ(made["kind"].get<std::string>() + ":" + std::to_string(made["level"].get<int>()),
                  kind);
    }
}

// What is drawn from several kinds is an exercise of the same number that can be asked for by
// itself.
TEST(InterfaceTest, AMixedExerciseIsThatOfItsOwnKind)
{
    for (unsigned number = 1; number <= 50; ++number) {
        for (const char* const choice : {"mixed", "titration:1,molar-mass:3,titration:3"}) {
            const Json drawn = exercise(4821, number, choice);
            const std::string own =
                drawn["kind"].get<std::string>() + ":" + std::to_string(drawn["level"].get<int>());
            EXPECT_EQ(drawn.dump(), exercise(4821, number, own).dump())
                << choice << ", number " << number;
        }
    }
}

TEST(InterfaceTest, ThePerfectAnswerIsCorrectByTheArgumentsThatMadeTheExercise)
{
    for (const char* const choice : {"mixed", "dilution,solubility:3", "neutralisation:1"}) {
        for (unsigned number = 1; number <= 40; ++number) {
            const std::string key = exercise(7, number, choice)["key"]["text"];
            const Json marked = mark(7, number, choice, key);
            EXPECT_EQ(marked["verdict"], "correct") << choice << " " << number << " " << key;
            EXPECT_EQ(members(marked), (std::vector<std::string>{"verdict", "sentence"}));
        }
    }
}

TEST(InterfaceTest, BadArgumentsAreToldBySentences)
{
    const std::string paper = "The paper has to be a number from 1 to 999999.";
    const std::string number = "The number of the exercise has to be from 1 to 999999.";
    const std::string kind = "Name a kind of exercise.";
    struct Case {
        const char* exercise;
        std::string error;
    };
    const Case cases[] = {
        {"0/1/mixed", paper},
        {"1000000/1/mixed", paper},
        {"4294967297/1/mixed", paper},
        {"/1/mixed", paper},
        {"-1/1/mixed", paper},
        {"one/1/mixed", paper},
        {"1/0/mixed", number},
        {"1/1000000/mixed", number},
        {"1/4294967297/mixed", number},
        {"1//mixed", number},
        {"1/mixed", number},
        {"1/1/", kind},
        {"1/1", kind},
        {nullptr, kind},
        {"", kind},
        {"1/1/tit\"ration", "There is no kind of exercise called 'tit\"ration'."},
        {"1/1/titration:4", "The level of titration has to be 1, 2 or 3."},
        {"1/1/titration,titration:2", "The kind titration:2 is there twice."},
        {"1/1/mixed,titration", "The kind mixed stands alone, without a level."},
        {"titration:2", "There is no kind of exercise called 'titration:2'."},
        {"tit;c=1", "There is no kind of exercise called 'tit'."},
        {"dilution", "The value substance is missing."},
        {"dilution;substance=HCl;c1=6.00;V1=25.0;V2=500;x=1/2",
         "This kind of exercise has no value called 'x'."},
    };
    for (const Case& one : cases) {
        const Json expected = {{"error", one.error}};
        const char* const name = one.exercise == nullptr ? "null" : one.exercise;
        EXPECT_EQ(Json::parse(lesson_exercise(one.exercise, nullptr)), expected) << name;
        EXPECT_EQ(Json::parse(lesson_mark(one.exercise, "1", nullptr)), expected) << name;
        EXPECT_EQ(Json::parse(lesson_read(one.exercise, "1", nullptr)), expected) << name;
    }
    const Json expected = {{"error", "There is no typed text."}};
    EXPECT_EQ(Json::parse(lesson_mark("1/1/mixed", nullptr, nullptr)), expected);
    EXPECT_EQ(Json::parse(lesson_read("1/1/mixed", nullptr, nullptr)), expected);
}

TEST(InterfaceTest, AnErrorIsWrittenAsTheReaderWrites)
{
    const Json error = Json::parse(lesson_exercise("concentration;substance=NaCl;m=5.84;V=250;M=58",
                                                   "en-GB;decimal=,;per=power"));
    EXPECT_EQ(error["error"], "The molar mass M of NaCl is 58,44 g mol-1.");
}

TEST(InterfaceTest, TitlesAndLevelsAreInTheLanguageOfTheReader)
{
    const Json british = Json::parse(lesson_kinds("en-GB")).at(6);
    const Json american = Json::parse(lesson_kinds("en-US")).at(6);
    EXPECT_EQ(british["title"], "Equations of neutralisation");
    EXPECT_EQ(american["title"], "Equations of neutralization");
    EXPECT_EQ(american["levels"][1], "Oxides, carbonates, hydrogen carbonates and ammonia");
}

TEST(InterfaceTest, WhatIsReadIsWrittenAsTheReaderWrites)
{
    const char* const made = "dilution;substance=HCl;c1=6.00;V1=25.0;V2=500";
    struct Case {
        const char* typed;
        const char* writing;
        const char* read;
    };
    const Case cases[] = {
        {"0.300 mol/l", nullptr, R"([{"number":"0.300"},{"unit":"mol/L"}])"},
        {"0,300 mol/l", "en-GB;decimal=,", R"([{"number":"0,300"},{"unit":"mol/L"}])"},
        {"0.300 mol/l", "en-GB;volume=cm3", R"([{"number":"0.300"},{"unit":"mol/dm3"}])"},
        {"c = 3e-1", nullptr, R"([{"number":"3e-1"}])"},
        {"?", nullptr, "[]"},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(Json::parse(lesson_read(made, one.typed, one.writing))["read"].dump(), one.read)
            << one.typed;
    }
    EXPECT_EQ(Json::parse(lesson_read("solubility;cation=Na^+;anion=Cl^-", "it dissolves", nullptr))
                  .dump(),
              R"({"read":[{"text":"yes"}]})");
}

TEST(InterfaceTest, BadWritingsAreToldBySentences)
{
    struct Case {
        const char* writing;
        std::string error;
    };
    const Case cases[] = {
        {"xx", "There is no language called 'xx'."},
        {"en-GB;decimal=;", "There is no way of writing called 'decimal='."},
        {"en-GB;x", "There is no way of writing called 'x'."},
    };
    for (const Case& one : cases) {
        const Json expected = {{"error", one.error}};
        EXPECT_EQ(Json::parse(lesson_exercise("1/1/mixed", one.writing)), expected) << one.writing;
        EXPECT_EQ(Json::parse(lesson_mark("1/1/mixed", "1", one.writing)), expected) << one.writing;
        EXPECT_EQ(Json::parse(lesson_read("1/1/mixed", "1", one.writing)), expected) << one.writing;
        EXPECT_EQ(Json::parse(lesson_kinds(one.writing)), expected) << one.writing;
        EXPECT_EQ(Json::parse(lesson_tables(one.writing)), expected) << one.writing;
        EXPECT_EQ(Json::parse(lesson_export("1/titration", "moodle", one.writing)), expected)
            << one.writing;
    }
    for (const char* const writing : {"", "en-GB", "en-GB;decimal=.", ";decimal=,"}) {
        EXPECT_TRUE(Json::parse(lesson_exercise("1/1/mixed", writing)).contains("prompt"))
            << writing;
    }
}

TEST(InterfaceTest, BadArgumentsOfAnExportAreToldBySentences)
{
    const std::string paper = "The paper has to be a number from 1 to 999999.";
    const std::string none = "A sheet has at least one exercise.";
    const std::string many = "A sheet has at most 1000 exercises.";
    const std::string format = "The format has to be moodle or anki.";
    const std::string noCard =
        "Nothing on this sheet fits a card: formulas, ions and solubility do.";
    struct Case {
        const char* sheet;
        const char* format;
        std::string error;
    };
    const Case cases[] = {
        {"0/titration", "moodle", paper},
        {"1000000/titration", "anki", paper},
        {"titration", "anki", paper},
        {nullptr, "moodle", none},
        {"", "anki", none},
        {"1/", "anki", none},
        {"1/0*titration", "moodle", none},
        {"1/1001*titration", "moodle", many},
        {"1/mixed", "moodle", "A sheet names each of its kinds, and mixed is none."},
        {"1/tit\"ration", "moodle", "There is no kind of exercise called 'tit\"ration'."},
        {"1/titration", nullptr, format},
        {"1/titration", "", format},
        {"1/titration", "Moodle", format},
        {"1/ion-formula", "anki,moodle", format},
        {"1/9*titration,neutralisation:3", "anki", noCard},
        {"[dilution]", "moodle", "The value substance is missing."},
        {"[]", "moodle", "There is nothing between [ and ]."},
        {"[dilution", "moodle", "There is no ] behind '[dilution'."},
    };
    for (const Case& one : cases) {
        const Json expected = {{"error", one.error}};
        EXPECT_EQ(Json::parse(lesson_export(one.sheet, one.format, nullptr)), expected)
            << (one.sheet == nullptr ? "null" : one.sheet);
    }
}

TEST(InterfaceTest, DescribedExercisesStandAmongDrawnOnes)
{
    const std::string described = exercise(4821, 3, "titration:3")["description"];
    const std::string sheet = "7/titration:1,[" + described + "],ion-formula";
    const std::string file = lesson_export(sheet.c_str(), "moodle", nullptr);
    const std::size_t own = file.find("Exercise 2, titration, level 3");
    EXPECT_LT(file.find("Paper 7, titration, level 1, number 1"), own) << file;
    EXPECT_LT(own, file.find("Paper 7, ion-formula, level 2, number 1")) << file;
    EXPECT_NE(file.find("<idnumber>own-titration-3-2</idnumber>"), std::string::npos) << file;
    const std::string alone = lesson_export("[ion-formula;ion=SO4^2-]", "anki", nullptr);
    EXPECT_NE(alone.find("ion-formula level-2\n"), std::string::npos) << alone;
}

TEST(InterfaceTest, AnExportIsAFileAndNoJson)
{
    EXPECT_EQ(std::string(lesson_export("999999/1000*titration:3", "moodle", nullptr)).substr(0, 5),
              "<?xml");
    EXPECT_EQ(std::string(lesson_export("1/solubility", "anki", nullptr)).substr(0, 11),
              "#separator:");
}

TEST(InterfaceTest, ExercisesNamedByTheirNumbersAreTheSameInAFile)
{
    const auto file = [](const char* sheet) {
        return std::string(lesson_export(sheetOf(4821, sheet).c_str(), "moodle", nullptr));
    };
    EXPECT_EQ(file("titration@1,titration@2,dilution:1@1"), file("2*titration,dilution:1"));
    EXPECT_EQ(file("2*titration@8"), file("titration@8,titration@9"));
    const std::string all = file("9*titration");
    const std::string one = file("titration@9");
    const std::size_t question = one.rfind("<question");
    EXPECT_NE(all.find(one.substr(question)), std::string::npos) << one;
    EXPECT_EQ(all.find(one.substr(question)), all.rfind("<question"));
}

TEST(InterfaceTest, AResultHoldsUntilTheNextCallOfTheSameFunction)
{
    const char* const made = lesson_exercise("4821/3/titration", nullptr);
    const std::string before = made;
    lesson_kinds(nullptr);
    lesson_tables(nullptr);
    lesson_mark("4821/4/titration", "1", nullptr);
    lesson_export("4821/titration", "moodle", nullptr);
    std::thread([] { lesson_exercise("1/1/dilution", nullptr); }).join();
    EXPECT_EQ(before, made);
}

std::string repeated(const std::string& part, std::size_t length, const char* start = "")
{
    std::string text = start;
    for (std::size_t times = length / part.size(); times > 0; --times) {
        text += part;
    }
    return text;
}

// Were a mark worse than linear in the length, the time allowed for a test would not suffice for
// the megabyte.
TEST(InterfaceTest, AnyTypedTextGetsAMark)
{
    std::vector<std::string> texts = {"",
                                      " ",
                                      "\x80\xFF\xC3",
                                      "\x01\x02\x1F\x7F",
                                      repeated("(", 10000) + repeated(")", 10000),
                                      repeated("[{(", 10000)};
    for (const char* const part :
         {"1",        "0",   ".",  ",",     "1,",   "1 ",   "-",   "e",      "1e",     "^",
          "+",        "(",   ")",  "(H",    "H2",   "NaCl", "2+",  "3-",     "H2O + ", "->",
          " -> ",     "1/2", "·",  "²",     "₂",    "⁻",    " ",   "\u2009", "é",      "\x80",
          "\xE2\x82", "=",   "= ", "mol/L", "c = ", "(aq)", "x10", "×10^",   "*",      "\n"}) {
        texts.push_back(repeated(part, 2000));
        texts.push_back(repeated(part, 2000, "0.0456"));
        texts.push_back(repeated(part, 2000, "2HCl + Na2CO3 -> "));
    }
    for (const char* const part : {"1", "(", "H2O + ", "²"}) {
        texts.push_back(repeated(part, 1000000));
    }
    std::set<std::string> forms; // of each one kind and level
    for (const std::string& kind : kindsAndLevels()) {
        const Json ask = exercise(1, 1, kind)["ask"];
        if (!forms.insert(ask["form"].dump() + ask.value("choices", Json()).dump()).second) {
            continue;
        }
        for (const std::string& typed : texts) {
            const Json marked = mark(1, 1, kind, typed);
            ASSERT_EQ(members(marked), (std::vector<std::string>{"verdict", "sentence"}))
                << kind << ": " << typed.size() << " bytes like " << typed.substr(0, 40);
            ASSERT_LT(marked["sentence"].dump().size(), 2000U)
                << kind << ": " << typed.size() << " bytes like " << typed.substr(0, 40);
        }
    }
}

} // namespace

} // namespace lesson
