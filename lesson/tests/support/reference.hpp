#pragma once

#include <string>

// A drawn exercise, and a sheet of drawn ones, as the lesson's functions take them:
// "4821/3/titration:2", "4821/4*titration".
inline std::string drawn(unsigned paper, unsigned number, const std::string& kinds)
{
    return std::to_string(paper) + "/" + std::to_string(number) + "/" + kinds;
}
inline std::string sheetOf(unsigned paper, const std::string& list)
{
    return std::to_string(paper) + "/" + list;
}
