#include "lesson/text/scan.hpp"

namespace lesson
{

std::string lowerCase(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), smallLetter);
    return lower;
}

} // namespace lesson
