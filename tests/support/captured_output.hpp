#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <iostream>
#include <string>

// What a call writes to standard output, through the C and the C++ streams alike.
template <typename Call>
std::string outputOf(Call call)
{
    std::cout.flush();
    std::fflush(stdout);
    testing::internal::CaptureStdout();
    call();
    std::cout.flush();
    std::fflush(stdout);
    return testing::internal::GetCapturedStdout();
}
