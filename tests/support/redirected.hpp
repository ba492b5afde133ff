#pragma once

#include <ios>
#include <streambuf>

// Puts another buffer under a standard C++ stream while it lives.
class Redirected
{
public:
    Redirected(std::ios& redirected, std::streambuf* buffer)
        : stream(redirected), own(redirected.rdbuf(buffer))
    {
    }
    ~Redirected()
    {
        stream.rdbuf(own);
    }
    Redirected(const Redirected&) = delete;
    Redirected& operator=(const Redirected&) = delete;

private:
    std::ios& stream;
    std::streambuf* own;
};
