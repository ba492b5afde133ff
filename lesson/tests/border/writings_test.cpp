// No draw sees a word: a number of a paper is the same exercise in every language, and whatever the
// reader writes.

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <set>
#include <string>

#include "lesson/lesson.h"
#include "lesson/tests/digests/digest.hpp"
#include "lesson/tests/support/reference.hpp"

namespace lesson
{

namespace
{

using Json = nlohmann::ordered_json;

// The formulas, ions and quantities of a line and of the lines in it, in the alphabet's order,
// since a language may have its words in another one.
void addSymbols(std::multiset<std::string>& symbols, const Json& line)
{
    for (const Json& span : line) {
        if (span.contains("formula") || span.contains("ion") || span.contains("quantity")) {
            symbols.insert(span.dump());
        }
        for (const Json& part : span.value("fraction", Json::array())) {
            addSymbols(symbols, part);
        }
    }
}

// What of an exercise is no word and no way of writing.
std::string withoutWords(const std::string& exercise, const char* writing)
{
    Json json = Json::parse(lesson_exercise(exercise.c_str(), writing));
    std::multiset<std::string> symbols;
    addSymbols(symbols, json["prompt"]);
    for (const Json& step : json["solution"]) {
        addSymbols(symbols, step["math"]);
    }
    for (Json& given : json["given"]) {
        for (const char* const member : {"name", "shown", "shownUnit"}) {
            given.erase(member);
        }
    }
    for (Json& slip : json["slips"]) {
        slip.erase("sentence");
    }
    json["solution"] = json["solution"].size();
    json["prompt"] = symbols;
    json["ask"].erase("unit");
    json["ask"].erase("choices");
    json["key"].erase("text");
    json["key"].erase("spans");
    return json.dump(1);
}

TEST(WritingsTest, AnExerciseIsTheSameInEachOfThem)
{
    for (const std::string& kind : kindsAndLevels()) {
        for (unsigned paper = 1; paper <= 25; ++paper) {
            const std::string exercise = drawn(paper, paper * 7, kind);
            const std::string british = withoutWords(exercise, "en-GB");
            for (const char* const writing :
                 {"en-US", "en-GB;decimal=,", "en-US;decimal=,;volume=cm3;per=power"}) {
                EXPECT_EQ(withoutWords(exercise, writing), british) << exercise << ", " << writing;
            }
        }
    }
}

// The key of each writing is right when it is typed in that same one.
TEST(WritingsTest, TheKeyIsRightInEachOfThem)
{
    for (const std::string& kind : kindsAndLevels()) {
        for (unsigned paper = 1; paper <= 25; ++paper) {
            const std::string exercise = drawn(paper, paper * 7, kind);
            for (const char* const writing :
                 {"en-US", "en-GB;decimal=,", "en-US;decimal=,;volume=cm3;per=power"}) {
                const Json json = Json::parse(lesson_exercise(exercise.c_str(), writing));
                const std::string key = json["key"]["text"];
                const Json mark = Json::parse(lesson_mark(exercise.c_str(), key.c_str(), writing));
                EXPECT_EQ(mark["verdict"], "correct") << key << ", " << writing << ": " << mark;
            }
        }
    }
}

// Everything that is said tells its numbers with the reader's sign.
TEST(WritingsTest, NoPointIsLeftInANumber)
{
    for (const std::string& kind : kindsAndLevels()) {
        const std::string exercise = drawn(4821, 3, kind);
        const Json json = Json::parse(lesson_exercise(exercise.c_str(), "en-GB;decimal=,"));
        const std::string said =
            json["prompt"].dump() + json["solution"].dump() + json["key"]["spans"].dump();
        const std::string member = R"("number":")";
        for (std::size_t at = said.find(member); at != std::string::npos;
             at = said.find(member, at + 1)) {
            const std::string number = said.substr(at + 10, said.find('"', at + 10) - at - 10);
            EXPECT_EQ(number.find('.'), std::string::npos) << exercise << ": " << number;
        }
        EXPECT_EQ(json["key"]["text"].get<std::string>().find('.'), std::string::npos) << exercise;
    }
}

} // namespace

} // namespace lesson
