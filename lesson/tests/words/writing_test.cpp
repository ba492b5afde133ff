#include "lesson/words/writing.hpp"

#include <gtest/gtest.h>

#include <string>

#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

// "en-GB . mL /", or the error.
std::string described(const NamedWriting& named)
{
    const Writing& writing = named.writing;
    return !named.error.empty() ? plain(named.error)
                                : std::string(writing.language->tag) + " " + writing.decimal +
                                      (writing.isVolumeCubic ? " cm3" : " mL") +
                                      (writing.isPerAPower ? " -1" : " /");
}

TEST(WritingTest, ALanguageAndOptionsInAnyOrder)
{
    struct Case {
        const char* text;
        const char* expected;
    };
    const Case cases[] = {
        {"", "en-GB . mL /"},
        {"en-GB", "en-GB . mL /"},
        {"en-US", "en-US . mL /"},
        {";decimal=,", "en-GB , mL /"},
        {"en-US;decimal=,;volume=cm3;per=power", "en-US , cm3 -1"},
        {"en-US;per=power;volume=cm3", "en-US . cm3 -1"},
        {"en-GB;decimal=,;decimal=.", "en-GB . mL /"},
        {"en-GB;volume=cm3;volume=mL;per=power;per=slash", "en-GB . mL /"},
        {"en-GB;", "en-GB . mL /"},
        {"en", "There is no language called 'en'."},
        {"en-gb", "There is no language called 'en-gb'."},
        {"decimal=,", "There is no language called 'decimal=,'."},
        {"en-GB;volume=cl", "There is no way of writing called 'volume=cl'."},
        {"en-GB;x;y", "There is no way of writing called 'x'."},
        {"en-GB;\x80", "There is no way of writing called '\uFFFD'."},
        {"xx;yy", "There is no language called 'xx'."},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(described(readWriting(one.text)), one.expected) << one.text;
    }
}

} // namespace

} // namespace lesson
