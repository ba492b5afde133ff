// Every exercise tells a description of itself, which gives it back, byte for byte but for paper
// and number.

#include <gtest/gtest.h>

#include <string>

#include "lesson/lesson.h"
#include "lesson/tests/every/common.hpp"
#include "lesson/tests/support/reference.hpp"

namespace
{

// Cuts `"name":…,` out of a JSON text.
std::string without(std::string json, const std::string& name)
{
    const std::size_t at = json.find("\"" + name + "\":");
    return at == std::string::npos ? json : json.erase(at, json.find(',', at) + 1 - at);
}

std::string descriptionIn(const std::string& json)
{
    const std::string member = R"("description":")";
    const std::size_t at = json.find(member) + member.size();
    return json.substr(at, json.find('"', at) - at);
}

void expectGivenBack(const std::string& exercise)
{
    const std::string made = lesson_exercise(exercise.c_str(), nullptr);
    const std::string description = descriptionIn(made);
    const std::string again = lesson_exercise(description.c_str(), nullptr);
    ASSERT_EQ(without(without(made, "paper"), "number"), again) << exercise << ", " << description;
}

// With 100,000 papers to check it is 120,000 exercises.
TEST(DescriptionsTest, EveryExerciseIsGivenBackByItsDescription)
{
    const unsigned papers = papersToCheck() / 20 + 1;
    for (const Json& row : Json::parse(lesson_kinds(nullptr))) {
        const auto levels = static_cast<int>(row["levels"].size());
        for (int level = 1; level <= levels; ++level) {
            const std::string kind = kindAt(row["kind"], level);
            for (unsigned paper = 1; paper <= papers && !HasFatalFailure(); ++paper) {
                expectGivenBack(drawn(paper, paper % 997 + 1, kind));
            }
        }
    }
}

} // namespace
