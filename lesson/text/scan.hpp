#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

namespace lesson
{

// The steps in which every text is read, a formula of the tables as well as what people type. They
// stand below chemistry, reading and export, so that all of these read by the same ones. Letters
// are those of ASCII, whatever the locale.

constexpr bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}
constexpr bool isCapital(char character)
{
    return character >= 'A' && character <= 'Z';
}
constexpr bool isSmall(char character)
{
    return character >= 'a' && character <= 'z';
}
constexpr bool isLetter(char character)
{
    return isSmall(character) || isCapital(character);
}
constexpr bool isSign(char character)
{
    return character == '+' || character == '-';
}
constexpr bool isOneOf(char character, std::string_view characters)
{
    return characters.find(character) != std::string_view::npos;
}

constexpr char smallLetter(char character)
{
    return isCapital(character) ? static_cast<char>(character - 'A' + 'a') : character;
}
// 'A' to 'Z' in lower case, everything else as it is.
std::string lowerCase(std::string_view text);

// The value of digits alone, or the greatest one, at most 10^17, where it is beyond that.
constexpr std::int64_t wholeNumber(std::string_view digits,
                                   std::int64_t greatest = 100'000'000'000'000'000)
{
    std::int64_t value = 0;
    for (const char digit : digits) {
        value = value * 10 + (digit - '0');
        value = value < greatest ? value : greatest;
    }
    return value;
}

constexpr bool startsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}
constexpr bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}
constexpr bool startsWithDigit(std::string_view text)
{
    return !text.empty() && isDigit(text.front());
}
constexpr bool startsWithLetter(std::string_view text)
{
    return !text.empty() && isLetter(text.front());
}

// ---- From the front: each takes what it tells off the text.

// What is expected, if it is there, which it tells.
constexpr bool take(std::string_view& rest, std::string_view expected)
{
    const bool isThere = startsWith(rest, expected);
    rest.remove_prefix(isThere ? expected.size() : 0);
    return isThere;
}
constexpr std::string_view takeLength(std::string_view& rest, std::size_t length)
{
    const std::string_view taken = rest.substr(0, length);
    rest.remove_prefix(taken.size());
    return taken;
}
template <typename IsSuch>
constexpr std::string_view takeAll(std::string_view& rest, IsSuch isSuch)
{
    std::size_t length = 0;
    while (length < rest.size() && isSuch(rest[length])) {
        ++length;
    }
    return takeLength(rest, length);
}
constexpr std::string_view takeDigits(std::string_view& rest)
{
    return takeAll(rest, isDigit);
}
constexpr std::string_view takeLetters(std::string_view& rest)
{
    return takeAll(rest, isLetter);
}
constexpr void takeBlanks(std::string_view& rest)
{
    takeAll(rest, [](char character) { return character == ' '; });
}
// The first of these that is there, and the blanks around it; whether there was one.
template <std::size_t N>
bool takeOneOf(std::string_view& rest, const std::string_view (&expected)[N])
{
    return std::any_of(std::begin(expected), std::end(expected),
                       [&rest](std::string_view one) { return take(rest, one); });
}

// ---- From the end.

constexpr std::string_view withoutAtTheEnd(std::string_view text, std::string_view characters)
{
    while (!text.empty() && isOneOf(text.back(), characters)) {
        text.remove_suffix(1);
    }
    return text;
}
constexpr std::string_view trimmed(std::string_view text)
{
    takeBlanks(text);
    return withoutAtTheEnd(text, " ");
}
// Takes an end off, if it is there, and the blanks before it.
constexpr bool takeEnd(std::string_view& text, std::string_view end)
{
    const bool isThere = endsWith(text, end);
    if (isThere) {
        text = withoutAtTheEnd(text.substr(0, text.size() - end.size()), " ");
    }
    return isThere;
}

// ---- Lists.

template <std::size_t N>
bool isAmong(const std::string_view (&words)[N], std::string_view word)
{
    return std::find(std::begin(words), std::end(words), word) != std::end(words);
}

} // namespace lesson
