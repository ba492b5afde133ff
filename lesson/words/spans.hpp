#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "lesson/chemistry/equation.hpp"
#include "lesson/chemistry/name.hpp"
#include "lesson/words/sentences.hpp"

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
        name,     // of a substance: "aluminium sulfate"

        // These stand where no language is chosen yet, and rendering puts others in their place.
        nameless, // what `named` tells
        sentence, // `says` with its arguments in `over`
        line,     // several pieces, `over`, that are one argument
    };

    Kind kind = Kind::text;
    std::string text;
    std::string detail;
    std::string index;
    std::vector<Span> over;
    std::vector<Span> under;
    Name named = {};
    Sentence says = Sentence::last;

    // Not inline: exercises make so many spans that the module would be twice as large.
    explicit Span(Kind spanKind, std::string_view spanText = "");
    Span(const Span& other);
    Span(Span&& other) noexcept;
    Span& operator=(const Span& other);
    Span& operator=(Span&& other) noexcept;
    ~Span();
};

using Spans = std::vector<Span>;

Span formula(std::string_view plain);
Span ionSpan(std::string_view formulaWithoutCharge, std::string_view charge);
Span quantity(std::string_view symbol, std::string_view of = "", std::string_view index = "");
Span number(std::string_view shownText);
Span unit(std::string_view symbol);
Span fraction(Spans over, Spans under);
Span name(const Name& named);

// Something that a line is made of: words, a span, or a line that stands inside it. It lives as
// long as the expression that it stands in.
class Piece
{
public:
    Piece(const char* words) : kind(Kind::words), source{words} {}
    Piece(const std::string& words) : kind(Kind::words), source{words.c_str()} {}
    Piece(const Span& span) : kind(Kind::span), source{&span} {}
    Piece(const Spans& spans) : kind(Kind::spans), source{&spans} {}
    Piece(const Name& name) : kind(Kind::name), source{&name} {}

    // Puts it at the end of a line.
    void addTo(Spans& line) const;

private:
    enum class Kind { words, span, spans, name };

    Kind kind;
    const void* source;
};

void append(Spans& line, const Piece& piece);
// Words join the words before them.
void addWords(Spans& line, std::string_view words);

Spans lineOf(const Piece* pieces, std::size_t count);

// A line from its pieces. No line has two pieces of text in a row, or an empty one.
//   line("Add ", number("250"), " ", unit("mL"), " of ", formula("HCl"), ".")
// It is here once, and not anew for each combination of pieces, since the exercises are full of it.
template <typename... Pieces>
Spans line(const Pieces&... pieces)
{
    const std::array<Piece, sizeof...(pieces)> all = {Piece(pieces)...};
    return lineOf(all.data(), all.size());
}

// A number with its unit: 250, "mL". No blank stands between: how wide it is, is for the
// typesetter.
Spans measure(std::string_view shownText, std::string_view unitSymbol);

// An equation as it is typeset.
Spans spansOf(const Equation& equation);

// A sentence with its arguments, as many as say.hpp has counted.
Span sentenceOf(Sentence says, const Piece* arguments, std::size_t count);

// A line as one types it, "0.290 mol/L", "SO4^2-", (c V)/(d).
std::string plainText(const Spans& line);

} // namespace lesson
