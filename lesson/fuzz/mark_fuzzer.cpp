// Any text as an answer of one form, which `markedKinds` names by the exercises that ask for it: it
// gets a verdict and a sentence, of which blanks around it change neither, and is read. The first
// byte of an input chooses kind and level, the second one the paper, the others are the answer up
// to the first NUL.

#include <algorithm>
#include <set>

#include "lesson/fuzz/marked_kinds.hpp"
#include "lesson/fuzz/support.hpp"
#include "lesson/lesson.h"

namespace
{

constexpr std::size_t longestSentence = 2000; // In bytes of its JSON: what it quotes is cut.

const std::set<std::string>& verdicts()
{
    static const std::set<std::string> all = {"correct", "figures", "slip",      "power-of-ten",
                                              "close",   "wrong",   "unreadable"};
    return all;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2) {
        return 0;
    }
    const char* const kind = markedKinds[data[0] % markedKindCount];
    const std::string exercise = std::to_string(data[1] + 1U) + "/1/" + kind;
    std::string typed = textOf(data + 2, size - 2);
    typed.erase(std::min(typed.find('\0'), typed.size()));

    const nlohmann::json mark = parsed(lesson_mark(exercise.c_str(), typed.c_str(), nullptr));
    require(verdicts().count(textIn(mark, "verdict")) == 1, "the verdict is one of seven");
    require(!mark["sentence"].empty(), "there is a sentence");
    require(mark["sentence"].dump().size() <= longestSentence, "the sentence is no page");

    const std::string amongBlanks = " \t" + typed + "\u2009\u00A0";
    require(parsed(lesson_mark(exercise.c_str(), amongBlanks.c_str(), nullptr)) == mark,
            "blanks at the ends do not matter");

    const nlohmann::json read = parsed(lesson_read(exercise.c_str(), typed.c_str(), nullptr));
    require(read.contains("read") && read["read"].is_array(), "what is read is a line");
    return 0;
}
