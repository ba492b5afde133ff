#include "lesson/words/spans.hpp"

#include <gtest/gtest.h>

#include <string>

namespace lesson
{

namespace
{

// "text 'Add ', number '250'"
std::string described(const Spans& spans)
{
    std::string text;
    for (const Span& span : spans) {
        text += text.empty() ? "" : ", ";
        text += span.kind == Span::Kind::text     ? "text"
                : span.kind == Span::Kind::number ? "number"
                : span.kind == Span::Kind::unit   ? "unit"
                                                  : "other";
        text += " '" + span.text + "'";
    }
    return text;
}

TEST(SpansTest, ALineIsItsPiecesInOrder)
{
    EXPECT_EQ(described(line("Add ", measure("250", "mL"), std::string(" of "), formula("HCl"))),
              "text 'Add ', number '250', unit 'mL', text ' of ', other 'HCl'");
}

TEST(SpansTest, WordsJoinAndNothingIsEmpty)
{
    EXPECT_EQ(described(line("", "The titre", line(" is ", number("2")), "", line(".", " So"), " ",
                             std::string())),
              "text 'The titre is ', number '2', text '. So '");
    EXPECT_EQ(described(line("", line(), std::string())), "");
}

} // namespace

} // namespace lesson
