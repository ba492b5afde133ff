#include "lesson/reading/equation.hpp"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include "lesson/reading/coefficient.hpp"
#include "lesson/reading/equation_signs.hpp"
#include "lesson/reading/states.hpp"
#include "lesson/text/scan.hpp"

namespace lesson
{

// The grammar; blanks may stand anywhere but inside a number.
//
//   equation    = side arrow side "."?
//   arrow       = a run of "-", "=", "<", ">" with more than dashes in it | "_>" | "~>"
//   side        = "+"? term ("+" term)*
//   term        = coefficient? formula state?
//   state       = "(s)" | "(l)" | "(g)" | "(aq)" | "_{s}" | " s" and so on | "↓" | "↑" | " ^"
//
// Words such as "gives" and "and" stand for an arrow and a "+". A "+" with no term behind it
// belongs to the term before. States are in any case, also subscripts.

namespace
{

constexpr std::size_t mostTerms = 50;

// ---- Arrows

struct Run {
    std::size_t begin;
    std::size_t end;
    bool isDashes; // no arrow, but perhaps meant as one
    bool pointsLeft;
    bool pointsRight;
};

// The first run of arrow characters, with blanks between them, from a place on.
std::optional<Run> runFrom(std::string_view text, std::size_t from)
{
    const std::size_t start = text.find_first_of(ofArrows, from);
    if (start == std::string_view::npos) {
        return std::nullopt;
    }
    Run run = {start, start, true, false, false};
    for (std::size_t i = start; i < text.size() && (isOneOf(text[i], ofArrows) || text[i] == ' ');
         ++i) {
        run.pointsLeft = run.pointsLeft || text[i] == '<';
        run.pointsRight = run.pointsRight || text[i] == '>';
        run.isDashes = run.isDashes && (text[i] == '-' || text[i] == ' ');
        run.end = text[i] == ' ' ? run.end : i + 1;
    }
    return run;
}

Arrow directionOf(const Run& arrow)
{
    if (!arrow.pointsLeft) {
        return Arrow::toTheRight; // or an equals sign
    }
    return arrow.pointsRight ? Arrow::twoWay : Arrow::toTheLeft;
}

std::optional<Run> firstArrow(std::string_view text)
{
    std::optional<Run> run = runFrom(text, 0);
    while (run.has_value() && run->isDashes) {
        run = runFrom(text, run->end);
    }
    return run;
}

// ---- Terms and sides

// The formula without the bonds that some draw: "CH3-COOH". A dash that no symbol
// follows is a charge, and stays.
std::string withoutBonds(std::string_view formula)
{
    std::string plain;
    for (std::size_t i = 0; i < formula.size(); ++i) {
        const char next = i + 1 < formula.size() ? formula[i + 1] : ' ';
        const bool isBond = formula[i] == '-' && !plain.empty() && isCapital(next);
        if (!isBond) {
            plain += formula[i];
        }
    }
    return plain;
}

bool isBareFormula(const TypedFormula& formula)
{
    return formula.isRead && !formula.hasCharge && formula.state.empty();
}

// Marks of what stands below the line; here they may be left out.
constexpr std::string_view idleMarks = "_{}";

// As it stands, or without marks that mark nothing: "H2_SO4".
TypedFormula readBareFormula(std::string_view text)
{
    TypedFormula formula = readFormula(text);
    if (isBareFormula(formula)) {
        return formula;
    }
    std::string unmarked(text);
    unmarked.erase(std::remove_if(unmarked.begin(), unmarked.end(),
                                  [](char c) { return isOneOf(c, idleMarks); }),
                   unmarked.end());
    TypedFormula other = readFormula(unmarked);
    return isBareFormula(other) ? other : formula;
}

// "_2HCl", "{ 2HCl"
void removeMarksBeforeNumber(std::string_view& rest)
{
    std::string_view behind = rest;
    while (!behind.empty() && (isOneOf(behind.front(), idleMarks) || behind.front() == ' ')) {
        behind.remove_prefix(1);
    }
    rest = startsWithDigit(behind) ? behind : rest;
}

TypedTerm readTerm(std::string_view typed)
{
    TypedTerm term;
    term.typed = typed;
    std::string_view rest = typed;
    term.state = takeState(rest);
    removeMarksBeforeNumber(rest);
    term.coefficient = takeCoefficient(rest);
    term.text = rest;
    const bool hasSecondCoefficient = startsWithDigit(rest);
    if (rest.empty() || hasSecondCoefficient || !isFitCoefficient(term.coefficient)) {
        term.unread = typed;
        return term;
    }
    const std::optional<Run> secondArrow = firstArrow(rest);
    if (secondArrow.has_value()) {
        term.unread = rest.substr(secondArrow->begin);
        return term;
    }
    term.text = withoutBonds(rest);
    term.formula = readBareFormula(term.text);
    if (!isBareFormula(term.formula)) {
        term.unread = term.formula.unread.empty() ? typed : term.formula.unread;
    }
    return term;
}

// Whether a "+" with this behind it stands between two species; else it is a charge.
bool separates(std::string_view behind)
{
    constexpr std::string_view noStart = "+-)]}^_/";
    constexpr std::size_t longestState = 10;
    behind = trimmed(behind);
    if (behind.empty() || isOneOf(behind.front(), noStart)) {
        return false;
    }
    const std::string_view start = behind.substr(0, longestState);
    const std::size_t closing = start.find(')');
    return start.front() != '(' || closing == std::string_view::npos ||
           stateIn(start.substr(1, closing - 1)).empty();
}

// Reads one side, and notes the first part that could not be read.
std::vector<TypedTerm> readSide(std::string_view side, std::string& unread)
{
    std::vector<TypedTerm> terms;
    terms.reserve(4);
    side = trimmed(side);
    if (startsWith(side, "+") && separates(side.substr(1))) {
        take(side, "+");
    }
    while (!side.empty()) {
        if (terms.size() == mostTerms) {
            unread = unread.empty() ? side : unread;
            break;
        }
        std::size_t end = side.find('+');
        while (end != std::string_view::npos && !separates(side.substr(end + 1))) {
            end = side.find('+', end + 1);
        }
        terms.push_back(readTerm(trimmed(side.substr(0, end))));
        if (unread.empty()) {
            unread = terms.back().unread;
        }
        side.remove_prefix(std::min(end, side.size() - 1) + 1);
        side = trimmed(side);
    }
    return terms;
}

} // namespace

TypedEquation readEquation(std::string_view typed)
{
    const std::string text = withPlainSigns(typed);
    std::string_view plain = text;
    TypedEquation equation;
    takeEnd(plain, ".");
    const std::optional<Run> arrow = firstArrow(plain);
    // Without an arrow, a dash may be meant as one, and what stands at its sides can be read.
    const std::optional<Run> split = arrow.has_value() ? arrow : runFrom(plain, 0);
    equation.left =
        readSide(plain.substr(0, split.has_value() ? split->begin : plain.size()), equation.unread);
    if (split.has_value()) {
        equation.right = readSide(plain.substr(split->end), equation.unread);
    }
    if (arrow.has_value()) {
        equation.arrow = directionOf(*arrow);
    }
    if (equation.arrow == Arrow::toTheLeft) {
        std::swap(equation.left, equation.right);
    }
    return equation;
}

} // namespace lesson
