#pragma once

#include <string>
#include <utility>
#include <vector>

namespace lesson
{

// One piece of a line as a front end typesets it. A span tells what its piece is, so that nobody
// has to guess from the text what is a formula or a number.
struct Span {
    enum class Kind {
        text,     // ordinary words
        formula,  // plain: "Ca(OH)2", "CuSO4.5H2O"
        ion,      // `text` the formula without charge: "SO4"; `detail` the charge: "2-", "+"
        quantity, // `text` the symbol: "V"; `detail` of what: "HCl"; `index` the number: "1" for V1
        number,   // "0.0456", or with an exponent "5.00e-5"
        unit,     // "mL", "mol/L"
        fraction, // `over` and `under` the line
        name,     // of a substance: "aluminium sulfate"; `detail` its American name if it differs
    };

    Kind kind = Kind::text;
    std::string text;
    std::string detail;
    std::string index;
    std::vector<Span> over;
    std::vector<Span> under;
};

using Spans = std::vector<Span>;

Span formula(std::string plain);
Span ionSpan(std::string formulaWithoutCharge, std::string charge);
Span quantity(std::string symbol, std::string of = "", std::string index = "");
Span number(std::string shownText);
Span unit(std::string symbol);
Span fraction(Spans over, Spans under);
Span name(std::string british, std::string american = "");

namespace spans_detail
{

// Words join the words before them: no line has two pieces of text in a row, or an empty one.
void add(Spans& line, const std::string& words);
void add(Spans& line, Span span);
void add(Spans& line, Spans spans);

} // namespace spans_detail

// A line from its pieces: words, spans, and lines that stand inside it.
//   line("Add ", number("250"), " ", unit("mL"), " of ", formula("HCl"), ".")
template <typename... Pieces>
Spans line(Pieces... pieces)
{
    Spans spans;
    spans.reserve(sizeof...(pieces));
    (spans_detail::add(spans, std::move(pieces)), ...);
    return spans;
}

// A number with its unit: 250, "mL". No blank stands between: how wide it is, is for the
// typesetter.
Spans measure(std::string shownText, std::string unitSymbol);

} // namespace lesson
