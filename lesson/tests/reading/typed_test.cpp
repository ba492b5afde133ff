#include "lesson/reading/typed.hpp"

#include <gtest/gtest.h>

#include <string>

namespace lesson
{

namespace
{

// The character of a code point above U+07FF and below U+10000.
std::string utf8Of(int codePoint)
{
    std::string text;
    text += static_cast<char>(0xE0 | (codePoint >> 12));
    text += static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (codePoint & 0x3F));
    return text;
}

struct Row {
    const char* typed;
    const char* plain;
};

TEST(PlainTypedTest, OneSpellingOfWhatIsTyped)
{
    // clang-format off
    const Row rows[] = {
        {"", ""},
        {"NaCl", "NaCl"},
        {" 3.42×10⁻² ", "3.42×10^-2"},
        {"SO₄²⁻", "SO4^2-"},
        {"SO₄⁽²⁻⁾", "SO4^(2-)"},
        {"Na₊", "Na+"},
        {"CuSO₄•5H₂O", "CuSO4·5H2O"},
        {"2½H₂O", "2 1/2H2O"},
        {"Ａｌ２（ＳＯ４）３", "Al2(SO4)3"},
        {"Ｃａ［ＯＨ］２", "Ca[OH]2"},
        {"ｃ＝０．０４４８　ｍｏｌ／Ｌ", "c=0.0448 mol/L"},
        {"０，０４４８", "0,0448"},
        {"2ＨＣｌ＋Ｎａ₂O－＞", "2HCl+Na2O->"},
        {"Fe(Ⅲ)Cl3", "Fe(III)Cl3"},
        {"290 mℓ", "290 ml"},
        {"doesn´t", "doesn't"},
        {"doesn′t", "doesn't"},
        {"\xFF", "\xFF"},
        {"\xEF\xBC", "\xEF\xBC"},
        {"\xEF\xBC\x80", "\xEF\xBC\x80"},
        {"\uFF5F", "\uFF5F"},
    };
    // clang-format on
    for (const Row& row : rows) {
        EXPECT_EQ(plainTyped(row.typed), row.plain) << row.typed;
    }
}

TEST(PlainTypedTest, WhatWrapsAnAnswerIsTakenOff)
{
    const Row rows[] = {
        {"  yes \t", "yes"},      {"yes,", "yes"},
        {"yes!", "yes"},          {"yes ; ", "yes"},
        {"\"yes\"", "yes"},       {"'0.0448'", "0.0448"},
        {"“yes.”", "yes."},       {"‘NaCl’", "NaCl"},
        {"«NaCl»", "NaCl"},       {"` NaCl `!", "NaCl"},
        {"$AlF_{3}$", "AlF_{3}"}, {"\"'yes'\"", "yes"},
        {"\"yes'", "\"yes'"},     {"'", "'"},
        {"\"\"", "\"\""},         {"1, 2", "1, 2"},
        {"yes?", "yes?"},         {"doesn't", "doesn't"},
        {"yes.", "yes."},         {",;!", ""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(plainTyped(row.typed), row.plain) << row.typed;
    }
}

TEST(PlainTypedTest, WideCharactersStandForThoseOfAscii)
{
    for (int code = '!'; code <= '~'; ++code) {
        const std::string wide = utf8Of(code - 0x20 + 0xFF00);
        const std::string ordinary(1, static_cast<char>(code));
        EXPECT_EQ(plainTyped("a" + wide + "b"), "a" + ordinary + "b") << wide;
    }
}

TEST(PlainTypedTest, WhatHasNoWidthIsSkippedAndEveryBlankIsOne)
{
    for (const char* const none : {"\u00AD", "\u200B", "\u200C", "\u200D", "\u200E", "\u200F",
                                   "\u2060", "\u2064", "\uFEFF", "\uFE0F"}) {
        EXPECT_EQ(plainTyped(std::string("0.04") + none + "48" + none), "0.0448");
    }
    for (const char* const blank : {"\t", "\n", "\r", "\u0085", "\u00A0", "\u1680", "\u2002",
                                    "\u2009", "\u2028", "\u2029", "\u202F", "\u3000"}) {
        EXPECT_EQ(plainTyped(std::string("no") + blank + "way" + blank), "no way");
    }
}

TEST(PlainTypedTest, DashesPlusesAndArrows)
{
    for (const char* const minus :
         {"\u2010", "\u2011", "\u2012", "\u2013", "\u2014", "\u2015", "\u2043", "\u2212", "\u2796",
          "\uFE58", "\uFE63", "\uFF0D", "\u02D7", "\u208B"}) {
        EXPECT_EQ(plainTyped(std::string("Cl") + minus), "Cl-") << minus;
    }
    for (const char* const plus : {"\u2795", "\uFE62", "\uFF0B", "\u208A"}) {
        EXPECT_EQ(plainTyped(std::string("Na") + plus), "Na+") << plus;
    }
    for (const char* const arrow :
         {"→", "⇒", "⟹", "➔", "➜", "➝", "⟶", "⭢", "🡒", "➡", "➡️", "⇨", "↦", "⟾"}) {
        EXPECT_EQ(plainTyped(std::string("a") + arrow + "b"), "a->b") << arrow;
    }
    for (const char* const arrow : {"⇄", "⇋", "⇌", "↔", "⟷", "⇔", "⟺"}) {
        EXPECT_EQ(plainTyped(std::string("a") + arrow + "b"), "a<->b") << arrow;
    }
    for (const char* const arrow : {"←", "⟵", "⇐", "⟸", "⬅"}) {
        EXPECT_EQ(plainTyped(std::string("a") + arrow + "b"), "a<-b") << arrow;
    }
}

} // namespace

} // namespace lesson
