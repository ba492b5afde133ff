#include "lesson/reading/measure.hpp"

#include <gtest/gtest.h>

#include <string>

#include "lesson/reading/typed.hpp"

namespace lesson
{

namespace
{

constexpr AskedMeasure litres = {"L", "NaOH"};
constexpr AskedMeasure molar = {"mol/L", "CuSO4.5H2O"};

std::string textOf(const TypedMeasure& measure)
{
    switch (measure.problem) {
    case NumberProblem::unread:
        return "unread: " + measure.part;
    case NumberProblem::pointOrComma:
        return "point or comma: " + measure.part;
    case NumberProblem::letterForDigit:
        return "letter: " + measure.part;
    case NumberProblem::otherUnit:
        return "other unit";
    case NumberProblem::minus:
        return "minus";
    case NumberProblem::nothingTyped:
        return "nothing";
    case NumberProblem::none:
        break;
    }
    const TypedNumber& number = measure.number;
    if (number.digits.empty()) {
        return "0";
    }
    const auto last = number.place + 1 - static_cast<std::int64_t>(number.digits.size());
    const std::string fewest = std::to_string(number.fewestFigures);
    const std::string most = std::to_string(number.mostFigures);
    return number.digits + "e" + std::to_string(last) + " (" +
           (fewest == most ? most : fewest + " to " + most) + ")";
}

// "456e-4 (3)": digits, the place of the last of them, and the figures; or the problem.
std::string read(const std::string& typed, const AskedMeasure& asked = molar,
                 const Writing& writing = {})
{
    return textOf(readMeasure(plainTyped(typed), asked, writing));
}

struct ReadCase {
    const char* typed;
    const char* expected;
};

TEST(NumberReaderTest, ReadsEverySpellingOfANumber)
{
    // clang-format off
    const ReadCase cases[] = {
        // Point or comma.
        {"0.0342", "342e-4 (3)"},
        {".0342", "342e-4 (3)"},
        {"0,0342", "342e-4 (3)"},
        {",0342", "342e-4 (3)"},
        {"00.0342", "342e-4 (3)"},
        {"0.03420", "342e-4 (4)"},
        {"  0.0342  ", "342e-4 (3)"},
        {"\u00A00.0342\u202F", "342e-4 (3)"},
        {"0.0342.", "342e-4 (3)"},
        {"0,0342.", "342e-4 (3)"},
        {"0.0342,", "342e-4 (3)"},
        // The zeros of whole numbers.
        {"250", "25e1 (2 to 3)"},
        {"250.", "25e1 (3)"},
        {"250.0", "25e1 (4)"},
        {"250,0", "25e1 (4)"},
        {"2000", "2e3 (1 to 4)"},
        {"7", "7e0 (1)"},
        {"205", "205e0 (3)"},
        {"0.100", "1e-1 (3)"},
        // Signs.
        {"+0.0342", "342e-4 (3)"},
        {"+ 0.0342", "342e-4 (3)"},
        {"-0.0342", "minus"},
        {"−0.0342", "minus"},
        {"– 0.0342", "minus"},
        {"-.5", "minus"},
        // Exponents.
        {"3.42e-2", "342e-4 (3)"},
        {"3.42E-02", "342e-4 (3)"},
        {"3.42 e-2", "342e-4 (3)"},
        {"3.42 E -2", "342e-4 (3)"},
        {"3.42e−2", "342e-4 (3)"},
        {"3.42e2", "342e0 (3)"},
        {"3.42e+2", "342e0 (3)"},
        {"3,42e-2", "342e-4 (3)"},
        {"3.42x10^-2", "342e-4 (3)"},
        {"3.42X10^-2", "342e-4 (3)"},
        {"3.42 x 10^-2", "342e-4 (3)"},
        {"3.42×10^-2", "342e-4 (3)"},
        {"3.42×10⁻²", "342e-4 (3)"},
        {"3.42 × 10⁻²", "342e-4 (3)"},
        {"3.42 × 10⁻⁰²", "342e-4 (3)"},
        {"3.42×10^−2", "342e-4 (3)"},
        {"3.42*10^-2", "342e-4 (3)"},
        {"3.42·10^-2", "342e-4 (3)"},
        {"3.42·10⁻²", "342e-4 (3)"},
        {"3.42•10⁻²", "342e-4 (3)"},
        {"3.42⋅10⁻²", "342e-4 (3)"},
        {"3.42*10**-2", "342e-4 (3)"},
        {"3.42 * 10 ** -2", "342e-4 (3)"},
        {"3.42x10**(-2)", "342e-4 (3)"},
        {"3.42x10^(-2)", "342e-4 (3)"},
        {"3.42x10^{-2}", "342e-4 (3)"},
        {"3.42 x 10-2", "342e-4 (3)"},
        {"3.42x10-2", "342e-4 (3)"},
        {"3.42 x 10 -2", "342e-4 (3)"},
        {"3.42×10−2", "342e-4 (3)"},
        {"3.42x10^2", "342e0 (3)"},
        {"3.42x10²", "342e0 (3)"},
        {"3.42x10+2", "342e0 (3)"},
        {"3,42×10⁻²", "342e-4 (3)"},
        {"3.42 times 10^-2", "342e-4 (3)"},
        {"3.42 Times 10⁻²", "342e-4 (3)"},
        {"3.42times10^-2", "342e-4 (3)"},
        {"3.42 times 10-2", "342e-4 (3)"},
        {"3.42 multiplied by 10^-2", "342e-4 (3)"},
        {"3.42 multiplied by 10^(-2) mol/L", "342e-4 (3)"},
        {"342e-4", "342e-4 (3)"},
        {"25e1", "25e1 (2)"},
        {"250e0", "25e1 (2 to 3)"},
        {"10^-2", "1e-2 (1)"},
        {"10⁻²", "1e-2 (1)"},
        {"10**-2", "1e-2 (1)"},
        {"10e-2", "1e-1 (1 to 2)"},
        {"10", "1e1 (1 to 2)"},
        {"100", "1e2 (1 to 3)"},
        {"3.42e-0000000000000000000000000000000000002", "342e-4 (3)"},
        {"1e999999999999999999999999", "1e1000000000000000 (1)"},
        {"1e-999999999999999999999999", "1e-1000000000000000 (1)"},
        // Groups of three.
        {"1 250", "125e1 (3 to 4)"},
        {"1\u2009250", "125e1 (3 to 4)"},
        {"1\u202F250", "125e1 (3 to 4)"},
        {"1 250 000", "125e4 (3 to 7)"},
        {"12 500.5", "125005e-1 (6)"},
        {"1 250,5", "12505e-1 (5)"},
        {"1 250,500", "12505e-1 (7)"},
        {"1,250,000", "125e4 (3 to 7)"},
        {"1,250,000.", "125e4 (7)"},
        {"1,250,000.5", "12500005e-1 (8)"},
        {"1,250.5", "12505e-1 (5)"},
        {"12,500.0", "125e2 (6)"},
        {"0.045 57", "4557e-5 (4)"},
        {"0.045 570", "4557e-5 (5)"},
        {"0,045 57", "4557e-5 (4)"},
        {"1,250 5", "12505e-4 (5)"},
        // One comma that can only be a point.
        {"0,125", "125e-3 (3)"},
        {"00,125", "125e-3 (3)"},
        {"1,25", "125e-2 (3)"},
        {"1,2500", "125e-2 (5)"},
        {"1250,500", "12505e-1 (7)"},
        {"1,250e3", "125e1 (4)"},
        {"1,250×10³", "125e1 (4)"},
        {"1,250 x 10-2", "125e-4 (4)"},
        {"0", "0"},
        {"0.000", "0"},
        {"0e5", "0"},
    };
    // clang-format on
    for (const ReadCase& c : cases) {
        EXPECT_EQ(read(c.typed), c.expected) << c.typed;
    }
}

TEST(NumberReaderTest, ReadsRaisedPointsAndPowersOfTenWithoutATimesSign)
{
    // clang-format off
    const ReadCase cases[] = {
        {"0·0327", "327e-4 (3)"},
        {"0•0327", "327e-4 (3)"},
        {"0˙0327", "327e-4 (3)"},
        {"·0327", "327e-4 (3)"},
        {"0'0327", "327e-4 (3)"},
        {"0’0327", "327e-4 (3)"},
        {"0。0327", "327e-4 (3)"},
        {"3·270", "327e-2 (4)"},
        {"3·10", "31e-1 (3)"},
        {"3·27·10^-2", "327e-4 (3)"},
        {"3·27 · 10⁻²", "327e-4 (3)"},
        {"3·27×10⁻²", "327e-4 (3)"},
        {"3·27e-2", "327e-4 (3)"},
        {"327·10^-4", "327e-4 (3)"},
        {"3·10^-2", "3e-2 (1)"},
        {"3·10-2", "3e-2 (1)"},
        {"2.93 10^-1", "293e-3 (3)"},
        {"2.93 10⁻¹", "293e-3 (3)"},
        {"2.93 10-1", "293e-3 (3)"},
        {"2.93 * 10 ^ -1", "293e-3 (3)"},
        {"2.93 x 10 ^ ( -1 )", "unread: x 10 ^ ( -1 )"},
        {"2.930 10^-1", "293e-3 (4)"},
        {"2.930 100 10^-1", "29301e-5 (7)"},
        {"0.293 10^0", "293e-3 (3)"},
        {"293 10^-3", "293e-3 (3)"},
        {"1 250 10^-3", "125e-2 (3 to 4)"},
        {"2.93.10^-1", "293e-3 (3)"},
        {"2.93.10⁻¹", "293e-3 (3)"},
        {"2,93.10^-1", "293e-3 (3)"},
        {"2.93 . 10^-1", "293e-3 (3)"},
        {"3.10^-1", "3e-1 (1)"},
        {".10", "1e-1 (2)"},
    };
    // clang-format on
    for (const ReadCase& c : cases) {
        EXPECT_EQ(read(c.typed), c.expected) << c.typed;
    }
}

TEST(NumberReaderTest, ReadsABlankBesideThePointBehindAZero)
{
    // clang-format off
    const ReadCase cases[] = {
        {"0. 0456", "456e-4 (3)"},
        {"0 .0456", "456e-4 (3)"},
        {"0 . 0456", "456e-4 (3)"},
        {"0, 0456", "456e-4 (3)"},
        {"0 ,0456", "456e-4 (3)"},
        {"c = 0. 0456 mol/L", "456e-4 (3)"},
        {"0. 0456 (3 s.f.)", "456e-4 (3)"},
        {"0. 045 57", "4557e-5 (4)"},
        {"0. 456 x 10^-1", "456e-4 (3)"},
        {"0. 456e-1", "456e-4 (3)"},
        {"0. 100", "1e-1 (3)"},
        {"0.", "0"},
        {"0. mol/L", "0"},
    };
    // clang-format on
    for (const ReadCase& c : cases) {
        EXPECT_EQ(read(c.typed), c.expected) << c.typed;
    }
}

TEST(NumberReaderTest, ReadsTheDigitsOfOtherScripts)
{
    // clang-format off
    const ReadCase cases[] = {
        {"٠٫٠٤٥٦", "456e-4 (3)"},
        {"٠.٠٤٥٦", "456e-4 (3)"},
        {"٠،٠٤٥٦", "456e-4 (3)"},
        {"٤٫٥٦×١٠⁻²", "456e-4 (3)"},
        {"١٬٢٥٠٬٠٠٠", "125e4 (3 to 7)"},
        {"۰٫۰۴۵۶", "456e-4 (3)"},
        {"۰.۰۴۵۶ mol/L", "456e-4 (3)"},
        {"۱۲۳۴۵۶۷۸۹۰", "123456789e1 (9 to 10)"},
        {"०.०४५६", "456e-4 (3)"},
        {"০.০৪৫৬", "456e-4 (3)"},
        {"๐.๐๔๕๖", "456e-4 (3)"},
        {"０．０４５６", "456e-4 (3)"},
        {"４．５６Ｅ－２", "456e-4 (3)"},
    };
    // clang-format on
    for (const ReadCase& c : cases) {
        EXPECT_EQ(read(c.typed), c.expected) << c.typed;
    }
}

TEST(NumberReaderTest, WorksAQuotientOut)
{
    const auto quotientOf = [](const char* typed) {
        const TypedMeasure measure = readMeasure(plainTyped(typed), molar, {});
        EXPECT_EQ(measure.problem, NumberProblem::none) << typed;
        EXPECT_TRUE(measure.text.isQuotient()) << typed;
        return measure.number;
    };
    struct Case {
        const char* typed;
        Ratio value;
    };
    // clang-format off
    const Case cases[] = {
        {"7/60", ratio(7, 60)},
        {"7 / 60", ratio(7, 60)},
        {"7÷60", ratio(7, 60)},
        {"7⁄60", ratio(7, 60)},
        {"½", ratio(1, 2)},
        {"+7/60", ratio(7, 60)},
        {"c = 7/60", ratio(7, 60)},
        {"7/60 mol/L", ratio(7, 60)},
        {"7/60M", ratio(7, 60)},
        {"70/600", ratio(7, 60)},
        {"7/60 mmol/L", ratio(7, 60000)},
        {"0.00114/0.025", ratio(114, 2500)},
        {"1.14e-3/0.025", ratio(114, 2500)},
        {"1.14×10⁻³/2.5×10⁻²", ratio(114, 2500)},
        {"0,00114/0,025", ratio(114, 2500)},
        {"0. 00114/0. 025", ratio(114, 2500)},
        {"999999999/999999998", ratio(999999999, 999999998)},
    };
    // clang-format on
    for (const Case& c : cases) {
        EXPECT_EQ(compare(quotientOf(c.typed), c.value), 0) << c.typed;
    }
    EXPECT_EQ(read("1,250/3"), "point or comma: 1.250");
    EXPECT_EQ(read("3/1,250"), "point or comma: 1.250");
    EXPECT_EQ(read("-7/60"), "minus");
}

TEST(NumberReaderTest, TellsWhichLetterLooksLikeADigit)
{
    // clang-format off
    const ReadCase cases[] = {
        {"0.l17", "letter: l"},
        {"0.1l7", "letter: l"},
        {"l.17", "letter: l"},
        {"l17", "letter: l"},
        {"0.l17 mol/L", "letter: l"},
        {"c = 0.l17 M", "letter: l"},
        {"1.l7e-1", "letter: l"},
        {"0.I17", "letter: I"},
        {"0.11I", "letter: I"},
        {"I.17", "letter: I"},
        {"0.i17", "letter: i"},
        {"0.1|7", "letter: |"},
        {"O.117", "letter: O"},
        {"0.1O7", "letter: O"},
        {"0.1O mol/L", "letter: O"},
        {"2.5Oe-1", "letter: O"},
        {"o,117", "letter: o"},
        {"0.o17", "letter: o"},
        {"O.l17", "letter: O"}, // the first of two
        {"-0.l17", "letter: l"},
        // The litre, and what has no digit or would be no number either.
        {"0.117l", "other unit"},
        {"0.117 l", "other unit"},
        {"lO", "unread: lO"},
        {"I know", "unread: I know"},
        {"0.l17 or 0.118", "unread: l17 or 0.118"},
    };
    // clang-format on
    for (const ReadCase& c : cases) {
        EXPECT_EQ(read(c.typed), c.expected) << c.typed;
    }
    EXPECT_EQ(read("0.117l", litres), "117e-3 (3)");
}

TEST(NumberReaderTest, AsksBackWhatOneCommaMeans)
{
    const ReadCase cases[] = {
        {"1,250", "point or comma: 1.250"},     {"12,500", "point or comma: 12.500"},
        {"125,000", "point or comma: 125.000"}, {"c = 1,250 mol/L", "point or comma: 1.250"},
        {"1,250.", "point or comma: 1.250"},    {"1'250", "point or comma: 1.250"},
        {"1’250", "point or comma: 1.250"},
    };
    for (const ReadCase& c : cases) {
        EXPECT_EQ(read(c.typed), c.expected) << c.typed;
    }
}

// What is a question with a point is a number with a comma, and the other way round.
TEST(NumberReaderTest, ReadsAsTheReaderWrites)
{
    struct Case {
        const char* typed;
        const char* withPoint;
        const char* withComma;
    };
    // clang-format off
    const Case cases[] = {
        {"58,443", "point or comma: 58.443", "58443e-3 (5)"},
        {"58.443", "58443e-3 (5)", "point or comma: 58.443"},
        {"58,44", "5844e-2 (4)", "5844e-2 (4)"},
        {"58.44", "5844e-2 (4)", "5844e-2 (4)"},
        {"1.250", "125e-2 (4)", "point or comma: 1.250"},
        {"1,250", "point or comma: 1.250", "125e-2 (4)"},
        {"1'250", "point or comma: 1.250", "point or comma: 1.250"},
        {"1,2500", "125e-2 (5)", "125e-2 (5)"},
        {"1.250,5", "unread: ,5", "12505e-1 (5)"},
        {"1,250.5", "12505e-1 (5)", "unread: .5"},
        {"1.250.000", "unread: .000", "125e4 (3 to 7)"},
        {"1,250,000", "125e4 (3 to 7)", "unread: ,000"},
        {"1.250.000,50", "unread: .000,50", "12500005e-1 (9)"},
        {"12 345,6", "123456e-1 (6)", "123456e-1 (6)"},
        {"12 345.6", "123456e-1 (6)", "123456e-1 (6)"},
        {"0,117", "117e-3 (3)", "117e-3 (3)"},
        {"0.117", "117e-3 (3)", "117e-3 (3)"},
        {",5", "5e-1 (1)", "5e-1 (1)"},
        {".5", "5e-1 (1)", "5e-1 (1)"},
        {"250, mL", "unread: , mL", "25e-2 (3)"},
        {"250. mL", "25e-2 (3)", "25e-2 (2 to 3)"},
        {"3,420e-2", "342e-4 (4)", "342e-4 (4)"},
        {"3.420e-2", "342e-4 (4)", "342e-4 (4)"},
        {"3,42×10⁻²", "342e-4 (3)", "342e-4 (3)"},
        {"2,93.10^-1", "293e-3 (3)", "293e-3 (3)"},
        {"1,250/5", "point or comma: 1.250", "25e-2 (1)"},
        {"0 , 530", "53e-2 (3)", "53e-2 (3)"},
        {"1,l17", "unread: ,l17", "letter: l"},
        {"-58,443", "point or comma: 58.443", "minus"},
        {"c = 58,443 mL", "point or comma: 58.443", "58443e-6 (5)"},
    };
    // clang-format on
    Writing comma;
    comma.decimal = ',';
    for (const Case& c : cases) {
        EXPECT_EQ(read(c.typed, litres), c.withPoint) << c.typed << " with a point";
        EXPECT_EQ(read(c.typed, litres, comma), c.withComma) << c.typed << " with a comma";
    }
}

TEST(NumberReaderTest, SkipsASymbolInFront)
{
    const char* const fronts[] = {
        "c = ",
        "c=",
        "C=",
        "c : ",
        "c: ",
        "x=",
        "M = ",
        "M=",
        "m = ",
        "V1=",
        "c2 = ",
        "c_2 = ",
        "c₂ = ",
        "c_{2} = ",
        "c1V1 = ",
        "c(NaOH)=",
        "[Cu²⁺] = ",
        "c(Cu²⁺) = ",
        "[OH-]=",
        "The concentration is ",
        "c (NaOH) = ",
        "c(H2SO4) = ",
        "[NaOH] = ",
        "c(Na2CO3·10H2O) = ",
        "M(CuSO4·5H2O) = ",
        "M(CuSO4.5H2O)=",
        "M CuSO4.5H2O = ",
        "c ",
        "c(Ca(OH)2) = ",
        "c is ",
        "concentration: ",
        "c = n/V = ",
        "c=m/(M·V)=",
        "c2 = c1V1/V2 = ",
        "c2 = c1 × V1/V2 = ",
        "c2 = c1*V1/V2 = ",
        "V = V2 - V1 = ",
        "approx. ",
        "approx ",
        "about ",
        "~",
        "~ ",
        "≈",
        "≈ ",
        "c ≈ ",
        "c ~ ",
        "c = ≈ ",
        "c -> ",
        "c → ",
        "⇒ ",
        "=> ",
        "= ",
        "(",
        "c = (",
        "ρ = ",
        "c =\t",
        "c=+",
    };
    for (const char* const front : fronts) {
        EXPECT_EQ(read(front + std::string("0.0456")), "456e-4 (3)") << front;
        EXPECT_EQ(read(front + std::string(".0456 mol/L")), "456e-4 (3)") << front;
        EXPECT_EQ(read(front + std::string("4,56·10⁻² mol·L⁻¹")), "456e-4 (3)") << front;
        EXPECT_EQ(read(front + std::string("10^-2 M")), "1e-2 (1)") << front;
    }
    EXPECT_EQ(read("c = -0.0456"), "minus");
    EXPECT_EQ(read("c=−0.0456"), "minus");
    EXPECT_EQ(read("c = (-0.0456)"), "minus");
}

TEST(NumberReaderTest, ConvertsToTheAskedUnit)
{
    struct Case {
        const char* unit;
        const char* typed;
        const char* expected;
    };
    // clang-format off
    const Case cases[] = {
        {"L", "0.250", "25e-2 (3)"},
        {"L", "0.250 L", "25e-2 (3)"},
        {"L", "0.250L", "25e-2 (3)"},
        {"L", "0.250 dm³", "25e-2 (3)"},
        {"L", "250 mL", "25e-2 (2 to 3)"},
        {"L", "250. mL", "25e-2 (3)"},
        {"L", "250.0ml", "25e-2 (4)"},
        {"L", "2.50e2 cm3", "25e-2 (3)"},
        {"L", "2.50×10²cm³", "25e-2 (3)"},
        {"L", "250 cc.", "25e-2 (2 to 3)"},
        {"mL", "0.250 L", "25e1 (3)"},
        {"mL", "250 mL", "25e1 (2 to 3)"},
        {"mL", "250 cm^3", "25e1 (2 to 3)"},
        {"mL", "0.25 dm^3", "25e1 (2)"},
        {"mL", "250 mL of water", "25e1 (2 to 3)"},
        {"mL", "250 mL H₂O", "25e1 (2 to 3)"},
        {"g", "2.92", "292e-2 (3)"},
        {"g", "2.92g", "292e-2 (3)"},
        {"g", "2.92 G", "292e-2 (3)"},
        {"g", "2920 mg", "292e-2 (3 to 4)"},
        {"g", "0.00292 kg", "292e-2 (3)"},
        {"g", "2.92 grams", "292e-2 (3)"},
        {"g", "2.92 g of H2O", "292e-2 (3)"},
        {"mol/L", "0.0456 mol/L", "456e-4 (3)"},
        {"mol/L", "0.0456mol/l", "456e-4 (3)"},
        {"mol/L", "0.0456 M", "456e-4 (3)"},
        {"mol/L", "0.0456M", "456e-4 (3)"},
        {"mol/L", "0.0456 mol L⁻¹", "456e-4 (3)"},
        {"mol/L", "0.0456 mol dm⁻³", "456e-4 (3)"},
        {"mol/L", "4.56×10⁻²mol·dm⁻³", "456e-4 (3)"},
        {"mol/L", "4.56e-2mol/L", "456e-4 (3)"},
        {"mol/L", "45.6 mmol/L", "456e-4 (3)"},
        {"mol/L", "45.6 mM", "456e-4 (3)"},
        {"mol/L", "0.0456 (mol/L)", "456e-4 (3)"},
        {"mol/L", "0.0456 [mol/L].", "456e-4 (3)"},
        {"mol/L", "(0.0456 mol/L)", "456e-4 (3)"},
        {"mol/L", "(0.0456) mol/L", "456e-4 (3)"},
        {"mol/L", "(0.0456)", "456e-4 (3)"},
        {"mol/L", "0.0456 mol/L H2O", "456e-4 (3)"},
        {"mol/L", "0.0456 mol/L!", "456e-4 (3)"},
        {"mol/L", "0.0456 (3 s.f.)", "456e-4 (3)"},
        {"mol/L", "0.0456 (3sf)", "456e-4 (3)"},
        {"mol/L", "0.0456 (to 3 sig. figs.)", "456e-4 (3)"},
        {"mol/L", "0.0456, 3 significant figures", "456e-4 (3)"},
        {"mol/L", "0.0456 mol/L to 3 s.f.", "456e-4 (3)"},
        {"mol/L", "0.0456 M (4 d.p.)", "456e-4 (3)"},
        {"mol/L", "0.145 3sf", "145e-3 (3)"},
        {"mol/L", "0.145 3 s.f.", "145e-3 (3)"},
        {"mol/L", "0.719 3 sig figs", "719e-3 (3)"},
        {"mol/L", "0.145 M 3sf", "145e-3 (3)"},
        {"mol/L", "0.145, 3sf", "145e-3 (3)"},
        {"mol/L", "(0.145 3sf)", "145e-3 (3)"},
        {"mol/L", "0.145 (to three significant figures)", "145e-3 (3)"},
        {"mol/L", "0.145 to three s.f.", "145e-3 (3)"},
        {"mol/L", "0.145 (correct to 3 s.f.)", "145e-3 (3)"},
        {"mol/L", "0.145 mol/L, rounded to 3 sf", "145e-3 (3)"},
        {"mol/L", "0.145 rounded to 3 sf", "145e-3 (3)"},
        {"mol/L", "0.145 (3 sigfigs)", "145e-3 (3)"},
        {"mol/L", "0.145 (3 sig figures)", "145e-3 (3)"},
        {"mol/L", "0.145 (3 s.f.) mol/L", "145e-3 (3)"},
        {"mol/L", "0.145 (3 s.f.) (mol/L)", "145e-3 (3)"},
        {"mL", "12 500 300", "125003e2 (6 to 8)"},
        {"mL", "12 500 300 3sf", "125003e2 (6 to 8)"},
        {"mL", "12 500 3 s.f.", "125e2 (3 to 5)"},
        {"mL", "0.123 456 3 s.f.", "123456e-6 (6)"},
        {"mol/L", "45.6 mM [3 SF]", "456e-4 (3)"},
        {"mol/L", "0.0456 mmol/mL", "456e-4 (3)"},
        {"mol/L", "0.0456 mol/dm-3", "456e-4 (3)"},
        {"mol/L", "0.0456 mol/dm^-3", "456e-4 (3)"},
        {"mol/L", "0.0456 mol/dm-³", "456e-4 (3)"},
        {"mol/L", "0.0456 mol/dm⁻³", "456e-4 (3)"},
        {"mol/L", "0.0456 mol/dm−3", "456e-4 (3)"},
        {"mol/L", "0.0456 mol/L-1", "456e-4 (3)"},
        {"mol/L", "45.6 mmol/dm-3 of NaCl", "456e-4 (3)"},
        {"g/mol", "249.7 g/mol-1", "2497e-1 (4)"},
        {"mol/L", "0.0456 mmol cm-3", "456e-4 (3)"},
        {"mol/L", "0.0456 mol per L", "456e-4 (3)"},
        {"mol/L", "0.0456 mol l^{-1}", "456e-4 (3)"},
        {"mL", "250 mℓ (3 s.f.)", "25e1 (2 to 3)"},
        {"g/mol", "0.2497 kg/mol", "2497e-1 (4)"},
        {"g/mol", "249.7", "2497e-1 (4)"},
        {"g/mol", "M = 249.7 g/mol", "2497e-1 (4)"},
        {"g/mol", "249.7 g mol⁻¹", "2497e-1 (4)"},
        {"g/mol", "249.7 g.mol-1", "2497e-1 (4)"},
    };
    // clang-format on
    for (const Case& c : cases) {
        const AskedMeasure asked = {c.unit, "H2O"};
        EXPECT_EQ(read(c.typed, asked), c.expected) << c.typed << " for " << c.unit;
    }
}

TEST(NumberReaderTest, TellsWhichUnitTheAnswerHas)
{
    const char* const others[] = {
        "0.0456 g/L",     "0.0456 mol",    "0.0456 g",     "0.0456 m",
        "0.0456 mL",      "0.0456 L",      "5 %",          "5%",
        "0.0456 g/mol",   "0.0456 mol/kg", "0.0456 (g/L)", "5 °C",
        "0.0456 µmol/L",  "0.0456 N",      "0.0456 mm",    "0.0456 [g]",
        "0.0456 mol/L-2", "5 ppm",         "c = 2.66 g/L", "0.0456 mol/m^3",
    };
    for (const char* const other : others) {
        EXPECT_EQ(read(other), "other unit") << other;
    }
    EXPECT_EQ(read("0.0456 sf"), "other unit");
    EXPECT_EQ(read("0.250 mol/L", litres), "other unit");
    EXPECT_EQ(read("0.250 M", litres), "other unit");
}

TEST(NumberReaderTest, TellsThePartThatItCannotRead)
{
    // clang-format off
    const ReadCase cases[] = {
        {"I don't know", "I don't know"},
        {"?", "?"},
        {"mol/L", "mol/L"},
        {"c =", "c ="},
        {"c2", "c2"},
        {"-", "-"},
        {".", "."},
        {"1/0", "/0"},
        {"0/8", "/8"},
        {"1/", "/"},
        {"1/2/3", "/3"},
        {"1/x", "/x"},
        {"1/1234567891", "/1234567891"},
        {"1234567891/3", "/3"},
        {"0.00114/0.025 = 0.0456", "= 0.0456"},
        {"2 × 0.0228", "× 0.0228"},
        {"c = 2*0.0228 = 0.0456", "*0.0228 = 0.0456"},
        {"0.0456 mol/L = c", "mol/L = c"},
        {"0.0456 or 0.182", "or 0.182"},
        {"0.0456 0.182", "0.182"},
        {"0.0456; 0.182", "; 0.182"},
        {"0.0456, 0.182", ", 0.182"},
        {"0.0456 ± 0.001", "± 0.001"},
        {"> 0.0456", ">"},
        {"c >= 0.0456", "c >="},
        {"c < 0.0456", "c <"},
        {"c <= 0.0456", "c <="},
        {"c - 0.0456", "c -"},
        {"c-0.0456", "c-"},
        {"c = --0.0456", "c = --"},
        {"×10^-2", "×"},
        {"x10^-2", "x10^-"},
        {"3.42 x 102", "x 102"},
        {"3.42x102", "x102"},
        {"3.42×10", "×10"},
        {"3.42 x", "x"},
        {"3.42e", "e"},
        {"3.42e^-2", "e^-2"},
        {"10-2", "-2"},
        {"10^-2.5", ".5"},
        {"4.56.10-2", ".10-2"},
        {"4.56.5", ".5"},
        {"4·56·5", "·5"},
        {"4.56 10", "10"},
        {"4.56 102", "102"},
        {"4.56 100^-1", "100^-1"},
        {"1.250,5", ",5"},
        {"1.250.000", ".000"},
        {"1,25,000", ",000"},
        {"1,250,00", ",00"},
        {"1,250,0000", ",0000"},
        {"1250,000,000", ",000"},
        {"0,456,789", ",789"},
        {"1 25", "25"},
        {"1  250", "250"},
        {"0 456", "456"},
        {"1250 000", "000"},
        // Who numbers the answer types such a point too.
        {"1. 0456", "0456"},
        {"10. 456", "456"},
        {"1 .0456", ".0456"},
        {"0.. 456", ". 456"},
        {"0. 0. 456", ". 456"},
        {"0.  ,456", ",456"},
        {"0 456. 5", "456. 5"},
        {"0.5 30", "30"},
        {"5.30 times 102", "times 102"},
        {"5.30 times 2", "times 2"},
        {"5.30 multiplied 10^-1", "multiplied 10^-1"},
        {"0.045 5712", "5712"},
        {"0.0455 712", "712"},
        {"0.0456\x01", "\x01"},
        {"0.0456\xFF", "\xFF"},
        {"0.0456 ~", "~"},
        {"5 5H2O", "5H2O"},
    };
    // clang-format on
    for (const ReadCase& c : cases) {
        EXPECT_EQ(read(c.typed), "unread: " + std::string(c.expected) + "") << c.typed;
    }
}

TEST(NumberReaderTest, TellsThatNothingIsTyped)
{
    for (const char* const nothing : {"", " ", "\t\n", "\u00A0", "\u200B", "\uFEFF"}) {
        EXPECT_EQ(read(nothing), "nothing") << '"' << nothing << '"';
    }
}

} // namespace

} // namespace lesson
