// Any arguments: either all functions tell the same error, or there is an exercise, which its
// description makes again, and there is a mark. An input is a line for the exercise, one for the
// writing and the rest for what is typed; one that begins with NUL is a null pointer.

#include <algorithm>

#include "lesson/fuzz/support.hpp"
#include "lesson/lesson.h"

namespace
{

std::string takeLine(std::string& lines)
{
    const std::size_t end = std::min(lines.find('\n'), lines.size());
    std::string line = lines.substr(0, end);
    lines.erase(0, std::min(end + 1, lines.size()));
    return line;
}

const char* pointerTo(const std::string& text)
{
    return !text.empty() && text[0] == '\0' ? nullptr : text.c_str();
}

bool isInRange(const nlohmann::json& number)
{
    return number >= 1 && number <= 999999;
}

void checkExercise(nlohmann::json exercise, const char* writing)
{
    if (exercise.contains("paper")) {
        require(isInRange(exercise["paper"]), "the paper is in range");
        require(isInRange(exercise["number"]), "the number is in range");
    }
    const std::string description = textIn(exercise, "description");
    exercise.erase("paper");
    exercise.erase("number");
    require(parsed(lesson_exercise(description.c_str(), writing)) == exercise,
            "its description makes it again");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string lines = textOf(data, size);
    const std::string named = takeLine(lines);
    const std::string writing = takeLine(lines);
    const char* const name = pointerTo(named);
    const char* const typed = pointerTo(lines);
    const nlohmann::json exercise = parsed(lesson_exercise(name, pointerTo(writing)));
    const nlohmann::json mark = parsed(lesson_mark(name, typed, pointerTo(writing)));
    const nlohmann::json read = parsed(lesson_read(name, typed, pointerTo(writing)));
    if (exercise.contains("error")) {
        require(!textIn(exercise, "error").empty(), "there is a sentence");
        require(mark == exercise && read == exercise, "all functions tell the same error");
        return 0;
    }
    checkExercise(exercise, pointerTo(writing));
    require(mark.contains(typed == nullptr ? "error" : "verdict"), "what is typed gets a mark");
    require(read.contains(typed == nullptr ? "error" : "read"), "what is typed is read");
    return 0;
}
