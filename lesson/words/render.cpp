#include "lesson/words/render.hpp"

#include <algorithm>
#include <utility>

#include "lesson/text/scan.hpp"
#include "lesson/words/pattern.hpp"

namespace lesson
{

namespace
{

void addRendered(Spans& line, const Span& span, const Writing& writing);
void render(Spans& line, const Writing& writing);

// What a placeholder says itself: "unit mL", "quantity V 1".
Span spanOf(std::string_view placeholder)
{
    const auto takeWord = [&placeholder] {
        const std::string_view word = placeholder.substr(0, placeholder.find(' '));
        placeholder.remove_prefix(std::min(placeholder.size(), word.size() + 1));
        return word;
    };
    const std::string_view kind = takeWord();
    const std::string_view text = takeWord();
    return kind == "unit"       ? unit(text)
           : kind == "formula"  ? formula(text)
           : kind == "ion"      ? ionSpan(text, takeWord())
           : kind == "quantity" ? quantity(text, "", takeWord())
                                : number(text);
}

void capitalise(std::string& words)
{
    if (!words.empty() && words.front() >= 'a' && words.front() <= 'z') {
        words.front() = static_cast<char>(words.front() - 'a' + 'A');
    }
}

void addFirstWord(Spans& line, const Span& argument, const Writing& writing)
{
    Spans spans;
    addRendered(spans, argument, writing);
    if (!spans.empty()) {
        capitalise(spans.front().text);
    }
    append(line, spans);
}

void addSentence(Spans& line, const Span& said, const Writing& writing)
{
    const std::string_view pattern = patternIn(*writing.language, said.says);
    std::size_t from = 0;
    while (from < pattern.size()) {
        const Placeholder next = nextPlaceholder(pattern, from);
        addWords(line, pattern.substr(from, next.from - from));
        if (next.isArgument()) {
            const std::string_view british = patternIn(britishEnglish(), said.says);
            const Span& argument = said.over[placeOfArgument(british, next.name)];
            (isCapital(next.name.front()) ? addFirstWord : addRendered)(line, argument, writing);
        } else if (next.from != std::string_view::npos) {
            addRendered(line, spanOf(next.name), writing);
        }
        from = next.behind;
    }
}

void addAll(Spans& line, const Spans& spans, const Writing& writing)
{
    for (const Span& span : spans) {
        addRendered(line, span, writing);
    }
}

// A number or a unit as the reader writes it, also within a fraction.
void rewrite(Span& span, const Writing& writing)
{
    if (span.kind == Span::Kind::number) {
        span.text = numberIn(writing, span.text);
    } else if (span.kind == Span::Kind::unit) {
        span.text = unitIn(writing, span.text);
    } else if (span.kind == Span::Kind::fraction) {
        render(span.over, writing);
        render(span.under, writing);
    }
}

void addRendered(Spans& line, const Span& span, const Writing& writing)
{
    switch (span.kind) {
    case Span::Kind::sentence:
        return addSentence(line, span, writing);
    case Span::Kind::line:
        return addAll(line, span.over, writing);
    case Span::Kind::nameless:
        line.emplace_back(Span::Kind::name, nameIn(*writing.language, span.named));
        return;
    case Span::Kind::text:
        return addWords(line, span.text);
    default:
        line.push_back(span);
        rewrite(line.back(), writing);
    }
}

bool needsLanguage(const Span& span)
{
    return span.kind == Span::Kind::sentence || span.kind == Span::Kind::line ||
           span.kind == Span::Kind::nameless;
}

void render(Spans& line, const Writing& writing)
{
    if (std::any_of(line.begin(), line.end(), needsLanguage)) {
        line = rendered(line, writing);
        return;
    }
    for (Span& span : line) {
        rewrite(span, writing);
    }
}

std::string cubic(std::string_view unit)
{
    if (takeEnd(unit, "mL")) {
        return std::string(unit) + "cm3";
    }
    return takeEnd(unit, "L") ? std::string(unit) + "dm3" : std::string(unit);
}

} // namespace

Spans rendered(const Spans& line, const Writing& writing)
{
    Spans all;
    all.reserve(line.size());
    addAll(all, line, writing);
    return all;
}

void render(Exercise& exercise, const Writing& writing)
{
    render(exercise.prompt, writing);
    for (Step& step : exercise.solution) {
        render(step.say, writing);
        render(step.math, writing);
        render(step.hint, writing);
    }
    for (Slip& slip : exercise.slips) {
        render(slip.sentence, writing);
    }
    render(exercise.key, writing);
}

std::string keyText(const Exercise& exercise, const Writing& writing)
{
    std::string text = plainText(exercise.key, writing);
    constexpr std::string_view arrow = "→";
    const std::size_t place = text.find(arrow);
    return place == std::string::npos ? text : text.replace(place, arrow.size(), "->");
}

std::string plainText(const Spans& line, const Writing& writing)
{
    return plainText(rendered(line, writing));
}

std::string numberIn(const Writing& writing, std::string_view shownText)
{
    std::string text(shownText);
    std::replace(text.begin(), text.end(), '.', writing.decimal);
    return text;
}

std::string unitIn(const Writing& writing, std::string_view unit)
{
    std::string text = writing.isVolumeCubic ? cubic(unit) : std::string(unit);
    const std::size_t slash = text.find('/');
    if (!writing.isPerAPower || slash == std::string::npos) {
        return text;
    }
    std::string_view below = std::string_view(text).substr(slash + 1);
    const bool isCubed = takeEnd(below, "3") || takeEnd(below, "³");
    return text.substr(0, slash) + " " + std::string(below) + (isCubed ? "-3" : "-1");
}

} // namespace lesson
