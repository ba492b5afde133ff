#include "questions/text.hpp"

#include <charconv>
#include <iterator>

Text& operator<<(Text& text, int number)
{
    text.str += std::to_string(number);
    return text;
}

Text& operator<<(Text& text, float number)
{
    // The longest single-precision number has 112 significant digits.
    char shown[160];
    const std::to_chars_result end = std::to_chars(std::begin(shown), std::end(shown), number,
                                                   std::chars_format::general, text.digits);
    text.str.append(shown, end.ptr);
    return text;
}

Text& operator<<(Text& text, Digits digits)
{
    text.digits = digits.number;
    return text;
}
