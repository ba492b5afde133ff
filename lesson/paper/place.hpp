#pragma once

namespace lesson
{

struct Kind;

constexpr unsigned greatestPaper = 999999;
constexpr unsigned greatestNumber = 999999;

// Which exercise: all that it depends on.
struct Place {
    unsigned paper;  // 1 to greatestPaper
    unsigned number; // 1 to greatestNumber
    const Kind* kind;
    int level; // 1 to 3
};

} // namespace lesson
