#include "lesson/border/json.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace lesson
{

namespace
{

std::string textAlone(std::string_view value)
{
    Json json;
    json.text(value);
    return json.take();
}

TEST(JsonTest, NestsAndSeparates)
{
    Json json;
    json.object([&] {
        json.member("a", "text");
        json.member("b", -2);
        json.key("c").object([] {});
        json.key("d").array(std::vector<int>{}, [&](int value) { json.number(value); });
        json.key("e").array(std::vector<int>{1, 2, 3}, [&](int value) { json.number(value); });
        json.key("f").elements([&] {
            json.object([&] { json.member("g", ""); });
            json.object([&] { json.member("h", "["); });
            json.text("{");
            json.text(":");
        });
        json.key("i").elements([&] {
            json.boolean(true);
            json.boolean(false);
        });
    });
    EXPECT_EQ(json.take(), R"({"a":"text","b":-2,"c":{},"d":[],"e":[1,2,3],)"
                           R"("f":[{"g":""},{"h":"["},"{",":"],"i":[true,false]})");
    EXPECT_EQ(json.take(), "") << "nothing is left behind";
}

TEST(JsonTest, NumbersAreExactDecimals)
{
    struct Case {
        Ratio value;
        const char* text;
    };
    const Case cases[] = {
        {ratio(0), "0"},
        {ratio(-3, 8), "-0.375"},
        {ratio(217, 10000), "0.0217"},
        {ratio(139, 1220), "0.113934426230"},
        {ratio(24969, 100), "249.69"},
        {ratio(1, 100000), "0.00001"},
    };
    for (const Case& one : cases) {
        Json json;
        json.number(one.value);
        EXPECT_EQ(json.take(), one.text);
    }
    Json json;
    json.number("22.10");
    EXPECT_EQ(json.take(), "22.10");
}

TEST(JsonTest, EscapesWhatHasToBe)
{
    struct Case {
        std::string value;
        const char* text;
    };
    const Case cases[] = {
        {"", R"("")"},
        {R"(a "b" \ c/d)", R"("a \"b\" \\ c/d")"},
        {std::string("\0\n\x1f", 3), R"("\u0000\u000a\u001f")"},
        {"\x7f", "\"\x7f\""},
        {"³⁻ → ≤ 𝑐", "\"³⁻ → ≤ 𝑐\""},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(textAlone(one.value), one.text);
        EXPECT_EQ(nlohmann::json::parse(textAlone(one.value)), one.value);
    }
}

TEST(JsonTest, BytesThatAreNoUtf8AreReplaced)
{
    struct Case {
        const char* what;
        std::string value;
        const char* text;
    };
    const Case cases[] = {
        {"a lonely continuation", "a\x80z", "\"a\uFFFDz\""},
        {"a character cut off by the end", "a\xE2\x82", "\"a\uFFFD\uFFFD\""},
        {"a character cut off by another", "\xE2\x82\"", "\"\uFFFD\uFFFD\\\"\""},
        {"an overlong slash", "\xC0\xAF", "\"\uFFFD\uFFFD\""},
        {"an overlong euro sign", "\xF0\x82\x82\xAC", "\"\uFFFD\uFFFD\uFFFD\uFFFD\""},
        {"a surrogate", "\xED\xA0\x80", "\"\uFFFD\uFFFD\uFFFD\""},
        {"beyond the last character", "\xF4\x90\x80\x80", "\"\uFFFD\uFFFD\uFFFD\uFFFD\""},
        {"the last character", "\xF4\x8F\xBF\xBF", "\"\U0010FFFF\""},
        {"no lead byte at all", "\xFF\xFE", "\"\uFFFD\uFFFD\""},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(textAlone(one.value), one.text) << one.what;
        EXPECT_TRUE(nlohmann::json::accept(textAlone(one.value))) << one.what;
    }
}

// The parser is strict about UTF-8: whatever pair or triple of bytes comes, it has to accept it.
TEST(JsonTest, AnyBytesGiveValidJson)
{
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            const std::string two = {static_cast<char>(first), static_cast<char>(second)};
            for (const std::string& value : {two, two + "\x80", two + "\x80\xBF", "\xE2" + two}) {
                ASSERT_TRUE(nlohmann::json::accept(textAlone(value))) << first << " " << second;
            }
        }
    }
}

} // namespace

} // namespace lesson
