#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/exercise.hpp"

namespace lesson
{

// An answer that a program without chemistry can recognise, and what it gets.
struct Expected {
    int percent; // 100, 50 or 0
    std::string text;
    std::string tolerance; // of a number, by which an answer may differ; empty for other texts
    std::string sentence;  // for whoever gives it
};

// The text of an answer that stands for every one.
constexpr std::string_view anything = "*";

// The answers to recognise, in the order in which to try them, the key first unless they are
// choices, and behind all others what is said of anything else; none for an equation. Percent and
// sentences are those of the marking: what it calls right gets 100, what is no failed try for it
// (other figures, very close) 50, mistakes 0. Words and sentences are in the language of the
// reader; numbers have a point, whatever the reader writes.
std::vector<Expected> expectedAnswers(const Exercise& exercise, const Writing& writing);

// The same for one form of answer each: a number; a few words to choose from; a formula, an ion,
// or a formula or none.
std::vector<Expected> expectedNumbers(const Exercise& exercise, const Writing& writing);
std::vector<Expected> expectedChoices(const Exercise& exercise, const Writing& writing);
std::vector<Expected> expectedTexts(const Exercise& exercise, const Writing& writing);

// Whether the answer is that two solutions have no precipitate.
bool isNone(const Exercise& exercise);

// What a mark is worth.
int percentFor(Verdict verdict);

} // namespace lesson
