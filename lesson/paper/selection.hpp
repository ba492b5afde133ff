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

// So many exercises of one kind and level, numbered from `first` on.
struct SheetEntry {
    KindAndLevel kind;
    unsigned count; // 0 to greatestSheet
    unsigned first; // 1 to greatestNumber, and so is the last number
};

// What a teacher hands out, or what is wrong with the text that lists it.
struct Sheet {
    std::vector<SheetEntry> entries; // in the order of the list, no exercise twice
    std::string error;               // a sentence; empty unless something is wrong
};

constexpr unsigned greatestSheet = 1000;

// Reads a list of kinds as above, each with a count in front or without, which is one exercise, and
// with a number behind or without, which is 1. In all there are 1 to `greatestSheet` exercises,
// none of them twice, and `mixed` is none of the kinds.
//   "4*titration,dilution:1@7" -> titrations 1 to 4 at level 2, dilution 7 at level 1
//   "x*titration" -> "The number of exercises has to be a whole number, not 'x'."
Sheet readSheet(std::string_view list);

// Where the exercises of a sheet, which is not an error, stand.
std::vector<Place> placesOf(const Sheet& sheet, unsigned paper);

} // namespace lesson
