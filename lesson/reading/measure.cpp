#include "lesson/reading/measure.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>

#include "lesson/reading/figures_note.hpp"
#include "lesson/reading/lookalike_digits.hpp"
#include "lesson/reading/unit_and_substance.hpp"
#include "lesson/reading/units.hpp"
#include "lesson/text/scan.hpp"

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

TypedMeasure problem(NumberProblem what, std::string_view part = "")
{
    TypedMeasure measure;
    measure.problem = what;
    measure.part = part;
    return measure;
}

// Brings a number to the asked unit, or notes that its own cannot be that of the answer.
void convert(TypedMeasure& measure, std::string_view behind, const AskedMeasure& asked)
{
    takeBlanks(behind);
    const std::string_view noted = withoutNote(withoutAtTheEnd(behind, " .,;!?"));
    const std::string_view unit = withoutSubstance(noted, asked.of);
    if (unit.find_first_not_of(" )]}") == std::string_view::npos) {
        return;
    }
    const std::optional<Unit> typed = unitOf(unit);
    const std::optional<Unit> right = unitOf(asked.unit);
    if (typed && right && typed->dimension == right->dimension) {
        measure.power = typed->power - right->power;
        measure.unit = typed->printed;
        measure.number.place += measure.power;
    } else if (typed || looksLikeUnit(unit)) {
        measure.problem = NumberProblem::otherUnit;
    } else {
        measure.problem = NumberProblem::unread;
        measure.part = unit;
    }
}

TypedMeasure readBehind(std::string_view text, const AskedMeasure& asked, const Writing& writing)
{
    const std::string noted = withoutNotes(text);
    std::string_view rest = noted;
    TypedMeasure measure;
    measure.text = takeNumber(rest, writing);
    measure.number = measure.text.number;
    convert(measure, rest, asked);
    if (measure.problem == NumberProblem::none && measure.text.isAmbiguous) {
        measure.problem = NumberProblem::pointOrComma;
        measure.part = measure.text.text;
    }
    return measure;
}

TypedMeasure readAsTyped(std::string_view plain, const AskedMeasure& asked, const Writing& writing)
{
    if (plain.empty()) {
        return problem(NumberProblem::nothingTyped);
    }
    const std::size_t start = numberStart(plain);
    if (start == std::string_view::npos) {
        return problem(NumberProblem::unread, plain);
    }
    const std::string_view inFront = withoutAtTheEnd(plain.substr(0, start), " ");
    const bool hasSign = endsWith(inFront, "-") || endsWith(inFront, "+");
    const std::string_view front =
        withoutAtTheEnd(inFront.substr(0, inFront.size() - (hasSign ? 1 : 0)), " ");
    if (!canBeSkipped(front, hasSign)) {
        return problem(NumberProblem::unread, inFront);
    }
    TypedMeasure measure = readBehind(plain.substr(start), asked, writing);
    if (measure.problem == NumberProblem::none && endsWith(inFront, "-")) {
        measure.problem = NumberProblem::minus;
    }
    return measure;
}

} // namespace

TypedMeasure readMeasure(std::string_view plain, const AskedMeasure& asked, const Writing& writing)
{
    TypedMeasure measure = readAsTyped(plain, asked, writing);
    if (measure.problem == NumberProblem::none) {
        return measure;
    }
    const MeantDigits meant = withDigits(plain);
    if (meant.letter.empty()) {
        return measure;
    }
    const NumberProblem left = readAsTyped(meant.text, asked, writing).problem;
    if (left == NumberProblem::none || left == NumberProblem::minus) {
        measure.problem = NumberProblem::letterForDigit;
        measure.part = meant.letter;
    }
    return measure;
}

} // namespace lesson
