#include "lesson/marking/number.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

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
    addSlip(exercise, ratio(18228, 100000), "first");
    addSlip(exercise, ratio(4570, 100000), "one unit from the key");
    addSlip(exercise, {501, 10000}, "right with rounded masses");
    addSlip(exercise, {183, 1000}, "one unit from the first slip");
    addSlip(exercise, {0, 1}, "nothing");
    addSlip(exercise, {-1, 2}, "below nothing");
    addSlip(exercise, {1, 3}, "second");
    EXPECT_EQ(textsOf(exercise.slips), (std::vector<std::string>{"0.182 mol/L", "0.333 mol/L"}));
    EXPECT_EQ(exercise.slips[0].sentence, "first");
    EXPECT_EQ(exercise.slips[0].value->numerator, 4557);
}

// 1951 mL is 1950 to three figures and 2000 to two, so that "2000" tells nothing of a slip.
TEST(AddSlipTest, LeavesOutWhatIsTheKeyToFewerFigures)
{
    Exercise exercise = exerciseOf({{1951, 1}}, "mL", 3);
    addSlip(exercise, {2000, 1}, "the key to two figures");
    EXPECT_TRUE(exercise.slips.empty());
}

TEST(AddSlipTest, IsForNumbersOnly)
{
    Exercise exercise = {};
    exercise.answer = SolubilityAnswer{true, ""};
    addSlip(exercise, {1, 2}, "none");
    EXPECT_TRUE(exercise.slips.empty());
}

} // namespace

} // namespace lesson
