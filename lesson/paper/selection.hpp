#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/kinds/kinds.hpp"
#include "lesson/paper/place.hpp"
#include "lesson/words/spans.hpp"

namespace lesson
{

struct KindAndLevel {
    const Kind* kind;
    int level; // 1 to 3
};

// As it is named: "titration:2".
std::string nameOf(KindAndLevel one);

// What a text names, or what is wrong with it.
struct NamedKind {
    KindAndLevel kind;
    Spans error; // empty where the text names a kind
};

// Reads a slug ("dilution", which is level 2) or a slug and a level ("dilution:1") of one of these
// kinds; `errorOfMixed`, which takes no argument, is told where it is "mixed".
//   "titration:4" -> "The level of titration has to be 1, 2 or 3."
NamedKind readKind(std::string_view name, Sentence errorOfMixed,
                   const KindList& kinds = allKinds());

// The kinds among which exercises are drawn, or what is wrong with the text that names them.
struct Selection {
    std::vector<KindAndLevel> kinds; // none twice, in the order of their seeds and levels
    Spans error;                     // empty unless `kinds` is
};

// Reads the names of kinds, separated by commas, or "mixed", which is for ever the eight kinds with
// the first seeds at level 2.
//   "titration:3,dilution" -> dilution at level 2, titration at level 3
Selection readSelection(std::string_view names, const KindList& kinds = allKinds());

// Where exercise `number` of a paper stands. The numbers come in blocks, in each of which every
// kind of the selection, which is not an error, comes once, in an order of the block's own. What is
// drawn is the exercise of that same number of its kind.
Place placeOf(const Selection& selection, unsigned paper, unsigned number);

} // namespace lesson
