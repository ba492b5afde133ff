#include "lesson/reading/lookalike_digits.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "lesson/text/scan.hpp"

namespace lesson
{

namespace
{

struct Misread {
    char letter;
    char digit;
};

constexpr Misread misreads[] = {
    {'l', '1'}, {'I', '1'}, {'i', '1'}, {'|', '1'}, {'O', '0'}, {'o', '0'},
};

const Misread* misreadOf(char letter)
{
    const auto* const found =
        std::find_if(std::begin(misreads), std::end(misreads),
                     [letter](const Misread& misread) { return misread.letter == letter; });
    return found == std::end(misreads) ? nullptr : found;
}

// How long a number at the front would be if those letters were digits. A small l behind it is the
// litre.
std::size_t numberLength(std::string_view text)
{
    std::size_t length = 0;
    while (length < text.size() &&
           (isDigit(text[length]) || isOneOf(text[length], ".,") || misreadOf(text[length]))) {
        ++length;
    }
    return withoutAtTheEnd(text.substr(0, length), "l").size();
}

} // namespace

MeantDigits withDigits(std::string_view plain)
{
    MeantDigits meant = {std::string(plain)};
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const std::size_t end = i + numberLength(plain.substr(i));
        const bool isNumber = plain.substr(i, end - i).find_first_of("0123456789") < end - i;
        for (; isNumber && i < end; ++i) {
            if (const Misread* const misread = misreadOf(plain[i])) {
                meant.text[i] = misread->digit;
                meant.letter = meant.letter.empty() ? plain.substr(i, 1) : meant.letter;
            }
        }
        // The rest of a word is no number: "CO2".
        i = std::max(i, end);
        while (i < plain.size() && (isLetter(plain[i]) || isDigit(plain[i]))) {
            ++i;
        }
    }
    return meant;
}

} // namespace lesson
