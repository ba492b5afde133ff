#pragma once

#include <string>
#include <vector>

namespace lesson
{

// Every kind at every level as `lesson_exercise` takes it, in the order of the table:
// "molar-mass:1".
std::vector<std::string> kindsAndLevels();

// One line for a kind and level: its name, a digest of 10,000 exercises (numbers 1 to 100 of papers
// 1 to 100) as `lesson_exercise` gives them, one of what `lesson_mark` says to the key, the slips
// and a few other texts in the first five exercises of each paper, and one of the files by
// `lesson_export` of twenty exercises of each of the first twenty papers.
//   "titration:3 0c4d9a31 5e77f2b8 97a1c3d0"
//
// The digest is FNV-1a with 32 bits, which every language can compute: a change goes unnoticed once
// in four thousand million times.
std::string digestLine(const std::string& kind);

} // namespace lesson
