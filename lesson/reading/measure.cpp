#include "lesson/reading/measure.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <optional>

#include "lesson/marking/sentences.hpp"
#include "lesson/reading/number_text.hpp"
#include "lesson/reading/scan.hpp"
#include "lesson/reading/typed.hpp"
#include "lesson/reading/units.hpp"

// What is read:
//
//   answer    = [front] [sign] number [unit] [note] ["."]
//   front     = symbols, words and signs of equality; digits only as a part of a symbol: "c2",
//               "M(CuSO4·5H2O)"
//   note      = "(3 s.f.)", "to 3 significant figures", …; in brackets also before the unit
//
// Of a chain such as "c = n/V = 0.0456" that leaves the last part. Where two numbers stand, neither
// is taken.

namespace lesson
{

namespace
{

constexpr std::string_view leaveOutMinus = "Leave out the minus sign.";

std::string cannotRead(std::string_view part)
{
    return unreadable(part, "Type a number, such as 0.125.").sentence;
}

bool startsWithNumber(std::string_view text)
{
    for (const std::string_view point : {".", ",", "·"}) {
        if (take(text, point)) {
            break;
        }
    }
    return startsWithDigit(text);
}

// Where the number begins: at the first digits that are no part of a symbol, which they are behind
// a letter and within brackets behind one or around it, as in "c2", "c_{2}", "M(CuSO4·5H2O)" and
// "[Cu^2+]".
std::size_t numberStart(std::string_view plain)
{
    std::size_t openBrackets = 0;
    bool isInSymbol = false;
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const char character = plain[i];
        if (startsWithNumber(plain.substr(i)) && !isInSymbol && openBrackets == 0) {
            return i;
        }
        if (isOneOf(character, "([{")) {
            const bool isAround = character == '[' && startsWithLetter(plain.substr(i + 1));
            openBrackets += isInSymbol || isAround || openBrackets > 0 ? 1 : 0;
            isInSymbol = false;
        } else if (isOneOf(character, ")]}")) {
            openBrackets -= openBrackets > 0 ? 1 : 0;
            isInSymbol = true;
        } else if (!isOneOf(character, ".,*·")) {
            isInSymbol = isLetter(character) || isDigit(character) || character == '_';
        }
    }
    return std::string_view::npos;
}

std::string_view withoutAtTheEnd(std::string_view text, std::string_view characters)
{
    while (!text.empty() && isOneOf(text.back(), characters)) {
        text.remove_suffix(1);
    }
    return text;
}

bool endsWithEquality(std::string_view front)
{
    constexpr std::string_view signs[] = {"=", ":", "~", "≈", "≅", "≃", "∼", "(", "[", "∴"};
    return std::any_of(std::begin(signs), std::end(signs),
                       [front](std::string_view sign) { return endsWith(front, sign); });
}

// An arrow leads to the result: "c -> 0.0456", "=> 0.0456".
std::string_view withoutArrow(std::string_view front)
{
    const bool isArrow = endsWith(front, "->") || endsWith(front, "=>");
    return isArrow ? withoutAtTheEnd(front.substr(0, front.size() - 2), " -=") : front;
}

// Whether the number means the same without what stands in front of it and of its sign.
bool canBeSkipped(std::string_view typed, bool hasSign)
{
    const std::string_view front = withoutArrow(typed);
    if (front.empty()) {
        return true;
    }
    if (front.find_first_of("<>!?") != std::string_view::npos) {
        return false;
    }
    const char last = front.back();
    const bool endsWithWord = isLetter(last) || isDigit(last) || isOneOf(last, ")]}.");
    return endsWithEquality(front) || (endsWithWord && !hasSign);
}

// Whether a text behind a unit is the name or the formula of something: "acid", "of barium
// nitrate".
bool isSubstance(std::string_view text)
{
    const std::string_view first = text.substr(0, text.find(' '));
    if (first.empty() || first == "per" || unitOf(first).has_value()) {
        return false;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isWithinFormula = isOneOf(text[i], "0123456789.") && i > 0 && text[i - 1] != ' ';
        if (!isLetter(text[i]) && !isOneOf(text[i], " ()") && !isWithinFormula) {
            return false;
        }
    }
    return true;
}

// The unit at the front of a text where a substance follows; the whole text where none does. No
// unit is longer than a few words.
std::string_view unitBeforeSubstance(std::string_view text)
{
    constexpr std::size_t longest = 30;
    std::size_t blank = text.rfind(' ', longest);
    while (blank != std::string_view::npos && blank > 0) {
        const std::string_view front = text.substr(0, blank);
        if (unitOf(front).has_value() && isSubstance(text.substr(blank + 1))) {
            return front;
        }
        blank = text.rfind(' ', blank - 1);
    }
    return text;
}

// The unit without the substance: "g of NaCl" -> "g", "mL of hydrochloric acid" -> "mL".
std::string_view withoutSubstance(std::string_view unit, std::string_view formula)
{
    const std::string_view other = formula == "H2O" ? "water" : "";
    const std::string_view byFormula = withoutEnding(unit, formula);
    const std::string_view left =
        byFormula.size() < unit.size() ? byFormula : withoutEnding(unit, other);
    return left.size() < unit.size() ? withoutEnding(left, "of") : unitBeforeSubstance(unit);
}

// Without the blanks and letters of the ending; the whole text where it has another one.
std::string_view withoutWord(std::string_view text, std::string_view ending)
{
    return lowerCase(text.substr(text.size() - std::min(text.size(), ending.size()))) == ending
               ? withoutAtTheEnd(text.substr(0, text.size() - ending.size()), " ")
               : text;
}

// Without the count of figures at its end, a digit or a word; the whole text where there is none.
std::string_view withoutCount(std::string_view text)
{
    constexpr std::string_view counts[] = {"one", "two", "three", "four", "five", "six"};
    if (!text.empty() && isDigit(text.back())) {
        return text.substr(0, text.size() - 1);
    }
    for (const std::string_view count : counts) {
        const std::string_view left = withoutWord(text, count);
        if (left.size() < text.size()) {
            return left;
        }
    }
    return text;
}

// Without the figures that someone tells, "mol/L (3 s.f.)" -> "mol/L": they are counted anyway.
std::string_view withoutNote(std::string_view text)
{
    constexpr std::string_view words[] = {
        "s.f",
        "sf",
        "significant figures",
        "sig figs",
        "sig. figs",
        "sig fig",
        "sig. fig",
        "sig.figs",
        "sigfigs",
        "sigfig",
        "sig figures",
        "sig. figures",
        "figures",
        "d.p",
        "dp",
        "decimal places",
    };
    constexpr std::string_view leads[] = {"to", "correct", "rounded"};
    const std::string_view plain = withoutAtTheEnd(text, " .,;!?)]");
    for (const std::string_view word : words) {
        const std::string_view left = withoutWord(plain, word);
        std::string_view note = withoutCount(left);
        if (left.size() < plain.size() && note.size() < left.size()) {
            note = withoutAtTheEnd(note, " ");
            for (const std::string_view lead : leads) {
                note = withoutWord(note, lead);
            }
            return withoutAtTheEnd(note, " ,;([");
        }
    }
    return text;
}

// The same of a text that begins with the number, whose own digits no note takes: "0.145 3 s.f." ->
// "0.145", but "0.3 s.f." stays.
std::string_view withoutNoteApart(std::string_view text)
{
    const std::string_view left = withoutNote(text);
    const std::string_view note = text.substr(left.size());
    const bool isApart = !note.empty() && (isOneOf(note[0], " ([") || startsWith(note, ", "));
    return isApart ? left : text;
}

// The same where the note may stand in brackets between the number and the unit:
// "0.145 (3 s.f.) mol/L" -> "0.145 mol/L".
std::string withoutNotes(std::string_view text)
{
    const std::size_t close = text.find(')');
    const bool hasBrackets = text.find('(') < close && close != std::string_view::npos;
    const std::size_t length = hasBrackets ? close + 1 : text.size();
    const std::string_view left = withoutNoteApart(text.substr(0, length));
    const bool isNoted = hasBrackets && left.size() < length;
    return isNoted ? std::string(left).append(text.substr(length))
                   : std::string(withoutNoteApart(text));
}

// Whether it is the beginning of an exponent that could not be read.
bool isPowerOfTenPart(std::string_view text)
{
    return isOneOf(text[0], "eExX") && (text.size() == 1 || !isLetter(text[1]));
}

// Whether it might be a unit of something else rather than a part of a calculation.
bool looksLikeUnit(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" ([{"), text.size()));
    constexpr std::string_view signs[] = {"%", "‰", "°", "µ", "μ", "Å"};
    const bool isSign = std::any_of(std::begin(signs), std::end(signs),
                                    [text](auto sign) { return startsWith(text, sign); });
    if (text.empty() || !(isSign || isLetter(text[0])) || isPowerOfTenPart(text)) {
        return false;
    }
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (isOneOf(text[i], "=<>+,;:!?") || (isDigit(text[i]) && text[i - 1] == ' ')) {
            return false;
        }
    }
    return true;
}

// Brings a number to the asked unit; the sentence to the learner if the unit cannot be that of the
// answer.
std::string convert(NumberReading& reading, std::string_view behind, const Ask& ask)
{
    takeBlanks(behind);
    const std::string_view noted = withoutNote(withoutAtTheEnd(behind, " .,;!?"));
    const std::string_view unit = withoutSubstance(noted, ask.of);
    if (unit.find_first_not_of(" )]}") == std::string_view::npos) {
        return "";
    }
    const std::optional<Unit> typed = unitOf(unit);
    const std::optional<Unit> asked = unitOf(ask.unit);
    if (typed && asked && typed->measure == asked->measure) {
        reading.power = typed->power - asked->power;
        reading.unit = typed->printed;
        reading.number.place += reading.power;
        return "";
    }
    return typed || looksLikeUnit(unit) ? "The answer should be in " + ask.unit + "."
                                        : cannotRead(unit);
}

// Letters, and a stroke, that look like digits.
struct Misread {
    char letter;
    char digit;
    std::string_view sentence;
};

constexpr Misread misreads[] = {
    {'l', '1', "There is a small letter l where the digit 1 should be."},
    {'I', '1', "There is a large letter I where the digit 1 should be."},
    {'i', '1', "There is a small letter i where the digit 1 should be."},
    {'|', '1', "There is a stroke where the digit 1 should be."},
    {'O', '0', "There is a letter O where a zero should be."},
    {'o', '0', "There is a letter o where a zero should be."},
};

const Misread* misreadOf(char letter)
{
    const auto* const found =
        std::find_if(std::begin(misreads), std::end(misreads),
                     [letter](const Misread& misread) { return misread.letter == letter; });
    return found == std::end(misreads) ? nullptr : found;
}

// How long a number at the front would be if those letters were digits. A small l behind it is the
// litre.
std::size_t numberLength(std::string_view text)
{
    std::size_t length = 0;
    while (length < text.size() &&
           (isDigit(text[length]) || isOneOf(text[length], ".,") || misreadOf(text[length]))) {
        ++length;
    }
    return withoutAtTheEnd(text.substr(0, length), "l").size();
}

// The text with digits for such letters in every number, and what to say of the first of them;
// nothing to say where there is none.
struct Meant {
    std::string text;
    std::string_view sentence = {};
};

Meant withDigits(std::string_view plain)
{
    Meant meant = {std::string(plain)};
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const std::size_t end = i + numberLength(plain.substr(i));
        const bool isNumber = plain.substr(i, end - i).find_first_of("0123456789") < end - i;
        for (; isNumber && i < end; ++i) {
            if (const Misread* const misread = misreadOf(plain[i])) {
                meant.text[i] = misread->digit;
                meant.sentence = meant.sentence.empty() ? misread->sentence : meant.sentence;
            }
        }
        // The rest of a word is no number: "CO2".
        i = std::max(i, end);
        while (i < plain.size() && (isLetter(plain[i]) || isDigit(plain[i]))) {
            ++i;
        }
    }
    return meant;
}

NumberReading readAsTyped(std::string_view plain, const Ask& ask)
{
    if (plain.empty()) {
        return {{}, "Type a number, such as 0.125."};
    }
    const std::size_t start = numberStart(plain);
    if (start == std::string_view::npos) {
        return {{}, cannotRead(plain)};
    }
    const std::string_view inFront = withoutAtTheEnd(plain.substr(0, start), " ");
    const bool hasSign = endsWith(inFront, "-") || endsWith(inFront, "+");
    const std::string_view front =
        withoutAtTheEnd(inFront.substr(0, inFront.size() - (hasSign ? 1 : 0)), " ");
    if (!canBeSkipped(front, hasSign)) {
        return {{}, cannotRead(inFront)};
    }
    const std::string noted = withoutNotes(plain.substr(start));
    std::string_view rest = noted;
    const NumberText text = takeNumber(rest);
    NumberReading reading = {text.number, text.question};
    if (text.isQuotient) {
        reading.number.fewestFigures = ask.figures;
        reading.number.mostFigures = std::numeric_limits<std::int64_t>::max();
    }
    const std::string problem = convert(reading, rest, ask);
    if (!problem.empty()) {
        reading.problem = problem;
    }
    if (reading.problem.empty() && endsWith(inFront, "-")) {
        reading.problem = leaveOutMinus;
    }
    return reading;
}

} // namespace

NumberReading readNumber(std::string_view plain, const Ask& ask)
{
    NumberReading reading = readAsTyped(plain, ask);
    if (reading.problem.empty()) {
        return reading;
    }
    const Meant meant = withDigits(plain);
    if (meant.sentence.empty()) {
        return reading;
    }
    const std::string left = readAsTyped(meant.text, ask).problem;
    if (left.empty() || left == leaveOutMinus) {
        reading.problem = meant.sentence;
    }
    return reading;
}

} // namespace lesson
