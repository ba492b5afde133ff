#include "lesson/export/html.hpp"

#include <algorithm>

#include "lesson/text/scan.hpp"

namespace lesson
{

namespace
{

// Thin, and keeps together what it stands between.
constexpr std::string_view thinBlank = "\u202F";
constexpr std::string_view minus = "\u2212";

std::string raised(std::string_view text)
{
    std::string html = "<sup>";
    for (const char c : text) {
        html += c == '-' ? minus : std::string_view(&c, 1);
    }
    return html + "</sup>";
}

// Digits are subscripts, but those in front, and those behind the dot of a hydrate, count.
std::string htmlOfFormula(std::string_view plain)
{
    std::string html;
    bool isSubscript = false;
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const char before = i == 0 ? '.' : plain[i - 1];
        const bool isLow = isDigit(plain[i]) && (isDigit(before) ? isSubscript : before != '.');
        if (isLow != isSubscript) {
            html += isLow ? "<sub>" : "</sub>";
            isSubscript = isLow;
        }
        html += plain[i] == '.' ? "·" : plain.substr(i, 1);
    }
    return isSubscript ? html + "</sub>" : html;
}

std::string htmlOfQuantity(const Span& span)
{
    std::string html;
    addAll(html, {"<i>", span.text, "</i>"});
    if (!span.index.empty()) {
        addAll(html, {"<sub>", span.index, "</sub>"});
    }
    if (!span.detail.empty()) {
        addAll(html, {"(", htmlOfFormula(span.detail), ")"});
    }
    return html;
}

std::string htmlOfNumber(std::string_view shownText)
{
    const std::size_t exponent = shownText.find('e');
    std::string html(shownText.substr(0, exponent));
    if (exponent != std::string_view::npos) {
        addAll(html, {thinBlank, "×", thinBlank, "10", raised(shownText.substr(exponent + 1))});
    }
    return html;
}

// Powers are raised: "mol dm-3".
std::string htmlOfUnit(std::string_view unit)
{
    const auto isOfPower = [](char c) { return isDigit(c) || c == '-'; };
    std::string html;
    while (!unit.empty()) {
        html += escaped(takeAll(unit, [&](char c) { return !isOfPower(c); }));
        const std::string_view power = takeAll(unit, isOfPower);
        html += power.empty() ? "" : raised(power);
    }
    return html;
}

bool isSum(const Spans& line)
{
    return std::any_of(line.begin(), line.end(), [](const Span& span) {
        return span.text.find(" + ") != std::string::npos ||
               span.text.find(minus) != std::string::npos;
    });
}

bool isProduct(const Spans& line)
{
    return line.size() > 1 || line.front().text.find('e') != std::string::npos;
}

std::string inBracketsIf(bool areNeeded, const Spans& line)
{
    const std::string html = htmlOf(line);
    return areNeeded ? "(" + html + ")" : html;
}

bool isOneDigit(const Spans& line)
{
    return line.size() == 1 && line.front().text.size() == 1 && isDigit(line.front().text[0]);
}

// On one line: a sum above needs brackets, and so does all that is more than one factor below.
std::string htmlOfFraction(const Span& span)
{
    if (isOneDigit(span.over) && isOneDigit(span.under)) {
        std::string html;
        addAll(html,
               {"<sup>", span.over[0].text, "</sup>\u2044<sub>", span.under[0].text, "</sub>"});
        return html;
    }
    return inBracketsIf(isSum(span.over), span.over) + "/" +
           inBracketsIf(isProduct(span.under), span.under);
}

std::string htmlOfSpan(const Span& span)
{
    switch (span.kind) {
    case Span::Kind::formula:
        return htmlOfFormula(span.text);
    case Span::Kind::ion:
        return htmlOfFormula(span.text) + raised(span.detail);
    case Span::Kind::quantity:
        return htmlOfQuantity(span);
    case Span::Kind::number:
        return htmlOfNumber(span.text);
    case Span::Kind::fraction:
        return htmlOfFraction(span);
    case Span::Kind::unit:
        return htmlOfUnit(span.text);
    case Span::Kind::text:
    case Span::Kind::name:
    case Span::Kind::nameless: // what is rendered has none of these
    case Span::Kind::sentence:
    case Span::Kind::line:
        break;
    }
    return escaped(span.text);
}

} // namespace

void addAll(std::string& text, std::initializer_list<std::string_view> parts)
{
    for (const std::string_view part : parts) {
        text += part;
    }
}

std::string escaped(std::string_view text)
{
    std::string result;
    for (const char c : text) {
        switch (c) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        default:
            result += c;
        }
    }
    return result;
}

std::string htmlOf(const Spans& line)
{
    std::string html;
    const Span* before = nullptr;
    for (const Span& span : line) {
        const bool isMeasure = span.kind == Span::Kind::unit && before != nullptr &&
                               before->kind == Span::Kind::number;
        addAll(html, {isMeasure ? thinBlank : "", htmlOfSpan(span)});
        before = &span;
    }
    return html;
}

} // namespace lesson
