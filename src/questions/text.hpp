#pragma once

#include <string>
#include <string_view>

// A text that grows piece by piece like that of an output stream, and shows numbers as one does:
// in general notation, without trailing zeros, with 6 significant digits until another `Digits` is
// put in. It is here because the questions spend most of their time on numbers, for which a string
// stream takes four times as long.
//   Text text;
//   text << "C = " << 0.342231f << ", about " << Digits{3} << 0.342231f;
//   text.str -> "C = 0.342231, about 0.342"
struct Text {
    std::string str;
    int digits = 6;
};

// Sets the significant digits of the numbers that follow.
struct Digits {
    int number;
};

inline Text& operator<<(Text& text, std::string_view piece)
{
    text.str += piece;
    return text;
}
Text& operator<<(Text& text, int number);
Text& operator<<(Text& text, float number);
Text& operator<<(Text& text, Digits digits);
