#pragma once

#include <cstdlib>

#include "console/question_type.hpp"

// After so many questions the draws begin again, so that the floor can have all texts at hand.
constexpr int questionsInRound = 1000;
constexpr unsigned int seedOfRound = 1;

// What `drill` and `floor` are called with: the number of a kind, and how many questions.
struct Arguments {
    QuestionType kind;
    int questions;
};

inline Arguments readArguments(int argc, char** argv)
{
    if (argc != 3) {
        std::exit(EXIT_FAILURE);
    }
    return {static_cast<QuestionType>(std::atoi(argv[1])), std::atoi(argv[2])};
}
