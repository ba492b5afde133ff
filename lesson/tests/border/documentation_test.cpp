// The examples of docs/lesson.md are what the functions give. Each is a line that names the call
// and a block of JSON behind it.

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <regex>
#include <string>
#include <vector>

#include "lesson/lesson.h"

namespace lesson
{

namespace
{

using Json = nlohmann::ordered_json;

struct Example {
    std::string call;
    std::string result;
};

std::vector<Example> examples()
{
    std::ifstream file(LESSON_DOCUMENTATION);
    const std::regex call(R"re(lesson_\w+\("[0-9]+/.*"\))re");
    std::vector<Example> found;
    std::string lastCall;
    bool isInside = false;
    for (std::string line; std::getline(file, line);) {
        std::smatch match;
        if (line == "```json") {
            found.push_back({lastCall, ""});
            isInside = true;
        } else if (line == "```") {
            isInside = false;
        } else if (isInside) {
            found.back().result += line + "\n";
        } else if (std::regex_search(line, match, call)) {
            lastCall = match.str();
        }
    }
    return found;
}

std::string resultOf(const std::string& call)
{
    const std::regex pattern(R"re((\w+)\("([^"]*)"(?:, "([^"]*)")?, "([^"]*)"\))re");
    std::smatch parts;
    if (!std::regex_match(call, parts, pattern)) {
        return "no call: " + call;
    }
    const std::string exercise = parts[2];
    const std::string typed = parts[3];
    const std::string writing = parts[4];
    return parts[1] == "lesson_mark" ? lesson_mark(exercise.c_str(), typed.c_str(), writing.c_str())
           : parts[1] == "lesson_read"
               ? lesson_read(exercise.c_str(), typed.c_str(), writing.c_str())
               : lesson_exercise(exercise.c_str(), writing.c_str());
}

TEST(LessonDocumentationTest, TheExamplesAreReal)
{
    EXPECT_GE(examples().size(), 5U);
    for (const Example& example : examples()) {
        EXPECT_EQ(Json::parse(example.result).dump(), Json::parse(resultOf(example.call)).dump())
            << example.call;
    }
}

} // namespace

} // namespace lesson
