#include "lesson/reading/formula_pieces.hpp"

#include "lesson/text/scan.hpp"

namespace lesson
{

// The grammar; blanks may stand anywhere but inside a symbol or a number.
//
//   formula  = part (dot part)*
//   part     = number? unit+
//   unit     = (symbol | "(" unit+ ")" | "[" unit+ "]") (number | charge)*
//   number   = "_"? digits | "_"? "{" digits "}" | "^" digits     the last one raised by mistake
//   charge   = "^"? sign+ digits? | "^" digits sign+              in any brackets behind the "^"
//   dot      = "." | "·" | "*" | "×"
//
// At most one number stands behind a unit: a second one is not read. Curly brackets around a group
// are made round ones first.

namespace
{

constexpr std::int64_t greatestNumber = 999999;

class Reader
{
public:
    explicit Reader(std::string_view text) : all(text), left(text)
    {
        constexpr std::size_t usual = 8;
        pieces.reserve(usual);
    }

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
            std::string_view behind = left;
            if (!takeOneOf(behind, formulaDots) || behind.empty() || !open.empty()) {
                return false;
            }
            left = behind;
            pieces.push_back({FormulaPiece::Kind::dot});
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

    std::vector<FormulaPiece> pieces;
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
                pieces.push_back({FormulaPiece::Kind::dot});
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
        pieces.push_back({FormulaPiece::Kind::open});
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
        pieces.push_back({FormulaPiece::Kind::close, nullptr, 1, opening});
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
        pieces.push_back({FormulaPiece::Kind::element, element});
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
                const std::string_view signs = left;
                readSigns();
                noteRaised(signs);
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
        const std::string_view inside = left;
        const bool hasDigits = !left.empty() && isDigit(left.front());
        if (hasDigits && !readNumber(number)) {
            return false;
        }
        const bool hasSigns = readSigns();
        if (!hasDigits && !hasSigns) {
            return false;
        }
        noteRaised(inside);
        if (!hasSigns && !hasNumber) {
            hasRaisedNumber = true;
            hasNumber = true;
            count = number;
            pieces.back().isCountRaised = true;
        } else {
            hasCharge = true;
        }
        return closing == ' ' || skip(closing);
    }

    // Of what was read since `begin`, all but the blanks.
    void noteRaised(std::string_view begin)
    {
        for (const char c : begin.substr(0, begin.size() - left.size())) {
            pieces.back().raised.append(c == ' ' ? 0 : 1, c);
        }
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

std::string countText(std::int64_t count)
{
    return count == 1 ? "" : std::to_string(count);
}

} // namespace

FormulaPieces readPieces(std::string_view formula)
{
    Reader reader(formula);
    const bool isRead = reader.read();
    return {isRead, isRead ? "" : reader.unread(), std::move(reader.pieces), reader.hasCharge,
            reader.hasRaisedNumber};
}

std::string textOf(const FormulaPiece& piece, bool isFirst)
{
    switch (piece.kind) {
    case FormulaPiece::Kind::dot:
        return (isFirst ? "" : ".") + countText(piece.count);
    case FormulaPiece::Kind::element:
        return std::string(piece.element->symbol) + countText(piece.count);
    case FormulaPiece::Kind::open:
        return "(";
    case FormulaPiece::Kind::close:
        break;
    }
    return ")" + countText(piece.count);
}

} // namespace lesson
