#include "lesson/reading/group_braces.hpp"

#include <cstddef>
#include <initializer_list>
#include <vector>

#include "lesson/text/scan.hpp"

namespace lesson
{

namespace
{

bool isOneSymbol(std::string_view text)
{
    return text.size() == 1 || (text.size() == 2 && isSmall(text[1]));
}

// What may stand before the number that counts a group.
using Marks = std::initializer_list<std::string_view>;

bool beginsWithNumber(std::string_view text, Marks marks)
{
    takeBlanks(text);
    for (const std::string_view mark : marks) {
        take(text, mark);
        takeBlanks(text);
    }
    return startsWithDigit(text);
}

// A curly bracket that is open, and whether it lowers or raises.
struct Opening {
    std::size_t place;
    bool isMark;
};

std::string withRound(std::string_view plain, Marks marks)
{
    std::string text(plain);
    std::vector<Opening> open;
    char last = ' '; // but for blanks
    for (std::size_t i = 0; i < plain.size(); ++i) {
        if (plain[i] == '{') {
            open.push_back({i, isOneOf(last, "_^")});
        } else if (plain[i] == '}' && !open.empty()) {
            const Opening opening = open.back();
            open.pop_back();
            const std::string_view inside = plain.substr(opening.place + 1, i - opening.place - 1);
            if (!opening.isMark && startsWithLetter(inside) && !isOneSymbol(inside) &&
                beginsWithNumber(plain.substr(i + 1), marks)) {
                text[opening.place] = '(';
                text[i] = ')';
            }
        }
        last = plain[i] == ' ' ? last : plain[i];
    }
    return text;
}

} // namespace

std::string withRoundBraces(std::string_view plain)
{
    return withRound(plain, {"{"});
}

std::string withAllBracesRound(std::string_view plain)
{
    return withRound(plain, {"_", "{"});
}

} // namespace lesson
