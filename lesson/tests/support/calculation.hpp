#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <variant>

#include "lesson/kinds/kinds.hpp"
#include "lesson/marking/number.hpp"
#include "lesson/words/render.hpp"

// What the tests of the calculations share: exercises as a learner reads them, and as he works them
// out, on a calculator in floating point, with roundings on the way.
namespace lesson
{

// So many exercises of a kind and level, ten of each paper.
template <typename Check>
void forExercises(const Kind* kind, int level, unsigned count, Check check)
{
    for (unsigned i = 0; i < count; ++i) {
        check(makeExercise({i / 10 + 1, i % 10 + 1, kind, level}));
    }
}

// A line in plain text, in British English: a blank before a unit, a fraction with a slash.
//   c = n/V = 0.08556/0.250 = 0.342 mol/L
inline std::string textOf(const Spans& line)
{
    std::string text;
    for (const Span& span : rendered(line, Writing())) {
        switch (span.kind) {
        case Span::Kind::unit:
            text += text.empty() || text.back() == ' ' ? "" : " ";
            text += span.text;
            break;
        case Span::Kind::quantity:
            text += span.text + span.index + (span.detail.empty() ? "" : "(" + span.detail + ")");
            break;
        case Span::Kind::ion:
            text += span.text + "^" + span.detail;
            break;
        case Span::Kind::fraction:
            text += textOf(span.over) + "/" + textOf(span.under);
            break;
        default:
            text += span.text;
        }
    }
    return text;
}

inline std::string placeOf(const Exercise& exercise)
{
    return "paper " + std::to_string(exercise.place.paper) + ", number " +
           std::to_string(exercise.place.number) + ", level " +
           std::to_string(exercise.place.level) + ": " + textOf(exercise.prompt);
}

// The whole page: the prompt, the solution step by step, the key, the slips.
inline std::string pageOf(const Exercise& exercise)
{
    std::string page = textOf(exercise.prompt) + "\n";
    for (const Step& step : exercise.solution) {
        page += "  " + textOf(step.say) + " | " + textOf(step.math) + "\n";
    }
    page += "= " + textOf(exercise.key) + "\n";
    for (const Slip& slip : exercise.slips) {
        page += "! " + slip.text + "  " + textOf(slip.sentence) + "\n";
    }
    return page;
}

inline long double toFloat(Ratio value)
{
    return static_cast<long double>(value.numerator) / static_cast<long double>(value.denominator);
}

inline const NumberAnswer& answerOf(const Exercise& exercise)
{
    return std::get<NumberAnswer>(exercise.answer);
}

// The given quantity with this symbol, of this substance if one is named; null where there is none.
inline const GivenQuantity* findGiven(const Exercise& exercise, const std::string& symbol,
                                      const std::string& of = "")
{
    for (const Given& given : exercise.given) {
        const auto* const found = std::get_if<GivenQuantity>(&given);
        if (found != nullptr && found->quantity == symbol && (of.empty() || found->of == of)) {
            return found;
        }
    }
    return nullptr;
}

// Its value in L, g, mol/L or g/mol; not a number where it is not given.
inline long double givenValue(const Exercise& exercise, const std::string& symbol,
                              const std::string& of = "")
{
    const GivenQuantity* const given = findGiven(exercise, symbol, of);
    return given == nullptr ? std::nanl("") : toFloat(given->value);
}

inline Mark markOf(const Exercise& exercise, const std::string& typed)
{
    return markNumber(answerOf(exercise), exercise.ask, exercise.slips, typed);
}

// A learner's calculator: rounds to significant figures, halves up or down; 0 figures leave the
// value as it is.
struct Calculator {
    int figures;
    bool halvesUp = true;

    long double operator()(long double value) const
    {
        return figures == 0 ? value : to(figures, value);
    }

    long double to(int significantFigures, long double value) const
    {
        // Far less than any digit that counts, and far more than floating point is off.
        const long double nudged = value * (halvesUp ? 1 + 1e-12L : 1 - 1e-12L);
        const long double place = std::floor(std::log10(nudged));
        const long double scale = std::pow(10.0L, significantFigures - 1 - place);
        return std::round(nudged * scale) / scale;
    }
};

// A value as it is typed in scientific notation.
inline std::string typedText(long double value, int figures)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.*Le", figures - 1, value);
    return text;
}

// Expects classes that are drawn with equal shares to have come so, within five standard
// deviations.
inline void expectEqualShares(const std::map<std::string, int>& counts, std::size_t classes)
{
    EXPECT_EQ(counts.size(), classes);
    int all = 0;
    for (const auto& [name, count] : counts) {
        all += count;
    }
    const double expected = static_cast<double>(all) / static_cast<double>(classes);
    for (const auto& [name, count] : counts) {
        EXPECT_NEAR(count, expected, 5 * std::sqrt(expected)) << name;
    }
}

} // namespace lesson
