#pragma once

#include <string>

// A question and its worked answer, each of whole lines, the last one ended as well.
class QandA
{
public:
    std::string question;
    std::string answer;
};
