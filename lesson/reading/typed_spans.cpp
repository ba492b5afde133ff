#include "lesson/reading/typed_spans.hpp"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "lesson/reading/formula.hpp"
#include "lesson/reading/ion.hpp"
#include "lesson/reading/states.hpp"
#include "lesson/reading/typed.hpp"
#include "lesson/text/scan.hpp"

namespace lesson
{

namespace
{

// ---- Numbers

// "mol dm⁻³" -> "mol dm-3", as units of spans are written
std::string plainUnit(std::string_view printed)
{
    std::string plain = plainTyped(printed);
    plain.erase(std::remove(plain.begin(), plain.end(), '^'), plain.end());
    return plain;
}

Spans ratioSpans(Ratio value)
{
    const Span over = number(std::to_string(value.numerator));
    return value.denominator == 1
               ? Spans{over}
               : Spans{fraction({over}, {number(std::to_string(value.denominator))})};
}

// ---- Ions

constexpr int mostCharge = 9;

std::string chargeText(int charge)
{
    const std::string size = std::abs(charge) == 1 ? "" : std::to_string(std::abs(charge));
    return size + (charge < 0 ? "-" : "+");
}

void addCharge(Spans& spans, int charge)
{
    Span& last = spans.back();
    last.kind = Span::Kind::ion;
    last.detail += chargeText(charge);
}

Spans readingSpans(const IonReading& reading, std::string_view marked)
{
    if (!reading.formula.isRead) {
        return {};
    }
    if (!reading.agrees() || std::abs(reading.charge) > mostCharge) {
        return {Span(Span::Kind::text, withSeenMarks(markedIon(marked)))};
    }
    Spans spans = formulaSpans(reading.bare);
    if (reading.charge != 0) {
        addCharge(spans, reading.charge);
    }
    return spans;
}

// "Ca2+", "(SO4)2-", "SO42-": the digit behind the only symbol or bracket, or the second one, is
// the charge's.
bool isUsualCharge(const IonReading& withAllDigits)
{
    const std::string& bare = withAllDigits.bare;
    const std::size_t digits = bare.size() - 1 - bare.find_last_not_of("0123456789");
    const bool isBehindWhole = bare.front() == '(' || withAllDigits.formula.atoms.size() == 1;
    return digits > 1 || (digits == 1 && isBehindWhole);
}

// ---- Equations

Spans termSpans(const TypedTerm& term)
{
    if (!term.unread.empty()) {
        return {Span(Span::Kind::text, term.typed)};
    }
    Spans spans = term.coefficient == ratio(1) ? Spans() : ratioSpans(term.coefficient);
    spans.push_back(formula(term.formula.text));
    append(spans, term.state.empty() ? "" : "(" + term.state + ")");
    return spans;
}

Spans sideSpans(const std::vector<TypedTerm>& terms)
{
    Spans spans;
    for (const TypedTerm& term : terms) {
        append(spans, spans.empty() ? "" : " + ");
        append(spans, termSpans(term));
    }
    return spans;
}

std::string_view signOf(const TypedEquation& equation)
{
    switch (equation.arrow) {
    case Arrow::none:
        break;
    case Arrow::toTheRight:
        return " → ";
    case Arrow::toTheLeft:
        return " ← ";
    case Arrow::twoWay:
        return " ⇌ ";
    }
    return equation.right.empty() ? "" : " - ";
}

bool isAllRead(const std::vector<TypedTerm>& terms)
{
    return std::all_of(terms.begin(), terms.end(),
                       [](const TypedTerm& term) { return term.unread.empty(); });
}

// ---- As typed

// With a "_" at each number that stands low, so that none is taken for a part of the charge.
std::string withLowNumbers(std::string_view formula)
{
    std::string text;
    while (!formula.empty()) {
        const std::string_view digits = takeDigits(formula);
        const bool isLow = !digits.empty() && !text.empty() && text.back() != '.';
        text += isLow ? "_{" + std::string(digits) + "}" : std::string(digits);
        text += takeLength(formula, 1);
    }
    return text;
}

std::string typedText(const Span& span)
{
    switch (span.kind) {
    case Span::Kind::ion:
        return withLowNumbers(span.text) + "^" + span.detail;
    case Span::Kind::unit:
        return " " + span.text;
    case Span::Kind::fraction:
        return typedText(span.over) + "/" + typedText(span.under);
    case Span::Kind::text:
    case Span::Kind::formula:
    case Span::Kind::quantity:
    case Span::Kind::number:
    case Span::Kind::name:
    case Span::Kind::nameless:
    case Span::Kind::sentence:
    case Span::Kind::line:
        break;
    }
    return span.text;
}

} // namespace

Spans measureSpans(const TypedMeasure& measure)
{
    if (measure.problem != NumberProblem::none) {
        return {};
    }
    const Span over = number(measure.text.text);
    Spans spans = measure.text.isQuotient()
                      ? Spans{fraction({over}, {number(measure.text.divisor)})}
                      : Spans{over};
    if (!measure.unit.empty()) {
        spans.push_back(unit(plainUnit(measure.unit)));
    }
    return spans;
}

std::vector<Spans> ionSpans(std::string_view marked)
{
    std::vector<IonReading> readings = readIon(marked).readings;
    if (readings.size() > 1 && isUsualCharge(readings[0])) {
        std::swap(readings[0], readings[1]);
    }
    std::string_view left = withoutFullStop(marked);
    const std::string state(takeSymbolOfState(left));
    std::vector<Spans> all;
    for (const IonReading& reading : readings) {
        Spans spans = readingSpans(reading, marked);
        if (!spans.empty()) {
            append(spans, state.empty() ? "" : "(" + state + ")");
            all.push_back(std::move(spans));
        }
    }
    return all;
}

Spans equationSpans(const TypedEquation& equation)
{
    if (equation.left.empty() || !isAllRead(equation.left) || !isAllRead(equation.right)) {
        return {};
    }
    const bool isTurned = equation.arrow == Arrow::toTheLeft;
    Spans spans = sideSpans(isTurned ? equation.right : equation.left);
    append(spans, std::string(signOf(equation)));
    append(spans, sideSpans(isTurned ? equation.left : equation.right));
    return spans;
}

std::string typedText(const Spans& spans)
{
    std::string text;
    for (const Span& span : spans) {
        text += typedText(span);
    }
    return text;
}

} // namespace lesson
