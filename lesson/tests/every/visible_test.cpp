// The mistakes that a calculation is there to show are never taken for a right answer, however
// small the difference that they make in others.

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "lesson/tests/every/learners.hpp"
#include "lesson/tests/every/quantities.hpp"

namespace
{

using Mistakes = std::vector<std::pair<const char*, Exact>>;

Mistakes mistakenConcentrations(const Json& exercise)
{
    const Titration t = titrationOf(exercise);
    Mistakes answers = {
        {"volumes exchanged", t.c * t.unknown * t.r / t.known},
        {"no volumes", t.c * t.r},
        {"known concentration copied", t.c},
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

// In mL, as the water is asked for.
Mistakes mistakenWater(const Json& exercise)
{
    const Dilution d = dilutionOf(exercise);
    return {{"volume at first", d.V1}, {"whole volume", d.V2}};
}

void expectVisible(const std::string& kind, Mistakes (*mistakesOf)(const Json& exercise))
{
    Problems problems;
    for (const Asked& asked : firstExercises(kind, papersToCheck() + 1)) {
        problems.at(kind, asked.paper, asked.number);
        for (const auto& [name, value] : mistakesOf(asked.exercise)) {
            const std::string typed = plainNumber(value, asked.figures());
            const std::string verdict = asked.mark(typed)["verdict"];
            problems.expect(verdict != "correct" && verdict != "figures" && verdict != "close",
                            name, typed + " for " + asked.keyText() + ": " + verdict);
        }
    }
    EXPECT_EQ(problems.text(), "");
}

TEST(VisibleTest, WhatTitrationsAreThereToShowIsNeverRight)
{
    for (int level = 1; level <= 3; ++level) {
        expectVisible(kindAt("titration", level), mistakenConcentrations);
    }
}

TEST(VisibleTest, OtherVolumesThanTheWaterToAddAreNeverRight)
{
    expectVisible("dilution:3", mistakenWater);
}

} // namespace
