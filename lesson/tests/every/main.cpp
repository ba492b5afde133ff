#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

#include "lesson/tests/every/common.hpp"

namespace
{

unsigned papers = 500;

} // namespace

unsigned papersToCheck()
{
    return papers;
}

// Besides GoogleTest's own arguments, --papers=N checks the calculations of so many papers.
int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    constexpr const char* option = "--papers=";
    if (argc > 1 && std::strncmp(argv[1], option, std::strlen(option)) == 0) {
        papers = static_cast<unsigned>(std::strtoul(argv[1] + std::strlen(option), nullptr, 10));
    }
    return RUN_ALL_TESTS();
}
