#pragma once

#include <cstdint>
#include <string_view>

#include "lesson/exercise.hpp"

namespace lesson
{

constexpr int levelCount = 3;

// What is drawn beside an exercise.
enum class Drawing {
    none,
    dilution,
    titration,
};

// A kind of exercise: all that the rest of the library, and front ends, know of it.
struct Kind {
    // Its own for ever, whatever stands before or behind it in the list: all draws of its exercises
    // come from it. No other kind, not even a later one, may have it again.
    std::uint32_t seed;
    // Raised by every change of any of its exercises: a number of a paper stands for the same one
    // only within one version.
    unsigned version;
    std::string_view slug;       // in arguments and addresses: "molar-mass"
    Sentence title;              // for a list to choose from
    Sentence levels[levelCount]; // what each asks for
    bool fitsCard; // whether question and answer are short enough for the two sides of one
    // Draws an exercise, and writes its prompt, its worked solution and its slips.
    Exercise (*draw)(const Place& place);
    // Makes the one with the quantities of a description, of which it is given what stands behind
    // the slug.
    NamedExercise (*read)(const Kind& kind, std::string_view fields);
    Drawing drawing = Drawing::none;
    bool needsMasses = false; // whether a learner looks atomic masses up for some of its exercises
};

} // namespace lesson
