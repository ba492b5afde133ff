#include "lesson/marking/number.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

struct AgreementCase {
    Decimal typed;
    Ratio exact;
    int figures;
    bool isMolarMass;
    bool doesAgree;
};

TEST(AgreesTest, WithinOneUnitOfTheRoundedValueOrHalfAPerCentOfTheExactOne)
{
    // clang-format off
    const AgreementCase cases[] = {
        // 0.04557, rounded 0.0456; half a per cent more is 0.0457979, less 0.0453422.
        {{456, -4}, {4557, 100000}, 3, false, true},
        {{457, -4}, {4557, 100000}, 3, false, true},
        {{455, -4}, {4557, 100000}, 3, false, true},
        {{458, -4}, {4557, 100000}, 3, false, false},
        {{454, -4}, {4557, 100000}, 3, false, true},
        {{453, -4}, {4557, 100000}, 3, false, false},
        // 0.800: half a per cent is 0.004 = four units, the bounds included.
        {{804, -3}, {8, 10}, 3, false, true},
        {{805, -3}, {8, 10}, 3, false, false},
        {{796, -3}, {8, 10}, 3, false, true},
        {{795, -3}, {8, 10}, 3, false, false},
        // 0.100, one unit, which is more than half a per cent here.
        {{101, -3}, {1, 10}, 3, false, true},
        {{102, -3}, {1, 10}, 3, false, false},
        {{990, -4}, {1, 10}, 3, false, true},
        {{989, -4}, {1, 10}, 3, false, false},
        // Just below a power of ten: 0.9996 is 1.00, one unit 0.01.
        {{990, -3}, {9996, 10000}, 3, false, true},
        {{989, -3}, {9996, 10000}, 3, false, false},
        {{101, -2}, {9996, 10000}, 3, false, true},
        // Half a per cent of 0.9994 is 0.004997.
        {{995, -3}, {9994, 10000}, 3, false, true},
        {{994, -3}, {9994, 10000}, 3, false, false},
        // Above 999: one unit is 10.
        {{124, 1}, {1234, 1}, 3, false, true},
        {{125, 1}, {1234, 1}, 3, false, false},
        // Molar masses: one unit, and no half per cent.
        {{2497, -1}, {24969, 100}, 4, true, true},
        {{2498, -1}, {24969, 100}, 4, true, true},
        {{2496, -1}, {24969, 100}, 4, true, true},
        {{2499, -1}, {24969, 100}, 4, true, false},
        {{2495, -1}, {24969, 100}, 4, true, false},
        {{2499, -1}, {24969, 100}, 4, false, true},
        // A value without an end.
        {{333, -3}, {1, 3}, 3, false, true},
        {{335, -3}, {1, 3}, 3, false, true},   // 0.335 = 1/3 + 0.5 per cent exactly
        {{33501, -5}, {1, 3}, 3, false, false},
    };
    // clang-format on
    for (const AgreementCase& c : cases) {
        EXPECT_EQ(agrees(c.typed, c.exact, c.figures, c.isMolarMass), c.doesAgree)
            << c.typed.digits << "e" << c.typed.exponent << " and " << c.exact.numerator << '/'
            << c.exact.denominator;
    }
}

Exercise exerciseOf(NumberAnswer answer, std::string unit, int figures)
{
    Exercise exercise = {};
    exercise.ask = {Form::number, "c", "NaOH", std::move(unit), figures, {}};
    exercise.answer = std::move(answer);
    return exercise;
}

std::vector<std::string> textsOf(const std::vector<Slip>& slips)
{
    std::vector<std::string> texts;
    for (const Slip& slip : slips) {
        texts.push_back(slip.text);
    }
    return texts;
}

TEST(AddSlipTest, LeavesOutWhatWouldBeMarkedAsSomethingElse)
{
    Exercise exercise = exerciseOf({{4557, 100000}, {{5, 100}}}, "mol/L", 3);
    addSlip(exercise, ratio(18228, 100000), line("first"));
    addSlip(exercise, ratio(4570, 100000), line("one unit from the key"));
    addSlip(exercise, {501, 10000}, line("right with rounded masses"));
    addSlip(exercise, {183, 1000}, line("one unit from the first slip"));
    addSlip(exercise, {0, 1}, line("nothing"));
    addSlip(exercise, {-1, 2}, line("below nothing"));
    addSlip(exercise, {1, 3}, line("second"));
    EXPECT_EQ(textsOf(exercise.slips), (std::vector<std::string>{"0.182 mol/L", "0.333 mol/L"}));
    EXPECT_EQ(plain(exercise.slips[0].sentence), "first");
    EXPECT_EQ(exercise.slips[0].value->numerator, 4557);
}

// 0.8046 is within half a per cent of 0.8006, but 0.805, which would be typed, is not.
TEST(AddSlipTest, LooksAtWhatWouldBeTyped)
{
    Exercise exercise = exerciseOf({ratio(8006, 10000)}, "mol/L", 3);
    addSlip(exercise, ratio(80459, 100000), line("typed as 0.805"));
    EXPECT_EQ(textsOf(exercise.slips), (std::vector<std::string>{"0.805 mol/L"}));
    exercise.slips.clear();
    addSlip(exercise, ratio(80449, 100000), line("typed as 0.804"));
    EXPECT_TRUE(exercise.slips.empty());
}

struct VisibleCase {
    const char* typed; // the mistake to three figures, or to four of a molar mass
    Ratio slip;
    bool isVisible;
};

void expectVisible(const NumberAnswer& answer, int figures, const std::vector<VisibleCase>& cases)
{
    for (const VisibleCase& c : cases) {
        EXPECT_EQ(isVisible(answer, figures, c.slip), c.isVisible) << c.typed;
    }
}

TEST(IsVisibleTest, UnlessTheMistakeWouldBeMarkedRightOrClose)
{
    // clang-format off
    expectVisible({ratio(8006, 10000), {ratio(9, 10)}}, 3, {
        {"0.801", ratio(8006, 10000), false},
        {"0.804", ratio(80449, 100000), false},  // half a per cent is 0.8046
        {"0.805", ratio(80459, 100000), false},  // close, though a slip could tell it
        {"0.808", ratio(80849, 100000), false},  // one per cent is 0.8086
        {"0.809", ratio(80851, 100000), true},   // and this, unrounded, is within it
        {"0.792", ratio(79249, 100000), true},
        {"0.793", ratio(79251, 100000), false},
        {"0.901", ratio(901, 1000), false},      // right with rounded masses
        {"0.910", ratio(91, 100), true},
        {"8.01",  ratio(8006, 1000), true},
        {"0",     ratio(0), false},
        {"-1.60", ratio(-16, 10), false},
    });
    // 2000 is 1951 to two figures.
    expectVisible({ratio(1951)}, 3, {
        {"2000", ratio(2000), false},
        {"2010", ratio(2010), true},
    });
    expectVisible({ratio(24969, 100), {ratio(2495, 10)}, true}, 4, {
        {"249.8", ratio(2498, 10), false},
        {"249.4", ratio(2494, 10), false},
        {"248.7", ratio(2487, 10), false},
        {"231.7", ratio(2317, 10), true},
    });
    // clang-format on
}

// 1951 mL is 1950 to three figures and 2000 to two, so that "2000" tells nothing of a slip.
TEST(AddSlipTest, LeavesOutWhatIsTheKeyToFewerFigures)
{
    Exercise exercise = exerciseOf({{1951, 1}}, "mL", 3);
    addSlip(exercise, {2000, 1}, line("the key to two figures"));
    EXPECT_TRUE(exercise.slips.empty());
}

TEST(AddSlipTest, IsForNumbersOnly)
{
    Exercise exercise = {};
    exercise.answer = SolubilityAnswer{true, {}};
    addSlip(exercise, {1, 2}, line("none"));
    EXPECT_TRUE(exercise.slips.empty());
}

const char* nameOf(Verdict verdict)
{
    constexpr const char* names[] = {"correct", "figures", "slip",      "power-of-ten",
                                     "close",   "wrong",   "unreadable"};
    return names[static_cast<int>(verdict)];
}

// "figures: Keep the zero: 0.100."
std::string markOf(const NumberAnswer& answer, const Ask& ask, const std::string& typed,
                   const std::vector<Slip>& slips = {})
{
    const Mark mark = markNumber(answer, ask, slips, typed);
    return nameOf(mark.verdict) + std::string(": ") + plain(mark.sentence);
}

const Ask molarAsk = {Form::number, "c", "NaOH", "mol/L", 3, {}};
const Ask volumeAsk = {Form::number, "V", "H2O", "mL", 3, {}};
const Ask molarMassAsk = {Form::number, "M", "CuSO4.5H2O", "g/mol", 4, {}};

const char* const correct = "correct: Correct.";
const char* const threeFigures =
    "figures: The value is right. Now give it to 3 significant figures.";
const char* const fourFigures =
    "figures: The value is right. Now give it to 4 significant figures.";
const char* const wrongSize = "power-of-ten: Right digits, wrong size.";
const char* const wrongVolume =
    "power-of-ten: Right digits, wrong size. Check each volume: mL or L?";
const char* const close = "close: Very close. Did you round a number on the way?";
const char* const closeMass = "close: Very close. Check the atomic masses.";
const char* const closeHydrogen = "close: Very close. Count the hydrogen atoms again.";
const char* const wrong = "wrong: Not right yet. Write down what you know.";

struct MarkCase {
    const char* typed;
    std::string mark;
};

void expectMarks(const NumberAnswer& answer, const Ask& ask, const std::vector<Slip>& slips,
                 const std::vector<MarkCase>& cases)
{
    for (const MarkCase& c : cases) {
        EXPECT_EQ(markOf(answer, ask, c.typed, slips), c.mark)
            << '"' << c.typed << "\" for " << answer.value.numerator << '/'
            << answer.value.denominator;
    }
}

// 0.04557 mol/L, rounded 0.0456; half a per cent 0.0453422 to 0.0457979, one 0.0451143 to
// 0.0460257.
TEST(MarkNumberTest, TheFirstLineThatFits)
{
    const std::string rounded = "correct: Correct. To 3 significant figures it is 0.0456.";
    // clang-format off
    expectMarks({ratio(4557, 100000)}, molarAsk, {}, {
        {"0.0456", correct},
        {"0.0456 mol/L", correct},
        {"45.6 mmol/L", correct},
        {"4.56e-2", correct},
        {"0.0455", rounded},
        {"0.0457", rounded},
        {"0.0454", rounded},
        {"0.0453", close},
        {"0.0458", close},
        {"0.0460", close},
        {"0.0461", wrong},
        {"0.0452", close},
        {"0.0451", wrong},
        // More figures.
        {"0.04557", threeFigures},
        {"0.045570", threeFigures},
        {"0.04560", threeFigures},
        {"0.0455700000000000000000000000000000000000001", threeFigures},
        {"0.045349", close},               // rounded 0.0453
        {"0.04535", threeFigures},         // a half, which may go up to 0.0454
        {"0.045350000000000001", threeFigures},
        {"0.04574", threeFigures},         // rounded 0.0457
        {"0.04575", threeFigures},         // a half, which may go down to 0.0457
        {"0.045751", close},               // rounded 0.0458
        // Fewer.
        {"0.046", threeFigures},
        {"0.05", threeFigures},            // one
        {".05", threeFigures},
        {"5e-2", threeFigures},
        {"0.04", wrong},
        {"0.050", wrong},                  // two
        {"0.045", wrong},                  // one per cent and a quarter off
        {"0.0046", wrongSize},
        {"45.6", wrongSize},
        {"0.46", wrongSize},
        {"45600", wrongSize},
        {"4560", wrongSize},
        {"456000", wrong},                 // 10^7
        {"4.56e-8", wrongSize},
        {"4.56e-9", wrong},
        {"0.5", wrong},
        {"0", wrong},
        {"0.000", wrong},
        {"-0.0456", "unreadable: Leave out the minus sign."},
        {"-7", "unreadable: Leave out the minus sign."},
        {"1", wrong},
        {"1e99999999999999999999", wrong},
        {"1e-99999999999999999999", wrong},
    });
    // clang-format on
}

TEST(MarkNumberTest, TheBoundsAreInclusive)
{
    // 0.800: half a per cent and one are whole units of the last figure.
    const std::string rounded = "correct: Correct. To 3 significant figures it is 0.800.";
    // clang-format off
    expectMarks({ratio(8, 10)}, molarAsk, {}, {
        {"0.800", correct},
        {"0.804", rounded}, {"0.805", close}, {"0.808", close}, {"0.809", wrong},
        {"0.796", rounded}, {"0.795", close}, {"0.792", close}, {"0.791", wrong},
        {"0.8044", threeFigures}, {"0.8045", threeFigures}, {"0.80451", close},
        {"0.8080000000000000000000", close}, {"0.8080000000000000000001", wrong},
        {"0.7920000000000000000000", close}, {"0.7919999999999999999999", wrong},
    });
    // One unit of 0.101 is nearly one per cent.
    expectMarks({ratio(101, 1000)}, molarAsk, {}, {
        {"0.101", correct},
        {"0.102", "correct: Correct. To 3 significant figures it is 0.101."},
        {"0.100", "correct: Correct. To 3 significant figures it is 0.101."},
        {"0.1020", threeFigures},
        {"0.103", wrong},
        {"0.099", wrong},
        {"0.0999", wrong},
    });
    // Rounded up into the next place: 0.9996 is 1.00 and its unit 0.01.
    expectMarks({ratio(9996, 10000)}, molarAsk, {}, {
        {"1.00", correct},
        {"0.990", "correct: Correct. To 3 significant figures it is 1.00."},
        {"0.989", wrong},
        {"1.01", "correct: Correct. To 3 significant figures it is 1.00."},
        {"1.02", wrong},
        {"0.9996", threeFigures},
        {"1.0", "figures: Keep the zero: 1.00."},
        {"1", "figures: Keep the zero: 1.00."},
    });
    // clang-format on
}

TEST(MarkNumberTest, AskedToKeepTheZeroWhereItWasLeftOut)
{
    // clang-format off
    expectMarks({ratio(1, 10)}, molarAsk, {}, {
        {"0.100", correct},
        {"0.10", "figures: Keep the zero: 0.100."},
        {"0.1", "figures: Keep the zero: 0.100."},
        {"1e-1", "figures: Keep the zero: 0.100."},
        {"10^-1", "figures: Keep the zero: 0.100."},
        {"0.1000", threeFigures},
        {"0.1004", threeFigures},
        {"0.0998", "correct: Correct. To 3 significant figures it is 0.100."},
        {"0.099", close}, // one per cent
    });
    expectMarks({ratio(12, 100)}, molarAsk, {}, {
        {"0.120", correct},
        {"0.12", "figures: Keep the zero: 0.120."},
        {"0.1", threeFigures}, // one figure of 0.12
    });
    // 0.0996 to two figures is 0.10, which is not the key.
    expectMarks({ratio(996, 10000)}, molarAsk, {}, {
        {"0.0996", correct},
        {"0.10", threeFigures},
        {"0.1", threeFigures},
    });
    // A half may go either way: 0.125 to two figures.
    expectMarks({ratio(125, 1000)}, molarAsk, {}, {
        {"0.13", threeFigures},
        {"0.12", threeFigures},
        {"0.14", wrong},
    });
    expectMarks({ratio(995, 1000)}, molarAsk, {}, {
        {"1.0", threeFigures},
        {"0.99", threeFigures},
        {"0.98", wrong},
    });
    // clang-format on
}

TEST(MarkNumberTest, TheZerosOfAWholeNumberMayCountOrNot)
{
    // clang-format off
    expectMarks({ratio(250)}, volumeAsk, {}, {
        {"250", correct},
        {"250.", correct},
        {"250 mL", correct},
        {"0.250 L", correct},
        {"0.25 L", "figures: Keep the zero: 0.250 L."},
        {"0.25 dm³ (2 s.f.)", "figures: Keep the zero: 0.250 dm³."},
        {"0.249 L", "correct: Correct. To 3 significant figures it is 0.250 L."},
        {"2.5e2", "figures: Keep the zero: 250."},
        {"250.0", threeFigures},
        {"2.50e2", correct},
    });
    expectMarks({ratio(200)}, volumeAsk, {}, {
        {"200", correct},
        {"200.", correct},
        {"2e2", "figures: Keep the zero: 200."},
        {"2.0e2", "figures: Keep the zero: 200."},
    });
    expectMarks({ratio(1951)}, volumeAsk, {}, {
        {"1950", correct},
        {"1 950", correct},
        {"1.95 L", correct},
        {"1950.", threeFigures},
        {"1951", threeFigures},
        {"1951.0", threeFigures},
        {"1960", "correct: Correct. To 3 significant figures it is 1950."},
        {"2000", threeFigures},                // two of its figures
        {"2.0 L", threeFigures},
        {"2 L", threeFigures},                 // one
        {"2000.", wrong},                      // four
        {"1970", close},
        {"1980", wrong},
        {"1,950", "unreadable: Do you mean 1950 or 1.950?"},
    });
    // The key itself has a zero that does not count.
    expectMarks({ratio(1995)}, volumeAsk, {}, {
        {"2000", correct},
        {"2.00 L", correct},
        {"2.0 L", "figures: Keep the zero: 2.00 L."},
        {"2 L", "figures: Keep the zero: 2.00 L."},
        {"1995", threeFigures},
    });
    // clang-format on
}

// CuSO4.5H2O: 249.69, worked out with one decimal 249.7 and 249.6, with whole masses 249.5.
TEST(MarkNumberTest, MolarMassesAreWithinOneUnitOrFromRoundedMasses)
{
    const NumberAnswer answer = {
        ratio(24969, 100), {ratio(2497, 10), ratio(2495, 10)}, true, false};
    const std::string rounded = "correct: Correct. To 4 significant figures it is 249.7.";
    const std::string masses =
        "correct: Correct with rounded atomic masses. With this table it is 249.7.";
    // clang-format off
    expectMarks(answer, molarMassAsk, {}, {
        {"249.7", correct},
        {"M = 249.7 g/mol", correct},
        {"249.6", rounded},
        {"249.8", rounded},
        {"249.5", masses},
        {"249.4", masses},
        {"249.3", closeMass},
        {"249.9", closeMass},
        {"252.1", closeMass},
        {"252.2", wrong},
        {"249.69", rounded},
        {"249.600000", rounded},
        {"249.84", rounded},                   // rounded 249.8
        {"249.70", correct},
        {"250", fourFigures},
        {"250.", fourFigures},
        {"2.5e2", fourFigures},
        {"250.0", closeMass},
        {"249", closeHydrogen},
        {"248.7", closeHydrogen},              // one of ten missed
        {"248.5", closeHydrogen},              // with whole masses
        {"247.7", closeHydrogen},
        {"250.7", closeHydrogen},              // one too many
        {"251.7", closeHydrogen},
        {"248.2", closeMass},
        {"24.97", wrongSize},
        {"24.95", wrongSize},
    });
    // clang-format on
}

TEST(MarkNumberTest, RoundedMassesCountOnlyWithTheAskedFigures)
{
    const NumberAnswer answer = {ratio(342, 1000), {ratio(3465, 10000)}, false, true};
    const std::string masses =
        "correct: Correct with rounded atomic masses. With this table it is 0.342.";
    // 0.3465 is 0.347 when rounded; half a per cent of it 0.3447675 to 0.3482325.
    // clang-format off
    expectMarks(answer, molarAsk, {}, {
        {"0.342", correct},
        {"0.343", "correct: Correct. To 3 significant figures it is 0.342."},
        {"0.347", masses},
        {"0.345", masses},
        {"0.348", masses},
        {"0.349", wrong},
        {"0.3465", wrong},
        {"0.35", wrong},
        {"34.7", wrongSize},
    });
    // clang-format on
}

TEST(MarkNumberTest, ThreePlacesOffAskForTheVolumesWhereSomeAreGiven)
{
    const Ratio value = ratio(4557, 100000);
    // clang-format off
    expectMarks({value, {}, false, true}, molarAsk, {}, {
        {"45.6", wrongVolume},
        {"45.57", wrongVolume},
        {"46", wrongVolume},
        {"0.0000456", wrongVolume},
        {"4.56", wrongSize},
        {"0.456", wrongSize},
        {"456", wrongSize},
        {"0.00456", wrongSize},
        {"0.000456", wrongSize},
        {"45.6 mol/L", wrongVolume},
    });
    expectMarks({value, {}, false, false}, molarAsk, {}, {
        {"45.6", wrongSize},
        {"0.0000456", wrongSize},
    });
    expectMarks({ratio(1, 10)}, molarAsk, {}, {
        {"1.0", wrongSize},
        {"1", wrong}, // one figure
        {"1000000", wrong},
        {"100000", wrongSize}, // six figures, or fewer
    });
    // clang-format on
}

TEST(MarkNumberTest, ASlipIsToldFromTwoFiguresOn)
{
    const std::vector<Slip> slips = {
        {"0.182 mol/L", ratio(18228, 100000), line("Look at the numbers in the equation.")},
        {"0.183 mol/L", ratio(183, 1000), line("The rarer one.")},
        {"0.300 mol/L", ratio(3, 10), line("Three tenths.")},
        {"0.0459 mol/L", ratio(459, 10000), line("Near the key.")},
        {"0.456 mol/L", ratio(4557, 10000), line("Ten times as much.")},
        {"no value", {}, line("Never told.")},
    };
    const std::string first = "slip: Look at the numbers in the equation.";
    // clang-format off
    expectMarks({ratio(4557, 100000), {}, false, true}, molarAsk, slips, {
        {"0.182", first},
        {"0.182 mol/L", first},
        {"182 mmol/L", first},
        {"0.181", first},
        {"0.183", first},                // the commoner of two
        {"0.184", "slip: The rarer one."}, // one unit from the second
        {"0.18228", first},
        {"0.18", first},                 // two figures
        {"0.2", wrong},                  // one
        {"0.05", threeFigures},          // the key with one
        {"0.300", "slip: Three tenths."},
        {"0.30", "slip: Three tenths."},
        {"0.3", wrong},
        {"0.0456", correct},
        {"0.0457", "correct: Correct. To 3 significant figures it is 0.0456."},
        {"0.046", threeFigures},         // right rather than a slip
        {"0.0459", "slip: Near the key."},
        {"0.0460", "slip: Near the key."},
        {"0.0453", close},
        {"0.456", "slip: Ten times as much."},
        {"0.0182", wrong},
    });
    // clang-format on
}

TEST(MarkNumberTest, WhatCannotBeReadIsSaid)
{
    // clang-format off
    expectMarks({ratio(4557, 100000)}, molarAsk, {}, {
        {"", "unreadable: Type a number, such as 0.125."},
        {"no idea", "unreadable: I can't read this part: 'no idea'. Type a number, such as 0.125."},
        {"0.0456 g/L", "unreadable: The answer should be in mol/L."},
        {"1,250", "unreadable: Do you mean 1250 or 1.250?"},
        {"c = n/V = 0.0456", correct},
        {"c = 0.00114/0.025 = 0.0456", "unreadable: I can't read this part: '= 0.0456'. Type a number, such as 0.125."},
    });
    // clang-format on
}

// 190 mL of water, where 200 mL are the whole solution.
TEST(MarkNumberTest, OneFigureIsRightOnlyIfItCannotBeSomethingElse)
{
    const std::vector<Slip> slips = {{"200 mL", ratio(200), line("The whole solution.")},
                                     {"0.300 mL", ratio(3, 10), line("Three tenths.")}};
    // clang-format off
    expectMarks({ratio(190), {}, false, true}, volumeAsk, slips, {
        {"200", "slip: The whole solution."},
        {"200 mL", "slip: The whole solution."},
        {"2e2", wrong},   // just the slip's answer
        {"0.2 L", wrong},
        {"190", correct},
        {"0.19 L", "figures: Keep the zero: 0.190 L."},
    });
    expectMarks({ratio(293, 1000), {}, false, true}, molarAsk, slips, {{"0.3", wrong}});
    expectMarks({ratio(293, 1000), {}, false, true}, molarAsk, {}, {
        {"0.3", threeFigures},
        {"300 mmol/L", wrong}, // it may have three
        {"0.30", wrong},
    });
    // A half either way.
    expectMarks({ratio(25, 100)}, molarAsk, {}, {{"0.2", threeFigures}, {"0.3", threeFigures}});
    // clang-format on
}

TEST(MarkNumberTest, AQuotientHasFiguresEnough)
{
    const std::string rounded = "correct: Correct. To 3 significant figures it is 0.117.";
    // clang-format off
    expectMarks({ratio(7, 60), {}, false, true}, molarAsk, {}, {
        {"7/60", rounded},
        {"0.35/3 mol/L", rounded},
        {"117/1000", correct},
        {"116/1000", rounded},
        {"7000/60", wrongVolume},
        {"1/8", wrong},
    });
    // Half a per cent: 0.498 to 0.5025 are right for 0.5.
    expectMarks({ratio(496, 1000)}, molarAsk, {}, {{"1/2", close}});
    // clang-format on
}

TEST(MarkNumberTest, OfVolumesOnlyWhereTheAnswerIsNoMass)
{
    const Ask massAsk = {Form::number, "m", "NaCl", "g", 3, {}};
    // clang-format off
    expectMarks({ratio(101, 100), {}, false, true}, massAsk, {}, {
        {"1.01 kg", wrongSize},
        {"1.01 mg", wrongSize},
        {"1010", wrongSize},
        {"1010 mg", correct},
    });
    // clang-format on
}

TEST(MarkNumberTest, TheAnswerIsToldInTheTypedUnitAsItIsPrinted)
{
    const auto toldAs = [](const char* told) {
        return "correct: Correct. To 3 significant figures it is " + std::string(told) + ".";
    };
    // clang-format off
    expectMarks({ratio(201, 1000)}, molarAsk, {}, {
        {"200 mmol dm⁻³", toldAs("201 mmol dm⁻³")},
        {"200 mmol dm-3", toldAs("201 mmol dm⁻³")},
        {"200 mmol/L", toldAs("201 mmol/L")},
        {"200 mM", toldAs("201 mM")},
        {"0.200 mol dm^-3", toldAs("0.201")},
    });
    expectMarks({ratio(250)}, volumeAsk, {}, {
        {"0.251 dm^3", toldAs("0.250 dm³")},
        {"0.251 litres", toldAs("0.250 L")},
    });
    // clang-format on
}

TEST(MarkNumberTest, AnyLengthIsMarked)
{
    const std::size_t million = 1'000'000;
    const NumberAnswer third = {ratio(1, 3), {}, false, true};
    struct Case {
        const char* name;
        std::string typed;
        std::string verdict;
    };
    const auto times = [](std::size_t number, const std::string& text) {
        std::string all;
        for (std::size_t i = 0; i < number; ++i) {
            all += text;
        }
        return all;
    };
    // clang-format off
    const Case cases[] = {
        {"threes", "0." + times(million, "3"), "figures"},
        {"an exponent makes up for zeros", "333" + times(million, "0") + "e-1000003", "correct"},
        {"zeros in front", times(million, "0") + ".333", "correct"},
        {"zeros behind the point", "0." + times(million, "0") + "333e1000000", "correct"},
        {"digits of the exponent", "0.333e" + times(million, "0"), "correct"},
        {"a great exponent", "0.333e" + times(million, "9"), "wrong"},
        {"nines", times(million, "9"), "wrong"},
        {"blanks in front", times(million, " ") + "0.333", "correct"},
        {"blanks behind", "0.333" + times(million, " ") + "mol/L", "correct"},
        {"no-break blanks", "c =" + times(million / 2, "\u00A0") + "0.333", "correct"},
        {"groups", "1" + times(million / 4, " 000"), "wrong"},
        {"comma groups", "1" + times(million / 4, ",000"), "wrong"},
        {"commas", times(million, ","), "unreadable"},
        {"points", times(million, "."), "unreadable"},
        {"points in front", times(million, ".") + "5", "wrong"},
        {"letters", times(million, "e"), "unreadable"},
        {"a symbol of letters", times(million, "e") + " = 0.333", "correct"},
        {"exponents", "1" + times(million, "e"), "unreadable"},
        {"units", "0.333 " + times(million / 5, "mol/L"), "unreadable"},
        {"words", "0.333 " + times(million / 5, "mole "), "unreadable"},
        {"signs", times(million, "-") + "1", "unreadable"},
        {"superscripts", "0.333×10" + times(million / 2, "⁰"), "correct"},
        {"brackets", times(million, "("), "unreadable"},
        {"brackets of a symbol", times(million / 2, "c("), "unreadable"},
        {"brackets in front", times(million, "(") + "0.333", "correct"},
        {"brackets behind", "0.333" + times(million, ")"), "correct"},
        {"equalities", times(million / 2, "c=") + "0.333", "correct"},
        {"powers of ten", times(million / 4, "×10^"), "unreadable"},
        {"bytes that are no text", times(million, "\xFF"), "unreadable"},
        {"a long dividend", times(million, "7") + "/60", "unreadable"},
        {"a long divisor", "7/" + times(million, "6"), "unreadable"},
        {"a quotient of zeros", times(million / 2, "0") + "1/3" + times(million / 2, "0"), "wrong"},
        {"quotients", times(million / 2, "7/"), "unreadable"},
        {"letters for digits", "0." + times(million, "l") + "1", "unreadable"},
        {"letters and points", times(million / 2, ".l"), "unreadable"},
        {"other digits", "٠٫" + times(million / 2, "٣"), "figures"},
        {"powers of ten behind groups", "0.333" + times(million / 4, " 10^"), "unreadable"},
        {"zero bytes", std::string(million, '\0'), "unreadable"},
    };
    // clang-format on
    for (const Case& c : cases) {
        const Mark mark = markNumber(third, molarAsk, {}, c.typed);
        EXPECT_EQ(nameOf(mark.verdict), c.verdict) << c.name;
        EXPECT_LT(plain(mark.sentence).size(), 300U) << c.name;
    }
}

// A test for each sentence about what is no number.
TEST(MarkNumberTest, TellsWhyItReadsNoNumber)
{
    const Ask ask = {Form::number, "c", "NaOH", "mol/L", 3, {}};
    struct Case {
        const char* typed;
        const char* sentence;
    };
    // clang-format off
    const Case cases[] = {
        {"", "Type a number, such as 0.125."},
        {"I don't know", "I can't read this part: 'I don't know'. Type a number, such as 0.125."},
        {"0.0456 or 0.182", "I can't read this part: 'or 0.182'. Type a number, such as 0.125."},
        {"0.0456\x01", "I can't read this part: '\uFFFD'. Type a number, such as 0.125."},
        {"0.0456\xFF", "I can't read this part: '\uFFFD'. Type a number, such as 0.125."},
        {"0.0456 = 0123456789012345678901234567890123456789",
         "I can't read this part: '= 01234567890123456789012345678901234567…'. "
         "Type a number, such as 0.125."},
        {"12,500", "Do you mean 12500 or 12.500?"},
        {"0.0456 g", "The answer should be in mol/L."},
        {"-0.0456", "Leave out the minus sign."},
        {"0.l17", "There is a small letter l where the digit 1 should be."},
        {"0.I17", "There is a large letter I where the digit 1 should be."},
        {"0.i17", "There is a small letter i where the digit 1 should be."},
        {"0.|17", "There is a stroke where the digit 1 should be."},
        {"0.O17", "There is a letter O where a zero should be."},
        {"0.o17", "There is a letter o where a zero should be."},
    };
    // clang-format on
    for (const Case& c : cases) {
        const Mark mark = markNumber({ratio(1)}, ask, {}, c.typed);
        EXPECT_EQ(mark.verdict, Verdict::unreadable) << c.typed;
        EXPECT_EQ(plain(mark.sentence), c.sentence) << c.typed;
    }
}

TEST(MarkNumberTest, MarksAsTheReaderWrites)
{
    const Ask ask = {Form::number, "M", "NaCl", "g/mol", 5, {}};
    const NumberAnswer answer = {ratio(58443, 1000), {}, true};
    const Writing comma = {&britishEnglish(), ','};
    EXPECT_EQ(markNumber(answer, ask, {}, "58,443", comma).verdict, Verdict::correct);
    EXPECT_EQ(plain(markNumber(answer, ask, {}, "58,443").sentence),
              "Do you mean 58443 or 58.443?");
    EXPECT_EQ(plainText(markNumber(answer, ask, {}, "58.443", comma).sentence, comma),
              "Do you mean 58443 or 58,443?");
    EXPECT_EQ(markNumber(answer, ask, {}, "58.443").verdict, Verdict::correct);
}

} // namespace

} // namespace lesson
