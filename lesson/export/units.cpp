#include "lesson/export/units.hpp"

#include <cstdlib>
#include <iterator>
#include <string_view>
#include <utility>
#include <variant>

#include "lesson/numbers/decimal.hpp"

namespace lesson
{

namespace
{

// ------------------------------------------------------------------------------------------ units

struct NamedUnit {
    std::string_view asked;
    std::string_view typed;
    std::string_view times;
};

// An unknown one is left aside, so that only the asked unit and those that convert need a row.
// clang-format off
constexpr NamedUnit namedUnits[] = {
    {"mol/L", "mol/L",      "1"},
    {"mol/L", "mmol/L",     "1000"},
    {"mol/L", "mmol/dm3",   "1000"},
    {"mol/L", "mmol/dm^3",  "1000"},
    {"mol/L", "mmolL-1",    "1000"},
    {"mol/L", "mmolL^-1",   "1000"},
    {"mol/L", "mmolL⁻¹",    "1000"},
    {"mol/L", "mmoldm-3",   "1000"},
    {"mol/L", "mmoldm^-3",  "1000"},
    {"mol/L", "mmoldm⁻³",   "1000"},
    {"mol/L", "mmol·L-1",   "1000"},
    {"mol/L", "mmol·L⁻¹",   "1000"},
    {"mol/L", "mmol·dm-3",  "1000"},
    {"mol/L", "mmol·dm⁻³",  "1000"},
    {"mol/L", "mmol.L-1",   "1000"},
    {"mol/L", "mmol.dm-3",  "1000"},
    {"mol/L", "mM",         "1000"},
    {"mL",    "mL",         "1"},
    {"mL",    "L",          "0.001"},
    {"mL",    "dm3",        "0.001"},
    {"mL",    "dm^3",       "0.001"},
    {"mL",    "litre",      "0.001"},
    {"mL",    "litres",     "0.001"},
    {"g",     "g",          "1"},
    {"g",     "mg",         "1000"},
    {"g",     "kg",         "0.001"},
    {"g/mol", "g/mol",      "1"},
};

// What the asked unit is typed like behind a power of ten.
constexpr struct SpeltUnit {
    std::string_view asked;
    std::string_view typed;
} askedSpellings[] = {
    {"mol/L", "mol/L"},
    {"mol/L", "M"},
    {"mol/L", "mol/dm3"},
    {"mol/L", "moldm-3"},
    {"mol/L", "moldm⁻³"},
    {"mol/L", "molL-1"},
    {"mL",    "mL"},
    {"mL",    "cm3"},
    {"g",     "g"},
    {"g/mol", "g/mol"},
    {"g/mol", "gmol-1"},
};
// clang-format on

// ----------------------------------------------------------------------------------- powers of ten

// How a power is typed, the most usual ways first: n stands for the exponent, r for the same
// raised. "e-1", "x10^-1" and their like are read as part of the number.
constexpr std::string_view powerPatterns[] = {
    "×10r", "·10^n", "X10^n", "x10n", "x10^{n}", "x10r", "·10r",
};
constexpr std::size_t allPatterns = std::size(powerPatterns);
constexpr std::size_t usualPatterns = 4;

constexpr int leastExponent = -6;
constexpr int greatestExponent = 3;
constexpr int farthest = 3; // from the exponent of the answer: a mistake may lead there
constexpr int lowest = 2;   // below it, where the answer itself is typed: 258×10⁻³

std::string raised(int exponent)
{
    constexpr std::string_view digits[] = {"⁰", "¹", "²", "³", "⁴", "⁵", "⁶"};
    return (exponent < 0 ? "⁻" : "") + std::string(digits[std::abs(exponent)]);
}

std::string powerText(std::string_view pattern, int exponent)
{
    std::string text;
    for (const char c : pattern) {
        text += c == 'n'   ? std::to_string(exponent)
                : c == 'r' ? raised(exponent)
                           : std::string(1, c);
    }
    return text;
}

// "x102" is no power of ten.
bool isUsual(std::string_view pattern, int exponent)
{
    return exponent < 0 || pattern != "x10n";
}

int exponentOf(const Exercise& exercise)
{
    const Ratio value = std::get_if<NumberAnswer>(&exercise.answer)->value;
    const Decimal rounded = roundedTo(value, exercise.ask.figures);
    return rounded.exponent + exercise.ask.figures - 1;
}

class Units
{
public:
    explicit Units(const Exercise& exercise)
        : asked(exercise.ask.unit), exponent(exponentOf(exercise))
    {
    }

    std::vector<UnitRow> all()
    {
        for (const NamedUnit& unit : namedUnits) {
            if (unit.asked == asked) {
                rows.push_back({std::string(unit.typed), std::string(unit.times)});
            }
        }
        for (int power = leastExponent; power <= greatestExponent; ++power) {
            if (power != 0 && std::abs(power - exponent) <= farthest) {
                const bool isOfAnswer = exponent - lowest <= power && power <= exponent;
                addPower(power, "", isOfAnswer ? allPatterns : usualPatterns);
            }
        }
        addOwnPowerWithUnits();
        return std::move(rows);
    }

private:
    void addPower(int power, std::string_view unit, std::size_t patterns)
    {
        for (std::size_t i = 0; i < patterns; ++i) {
            if (isUsual(powerPatterns[i], power)) {
                rows.push_back({powerText(powerPatterns[i], power) + std::string(unit),
                                exactText(powerOfTen(-power))});
            }
        }
    }

    void addOwnPowerWithUnits()
    {
        if (exponent == 0) {
            return;
        }
        for (const auto& spelling : askedSpellings) {
            if (spelling.asked == asked) {
                addPower(exponent, spelling.typed, allPatterns);
            }
        }
    }

    const std::string& asked;
    int exponent; // of the answer in scientific notation
    std::vector<UnitRow> rows;
};

} // namespace

std::vector<UnitRow> unitsBehind(const Exercise& exercise)
{
    return Units(exercise).all();
}

} // namespace lesson
