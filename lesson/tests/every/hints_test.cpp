// Every step of a worked solution has a hint of its own, which helps and tells nothing of what the
// step comes to.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "lesson/tests/every/learners.hpp"

namespace
{

bool isPartOfWord(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '.' || c == '(' || c == ')' ||
           c == '^';
}

// Numbers and formulas of a text: words with a digit in them, without what ends a sentence.
std::set<std::string> figuresIn(const std::string& text)
{
    std::set<std::string> words;
    std::string word;
    bool hasDigit = false;
    for (const char c : text + " ") {
        if (isPartOfWord(c)) {
            word += c;
            hasDigit = hasDigit || std::isdigit(static_cast<unsigned char>(c)) != 0;
            continue;
        }
        while (!word.empty() && std::isalnum(static_cast<unsigned char>(word.back())) == 0) {
            word.pop_back();
        }
        if (hasDigit) {
            words.insert(word);
        }
        word.clear();
        hasDigit = false;
    }
    return words;
}

// These, and every formula, ion and number of a line, those of fractions among them.
std::set<std::string> tokensIn(const Json& spans)
{
    Json words = Json::array(); // without the symbols of quantities, such as V1
    for (const Json& span : spans) {
        words.push_back(span.contains("quantity") ? Json{{"text", " "}} : span);
    }
    std::set<std::string> tokens = figuresIn(textOf(words));
    for (const Json& span : spans) {
        for (const char* const kind : {"formula", "ion", "number"}) {
            if (span.contains(kind)) {
                tokens.insert(span[kind].get<std::string>());
            }
        }
        if (span.contains("fraction")) {
            for (const Json& part : span["fraction"]) {
                const std::set<std::string> inside = tokensIn(part);
                tokens.insert(inside.begin(), inside.end());
            }
        }
    }
    return tokens;
}

// What the step comes to and nobody has seen before.
std::set<std::string> newIn(const Json& math, const std::set<std::string>& seen)
{
    std::set<std::string> fresh;
    for (const std::string& token : tokensIn(math)) {
        if (seen.count(token) == 0) {
            fresh.insert(token);
        }
    }
    return fresh;
}

// The key without its unit; one of a few words is in many a sentence.
std::string answerOf(const Asked& asked)
{
    const std::string key = asked.keyText();
    const bool isWord = key == "yes" || key == "no" || key == "none";
    return isWord ? "" : key.substr(0, key.find(' '));
}

// The charge of an ion is told by what its acid gives away, and volumes of titrations are put in
// litres; all other hints do without a number and a formula.
bool mayHaveNumbers(const Asked& asked)
{
    return asked.slug() == "ion-formula" || asked.slug() == "titration";
}

void checkStep(Problems& problems, const Json& step, const std::set<std::string>& seen,
               const Asked& asked)
{
    const std::string answer = answerOf(asked);
    const std::string hint = textOf(step["hint"]);
    const std::string shown =
        "'" + hint + "' for '" + textOf(step["say"]) + "' and '" + textOf(step["math"]) + "'";
    problems.expect(!hint.empty(), "each step has a hint", shown);
    problems.expect(hint != textOf(step["say"]), "a hint has other words than its step", shown);
    problems.expect(mayHaveNumbers(asked) || tokensIn(step["hint"]).empty(),
                    "a hint has no numbers and no formulas", shown);
    const std::set<std::string> fresh = newIn(step["math"], seen);
    for (const std::string& token : tokensIn(step["hint"])) {
        problems.expect(fresh.count(token) == 0, "a hint tells nothing of the result",
                        token + " in " + shown);
        problems.expect(token != answer || seen.count(token) == 1, "a hint does not tell the key",
                        shown);
    }
    const bool tellsVerdict = hint.find("are soluble.") != std::string::npos ||
                              hint.find("is soluble.") != std::string::npos ||
                              hint.find("insoluble.") != std::string::npos;
    problems.expect(!tellsVerdict, "a hint does not tell what dissolves", shown);
}

void add(std::set<std::string>& seen, const Json& spans)
{
    const std::set<std::string> tokens = tokensIn(spans);
    seen.insert(tokens.begin(), tokens.end());
}

void checkHints(Problems& problems, const Asked& asked)
{
    std::set<std::string> seen;
    add(seen, asked.exercise["prompt"]);
    for (const Json& step : asked.exercise["solution"]) {
        checkStep(problems, step, seen, asked);
        add(seen, step["say"]);
        add(seen, step["math"]);
        add(seen, step["hint"]);
    }
}

TEST(HintsTest, EachStepHasOneThatTellsNoResult)
{
    Problems problems;
    for (const std::string& kind : everyKind()) {
        for (const Asked& asked : firstExercises(kind, std::min(papersToCheck(), 2000U))) {
            problems.at(kind, asked.paper, asked.number);
            checkHints(problems, asked);
        }
    }
    EXPECT_EQ(problems.text(), "");
}

// Words that fit every kind help with none.
TEST(HintsTest, TheFirstOneIsAboutItsKind)
{
    std::map<std::string, std::string> slugOf; // by hint
    for (const std::string& kind : everyKind()) {
        for (const Asked& asked : firstExercises(kind, std::min(papersToCheck(), 2000U))) {
            const std::string hint = textOf(asked.exercise["solution"][0]["hint"]);
            const auto known = slugOf.emplace(hint, asked.slug()).first;
            EXPECT_EQ(known->second, asked.slug()) << hint;
        }
    }
}

// What the prompt tells is no step.
TEST(HintsTest, TheEquationIsAStepOnlyWhereItIsNotGiven)
{
    Problems problems;
    for (const char* const kind : {"titration:1", "titration:2", "titration:3"}) {
        for (const Asked& asked : firstExercises(kind, std::min(papersToCheck(), 2000U))) {
            problems.at(kind, asked.paper, asked.number);
            const bool isGiven = asked.prompt().find("→") != std::string::npos;
            const Json& first = asked.exercise["solution"][0];
            const bool isWritten = textOf(first["math"]).find("→") != std::string::npos;
            problems.expect(isGiven != isWritten, "an equation is a step where it is not given",
                            textOf(first["say"]));
        }
    }
    EXPECT_EQ(problems.text(), "");
}

} // namespace
