// Any text typed at the menu: the kind is the one that the number at its front names, one word is
// read and nothing behind it, and nothing is printed.

#include <algorithm>
#include <iostream>
#include <iterator>
#include <sstream>

#include "console/menu.hpp"
#include "leading_number.hpp"
#include "support.hpp"
#include "support/redirected.hpp"

namespace
{

constexpr const char* blanks = " \t\n\v\f\r";

void checkKind(QuestionType kind, const std::string& word)
{
    require(kind >= randomKind && kind <= titrationKind, "the kind is one of the menu's");
    if (const auto number = leadingNumber(word)) {
        const bool onMenu = *number >= 1 && *number <= 4;
        require(kind == (onMenu ? *number : 0), "the kind is the number's, else the random one");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text = textOf(data, size);
    checkKind(kindOfWord(text), text);

    const std::size_t start = std::min(text.find_first_not_of(blanks), text.size());
    const std::size_t end = std::min(text.find_first_of(blanks, start), text.size());
    std::stringbuf printed;
    std::stringbuf typed(text);
    const Redirected output(std::cout, &printed);
    const Redirected input(std::cin, &typed);
    checkKind(readChoice(), text.substr(start, end - start));
    const std::string unread(std::istreambuf_iterator<char>(&typed), {});
    require(unread == text.substr(end), "what stands behind the word stays unread");
    require(printed.str().empty(), "nothing is printed");
    return 0;
}
