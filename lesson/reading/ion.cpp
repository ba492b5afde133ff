#include "lesson/reading/ion.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "lesson/reading/states.hpp"
#include "lesson/text/scan.hpp"

namespace lesson
{

namespace
{

constexpr std::string_view digits = "0123456789";
constexpr std::string_view signs = "+-";
constexpr std::string_view digitsAndSigns = "0123456789+-";

constexpr char ordinary = ' ';
constexpr char lowered = '_';
constexpr char raised = '^';

// A text and, of each of its characters, where it stands.
struct Placed {
    std::string text;
    std::string places;
};

// The number of characters at the front that are among these.
std::size_t lengthOf(std::string_view text, std::string_view characters)
{
    return std::min(text.find_first_not_of(characters), text.size());
}

// What stands in brackets at the front, if there are brackets and but a charge, "(2-)" or "(^2-)".
struct Bracketed {
    std::string_view inside;
    std::size_t length; // with the brackets; 0 where there are none
};

Bracketed bracketedAt(std::string_view text)
{
    constexpr std::string_view opening = "{([";
    constexpr std::string_view closing = "})]";
    const std::size_t bracket = text.empty() ? std::string_view::npos : opening.find(text.front());
    if (bracket == std::string_view::npos) {
        return {"", 0};
    }
    const std::size_t length = lengthOf(text.substr(1), "0123456789+-^ ");
    const bool isClosed = text.substr(length + 1, 1) == closing.substr(bracket, 1);
    return isClosed && length > 0 ? Bracketed{text.substr(1, length), length + 2}
                                  : Bracketed{"", 0};
}

// How much behind a "^" is raised: a sign and the digits behind it, or a digit and the signs behind
// it.
std::size_t raisedLength(std::string_view text)
{
    const std::size_t first = lengthOf(text, signs);
    return first > 0               ? first + lengthOf(text.substr(first), digits)
           : startsWithDigit(text) ? 1 + lengthOf(text.substr(1), signs)
                                   : 0;
}

class Placer
{
public:
    explicit Placer(std::string_view marked) : left(marked) {}

    Placed place()
    {
        while (!left.empty()) {
            if (!readMark() && !readCharge()) {
                readOther();
            }
        }
        raiseBehindGap();
        return placed;
    }

private:
    bool readMark()
    {
        const char mark = left.front();
        if (mark != lowered && mark != raised) {
            return false;
        }
        left.remove_prefix(1);
        takeBlanks(left);
        const Bracketed bracketed = bracketedAt(left);
        if (bracketed.length > 0) {
            add(bracketed.inside, mark);
            left.remove_prefix(bracketed.length);
            return true;
        }
        const std::size_t length = mark == raised
                                       ? raisedLength(left)
                                       : std::min<std::size_t>(lengthOf(left, digitsAndSigns), 1);
        add(left.substr(0, length), mark);
        left.remove_prefix(length);
        if (length == 0 && mark == raised && !startsWith(left, "^")) {
            placed.text += '^';
            placed.places += ordinary;
        }
        return true;
    }

    // "Fe(3+)": brackets set the charge apart.
    bool readCharge()
    {
        const Bracketed bracketed = bracketedAt(left);
        const bool isCharge = bracketed.length > 0 && !placed.text.empty() &&
                              bracketed.inside.find_first_of(signs) != std::string_view::npos;
        if (isCharge) {
            add(bracketed.inside, raised);
            left.remove_prefix(bracketed.length);
        }
        return isCharge;
    }

    void readOther()
    {
        const char first = left.front();
        const bool isDigitBehindDigit =
            isDigit(first) && !placed.text.empty() && isDigit(placed.text.back());
        if (isBehindBlank && isDigitBehindDigit) {
            gap = placed.text.size();
        }
        isBehindBlank = first == ' ';
        if (first == '[' || first == ']') {
            add(first == '[' ? "(" : ")", ordinary);
        } else if (first != '{' && first != '}') {
            add(left.substr(0, 1), ordinary);
        }
        left.remove_prefix(1);
    }

    void add(std::string_view characters, char place)
    {
        std::string text(characters);
        text.erase(
            std::remove_if(text.begin(), text.end(), [](char c) { return isOneOf(c, " ^"); }),
            text.end());
        const std::size_t where = placeFor(text, place);
        placed.text.insert(where, text);
        placed.places.insert(where, text.size(), place);
    }

    // A digit that is lowered behind a raised charge, "SO^{2-}_4", belongs in front of it.
    std::size_t placeFor(std::string_view text, char place) const
    {
        constexpr std::size_t longestCharge = 4;
        const std::size_t end = placed.text.size();
        if (place != lowered || !startsWithDigit(text) || end == 0 ||
            !isOneOf(placed.text.back(), signs)) {
            return end;
        }
        std::size_t front = end;
        while (front > 0 && end - front < longestCharge && placed.places[front - 1] == raised) {
            --front;
        }
        return front;
    }

    // "Cr2O7 2-": a blank between digits sets the charge apart.
    void raiseBehindGap()
    {
        const std::string_view behind = std::string_view(placed.text).substr(gap);
        const std::size_t size = lengthOf(behind, digits);
        const bool isCharge =
            gap > 0 && size > 0 && size < behind.size() &&
            lengthOf(behind.substr(size), signs) == behind.size() - size &&
            lengthOf(std::string_view(placed.places).substr(gap), " ") == behind.size();
        if (isCharge) {
            std::fill(placed.places.begin() + static_cast<std::ptrdiff_t>(gap), placed.places.end(),
                      raised);
        }
    }

    std::string_view left;
    Placed placed;
    bool isBehindBlank = false;
    std::size_t gap = 0; // where the last blank between digits stood; 0 where there is none
};

// The part of a text behind its last character that is none of these.
std::string_view endOf(std::string_view text, std::string_view characters)
{
    const std::size_t last = text.find_last_not_of(characters);
    return last == std::string_view::npos ? text : text.substr(last + 1);
}

// 1 where there are no digits; a size that no ion has where there are many, or a zero in front.
int sizeOf(std::string_view typedDigits)
{
    constexpr int beyond = 99;
    if (typedDigits.substr(0, 1) == "0") {
        return beyond;
    }
    return typedDigits.empty() ? 1 : static_cast<int>(wholeNumber(typedDigits, beyond));
}

// Signs of one kind: "-", "+++".
bool areSigns(std::string_view text)
{
    return !text.empty() && text.find_first_not_of(text.front()) == std::string_view::npos &&
           signs.find(text.front()) != std::string_view::npos;
}

int withSign(std::string_view typedSigns, int size)
{
    return typedSigns.front() == '-' ? -size : size;
}

// Brackets around the whole, "[SO4^2-]", tell nothing.
void removeOuterBrackets(Placed& placed)
{
    const std::string& text = placed.text;
    if (text.size() < 3) {
        return;
    }
    const std::size_t last = text.size() - 1;
    if (text.front() == '(' && text.find(')') == last &&
        signs.find(text[last - 1]) != std::string_view::npos) {
        placed = {text.substr(1, last - 1), placed.places.substr(1, last - 1)};
    }
}

// The first `length` characters are the formula, the others the charge.
IonReading reading(const Placed& placed, std::size_t length, int charge)
{
    const std::string_view places = placed.places;
    const std::string bare = placed.text.substr(0, length);
    // Here a dot at the end ends no sentence.
    const bool isFormula = !bare.empty() && bare.back() != '.';
    return {bare, isFormula ? readFormula(bare) : TypedFormula(), charge,
            places.substr(length).find(lowered) != std::string_view::npos,
            places.substr(0, length).find(raised) != std::string_view::npos};
}

// Each way to split digits and a sign that leaves at most one digit to the charge, or all that are
// raised.
std::vector<IonReading> splitReadings(const Placed& placed, std::string_view before,
                                      std::string_view sign)
{
    const std::size_t end = placed.text.size() - sign.size();
    const std::size_t firstRaised = std::min(placed.places.find(raised, end - before.size()), end);
    std::vector<std::size_t> starts = {end};
    if (!before.empty()) {
        starts.push_back(end - 1);
    }
    if (firstRaised + 1 < end) {
        starts.push_back(firstRaised);
    }
    std::vector<IonReading> readings;
    for (const std::size_t start : starts) {
        const std::string_view size = before.substr(before.size() - (end - start));
        readings.push_back(reading(placed, start, withSign(sign, sizeOf(size))));
    }
    return readings;
}

std::vector<IonReading> allReadings(const Placed& placed)
{
    const std::string_view tail = endOf(placed.text, digitsAndSigns);
    const std::string_view behind = endOf(tail, digits);
    const std::string_view upToSign = tail.substr(0, tail.size() - behind.size());
    const std::string_view sign = endOf(upToSign, signs);
    const std::string_view before = upToSign.substr(0, upToSign.size() - sign.size());
    const bool isCharge = areSigns(sign) && before.find_first_of(signs) == std::string_view::npos &&
                          (sign.size() == 1 || behind.empty());
    if (!isCharge) {
        return {reading(placed, placed.text.size(), 0)};
    }
    if (behind.empty() && sign.size() == 1) {
        return splitReadings(placed, before, sign);
    }
    const int size =
        behind.empty() ? static_cast<int>(std::min<std::size_t>(sign.size(), 99)) : sizeOf(behind);
    return {
        reading(placed, placed.text.size() - behind.size() - sign.size(), withSign(sign, size))};
}

} // namespace

TypedIon readIon(std::string_view marked)
{
    Placed placed = Placer(withoutState(marked)).place();
    removeOuterBrackets(placed);
    TypedIon ion = {};
    ion.hasSign = placed.text.find_first_of(signs) != std::string::npos;
    ion.hasRaised = placed.places.find(raised) != std::string::npos;
    for (IonReading& one : allReadings(placed)) {
        (one.agrees() ? ion.readings : ion.misplaced).push_back(std::move(one));
    }
    if (ion.readings.empty()) {
        ion.readings = ion.misplaced;
    }
    return ion;
}

std::string markedIon(std::string_view marked)
{
    const Placed placed = Placer(withoutState(marked)).place();
    std::string text;
    for (std::size_t i = 0; i < placed.text.size(); ++i) {
        text += placed.places[i] == ordinary ? "" : std::string(1, placed.places[i]);
        text += placed.text[i];
    }
    return text;
}

} // namespace lesson
