// Any arguments of an export: either there is an error, a sentence, or there is a file with as many
// questions as were asked for at most, in which nothing breaks out of its place. An input is a line
// for the sheet and another one for the format; a line that begins with NUL is a null pointer.

#include <algorithm>
#include <string_view>

#include "lesson/fuzz/support.hpp"
#include "lesson/lesson.h"

namespace
{

struct Arguments {
    std::string sheet;
    std::string format;
};

Arguments argumentsOf(const std::uint8_t* data, std::size_t size)
{
    const std::string lines = textOf(data, size);
    const std::size_t end = std::min(lines.find('\n'), lines.size());
    return {lines.substr(0, end), lines.substr(std::min(end + 1, lines.size()))};
}

const char* pointerTo(const std::string& text)
{
    return !text.empty() && text[0] == '\0' ? nullptr : text.c_str();
}

std::size_t countOf(std::string_view text, std::string_view part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos;
         at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

bool isPrintable(std::string_view file)
{
    return std::none_of(file.begin(), file.end(), [](char c) {
        const auto code = static_cast<unsigned char>(c);
        return (code < 0x20U && c != '\n' && c != '\t') || code == 0x7FU;
    });
}

void checkMoodle(std::string_view file)
{
    constexpr std::string_view end = "</quiz>\n";
    require(file.substr(file.size() - end.size()) == end, "the file is whole");
    const std::size_t questions = countOf(file, "<question ");
    require(questions >= 2 && questions <= 1001, "there are questions behind the category");
    require(countOf(file, "</question>") == questions, "each question has its end");
    require(countOf(file, "<![CDATA[") == countOf(file, "]]>"), "each section has its end");
}

void checkAnki(std::string_view file)
{
    require(file.substr(0, 15) == "#separator:Tab\n", "the header is in front");
    for (std::size_t from = 0; from < file.size();) {
        const std::size_t end = file.find('\n', from);
        require(end != std::string_view::npos, "each line has its end");
        const std::string_view line = file.substr(from, end - from);
        require(line[0] == '#' || countOf(line, "\t") == 2, "a card has three fields");
        from = end + 1;
    }
    require(file.find('"') == std::string_view::npos, "no field is quoted");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Arguments arguments = argumentsOf(data, size);
    const std::string_view file =
        lesson_export(pointerTo(arguments.sheet), pointerTo(arguments.format), nullptr);
    if (file[0] == '{') {
        require(!textIn(parsed(file.data()), "error").empty(), "there is a sentence");
        return 0;
    }
    require(isPrintable(file), "nothing but text is in the file");
    if (file[0] == '<') {
        checkMoodle(file);
    } else {
        checkAnki(file);
    }
    return 0;
}
