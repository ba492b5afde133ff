#include "lesson/reading/ion_spelling.hpp"

#include <algorithm>
#include <cstddef>

#include "lesson/reading/formula_spelling.hpp"
#include "lesson/reading/typed.hpp"
#include "lesson/text/scan.hpp"

namespace lesson
{

namespace
{

// "SO4**2-" -> "SO4^2-", as programmers raise
std::string withCaret(std::string plain)
{
    const std::size_t stars = plain.find("**");
    return stars == std::string::npos ? plain : plain.replace(stars, 2, "^");
}

// "SO4 2 minus" -> "SO4 2 -"; no formula has these letters in a row.
std::string withSigns(std::string_view plain)
{
    const std::string lower = lowerCase(plain);
    std::string_view rest = lower;
    std::string text;
    while (!rest.empty()) {
        const char sign = take(rest, "minus") ? '-' : take(rest, "plus") ? '+' : ' ';
        if (sign != ' ') {
            text += sign;
            continue;
        }
        text += plain[plain.size() - rest.size()];
        rest.remove_prefix(1);
    }
    return text;
}

// "Fe3+ ion" -> "Fe3+", "Fe(III) ions." -> "Fe(III)", "Fe3+ion" -> "Fe3+"
std::string withoutIon(const std::string& plain)
{
    constexpr std::string_view ends[] = {" ion", " ions", " ion.", " ions.",
                                         "ion",  "ions",  "ion.",  "ions."};
    constexpr std::string_view before = "+-)]}";
    const std::string lower = lowerCase(plain);
    for (const std::string_view end : ends) {
        const std::size_t front = plain.size() - std::min(plain.size(), end.size());
        if (front > 0 && lower.compare(front, end.size(), end) == 0 &&
            before.find(plain[front - 1]) != std::string_view::npos) {
            return plain.substr(0, front);
        }
    }
    return plain;
}

// Ethanoate from its other end has the charge in front: "-OOCCH3" -> "OOCCH3-".
std::string withChargeBehind(std::string marked)
{
    const std::size_t sign = startsWith(marked, "^") ? 2 : 1;
    const std::string_view behind = std::string_view(marked).substr(std::min(sign, marked.size()));
    const bool isInFront = startsWith(behind, "OOC") || startsWith(behind, "O2C") ||
                           startsWith(behind, "O_2C") || startsWith(behind, "O_{2}C");
    if (isInFront && marked[sign - 1] == '-') {
        std::rotate(marked.begin(), marked.begin() + static_cast<std::ptrdiff_t>(sign),
                    marked.end());
    }
    return marked;
}

} // namespace

std::string plainIon(std::string_view typed)
{
    const std::string marked = withoutIon(withSigns(withCaret(spelledOut(markedTyped(typed)))));
    return withoutBond(withChargeBehind(marked));
}

} // namespace lesson
