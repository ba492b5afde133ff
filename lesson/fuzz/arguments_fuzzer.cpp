// Any arguments: either both functions tell the same error, or there is an exercise, which is the
// one of its own kind and level, and there is a mark. An input is a paper and a number of three
// bytes each, then a line for the kind and another one for what is typed; a line that begins with
// NUL is a null pointer.

#include <algorithm>

#include "lesson/fuzz/support.hpp"
#include "lesson/lesson.h"

namespace
{

struct Arguments {
    unsigned paper;
    unsigned number;
    std::string kind;
    std::string typed;
};

unsigned threeBytes(const std::uint8_t* data)
{
    return data[0] + data[1] * 256U + data[2] * 65536U;
}

Arguments argumentsOf(const std::uint8_t* data, std::size_t size)
{
    const std::string lines = textOf(data + 6, size - 6);
    const std::size_t end = std::min(lines.find('\n'), lines.size());
    return {threeBytes(data), threeBytes(data + 3), lines.substr(0, end),
            lines.substr(std::min(end + 1, lines.size()))};
}

const char* pointerTo(const std::string& text)
{
    return !text.empty() && text[0] == '\0' ? nullptr : text.c_str();
}

bool isInRange(unsigned number)
{
    return number >= 1 && number <= 999999;
}

std::string ownName(const nlohmann::json& exercise)
{
    return textIn(exercise, "kind") + ":" + std::to_string(exercise["level"].get<int>());
}

void checkExercise(const Arguments& arguments, const nlohmann::json& exercise)
{
    require(isInRange(arguments.paper) && isInRange(arguments.number), "the numbers are in range");
    require(exercise["paper"] == arguments.paper, "it is an exercise of this paper");
    require(exercise["number"] == arguments.number, "it is the exercise of this number");
    const std::string own = ownName(exercise);
    require(parsed(lesson_exercise(arguments.paper, arguments.number, own.c_str())) == exercise,
            "it is the exercise of its own kind and level");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 6) {
        return 0;
    }
    const Arguments arguments = argumentsOf(data, size);
    const char* const kind = pointerTo(arguments.kind);
    const char* const typed = pointerTo(arguments.typed);
    const nlohmann::json exercise =
        parsed(lesson_exercise(arguments.paper, arguments.number, kind));
    const nlohmann::json mark = parsed(lesson_mark(arguments.paper, arguments.number, kind, typed));
    if (exercise.contains("error")) {
        require(!textIn(exercise, "error").empty(), "there is a sentence");
        require(mark == exercise, "both functions tell the same error");
        return 0;
    }
    checkExercise(arguments, exercise);
    require(mark.contains(typed == nullptr ? "error" : "verdict"), "what is typed gets a mark");
    return 0;
}
