#include "lesson/reading/formula.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "lesson/chemistry/elements.hpp"
#include "lesson/reading/formula_pieces.hpp"
#include "lesson/reading/group_braces.hpp"
#include "lesson/reading/states.hpp"

namespace lesson
{

namespace
{

constexpr std::int64_t greatestCount = 1000000000;

// What stands in the bracket that opens at `i` is one atom, perhaps in brackets of its own.
bool holdsOneAtom(const std::vector<FormulaPiece>& pieces, std::size_t i)
{
    const FormulaPiece& first = pieces[i + 1];
    if (first.kind == FormulaPiece::Kind::open) {
        return first.isOneAtom && first.count == 1 && first.partner + 1 == pieces[i].partner;
    }
    return first.count == 1 && pieces[i].partner == i + 2;
}

// A bracket changes nothing around what occurs once, or around a single atom. The inner brackets
// come first.
void markNeedlessBrackets(std::vector<FormulaPiece>& pieces)
{
    for (std::size_t end = pieces.size(); end > 0; --end) {
        FormulaPiece& piece = pieces[end - 1];
        if (piece.kind == FormulaPiece::Kind::open) {
            piece.isOneAtom = holdsOneAtom(pieces, end - 1);
            piece.isNeedless = piece.count == 1 || piece.isOneAtom;
            pieces[piece.partner].isNeedless = piece.isNeedless;
        }
    }
}

std::string textOf(const std::vector<FormulaPiece>& pieces, bool withNeedlessBrackets)
{
    std::string text;
    for (const FormulaPiece& piece : pieces) {
        if (withNeedlessBrackets || !piece.isNeedless) {
            text += textOf(piece, &piece == &pieces.front());
        } else if (piece.kind == FormulaPiece::Kind::close && piece.count > 1) {
            text += std::to_string(piece.count);
        }
    }
    return text;
}

std::int64_t product(std::int64_t a, std::int64_t b)
{
    return a > greatestCount / b ? greatestCount + 1 : a * b;
}

// Atoms are counted forwards, since each bracket knows from the start how often it occurs. Empty
// where there are too many of one.
Atoms countAtoms(const std::vector<FormulaPiece>& pieces)
{
    std::array<std::int64_t, elementCount + 1> counts = {};
    std::vector<std::int64_t> multipliers = {1};
    for (const FormulaPiece& piece : pieces) {
        const std::int64_t count = product(multipliers.back(), piece.count);
        switch (piece.kind) {
        case FormulaPiece::Kind::dot:
            multipliers = {piece.count};
            break;
        case FormulaPiece::Kind::open:
            multipliers.push_back(count);
            break;
        case FormulaPiece::Kind::close:
            multipliers.pop_back();
            break;
        case FormulaPiece::Kind::element:
            auto& sum = counts[static_cast<std::size_t>(piece.element->number)];
            sum = std::min(sum + count, greatestCount + 1);
            break;
        }
    }
    Atoms atoms;
    for (int number = 1; number <= elementCount; ++number) {
        const std::int64_t count = counts[static_cast<std::size_t>(number)];
        if (count > greatestCount) {
            return {};
        }
        if (count > 0) {
            atoms.push_back({number, static_cast<int>(count)});
        }
    }
    return atoms;
}

} // namespace

TypedFormula readFormula(std::string_view plain)
{
    const std::string text = withRoundBraces(plain);
    std::string_view left = withoutFullStop(text);
    const std::string_view state = takeSymbolOfState(left);
    FormulaPieces read = readPieces(left);
    TypedFormula typed;
    typed.unread = read.isRead ? "" : left.empty() ? text : read.unread;
    typed.atoms = read.isRead ? countAtoms(read.pieces) : Atoms();
    if (typed.atoms.empty()) {
        typed.unread = read.isRead ? left : typed.unread;
        return typed;
    }
    markNeedlessBrackets(read.pieces);
    typed.isRead = true;
    typed.text = textOf(read.pieces, true);
    typed.simplest = textOf(read.pieces, false);
    typed.state = state;
    typed.hasCharge = read.hasCharge;
    typed.hasRaisedNumber = read.hasRaisedNumber;
    return typed;
}

Spans formulaSpans(std::string_view plain)
{
    const TypedFormula typed = readFormula(plain);
    if (!typed.isRead) {
        return {};
    }
    const std::string text = withRoundBraces(plain);
    const std::vector<FormulaPiece> pieces = readPieces(withoutState(text)).pieces;
    Spans spans;
    std::string onLine;
    for (const FormulaPiece& piece : pieces) {
        FormulaPiece low = piece;
        low.count = piece.isCountRaised ? 1 : piece.count;
        onLine += textOf(low, &piece == &pieces.front());
        if (!piece.raised.empty()) {
            spans.push_back(ionSpan(onLine, piece.raised));
            onLine.clear();
        }
    }
    if (!onLine.empty()) {
        spans.push_back(formula(onLine));
    }
    append(spans, typed.state.empty() ? "" : "(" + typed.state + ")");
    return spans;
}

bool isCompound(std::string_view plain)
{
    const TypedFormula read = readFormula(plain);
    return read.isRead && !read.hasCharge && read.atoms.size() > 1;
}

} // namespace lesson
