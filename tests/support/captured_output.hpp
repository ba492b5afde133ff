#pragma once

#include <unistd.h>

#include <cstdio>
#include <iostream>
#include <stdexcept>
#include <string>

inline void flushOutput()
{
    std::cout.flush();
    std::fflush(stdout);
}

// Has no name, and its front is written anew by each call whose output is captured.
inline std::FILE* captureFile()
{
    static std::FILE* const file = std::tmpfile();
    return file;
}

// What a call writes to standard output, through the C and the C++ streams alike.
template <typename Call>
std::string outputOf(Call call)
{
    std::FILE* const file = captureFile();
    flushOutput();
    const int own = dup(STDOUT_FILENO);
    if (file == nullptr || own < 0 || dup2(fileno(file), STDOUT_FILENO) < 0) {
        throw std::runtime_error("standard output cannot be captured");
    }
    call();
    flushOutput();
    const off_t size = lseek(STDOUT_FILENO, 0, SEEK_CUR);
    std::string text(static_cast<std::size_t>(size), '\0');
    const ssize_t taken = pread(STDOUT_FILENO, text.data(), text.size(), 0);
    lseek(STDOUT_FILENO, 0, SEEK_SET);
    dup2(own, STDOUT_FILENO);
    close(own);
    if (taken != size) {
        throw std::runtime_error("captured output cannot be read");
    }
    return text;
}
