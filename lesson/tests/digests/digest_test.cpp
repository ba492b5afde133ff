// The same exercises, marks and files everywhere: this test runs with every compiler, on every
// processor and under every sanitizer, and wasm/digest_test.mjs in WebAssembly.

#include "lesson/tests/digests/digest.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>

namespace lesson
{

namespace
{

// The lines of a file by the word with which they begin.
std::map<std::string, std::string> approvedLines()
{
    std::map<std::string, std::string> lines;
    std::ifstream file(APPROVED_DIGESTS);
    for (std::string line; std::getline(file, line);) {
        lines[line.substr(0, line.find(' '))] = line;
    }
    return lines;
}

class DigestTest : public ::testing::TestWithParam<std::string>
{
};

TEST_P(DigestTest, IsTheApprovedOne)
{
    EXPECT_EQ(digestLine(GetParam()), approvedLines()[GetParam()])
        << "an exercise, a mark or a file has changed: scripts/approve tells what to do if that is "
           "meant";
}

std::string testName(const ::testing::TestParamInfo<std::string>& info)
{
    std::string name = info.param;
    for (char& c : name) {
        c = c == '-' || c == ':' ? '_' : c;
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(Every, DigestTest, ::testing::ValuesIn(kindsAndLevels()), testName);

TEST(DigestTest, EveryKindAndLevelIsApproved)
{
    EXPECT_EQ(approvedLines().size(), kindsAndLevels().size());
}

} // namespace

} // namespace lesson
