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

Span name(std::string_view british, std::string_view american)
{
    Span span(Span::Kind::name, british);
    span.detail = american;
    return span;
}

namespace
{

// Words join the words before them.
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

} // namespace lesson
