#pragma once

#include <nlohmann/json.hpp>

#include <map>
#include <string>
#include <utility>
#include <vector>

// What the lesson's interface gives. Numbers are strings here, as they stand in the text, so that
// nothing is rounded to binary.
using Json = nlohmann::json;

// Each kind that the library lists at each of its levels: "titration:2".
const std::vector<std::string>& everyKind();

Json exerciseAt(const std::string& kind, unsigned paper, unsigned number);
// As it comes from the library: to look for one member in many exercises costs a fifth of reading
// all.
std::string exerciseText(const std::string& kind, unsigned paper, unsigned number);
// {"verdict": …, "sentence": […]}, the sentence as spans.
Json markOn(const std::string& kind, unsigned paper, unsigned number, const std::string& typed);
std::string verdictOn(const std::string& kind, unsigned paper, unsigned number,
                      const std::string& typed);

// The text of a line, spans one after the other: "M = 249.69 = 249.7 g/mol".
std::string textOf(const Json& spans);

// The numbers of a line, each with the unit behind it, which may be empty; not the coefficients of
// an equation, which are numbers right before a formula.
std::vector<std::pair<std::string, std::string>> measuresIn(const Json& spans);

// What is wrong, gathered by the rule that is broken: how often, and the first example.
class Problems
{
public:
    // Where problems are found from here on: "titration:2, paper 5, number 1".
    void at(const std::string& kind, unsigned paper, unsigned number);
    // Adds a problem unless the rule is kept.
    void expect(bool isKept, const char* rule, const std::string& detail = "");
    // Empty if there are none.
    std::string text() const;

private:
    struct Found {
        int count = 0;
        std::string first;
    };
    std::string kind;
    unsigned paper = 0;
    unsigned number = 0;
    std::map<std::string, Found> found;
};
