#include "lesson/marking/number.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "lesson/tests/support/plain.hpp"

// Properties over many numbers, against the rules worked out by cross-multiplying whole numbers.

namespace lesson
{

namespace
{

class Dice
{
public:
    std::int64_t between(std::int64_t low, std::int64_t high)
    {
        const auto span = static_cast<std::uint64_t>(high - low) + 1;
        return low + static_cast<std::int64_t>(generator() % span);
    }
    template <typename T>
    const T& oneOf(const std::vector<T>& all)
    {
        return all[static_cast<std::size_t>(between(0, static_cast<std::int64_t>(all.size()) - 1))];
    }

private:
    std::mt19937_64 generator{20240229};
};

std::int64_t tenTo(std::int64_t power)
{
    std::int64_t result = 1;
    for (; power > 0; --power) {
        result *= 10;
    }
    return result;
}

// `digits` over 10 to the power `decimals`, which may be below 0.
struct Fixed {
    std::int64_t digits;
    std::int64_t decimals;
};

bool isEqual(Fixed a, Fixed b)
{
    const std::int64_t shift = std::max({a.decimals, b.decimals, std::int64_t{0}});
    return a.digits * tenTo(shift - a.decimals) == b.digits * tenTo(shift - b.decimals);
}

std::string textOf(Fixed number)
{
    std::string text = std::to_string(number.digits * tenTo(-number.decimals));
    if (number.decimals > 0) {
        const auto decimals = static_cast<std::size_t>(number.decimals);
        text.insert(0, decimals + 1 > text.size() ? decimals + 1 - text.size() : 0, '0');
        text.insert(text.size() - decimals, ".");
    }
    return text;
}

// p/q rounded to so many figures; the lower neighbour too where that is a half.
struct RoundedOff {
    Fixed up;
    Fixed lower;
};
RoundedOff roundedOff(std::int64_t p, std::int64_t q, int figures)
{
    std::int64_t decimals = 12;
    const auto above = [&] { return p * tenTo(decimals); };
    const auto below = [&] { return q * tenTo(-decimals); };
    while (above() / below() >= tenTo(figures)) {
        --decimals;
    }
    const std::int64_t floor = above() / below();
    const std::int64_t twiceLeft = 2 * (above() % below());
    const Fixed lower = {floor, decimals};
    const Fixed upper = {floor + 1, decimals};
    if (twiceLeft == below()) {
        return {upper, lower};
    }
    return twiceLeft > below() ? RoundedOff{upper, upper} : RoundedOff{lower, lower};
}

struct Rules {
    std::int64_t p;
    std::int64_t q;
    int figures;
    bool isMolarMass;

    bool isWithinPart(Fixed s, std::int64_t parts) const
    {
        const std::int64_t target = p * tenTo(s.decimals);
        const std::int64_t difference = s.digits * tenTo(-s.decimals) * q - target;
        return std::max(difference, -difference) * parts <= target;
    }
    // R has `figures` digits, or one more when it was rounded up to a power of ten.
    bool isWithinUnit(Fixed s) const
    {
        Fixed r = roundedOff(p, q, figures).up;
        if (r.digits == tenTo(figures)) {
            r = {r.digits / 10, r.decimals - 1};
        }
        const std::int64_t shift = std::max({s.decimals, r.decimals, std::int64_t{0}});
        const std::int64_t difference =
            s.digits * tenTo(shift - s.decimals) - r.digits * tenTo(shift - r.decimals);
        return std::max(difference, -difference) <= tenTo(shift - r.decimals);
    }
    bool doesAgree(Fixed s) const
    {
        return isWithinUnit(s) || (!isMolarMass && isWithinPart(s, 200));
    }
    bool doesAgreeRounded(Fixed s, std::int64_t typedFigures) const
    {
        const std::int64_t unit = tenTo(typedFigures - figures);
        const Fixed lower = {s.digits / unit, s.decimals - (typedFigures - figures)};
        const Fixed upper = {lower.digits + 1, lower.decimals};
        const std::int64_t twiceLeft = 2 * (s.digits % unit);
        return (twiceLeft <= unit && doesAgree(lower)) || (twiceLeft >= unit && doesAgree(upper));
    }
    bool isRounded(Fixed s, std::int64_t typedFigures) const
    {
        const RoundedOff rounded = roundedOff(p, q, static_cast<int>(typedFigures));
        return isEqual(s, rounded.up) || isEqual(s, rounded.lower);
    }
    // For a number of so many figures that is far from any other power of ten of the value.
    Verdict verdict(Fixed s, std::int64_t typedFigures) const
    {
        if (typedFigures == figures && doesAgree(s)) {
            return Verdict::correct;
        }
        if (typedFigures > figures && doesAgreeRounded(s, typedFigures)) {
            return isMolarMass ? Verdict::correct : Verdict::figures;
        }
        if (typedFigures < figures && isRounded(s, typedFigures)) {
            return Verdict::figures;
        }
        return isWithinPart(s, 100) ? Verdict::close : Verdict::wrong;
    }
};

// A value between 0.001 and 9999: any fraction, or a short decimal, which meets the bounds.
Ratio randomValue(Dice& dice)
{
    if (dice.between(0, 1) == 0) {
        return ratio(dice.between(1, 9999), tenTo(dice.between(0, 3)));
    }
    const std::int64_t denominator = dice.between(1, 99999);
    return ratio(dice.between(denominator / 1000 + 1, 10 * denominator), denominator);
}

// At or beside the value or one of its bounds.
std::int64_t randomDigits(Dice& dice, Ratio value, std::int64_t decimals)
{
    const std::int64_t exact = value.numerator * tenTo(decimals) / value.denominator;
    switch (dice.between(0, 4)) {
    case 0:
        return exact + dice.between(-3, 3);
    case 1:
        return exact + exact / 200 + dice.between(-1, 1);
    case 2:
        return exact - exact / 200 + dice.between(-1, 1);
    case 3:
        return exact + exact / 100 * (dice.between(0, 1) * 2 - 1) + dice.between(-1, 1);
    default:
        return exact + exact / 1000 * dice.between(-15, 15);
    }
}

const Ask molarAsk = {Form::number, "c", "NaOH", "mol/L", 3, {}};
const Ask molarMassAsk = {Form::number, "M", "NaOH", "g/mol", 4, {}};

TEST(NumberPropertiesTest, TheVerdictIsThatOfTheRules)
{
    Dice dice;
    int seen[7] = {};
    for (int i = 0; i < 200'000; ++i) {
        const Ratio value = randomValue(dice);
        const bool isMolarMass = dice.between(0, 3) == 0;
        const std::int64_t decimals = dice.between(1, 7);
        const Fixed typed = {randomDigits(dice, value, decimals), decimals};
        if (typed.digits <= 0) {
            continue;
        }
        const auto figures = static_cast<std::int64_t>(std::to_string(typed.digits).size());
        const Rules rules = {value.numerator, value.denominator, isMolarMass ? 4 : 3, isMolarMass};
        const Verdict expected = rules.verdict(typed, figures);
        const Mark mark = markNumber({value, {}, isMolarMass, false},
                                     isMolarMass ? molarMassAsk : molarAsk, {}, textOf(typed));
        // What is far off may have the right digits.
        const bool isFar = mark.verdict == Verdict::powerOfTen && !rules.isWithinPart(typed, 2);
        ASSERT_EQ(mark.verdict, isFar ? Verdict::powerOfTen : expected)
            << textOf(typed) << " for " << value.numerator << '/' << value.denominator << " to "
            << rules.figures;
        ++seen[static_cast<int>(mark.verdict)];
    }
    for (const Verdict verdict :
         {Verdict::correct, Verdict::figures, Verdict::close, Verdict::wrong}) {
        EXPECT_GT(seen[static_cast<int>(verdict)], 5000) << static_cast<int>(verdict);
    }
}

// A key of three figures, in each of the ways to write it.
std::vector<std::string> spellingsOf(Fixed key)
{
    const std::string plain = textOf(key);
    const std::string digits = std::to_string(key.digits);
    const std::int64_t power = 2 - key.decimals;
    const std::string exponent = std::to_string(power);
    const std::string size = std::to_string(power < 0 ? -power : power);
    const std::string mantissa = digits.substr(0, 1) + "." + digits.substr(1);
    const std::string byComma = digits.substr(0, 1) + "," + digits.substr(1);
    std::string raised = power < 0 ? "⁻" : "";
    for (const char digit : size) {
        const char* const superscripts[] = {"⁰", "¹", "²", "³", "⁴", "⁵", "⁶", "⁷", "⁸", "⁹"};
        raised += superscripts[digit - '0'];
    }
    const std::string sign = power < 0 ? "-" : "+";
    std::vector<std::string> all = {
        plain,
        mantissa + "e" + exponent,
        mantissa + "E" + sign + "0" + size,
        mantissa + "x10^" + exponent,
        mantissa + " x 10^" + exponent,
        mantissa + "×10^" + exponent,
        mantissa + " × 10" + raised,
        mantissa + "·10" + raised,
        byComma + "·10" + raised,
        byComma + "e" + exponent,
        mantissa + "*10**" + exponent,
        mantissa + " * 10^(" + exponent + ")",
        mantissa + " x 10^{" + exponent + "}",
        mantissa + " x 10" + sign + size,
        mantissa + "x10" + (power < 0 ? "−" : "+") + size,
        digits + "e" + std::to_string(-key.decimals),
        digits + "×10^" + std::to_string(-key.decimals),
    };
    if (plain[0] == '0') {
        all.push_back(plain.substr(1));
        all.push_back("," + plain.substr(2));
        all.push_back("0," + plain.substr(2));
    } else if (key.decimals > 0) {
        all.push_back(byComma.substr(0, 1) +
                      digits.substr(1, 2 - static_cast<std::size_t>(key.decimals)) + "," +
                      digits.substr(3 - static_cast<std::size_t>(key.decimals)));
    }
    if (plain.size() == 4 && key.decimals <= 0) {
        all.push_back(plain.substr(0, 1) + " " + plain.substr(1));
        all.push_back(plain.substr(0, 1) + "\u202F" + plain.substr(1));
    }
    return all;
}

struct TypedUnit {
    std::int64_t power;
    std::string text;
};

struct Quantity {
    std::string unit;
    std::vector<std::string> fronts;
    std::vector<TypedUnit> units;
};

const std::vector<Quantity>& quantities()
{
    static const std::vector<Quantity> all = {
        {"mol/L",
         {"", "", "c = ", "c=", "c(NaOH) = ", "c2 = ", "c₂=", "[NaOH] = ", "C = ", "x = ", "≈ ",
          "~", "c = n/V = ", "(", "approx. "},
         {{0, ""},          {0, "."},           {0, "mol/L"},      {0, " mol/L"},
          {0, " mol/l"},    {0, " mol L-1"},    {0, " mol L^-1"},  {0, " mol L⁻¹"},
          {0, " mol/dm3"},  {0, " mol/dm³"},    {0, " mol dm-3"},  {0, " mol dm⁻³"},
          {0, "mol·L⁻¹"},   {0, " mol.L-1"},    {0, " mol*L^-1"},  {0, " mol per litre"},
          {0, "M"},         {0, " M"},          {0, " molar"},     {0, " (mol/L)"},
          {0, " [mol/L]."}, {0, "\u00A0mol/L"}, {0, " M NaOH"},    {0, " mol/L of NaOH"},
          {-3, " mmol/L"},  {-3, " mM"},        {-3, " mmol dm⁻³"}}},
        {"g/mol",
         {"", "M = ", "M=", "M(NaOH) = ", "M: "},
         {{0, ""},
          {0, " g/mol"},
          {0, "g/mol"},
          {0, " g mol-1"},
          {0, " g mol^-1"},
          {0, " g mol⁻¹"},
          {0, " g.mol-1"},
          {0, " g·mol⁻¹"},
          {0, " grams per mole"}}},
        {"g",
         {"", "m = ", "m(NaOH)="},
         {{0, ""},
          {0, " g"},
          {0, "g"},
          {0, " G"},
          {0, " grams"},
          {0, " g of NaOH"},
          {-3, " mg"},
          {3, " kg"}}},
        {"mL",
         {"", "V = ", "V1=", "V(NaOH) = "},
         {{0, ""},
          {0, " mL"},
          {0, "ml"},
          {0, " mls"},
          {0, " ML"},
          {0, " cm3"},
          {0, " cm³"},
          {0, " cm^3"},
          {0, " cc"},
          {0, " millilitres"},
          {3, " L"},
          {3, "l"},
          {3, " dm3"},
          {3, " dm³"},
          {3, " litres"},
          {3, " liters"}}},
    };
    return all;
}

// One comma before exactly three digits is asked back; every other spelling is right.
TEST(NumberPropertiesTest, TheKeyIsCorrectInEverySpelling)
{
    Dice dice;
    for (int i = 0; i < 300; ++i) {
        const Quantity& quantity = dice.oneOf(quantities());
        const Fixed key = {dice.between(100, 999), dice.between(0, 5)};
        // Anything that is rounded to the key.
        const Ratio value =
            ratio(key.digits * 100 + dice.between(-50, 49), tenTo(key.decimals + 2));
        const Ask ask = {Form::number, "c", "NaOH", quantity.unit, 3, {}};
        const NumberAnswer answer = {value, {}, false, true};
        if (value < ratio(100, tenTo(key.decimals))) {
            continue; // its last figure is another one
        }
        for (const TypedUnit& unit : quantity.units) {
            for (const std::string& number : spellingsOf({key.digits, key.decimals + unit.power})) {
                const std::string typed = dice.oneOf(quantity.fronts) + number + unit.text;
                const Mark mark = markNumber(answer, ask, {}, typed);
                ASSERT_EQ(mark.verdict, Verdict::correct) << typed << ": " << plain(mark.sentence);
                ASSERT_EQ(plain(mark.sentence), "Correct.") << typed;
            }
        }
    }
}

TEST(NumberPropertiesTest, OneUnitFromTheKeyIsCorrectAndFartherOnlyWithinHalfAPerCent)
{
    Dice dice;
    for (int i = 0; i < 20'000; ++i) {
        const Fixed key = {dice.between(103, 996), dice.between(0, 5)};
        const std::int64_t hundredths = key.digits * 100 + dice.between(-50, 49);
        const Ratio value = ratio(hundredths, tenTo(key.decimals + 2));
        for (const std::int64_t units : {-3, -2, -1, 0, 1, 2, 3}) {
            const std::int64_t off = (key.digits + units) * 100 - hundredths;
            const bool isClose = std::max(off, -off) * 200 <= hundredths;
            const bool isRight = (units >= -1 && units <= 1) || isClose;
            const std::string typed = textOf({key.digits + units, key.decimals});
            const Mark mark = markNumber({value, {}, false, false}, molarAsk, {}, typed);
            ASSERT_EQ(mark.verdict == Verdict::correct, isRight)
                << typed << " for " << value.numerator << '/' << value.denominator;
        }
    }
}

TEST(NumberPropertiesTest, EachSlipGetsItsSentence)
{
    Dice dice;
    std::size_t slips = 0;
    for (int i = 0; i < 5'000; ++i) {
        Exercise exercise = {};
        exercise.ask = molarAsk;
        exercise.answer = NumberAnswer{randomValue(dice), {}, false, true};
        for (int slip = 0; slip < 6; ++slip) {
            addSlip(exercise, randomValue(dice), line("slip " + std::to_string(slip)));
        }
        const auto& answer = std::get<NumberAnswer>(exercise.answer);
        for (const Slip& slip : exercise.slips) {
            const Mark mark = markNumber(answer, exercise.ask, exercise.slips, slip.text);
            ASSERT_EQ(mark.verdict, Verdict::slip) << slip.text;
            ASSERT_EQ(plain(mark.sentence), plain(slip.sentence)) << slip.text;
            ASSERT_FALSE(agrees(roundedTo(*slip.value, 3), answer.value, 3, false)) << slip.text;
        }
        slips += exercise.slips.size();
    }
    EXPECT_GT(slips, 25'000U);
}

// Pieces that make up most of what can be read, and bytes that make up nothing.
std::string randomText(Dice& dice)
{
    static const std::vector<std::string> pieces = {
        "0",     "1",    "2",  "5",  "10",  "250",  "000",
        ".",     ",",    " ",  "e",  "E",   "x",    "×",
        "*",     "**",   "^",  "·",  "-",   "+",    "−",
        "⁻²",    "¹",    "(",  ")",  "{",   "}",    "[",
        "]",     "=",    "c",  "M",  "mol", "/",    "L",
        "mol/L", "mL",   "g",  "≈",  "~",   "NaOH", "\xFF",
        "\xC2",  "\xB7", "of", "\n", "½",   "→",    std::string(1, '\0'),
    };
    std::string text;
    for (std::int64_t length = dice.between(0, 12); length > 0; --length) {
        text += dice.between(0, 9) == 0 ? std::string(1, static_cast<char>(dice.between(0, 127)))
                                        : dice.oneOf(pieces);
    }
    return text;
}

TEST(NumberPropertiesTest, AnyTextGetsAMark)
{
    Dice dice;
    const NumberAnswer answer = {ratio(4557, 100000), {ratio(456, 10000)}, false, true};
    const std::vector<Slip> slips = {{"0.182 mol/L", ratio(18228, 100000), line("A slip.")}};
    int read = 0;
    for (int i = 0; i < 200'000; ++i) {
        const std::string typed = randomText(dice);
        const Mark mark = markNumber(answer, molarAsk, slips, typed);
        const std::string said = plain(mark.sentence);
        ASSERT_FALSE(said.empty()) << typed;
        ASSERT_LT(said.size(), 300U) << typed;
        // No control character of the text is in the sentence.
        ASSERT_TRUE(std::none_of(said.begin(), said.end(), [](char c) {
            return c >= '\0' && c < ' ';
        })) << typed;
        read += mark.verdict != Verdict::unreadable ? 1 : 0;
    }
    EXPECT_GT(read, 2'000);
}

} // namespace

} // namespace lesson
