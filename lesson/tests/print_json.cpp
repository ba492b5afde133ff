// Prints what the lesson's interface gives, for checks in other languages:
//
//   print_json kinds                         one line
//   print_json tables [WRITING]              the same
//   print_json exercises KIND PAPER COUNT    exercises 1 to COUNT of a paper, one a line
//   print_json export FORMAT PAPER SHEET     the file, or the error
//
// Ends with status 2 for other arguments, and with 1 when the output cannot be written.

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "lesson/lesson.h"
#include "lesson/tests/support/reference.hpp"

namespace
{

int tellUsage()
{
    std::fputs(
        "usage: print_json kinds | print_json tables [WRITING] | print_json exercises KIND PAPER "
        "COUNT | print_json export FORMAT PAPER SHEET\n",
        stderr);
    return 2;
}

unsigned numberIn(const char* text)
{
    return static_cast<unsigned>(std::strtoul(text, nullptr, 10));
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && std::strcmp(argv[1], "kinds") == 0) {
        std::puts(lesson_kinds(nullptr));
    } else if ((argc == 2 || argc == 3) && std::strcmp(argv[1], "tables") == 0) {
        std::puts(lesson_tables(argv[2])); // null behind the last one
    } else if (argc == 5 && std::strcmp(argv[1], "exercises") == 0) {
        const unsigned count = numberIn(argv[4]);
        for (unsigned number = 1; number <= count; ++number) {
            std::puts(lesson_exercise(drawn(numberIn(argv[3]), number, argv[2]).c_str(), nullptr));
        }
    } else if (argc == 5 && std::strcmp(argv[1], "export") == 0) {
        std::fputs(lesson_export(sheetOf(numberIn(argv[3]), argv[4]).c_str(), argv[2], nullptr),
                   stdout);
    } else {
        return tellUsage();
    }
    return std::fflush(stdout) == 0 ? 0 : 1;
}
