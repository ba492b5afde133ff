#pragma once

#include <climits>
#include <cstddef>
#include <optional>
#include <string>

// The whole number at the front of a text, behind white space and at most one sign; 0 where there
// is none. Nothing where it does not fit into an int: there the C library decides.
inline std::optional<int> leadingNumber(const std::string& text)
{
    std::size_t at = text.find_first_not_of(" \t\n\v\f\r");
    if (at == std::string::npos) {
        return 0;
    }
    const bool minus = text[at] == '-';
    if (minus || text[at] == '+') {
        ++at;
    }
    long long size = 0;
    for (; at < text.size() && text[at] >= '0' && text[at] <= '9'; ++at) {
        size = size * 10 + (text[at] - '0');
        if (size > 1LL + INT_MAX) {
            return std::nullopt;
        }
    }
    const long long number = minus ? -size : size;
    if (number > INT_MAX) {
        return std::nullopt;
    }
    return static_cast<int>(number);
}
