#pragma once

#include <cstdint>
#include <string_view>

namespace lesson
{

// Small steps of reading a text. Letters are those of ASCII, whatever the locale.

constexpr bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}
constexpr bool isLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}
constexpr char smallLetter(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}
constexpr bool isOneOf(char character, std::string_view characters)
{
    return characters.find(character) != std::string_view::npos;
}

// The value of digits alone, at most 18 of them.
constexpr std::int64_t wholeNumber(std::string_view digits)
{
    std::int64_t value = 0;
    for (const char digit : digits) {
        value = value * 10 + (digit - '0');
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

// Takes what is expected away from the front, if it is there, and tells so.
constexpr bool take(std::string_view& rest, std::string_view expected)
{
    const bool isThere = startsWith(rest, expected);
    rest.remove_prefix(isThere ? expected.size() : 0);
    return isThere;
}
constexpr void takeBlanks(std::string_view& rest)
{
    while (take(rest, " ")) {
    }
}

} // namespace lesson
