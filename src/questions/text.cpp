#include "questions/text.hpp"

#include <charconv>
#include <iterator>

std::string general(float number, int digits)
{
    // The longest single-precision number has 112 significant digits.
    char shown[160];
    const std::to_chars_result end = std::to_chars(std::begin(shown), std::end(shown), number,
                                                   std::chars_format::general, digits);
    return std::string(shown, end.ptr);
}
