#pragma once

#include <string_view>

#include "lesson/exercise.hpp"

namespace lesson
{

constexpr int levelCount = 3;

// How a kind of exercise is called.
struct KindRow {
    Kind kind;
    std::string_view slug;  // in arguments and addresses: "molar-mass"
    std::string_view title; // for a list to choose from
    std::string_view levels[levelCount];
};

// In the order in which they are listed everywhere, which is that of `Kind`.
constexpr int kindCount = 8;
using KindRows = KindRow[kindCount];
const KindRows& kinds();

const KindRow& rowOf(Kind kind);
// The one with this slug; null where there is none.
const KindRow* findKind(std::string_view slug);

} // namespace lesson
