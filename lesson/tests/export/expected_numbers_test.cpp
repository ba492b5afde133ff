#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <variant>
#include <vector>

#include "lesson/export/expected.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/marking/number.hpp"
#include "lesson/numbers/decimal.hpp"
#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

// The kinds that ask for a number.
KindList numberKinds()
{
    KindList kinds;
    for (const Kind* const kind : allKinds()) {
        if (makeExercise({1, 1, kind, 1}).ask.form == Form::number) {
            kinds.push_back(kind);
        }
    }
    return kinds;
}

Exercise asking(Ratio value, int figures, bool isMolarMass)
{
    Exercise exercise = {};
    exercise.ask = {Form::number, "c", "NaCl", isMolarMass ? "g/mol" : "mol/L", figures, {}};
    exercise.answer = NumberAnswer{value, {}, isMolarMass, !isMolarMass};
    return exercise;
}

// "100 0.0456 ±0.0001", without sentences.
std::string textOf(const std::vector<Expected>& expected, int percent)
{
    std::string text;
    for (const Expected& one : expected) {
        if (one.percent == percent) {
            text += (text.empty() ? "" : ", ") + one.text + " ±" + one.tolerance;
        }
    }
    return text;
}

// By hand: one step of the last figure, and half a per cent of the exact value.
TEST(ExpectedNumbersTest, WhatIsRightIsWhatTheMarkingCallsRight)
{
    struct Case {
        Ratio value;
        const char* right;
    };
    const Case cases[] = {
        {ratio(4557, 100000), "0.0456 ±0.0001, 0.04555 ±0.00015"}, // 0.04534 to 0.04580
        {ratio(4564, 10), "456 ±1, 456.5 ±1.5"},                   // 454.1 to 458.7
        {ratio(4560, 10), "456 ±2"},                               // 453.7 to 458.3
        {ratio(9), "9.00 ±0.04"},                                  // 8.955 to 9.045
        {ratio(9996, 10000), "1.00 ±0.01"},                        // 0.9946 to 1.0046
        {ratio(9994, 10000), "0.999 ±0.004, 0.9995 ±0.0045"},      // 0.9944 to 1.0044
        {ratio(120, 1000), "0.120 ±0.001"},                        // 0.1194 to 0.1206
        {ratio(1950), "1950 ±10"},                                 // 1940.25 to 1959.75
        {ratio(139, 1220), "0.114 ±0.001"},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(textOf(expectedNumbers(asking(one.value, 3, false), Writing()), 100), one.right)
            << exactText(one.value);
    }
}

// And half a unit more, since an answer with more figures is rounded first.
TEST(ExpectedNumbersTest, AMolarMassIsRightWithinOneUnitOnly)
{
    EXPECT_EQ(textOf(expectedNumbers(asking(ratio(24969, 100), 4, true), Writing()), 100),
              "249.7 ±0.1, 249.7 ±0.15");
    EXPECT_EQ(textOf(expectedNumbers(asking(ratio(99985, 1000), 4, true), Writing()), 100),
              "99.99 ±0.01, 100.0125 ±0.0375"); // to 100.05, which is 100.0 to four figures
    // Below 100 the steps are shorter: 99.895 is 99.90 to four figures.
    EXPECT_EQ(textOf(expectedNumbers(asking(ratio(100), 4, true), Writing()), 100),
              "100.0 ±0.1, 100.0225 ±0.1275");
}

TEST(ExpectedNumbersTest, OtherFiguresAndVeryCloseAreHalfRight)
{
    struct Case {
        Ratio value;
        int figures;
        const char* half;
    };
    const Case cases[] = {
        // Rounded first; two figures and one; within 1 %.
        {ratio(4557, 100000), 3, "0.04555 ±0.0002, 0.046 ±0, 0.05 ±0, 0.04557 ±0.0004557"},
        // 0.04550 is halfway between 0.045 and 0.046.
        {ratio(455, 10000), 3, "0.0455 ±0.00025, 0.046 ±0, 0.045 ±0, 0.05 ±0, 0.0455 ±0.000455"},
        // Below 1.00 the steps are shorter; two figures are within the run, and so is 1 %.
        {ratio(1), 3, "1.00225 ±0.01275"},
        {ratio(24969, 100), 4, "250 ±0, 249.69 ±2.4969"},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(
            textOf(expectedNumbers(asking(one.value, one.figures, one.figures == 4), Writing()),
                   50),
            one.half)
            << exactText(one.value);
    }
}

TEST(ExpectedNumbersTest, SlipsAndPowersOfTenAreWrongAndSayWhy)
{
    Exercise exercise = asking(ratio(456, 10000), 3, false);
    addSlip(exercise, ratio(912, 10000), line("Twice."));
    addSlip(exercise, ratio(456, 1000), line("Ten times."));
    std::string text;
    for (const Expected& one : expectedNumbers(exercise, Writing())) {
        if (one.percent == 0) {
            text += one.text + " ±" + one.tolerance + " " + one.sentence + "\n";
        }
    }
    EXPECT_EQ(text, "0.0912 ±0.0004 Twice.\n"
                    "0.456 ±0.002 Ten times.\n"
                    "0.0000456 ±0.0000002 Right digits, wrong size. Check each volume: mL or L?\n"
                    "0.000456 ±0.000002 Right digits, wrong size.\n"
                    "0.00456 ±0.00002 Right digits, wrong size.\n"
                    "4.56 ±0.02 Right digits, wrong size.\n"
                    "45.6 ±0.2 Right digits, wrong size. Check each volume: mL or L?\n");
}

// Right, but by other masses than the table's.
TEST(ExpectedNumbersTest, RoundedMassesAreRight)
{
    Exercise exercise = asking(ratio(456, 10000), 3, false);
    exercise.answer =
        NumberAnswer{ratio(456, 10000), {ratio(4561, 100000), ratio(462, 10000)}, false, true};
    EXPECT_EQ(textOf(expectedNumbers(exercise, Writing()), 100), "0.0456 ±0.0002, 0.0462 ±0.0002");
    EXPECT_EQ(expectedNumbers(exercise, Writing())[1].sentence,
              "Correct with rounded atomic masses. With this table it is 0.0456.");
}

// As Moodle compares, in binary floating point with a little to spare.
bool isWithin(double typed, const Expected& expected)
{
    const double answer = std::strtod(expected.text.c_str(), nullptr);
    const double tolerance = std::strtod(expected.tolerance.c_str(), nullptr);
    return std::abs(typed - answer) <= tolerance + 1e-14 * std::max(tolerance, answer);
}

int percentOf(const std::vector<Expected>& expected, const std::string& typed)
{
    const double value = std::strtod(typed.c_str(), nullptr);
    const auto found = std::find_if(expected.begin(), expected.end(),
                                    [value](const Expected& one) { return isWithin(value, one); });
    return found == expected.end() ? 0 : found->percent;
}

bool mayGet(Verdict verdict, int percent)
{
    switch (verdict) {
    case Verdict::correct:
        return percent == 100;
    case Verdict::figures:
        return percent >= 50;
    case Verdict::close:
        return percent == 50;
    default:
        return percent < 100;
    }
}

// With so many figures as were asked for; the zeros of others cannot be seen in Moodle.
void checkSteps(const Exercise& exercise, const std::vector<Expected>& expected, Decimal key)
{
    const std::size_t figures = std::to_string(key.digits).size();
    for (int steps = -25; steps <= 25; ++steps) {
        const std::string typed = plainText({key.digits + steps, key.exponent});
        if (std::to_string(key.digits + steps).size() == figures) {
            EXPECT_TRUE(mayGet(markAnswer(exercise, typed).verdict, percentOf(expected, typed)))
                << typed << " of " << typedKey(exercise) << " gets " << percentOf(expected, typed);
        }
    }
}

// Whether a number with one figure more is right to the figures asked for; a half either way.
bool isRightWhenRounded(const Exercise& exercise, Decimal key, int tenths)
{
    const auto isRight = [&](std::int64_t digits) {
        return markAnswer(exercise, plainText({digits, key.exponent})).verdict == Verdict::correct;
    };
    const std::int64_t digits = key.digits * 10 + tenths;
    return isRight((digits + 4) / 10) || isRight((digits + 5) / 10);
}

// With one figure more, which is not 0.
void checkTenths(const Exercise& exercise, const std::vector<Expected>& expected, Decimal key)
{
    for (int tenths = -129; tenths <= 129; ++tenths) {
        if (tenths % 10 != 0) {
            const std::string typed = plainText({key.digits * 10 + tenths, key.exponent - 1});
            const Verdict verdict = markAnswer(exercise, typed).verdict;
            const int percent = percentOf(expected, typed);
            EXPECT_FALSE(verdict == Verdict::figures && percent < 50)
                << typed << " of " << typedKey(exercise) << " gets " << percent;
            // In Moodle nobody sees that it has more figures than are right with rounded masses.
            EXPECT_FALSE(verdict == Verdict::wrong && percent > 0 &&
                         !isRightWhenRounded(exercise, key, tenths))
                << typed << " of " << typedKey(exercise) << " gets " << percent;
        }
    }
}

TEST(ExpectedNumbersTest, EveryNumberNearTheKeyGetsWhatItsMarkSays)
{
    for (const Kind* const kind : numberKinds()) {
        for (unsigned number = 1; number <= 120; ++number) {
            const int level = 1 + static_cast<int>(number % 3);
            const Exercise exercise = makeExercise({4821, number, kind, level});
            const Ratio value = std::get<NumberAnswer>(exercise.answer).value;
            const std::vector<Expected> expected = expectedNumbers(exercise, Writing());
            checkSteps(exercise, expected, roundedTo(value, exercise.ask.figures));
            checkTenths(exercise, expected, roundedTo(value, exercise.ask.figures));
        }
    }
}

bool hasClose(const std::vector<Expected>& expected)
{
    return std::any_of(expected.begin(), expected.end(), [](const Expected& one) {
        return one.sentence.rfind("Very close.", 0) == 0;
    });
}

// Every number of one figure more within 1 %, one by one.
bool mayBeClose(const Exercise& exercise, Ratio value)
{
    const Decimal key = roundedTo(value, exercise.ask.figures);
    for (int tenths = -110; tenths <= 110; ++tenths) {
        const std::string typed = plainText({key.digits * 10 + tenths, key.exponent - 1});
        if (markAnswer(exercise, typed).verdict == Verdict::close) {
            return true;
        }
    }
    return false;
}

TEST(ExpectedNumbersTest, VeryCloseIsToldWhereverANumberCanBe)
{
    for (const Kind* const kind : numberKinds()) {
        for (unsigned number = 1; number <= 60; ++number) {
            const int level = 1 + static_cast<int>(number % 3);
            const Exercise exercise = makeExercise({9, number, kind, level});
            const Ratio value = std::get<NumberAnswer>(exercise.answer).value;
            EXPECT_EQ(hasClose(expectedNumbers(exercise, Writing())), mayBeClose(exercise, value))
                << typedKey(exercise) << " of number " << number;
        }
    }
}

TEST(ExpectedNumbersTest, AMistakeWithFewerFiguresIsNotPraised)
{
    Exercise exercise = asking(ratio(4557, 100000), 3, false);
    EXPECT_NE(textOf(expectedNumbers(exercise, Writing()), 50).find("0.046 ±0"), std::string::npos);
    exercise.slips = {{"0.0463 mol/L", ratio(463, 10000), line("A mistake.")}};
    EXPECT_EQ(textOf(expectedNumbers(exercise, Writing()), 50).find("0.046 ±0"), std::string::npos);
}

TEST(ExpectedNumbersTest, SlipsKeepTheirOrderAndAreNeverRight)
{
    for (const Kind* const kind : numberKinds()) {
        for (unsigned number = 1; number <= 300; ++number) {
            const int level = 1 + static_cast<int>(number % 3);
            const Exercise exercise = makeExercise({77, number, kind, level});
            std::vector<std::string> told;
            for (const Expected& one : expectedNumbers(exercise, Writing())) {
                EXPECT_TRUE(one.percent == 100 || one.percent == 50 || one.percent == 0);
                if (one.percent == 0) {
                    told.push_back(one.sentence);
                }
            }
            ASSERT_GE(told.size(), exercise.slips.size()) << typedKey(exercise);
            for (std::size_t i = 0; i < exercise.slips.size(); ++i) {
                EXPECT_EQ(told[i], plain(exercise.slips[i].sentence)) << typedKey(exercise);
            }
        }
    }
}

} // namespace

} // namespace lesson
