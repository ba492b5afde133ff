#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/paper/reference.hpp"
#include "lesson/paper/selection.hpp"

namespace lesson
{

// So many exercises of one kind and level, numbered from `first` on, or a described one.
struct SheetEntry {
    KindAndLevel kind;
    unsigned count; // 0 to greatestSheet
    unsigned first; // 1 to greatestNumber, and so is the last number
    std::string description = {};
};

// What a teacher hands out, or what is wrong with the text that lists it.
struct Sheet {
    unsigned paper = 0;              // 0 where no exercise is drawn
    std::vector<SheetEntry> entries; // in the order of the list, no drawn exercise twice
    Spans error;                     // empty unless something is wrong
};

constexpr unsigned greatestSheet = 1000;

// Reads a paper and a list of kinds, each with a count in front or without, which is one exercise,
// and with a number behind or without, which is 1; `mixed` is none of the kinds. Descriptions in
// square brackets may stand among them, or alone and without a paper. In all there are 1 to
// `greatestSheet` exercises, none of the drawn ones twice.
//   "4821/4*titration,dilution:1@7" -> titrations 1 to 4 at level 2, dilution 7 at level 1
//   "4821/x*titration" -> "The number of exercises has to be a whole number, not 'x'."
Sheet readSheet(std::string_view text);

// The exercises of a sheet, which is not an error.
std::vector<Reference> referencesOf(const Sheet& sheet);

} // namespace lesson
