#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/exercise.hpp"

namespace lesson
{

struct KindAndLevel {
    Kind kind;
    int level; // 1 to 3
};

// The kinds among which exercises are drawn, or what is wrong with the argument that names them.
struct Choice {
    std::vector<KindAndLevel> kinds; // none twice, in the order of `Kind` and level
    std::string error;               // a sentence; empty unless `kinds` is
};

// Reads the names of kinds: a slug ("dilution", which is level 2), a slug and a level
// ("dilution:1"), several of these separated by commas, or "mixed", which is all eight at level 2.
//   "titration:3,dilution" -> dilution at level 2, titration at level 3
//   "titration:4" -> "The level of titration has to be 1, 2 or 3."
Choice readChoice(std::string_view names);

// Where exercise `number` of a paper stands. The numbers come in blocks, in each of which every
// kind of the choice, which is not an error, comes once, in an order of the block's own. What is
// drawn is the exercise of that same number of its kind.
Place placeOf(const Choice& choice, unsigned paper, unsigned number);

} // namespace lesson
