#include "lesson/words/spans.hpp"

#include <utility>

namespace lesson
{

Span::Span(Kind spanKind, std::string_view spanText) : kind(spanKind), text(spanText) {}
Span::Span(const Span& other) = default;
Span::Span(Span&& other) noexcept = default;
Span& Span::operator=(const Span& other) = default;
Span& Span::operator=(Span&& other) noexcept = default;
Span::~Span() = default;

Span formula(std::string_view plain)
{
    return Span(Span::Kind::formula, plain);
}

Span ionSpan(std::string_view formulaWithoutCharge, std::string_view charge)
{
    Span span(Span::Kind::ion, formulaWithoutCharge);
    span.detail = charge;
    return span;
}

Span quantity(std::string_view symbol, std::string_view of, std::string_view index)
{
    Span span(Span::Kind::quantity, symbol);
    span.detail = of;
    span.index = index;
    return span;
}

Span number(std::string_view shownText)
{
    return Span(Span::Kind::number, shownText);
}

Span unit(std::string_view symbol)
{
    return Span(Span::Kind::unit, symbol);
}

Span fraction(Spans over, Spans under)
{
    Span span(Span::Kind::fraction);
    span.over = std::move(over);
    span.under = std::move(under);
    return span;
}

Span name(const Name& named)
{
    Span span(Span::Kind::nameless);
    span.named = named;
    return span;
}

void addWords(Spans& line, std::string_view words)
{
    if (words.empty()) {
        return;
    }
    if (line.empty() || line.back().kind != Span::Kind::text) {
        line.emplace_back(Span::Kind::text);
    }
    line.back().text += words;
}

namespace
{

void addSpan(Spans& line, const Span& span)
{
    if (span.kind == Span::Kind::text) {
        addWords(line, span.text);
    } else {
        line.push_back(span);
    }
}

} // namespace

void Piece::addTo(Spans& line) const
{
    switch (kind) {
    case Kind::words:
        addWords(line, static_cast<const char*>(source));
        break;
    case Kind::span:
        addSpan(line, *static_cast<const Span*>(source));
        break;
    case Kind::name:
        line.push_back(name(*static_cast<const Name*>(source)));
        break;
    case Kind::spans:
        for (const Span& span : *static_cast<const Spans*>(source)) {
            addSpan(line, span);
        }
        break;
    }
}

void append(Spans& line, const Piece& piece)
{
    piece.addTo(line);
}

Spans lineOf(const Piece* pieces, std::size_t count)
{
    Spans line;
    line.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        pieces[i].addTo(line);
    }
    return line;
}

Spans measure(std::string_view shownText, std::string_view unitSymbol)
{
    return line(number(shownText), unit(unitSymbol));
}

namespace
{

void append(Spans& spans, const std::vector<std::pair<int, std::string>>& side)
{
    bool isFirst = true;
    for (const auto& [coefficient, species] : side) {
        if (!isFirst) {
            append(spans, " + ");
        }
        isFirst = false;
        if (coefficient != 1) {
            append(spans, number(std::to_string(coefficient)));
        }
        append(spans, formula(species));
    }
}

} // namespace

Spans spansOf(const Equation& equation)
{
    Spans spans;
    spans.reserve(3 * (equation.left.size() + equation.right.size()));
    append(spans, equation.left);
    append(spans, " → ");
    append(spans, equation.right);
    return spans;
}

Span sentenceOf(Sentence says, const Piece* arguments, std::size_t count)
{
    Span span(Span::Kind::sentence);
    span.says = says;
    span.over.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        Spans argument = lineOf(arguments + i, 1);
        if (argument.size() == 1) {
            span.over.push_back(std::move(argument.front()));
        } else {
            span.over.emplace_back(Span::Kind::line);
            span.over.back().over = std::move(argument);
        }
    }
    return span;
}

namespace
{

std::string plainText(const Span& span)
{
    switch (span.kind) {
    case Span::Kind::ion:
        return span.text + "^" + span.detail;
    case Span::Kind::quantity:
        return span.text + span.index + (span.detail.empty() ? "" : "(" + span.detail + ")");
    case Span::Kind::fraction:
        return "(" + plainText(span.over) + ")/(" + plainText(span.under) + ")";
    default:
        return span.text;
    }
}

} // namespace

std::string plainText(const Spans& line)
{
    std::string text;
    const Span* before = nullptr;
    for (const Span& span : line) {
        const bool isMeasure = span.kind == Span::Kind::unit && before != nullptr &&
                               before->kind == Span::Kind::number;
        text += (isMeasure ? " " : "") + plainText(span);
        before = &span;
    }
    return text;
}

} // namespace lesson
