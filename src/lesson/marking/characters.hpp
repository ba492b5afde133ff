#pragma once

namespace lesson
{

// ASCII only, whatever the locale.
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

} // namespace lesson
