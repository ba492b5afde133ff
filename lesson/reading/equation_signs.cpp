#include "lesson/reading/equation_signs.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "lesson/text/scan.hpp"
#include "lesson/words/language.hpp"

namespace lesson
{

namespace
{

constexpr std::string_view slippedDashes = "_~"; // of an arrow: Shift was held too long

// Between blanks, beside words; "à" and "è" are what a word processor makes of "-->" and "==>".
constexpr Spelling signs[] = {{"à", "->"}, {"è", "->"}, {"&", "+"}};
// With any capitals, perhaps behind a backslash; not in any formula.
constexpr std::string_view arrowNames[] = {"rightarrow", "rarr"};

std::string_view signOfWord(std::string_view word)
{
    const std::string_view sign = plainOf(signs, word);
    return sign.empty() ? plainOf(&TypedWords::equations, word) : sign;
}

// Takes a word between two blanks, and the blank in front of it; empty where there is none.
std::string_view takeWord(std::string_view& rest)
{
    if (!startsWith(rest, " ")) {
        return "";
    }
    const std::string_view behind = rest.substr(1);
    const std::string_view word = behind.substr(0, behind.find(' '));
    const std::string_view sign = word.size() < behind.size() ? signOfWord(word) : "";
    rest = sign.empty() ? rest : behind.substr(word.size());
    return sign;
}

std::string_view takeArrowName(std::string_view& rest)
{
    const std::string_view named = startsWith(rest, "\\") ? rest.substr(1) : rest;
    if (named.empty() || smallLetter(named.front()) != 'r') {
        return "";
    }
    for (const std::string_view name : arrowNames) {
        if (lowerCase(named.substr(0, name.size())) == name) {
            rest = named.substr(name.size());
            return "->";
        }
    }
    return "";
}

// What a run of slipped dashes stands for: "_>" and "_=>" are arrows, "->_" is one, and " _ " was
// perhaps meant as one.
std::string_view meantBy(std::string_view slipped, std::string_view before, std::string_view behind)
{
    const std::size_t last = before.find_last_not_of(' ');
    if (last != std::string_view::npos && isOneOf(before[last], ofArrows)) {
        return "";
    }
    const bool isAlone =
        !before.empty() && before.back() == ' ' && (behind.empty() || behind.front() == ' ');
    return isAlone || (!behind.empty() && isOneOf(behind.front(), ofArrows)) ? "-" : slipped;
}

// Whether a number that was raised stands where a coefficient belongs: "+ ^2H2O", while that of
// "Ca^2+" and of "H^2O" stands behind a symbol.
bool isRaisedCoefficient(std::string_view before, std::string_view rest)
{
    const std::size_t last = before.find_last_not_of(' ');
    if ((last != std::string_view::npos && !isOneOf(before[last], "+>=")) || !take(rest, "^") ||
        !startsWithDigit(rest)) {
        return false;
    }
    while (startsWithDigit(rest)) {
        rest.remove_prefix(1);
    }
    takeBlanks(rest);
    return startsWith(rest, "(") || startsWithLetter(rest);
}

} // namespace

std::string withPlainSigns(std::string_view plain)
{
    std::string_view rest = plain;
    std::string text;
    while (!rest.empty()) {
        const std::string_view word = takeWord(rest);
        const std::string_view sign = word.empty() ? takeArrowName(rest) : word;
        if (!sign.empty()) {
            text.append(" ").append(sign);
            continue;
        }
        rest.remove_prefix(isRaisedCoefficient(text, rest) ? 1 : 0);
        const std::size_t slipped = rest.find_first_not_of(slippedDashes);
        const std::size_t length = slipped == std::string_view::npos ? rest.size() : slipped;
        if (length == 0) {
            text += rest.front();
            rest.remove_prefix(1);
            continue;
        }
        text += meantBy(rest.substr(0, length), text, rest.substr(length));
        rest.remove_prefix(length);
    }
    return text;
}

} // namespace lesson
