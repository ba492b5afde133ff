#include "lesson/tests/digests/digest.hpp"

#include <cstdint>
#include <cstdio>
#include <string_view>

#include "lesson/exercise.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/lesson.h"
#include "lesson/paper/selection.hpp"
#include "lesson/tests/support/reference.hpp"
#include "lesson/words/render.hpp"

namespace lesson
{

namespace
{

constexpr unsigned papers = 100;
constexpr unsigned numbers = 100;
constexpr unsigned numbersMarked = 5;
constexpr unsigned papersExported = 20;
constexpr unsigned numbersExported = 20;

class Digest
{
public:
    // A text and the end of its line.
    void add(std::string_view text)
    {
        for (const char c : text) {
            add(c);
        }
        add('\n');
    }

    std::string text() const
    {
        char digits[9];
        std::snprintf(digits, sizeof digits, "%08lx", static_cast<unsigned long>(value));
        return digits;
    }

private:
    void add(char c)
    {
        constexpr std::uint64_t prime = 16777619;
        value = static_cast<std::uint32_t>((value ^ static_cast<unsigned char>(c)) * prime);
    }

    std::uint32_t value = 2166136261;
};

std::vector<std::string> typedTexts(const Exercise& exercise)
{
    std::vector<std::string> texts = {
        keyText(exercise, Writing()), "", "42", "Mg2O2", "SO4^2-", "no",
        "HCl + NaOH -> NaCl + H2O"};
    for (const Slip& slip : exercise.slips) {
        texts.push_back(slip.text);
    }
    return texts;
}

void addMarks(Digest& digest, const Place& place, const std::string& kind)
{
    const std::string exercise = drawn(place.paper, place.number, kind);
    for (const std::string& typed : typedTexts(makeExercise(place))) {
        digest.add(lesson_mark(exercise.c_str(), typed.c_str(), nullptr));
    }
}

void addFiles(Digest& digest, const std::string& kind)
{
    const std::string sheet = std::to_string(numbersExported) + "*" + kind;
    for (unsigned paper = 1; paper <= papersExported; ++paper) {
        for (const char* const format : {"moodle", "anki"}) {
            digest.add(lesson_export(sheetOf(paper, sheet).c_str(), format, nullptr));
        }
    }
}

} // namespace

std::vector<std::string> kindsAndLevels()
{
    std::vector<std::string> names;
    for (const Kind* const row : allKinds()) {
        for (int level = 1; level <= levelCount; ++level) {
            names.push_back(std::string(row->slug) + ":" + std::to_string(level));
        }
    }
    return names;
}

std::string digestLine(const std::string& kind)
{
    const Selection choice = readSelection(kind);
    Digest exercises;
    Digest marks;
    Digest files;
    addFiles(files, kind);
    for (unsigned paper = 1; paper <= papers; ++paper) {
        for (unsigned number = 1; number <= numbers; ++number) {
            exercises.add(lesson_exercise(drawn(paper, number, kind).c_str(), nullptr));
        }
        for (unsigned number = 1; number <= numbersMarked; ++number) {
            addMarks(marks, placeOf(choice, paper, number), kind);
        }
    }
    return kind + " " + exercises.text() + " " + marks.text() + " " + files.text();
}

} // namespace lesson
