#include "lesson/spans.hpp"

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

Spans measure(std::string shownText, std::string unitSymbol)
{
    return line(number(std::move(shownText)), unit(std::move(unitSymbol)));
}

} // namespace lesson
