#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "lesson/tests/every/common.hpp"

// What learners type: one exercise, routes through it that end in a wrong answer, and what each of
// these answers is told.

struct Asked {
    std::string kind; // with its level
    unsigned paper;
    unsigned number;
    Json exercise;

    Json mark(const std::string& typed) const;
    std::string slug() const;
    std::string keyText() const;
    // Of a number.
    int figures() const;
    bool isMolarMass() const;
    Exact key() const;
    std::string prompt() const;
};

// Nine numbers of a paper, one paper after another, until there are so many, or 5000.
std::vector<Asked> firstExercises(const std::string& kind, unsigned count);

// A value as a learner types it, rounded to so many figures: "0.0456", "1230".
std::string plainNumber(const Exact& value, int figures);

// A wrong route: what it leads to, and parts of the sentences that tell of the mistake.
struct Route {
    const char* name;
    // Nothing where the route is not there.
    std::function<std::optional<std::string>(const Asked&)> typed;
    std::vector<const char*> sentences;
};

// A route that ends in a number, in the asked unit; it is no wrong one where that is right.
Route numberRoute(const char* name, std::function<std::optional<Exact>(const Asked&)> value,
                  std::vector<const char*> sentences);

// Runs each route through many exercises, prints what it was told, and expects: each has a sentence
// about it in half of the exercises that it goes through at least, all of them together in nine of
// ten, and none of them is right.
void checkRoutes(const std::string& kind, const std::vector<Route>& routes);
