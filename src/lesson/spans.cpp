#include "lesson/spans.hpp"

#include <utility>

namespace lesson
{

Span formula(std::string plain)
{
    return {Span::Kind::formula, std::move(plain), {}, {}, {}, {}};
}

Span ionSpan(std::string formulaWithoutCharge, std::string charge)
{
    return {Span::Kind::ion, std::move(formulaWithoutCharge), std::move(charge), {}, {}, {}};
}

Span quantity(std::string symbol, std::string of, std::string index)
{
    return {Span::Kind::quantity, std::move(symbol), std::move(of), std::move(index), {}, {}};
}

Span number(std::string shownText)
{
    return {Span::Kind::number, std::move(shownText), {}, {}, {}, {}};
}

Span unit(std::string symbol)
{
    return {Span::Kind::unit, std::move(symbol), {}, {}, {}, {}};
}

Span fraction(Spans over, Spans under)
{
    return {Span::Kind::fraction, {}, {}, {}, std::move(over), std::move(under)};
}

Span name(std::string british, std::string american)
{
    return {Span::Kind::name, std::move(british), std::move(american), {}, {}, {}};
}

namespace spans_detail
{

void add(Spans& line, const std::string& words)
{
    if (words.empty()) {
        return;
    }
    if (line.empty() || line.back().kind != Span::Kind::text) {
        line.push_back({Span::Kind::text, "", {}, {}, {}, {}});
    }
    line.back().text += words;
}

void add(Spans& line, Span span)
{
    if (span.kind == Span::Kind::text) {
        add(line, span.text);
    } else {
        line.push_back(std::move(span));
    }
}

void add(Spans& line, Spans spans)
{
    for (Span& span : spans) {
        add(line, std::move(span));
    }
}

} // namespace spans_detail

Spans measure(std::string shownText, std::string unitSymbol)
{
    return line(number(std::move(shownText)), unit(std::move(unitSymbol)));
}

} // namespace lesson
