#include "lesson/marking/read_answer.hpp"

#include <algorithm>
#include <string>
#include <vector>

#include "lesson/reading/equation.hpp"
#include "lesson/reading/formula.hpp"
#include "lesson/reading/formula_spelling.hpp"
#include "lesson/reading/group_braces.hpp"
#include "lesson/reading/ion_spelling.hpp"
#include "lesson/reading/measure.hpp"
#include "lesson/reading/precipitate.hpp"
#include "lesson/reading/typed.hpp"
#include "lesson/reading/typed_spans.hpp"
#include "lesson/reading/words.hpp"
#include "lesson/words/render.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

// Every way to read what was typed, the usual one first; one overload a form of answer.

using Readings = std::vector<Spans>;

Readings readings(const NumberAnswer& /*answer*/, const Ask& ask, std::string_view typed,
                  const Writing& writing)
{
    return {measureSpans(readMeasure(plainTyped(typed), {ask.unit, ask.of}, writing))};
}

Readings readingsOfFormula(std::string_view typed)
{
    const std::string plain = withoutBond(spelledOut(plainTyped(typed)));
    return {formulaSpans(plain), formulaSpans(bareFormula(plain)),
            formulaSpans(bareFormula(withAllBracesRound(plain)))};
}

Readings readings(const FormulaAnswer& /*answer*/, const Ask& /*ask*/, std::string_view typed,
                  const Writing& /*writing*/)
{
    return readingsOfFormula(typed);
}

Readings readings(const IonAnswer& /*answer*/, const Ask& /*ask*/, std::string_view typed,
                  const Writing& /*writing*/)
{
    return ionSpans(plainIon(typed));
}

Readings readings(const EquationAnswer& /*answer*/, const Ask& /*ask*/, std::string_view typed,
                  const Writing& /*writing*/)
{
    return {equationSpans(readEquation(spelledOut(plainTyped(typed))))};
}

// As one of the choices, which are yes and no.
Readings readings(const SolubilityAnswer& /*answer*/, const Ask& ask, std::string_view typed,
                  const Writing& writing)
{
    const Said said = saidOf(wordsOf(typed));
    if (said == Said::unclear || ask.choices.size() != 2) {
        return {};
    }
    return {rendered({say(ask.choices[said == Said::itDissolves ? 0 : 1])}, writing)};
}

Readings readings(const PrecipitateAnswer& /*answer*/, const Ask& /*ask*/, std::string_view typed,
                  const Writing& /*writing*/)
{
    if (saysNone(wordsOf(typed))) {
        return {{Span(Span::Kind::text, plainTyped(typed))}};
    }
    const TypedPrecipitate precipitate = readPrecipitate(plainTyped(typed));
    Readings all = readingsOfFormula(precipitate.formula);
    for (Spans& spans : all) {
        if (!spans.empty() && !precipitate.state.empty()) {
            append(spans, "(" + precipitate.state + ")");
        }
    }
    return all;
}

} // namespace

std::optional<Spans> readAnswer(const Exercise& exercise, std::string_view typed,
                                const Writing& writing)
{
    const Readings all = std::visit(
        [&](const auto& answer) { return readings(answer, exercise.ask, typed, writing); },
        exercise.answer);
    const Verdict verdict = markAnswer(exercise, typed, writing).verdict;
    const auto isMarkedTheSame = [&](const Spans& spans) {
        return !spans.empty() && markAnswer(exercise, typedText(spans)).verdict == verdict;
    };
    const auto read = std::find_if(all.begin(), all.end(), isMarkedTheSame);
    return read == all.end() ? std::nullopt : std::optional<Spans>(*read);
}

} // namespace lesson
