// Whole files as they are approved: one question of each form, and a few cards. They are short
// enough to be read; scripts/approve writes them anew.

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "lesson/lesson.h"
#include "lesson/tests/support/reference.hpp"

namespace lesson
{

namespace
{

using Lines = std::vector<std::string>;

Lines linesOf(std::istream& text)
{
    Lines lines;
    for (std::string line; std::getline(text, line);) {
        lines.push_back(line);
    }
    return lines;
}

Lines approved(const std::string& name)
{
    std::ifstream file(std::string(APPROVED_FILES) + "/" + name);
    return linesOf(file);
}

void expectApproved(const std::string& format, const std::string& name)
{
    const std::string sheet = approved(format + ".sheet").at(0);
    std::istringstream file(lesson_export(sheetOf(4821, sheet).c_str(), format.c_str(), nullptr));
    const Lines found = linesOf(file);
    const Lines expected = approved(name);
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t i = 0; i < found.size(); ++i) {
        EXPECT_EQ(found[i], expected[i]) << name << ", line " << i + 1;
    }
}

TEST(ApprovedFilesTest, MoodlesFileIsTheApprovedOne)
{
    expectApproved("moodle", "moodle.xml");
}

TEST(ApprovedFilesTest, AnkisFileIsTheApprovedOne)
{
    expectApproved("anki", "anki.txt");
}

} // namespace

} // namespace lesson
