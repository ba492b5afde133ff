#include "lesson/reading/formula.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <vector>

#include "lesson/chemistry/elements.hpp"
#include "lesson/reading/group_braces.hpp"
#include "lesson/text/scan.hpp"

namespace lesson
{

// The grammar; blanks may stand anywhere but inside a symbol or a number.
//
//   typed    = part (dot part)* state? "."?
//   part     = number? unit+
//   unit     = (symbol | "(" unit+ ")" | "[" unit+ "]") (number | charge)*
//   number   = "_"? digits | "_"? "{" digits "}" | "^" digits     the last one raised by mistake
//   charge   = "^"? sign+ digits? | "^" digits sign+              in any brackets behind the "^"
//   dot      = "." | "·" | "*" | "×"
//   state    = "_"? ("(s)" | "(l)" | "(g)" | "(aq)") | "↓" | "↑"       perhaps in "_{" and "}"
//
// At most one number stands behind a unit: a second one is not read. Curly brackets around a group
// are made round ones first.

namespace
{

constexpr std::int64_t greatestNumber = 999999;
constexpr std::int64_t greatestCount = 1000000000;

std::string_view withoutEnd(std::string_view text, std::size_t length)
{
    return withoutAtTheEnd(text.substr(0, text.size() - length), " ");
}

struct StateSpelling {
    std::string_view typed;
    std::string_view state;
};

// Sulfur in brackets, "(S)", is no state.
constexpr StateSpelling stateSpellings[] = {
    {"(s)", "s"},   {"(l)", "l"},   {"(L)", "l"},   {"(g)", "g"}, {"(G)", "g"},
    {"(aq)", "aq"}, {"(Aq)", "aq"}, {"(AQ)", "aq"}, {"↓", "s"},   {"↑", "g"},
};

struct SplitState {
    std::string_view formula;
    std::string_view state;
};

SplitState splitState(std::string_view typed)
{
    const std::string_view plain = withoutEnd(typed, endsWith(typed, ".") ? 1 : 0);
    const bool isInBraces = endsWith(plain, "}"); // "NaCl_{(s)}"
    const std::string_view inside = withoutEnd(plain, isInBraces ? 1 : 0);
    const auto* const spelling = std::find_if(
        std::begin(stateSpellings), std::end(stateSpellings),
        [inside](const StateSpelling& known) { return endsWith(inside, known.typed); });
    if (spelling == std::end(stateSpellings)) {
        return {plain, ""};
    }
    const std::string_view formula = withoutEnd(inside, spelling->typed.size());
    if (isInBraces && !endsWith(formula, "{")) {
        return {plain, ""};
    }
    const std::string_view outside = withoutEnd(formula, isInBraces ? 1 : 0);
    return {withoutEnd(outside, endsWith(outside, "_") ? 1 : 0), spelling->state};
}

// The bytes of the dot at the front, 0 where there is none.
std::size_t dotLength(std::string_view text)
{
    for (const std::string_view dot : {".", "·", "*", "×"}) {
        if (startsWith(text, dot)) {
            return dot.size();
        }
    }
    return 0;
}

// A formula cut into pieces.
struct Piece {
    enum class Kind { dot, element, open, close };

    Kind kind;
    const ElementRow* element = nullptr;
    // How often it occurs: of a bracket both pieces tell it, a dot tells it of the part behind.
    std::int64_t count = 1;
    std::size_t partner = 0; // the other one of a pair of brackets
    char bracket = '(';
    bool isOneAtom = false;  // a bracket around a single atom
    bool isNeedless = false; // a bracket that changes nothing
};

class Reader
{
public:
    explicit Reader(std::string_view text) : all(text), left(text) {}

    bool read()
    {
        while (readPart()) {
            skipBlanks();
            if (left.empty() && open.empty()) {
                return true;
            }
            if (left.empty()) {
                left = all.substr(starts.back());
                return false;
            }
            const std::size_t dot = dotLength(left);
            if (dot == 0 || left.size() == dot || !open.empty()) {
                return false;
            }
            left.remove_prefix(dot);
            pieces.push_back({Piece::Kind::dot});
        }
        return false;
    }

    // From where reading stopped: a symbol alone, or all that is left.
    std::string_view unread() const
    {
        if (left.empty()) {
            return all;
        }
        const bool isSymbol = left.size() > 1 && isCapital(left[0]) && isSmall(left[1]);
        return isSymbol ? left.substr(0, 2) : left;
    }

    std::vector<Piece> pieces;
    bool hasCharge = false;
    bool hasRaisedNumber = false;

private:
    void skipBlanks()
    {
        takeBlanks(left);
    }

    bool skip(char wanted)
    {
        skipBlanks();
        return take(left, {&wanted, 1});
    }

    bool readPart()
    {
        skipBlanks();
        if (!left.empty() && isDigit(left.front())) {
            if (pieces.empty()) {
                pieces.push_back({Piece::Kind::dot});
            }
            if (!readNumber(pieces.back().count)) {
                return false;
            }
        }
        const std::size_t before = pieces.size();
        while (readUnit()) {
        }
        return !hasFailed && pieces.size() > before;
    }

    // Whether there was one; `hasFailed` tells whether it could be read.
    bool readUnit()
    {
        skipBlanks();
        if (left.empty() || hasFailed) {
            return false;
        }
        const char first = left.front();
        if (first == '(' || first == '[') {
            return readOpening();
        }
        if (first == ')' || first == ']') {
            return readClosing();
        }
        return isCapital(first) && readSymbol();
    }

    bool fail()
    {
        hasFailed = true;
        return false;
    }

    bool readOpening()
    {
        open.push_back(pieces.size());
        starts.push_back(all.size() - left.size());
        pieces.push_back({Piece::Kind::open});
        pieces.back().bracket = left.front();
        left.remove_prefix(1);
        return true;
    }

    bool readClosing()
    {
        if (open.empty() || open.back() + 1 == pieces.size() ||
            (pieces[open.back()].bracket == '(') != (left.front() == ')')) {
            return fail();
        }
        left.remove_prefix(1);
        const std::size_t opening = open.back();
        open.pop_back();
        starts.pop_back();
        pieces[opening].partner = pieces.size();
        pieces.push_back({Piece::Kind::close, nullptr, 1, opening});
        std::int64_t count = 1;
        if (!readTail(count)) {
            return false;
        }
        pieces[opening].count = count;
        pieces.back().count = count;
        return true;
    }

    bool readSymbol()
    {
        const std::size_t letters = left.size() > 1 && isSmall(left[1]) ? 2 : 1;
        const ElementRow* const element = findElement(left.substr(0, letters));
        if (element == nullptr) {
            return fail();
        }
        left.remove_prefix(letters);
        pieces.push_back({Piece::Kind::element, element});
        return readTail(pieces.back().count);
    }

    // The number and the charges behind a unit.
    bool readTail(std::int64_t& count)
    {
        bool hasNumber = false;
        for (;;) {
            skipBlanks();
            if (left.empty()) {
                return true;
            }
            const char first = left.front();
            if (!hasNumber && (isDigit(first) || first == '_' || first == '{')) {
                hasNumber = true;
                if (!readSubscript(count)) {
                    return fail();
                }
            } else if (first == '^') {
                if (!readRaised(count, hasNumber)) {
                    return fail();
                }
            } else if (isSign(first)) {
                readSigns();
            } else {
                return true;
            }
        }
    }

    bool readSubscript(std::int64_t& count)
    {
        skip('_');
        const bool isInBraces = skip('{');
        return readNumber(count) && (!isInBraces || skip('}'));
    }

    // 1 to `greatestNumber`; anything else is left where it is.
    bool readNumber(std::int64_t& number)
    {
        skipBlanks();
        std::string_view behind = left;
        const std::int64_t value = wholeNumber(takeDigits(behind), greatestNumber + 1);
        if (value == 0 || left.front() == '0' || value > greatestNumber) {
            return false;
        }
        left = behind;
        number = value;
        return true;
    }

    // A charge, or a subscript that was raised by mistake.
    bool readRaised(std::int64_t& count, bool& hasNumber)
    {
        skip('^');
        skipBlanks();
        const char closing = closingOf(left.empty() ? ' ' : left.front());
        if (closing != ' ') {
            left.remove_prefix(1);
        }
        std::int64_t number = 1;
        skipBlanks();
        const bool hasDigits = !left.empty() && isDigit(left.front());
        if (hasDigits && !readNumber(number)) {
            return false;
        }
        const bool hasSigns = readSigns();
        if (!hasDigits && !hasSigns) {
            return false;
        }
        if (!hasSigns && !hasNumber) {
            hasRaisedNumber = true;
            hasNumber = true;
            count = number;
        } else {
            hasCharge = true;
        }
        return closing == ' ' || skip(closing);
    }

    static char closingOf(char opening)
    {
        return opening == '{' ? '}' : opening == '(' ? ')' : opening == '[' ? ']' : ' ';
    }

    // Signs and the digits behind them: "-", "+++", "-2".
    bool readSigns()
    {
        skipBlanks();
        if (left.empty() || !isSign(left.front())) {
            return false;
        }
        hasCharge = true;
        takeAll(left, [](char c) { return isSign(c) || c == ' '; });
        takeDigits(left);
        return true;
    }

    std::string_view all;
    std::string_view left;
    std::vector<std::size_t> open;   // the pieces that are not closed yet
    std::vector<std::size_t> starts; // and where they stand in the text
    bool hasFailed = false;
};

// What stands in the bracket that opens at `i` is one atom, perhaps in brackets of its own.
bool holdsOneAtom(const std::vector<Piece>& pieces, std::size_t i)
{
    const Piece& first = pieces[i + 1];
    if (first.kind == Piece::Kind::open) {
        return first.isOneAtom && first.count == 1 && first.partner + 1 == pieces[i].partner;
    }
    return first.count == 1 && pieces[i].partner == i + 2;
}

// A bracket changes nothing around what occurs once, or around a single atom. The inner brackets
// come first.
void markNeedlessBrackets(std::vector<Piece>& pieces)
{
    for (std::size_t end = pieces.size(); end > 0; --end) {
        Piece& piece = pieces[end - 1];
        if (piece.kind == Piece::Kind::open) {
            piece.isOneAtom = holdsOneAtom(pieces, end - 1);
            piece.isNeedless = piece.count == 1 || piece.isOneAtom;
            pieces[piece.partner].isNeedless = piece.isNeedless;
        }
    }
}

std::string countText(std::int64_t count)
{
    return count == 1 ? "" : std::to_string(count);
}

std::string textOf(const std::vector<Piece>& pieces, bool withNeedlessBrackets)
{
    std::string text;
    for (const Piece& piece : pieces) {
        const bool hasBracket = withNeedlessBrackets || !piece.isNeedless;
        switch (piece.kind) {
        case Piece::Kind::dot:
            text += text.empty() ? "" : ".";
            break;
        case Piece::Kind::element:
            text += piece.element->symbol;
            break;
        case Piece::Kind::open:
            text += hasBracket ? "(" : "";
            continue;
        case Piece::Kind::close:
            text += hasBracket ? ")" : "";
            break;
        }
        text += countText(piece.count);
    }
    return text;
}

std::int64_t product(std::int64_t a, std::int64_t b)
{
    return a > greatestCount / b ? greatestCount + 1 : a * b;
}

// Atoms are counted forwards, since each bracket knows from the start how often it occurs. Empty
// where there are too many of one.
Atoms countAtoms(const std::vector<Piece>& pieces)
{
    std::array<std::int64_t, elementCount + 1> counts = {};
    std::vector<std::int64_t> multipliers = {1};
    for (const Piece& piece : pieces) {
        const std::int64_t count = product(multipliers.back(), piece.count);
        switch (piece.kind) {
        case Piece::Kind::dot:
            multipliers = {piece.count};
            break;
        case Piece::Kind::open:
            multipliers.push_back(count);
            break;
        case Piece::Kind::close:
            multipliers.pop_back();
            break;
        case Piece::Kind::element:
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
    const SplitState split = splitState(text);
    Reader reader(split.formula);
    TypedFormula typed;
    if (!reader.read()) {
        typed.unread = split.formula.empty() ? text : reader.unread();
        return typed;
    }
    typed.atoms = countAtoms(reader.pieces);
    if (typed.atoms.empty()) {
        typed.unread = split.formula;
        return typed;
    }
    markNeedlessBrackets(reader.pieces);
    typed.isRead = true;
    typed.text = textOf(reader.pieces, true);
    typed.simplest = textOf(reader.pieces, false);
    typed.state = split.state;
    typed.hasCharge = reader.hasCharge;
    typed.hasRaisedNumber = reader.hasRaisedNumber;
    return typed;
}

bool isCompound(std::string_view plain)
{
    const TypedFormula read = readFormula(plain);
    return read.isRead && !read.hasCharge && read.atoms.size() > 1;
}

std::string withoutBond(std::string plain)
{
    const std::size_t bond = plain.find("-CO");
    if (bond != std::string::npos && bond > 0 &&
        std::string_view("3}C").find(plain[bond - 1]) != std::string_view::npos) {
        plain.erase(bond, 1);
    }
    return plain;
}

std::string spelledOut(std::string_view plain)
{
    struct Row {
        std::string_view typed;
        std::string_view formula;
    };
    // The longer ones first.
    constexpr Row abbreviations[] = {
        {"OAc", "CH3COO"}, {"AcO", "CH3COO"}, {"Ac", "CH3COO"}, {"Me", "CH3"}};
    std::string text;
    while (!plain.empty()) {
        const auto* const row =
            std::find_if(std::begin(abbreviations), std::end(abbreviations), [&](const Row& known) {
                const std::string_view behind =
                    plain.substr(std::min(known.typed.size(), plain.size()));
                return startsWith(plain, known.typed) && (behind.empty() || !isSmall(behind[0]));
            });
        const bool isOrdinary = row == std::end(abbreviations);
        const std::string_view typed = plain.substr(0, isOrdinary ? 1 : row->typed.size());
        plain.remove_prefix(typed.size());
        // "CaAc2": Ac looks like a symbol, and the number behind it is meant to count the group.
        const bool isCounted =
            typed == "Ac" && !plain.empty() && (isDigit(plain.front()) || plain.front() == '_');
        text += isOrdinary  ? std::string(typed)
                : isCounted ? "(" + std::string(row->formula) + ")"
                            : std::string(row->formula);
    }
    return text;
}

std::string_view withoutState(std::string_view plain)
{
    return splitState(plain).formula;
}

std::string bareFormula(std::string_view plain)
{
    std::string_view left = withoutState(plain);
    std::string bare;
    while (!left.empty()) {
        const std::size_t dot = dotLength(left);
        const char first = left.front();
        if (dot > 0) {
            bare += '.';
        } else if (first == '[' || first == ']') {
            bare += first == '[' ? '(' : ')';
        } else if (first != ' ' && first != '_' && first != '{' && first != '}') {
            bare += first;
        }
        left.remove_prefix(std::max<std::size_t>(dot, 1));
    }
    return bare;
}

std::string withoutCapitals(std::string_view plain)
{
    return bareFormula(lowerCase(plain));
}

} // namespace lesson
