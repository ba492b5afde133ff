#pragma once

#include <string>

// Reads a question or an answer from left to right as a learner would: words are expected, numbers
// are taken as they are printed. Throws std::runtime_error, with the whole text, where the text
// goes on in another way.

// A number that is known within bounds, both positive.
struct Range {
    double low;
    double high;
};

Range operator*(Range a, Range b);
Range operator/(Range a, Range b);
Range operator-(Range a, Range b);

// A printed number, rounded to so many significant digits.
struct Shown {
    double value;
    int digits;
};

// The number taken at its word; and with all the numbers that it may have been rounded from.
Range exactly(Shown number);
Range exactly(double number);
Range within(Shown number);

// True when the number may have been rounded from one of the range. Allows for the few last bits
// that single precision loses on the way, less than half a unit of a sixth digit.
bool agree(Shown number, Range worked);

class Reader
{
public:
    explicit Reader(std::string read);

    // Moves past the words.
    void expect(const std::string& words);

    // True, and past the words, if they come next.
    bool accept(const std::string& words);

    // What stands before the words; moves past both.
    std::string upTo(const std::string& words);

    // A number in general notation: no more significant digits than given, no zeros at their end.
    Shown number(int digits);

    // "10 mL" or "1.5 L", in litres.
    Shown volume(int digits);

    // A whole number above 0.
    int wholeNumber();

    // Nothing is left.
    void end();

private:
    [[noreturn]] void fail(const std::string& expected) const;
    std::string digitsAndPoint();

    std::string text;
    std::size_t at = 0;
};
