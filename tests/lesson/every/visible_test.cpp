// The mistakes that a titration is there to show are never taken for a right answer, however small
// the difference that they make in others.

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "lesson/every/learners.hpp"
#include "lesson/every/quantities.hpp"

namespace
{

std::vector<std::pair<const char*, Exact>> mistakenAnswers(const Titration& t)
{
    std::vector<std::pair<const char*, Exact>> answers = {
        {"volumes exchanged", t.c * t.unknown * t.r / t.known},
    };
    if (t.r != Exact(1)) {
        answers.emplace_back("ratio left out", answerOf(t) / t.r);
        answers.emplace_back("ratio upside down", answerOf(t) / t.r / t.r);
    }
    if (!t.titres.empty()) {
        answers.emplace_back("rough titre in the mean", answerOf(withTitre(t, meanOf(t.titres))));
    }
    return answers;
}

TEST(VisibleTest, WhatTitrationsAreThereToShow)
{
    Problems problems;
    for (int level = 1; level <= 3; ++level) {
        const std::string kind = kindAt("titration", level);
        for (const Asked& asked : firstExercises(kind, papersToCheck() + 1)) {
            problems.at(kind, asked.paper, asked.number);
            for (const auto& [name, value] : mistakenAnswers(titrationOf(asked.exercise))) {
                const std::string typed = plainNumber(value, asked.figures());
                const std::string verdict = asked.mark(typed)["verdict"];
                problems.expect(verdict != "correct" && verdict != "figures" && verdict != "close",
                                name, typed + " for " + asked.keyText() + ": " + verdict);
            }
        }
    }
    EXPECT_EQ(problems.text(), "");
}

} // namespace
