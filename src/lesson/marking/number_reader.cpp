#include "lesson/marking/number_reader.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>

#include "lesson/marking/characters.hpp"
#include "lesson/marking/typed.hpp"
#include "lesson/marking/units.hpp"

// What is read, from the front:
//
//   answer    = [front] [sign] (number | "10" power) ["."] [unit]
//   front     = symbols, words and signs of equality; digits only as a part of a symbol: "c2",
//               "M(CuSO4·5H2O)"
//   number    = (whole [point [fraction]] | point fraction) [exponent]
//   whole     = digits, or groups of three with blanks or commas between them
//   point     = "." or one ","
//   fraction  = digits, perhaps in groups of three with blanks between them
//   exponent  = "e" [sign] digits | times "10" (power | sign digits)
//   power     = ("^" | "**") [bracket] [sign] digits [bracket]
//   times     = "x" | "×" | "*" | "·"
//
// Of a chain such as "c = n/V = 0.0456" that leaves the last part. Where two numbers stand, neither
// is taken. A comma between groups of three is left to the learner, unless something settles what
// it means.

namespace lesson
{

namespace
{

bool startsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

bool take(std::string_view& rest, std::string_view expected)
{
    const bool isThere = startsWith(rest, expected);
    rest.remove_prefix(isThere ? expected.size() : 0);
    return isThere;
}

void takeBlanks(std::string_view& rest)
{
    while (take(rest, " ")) {
    }
}

std::string_view digitsAtFront(std::string_view text)
{
    std::size_t length = 0;
    while (length < text.size() && isDigit(text[length])) {
        ++length;
    }
    return text.substr(0, length);
}

std::string_view takeDigits(std::string_view& rest)
{
    const std::string_view digits = digitsAtFront(rest);
    rest.remove_prefix(digits.size());
    return digits;
}

bool startsWithDigit(std::string_view text)
{
    return !text.empty() && isDigit(text.front());
}

bool startsWithLetter(std::string_view text)
{
    return !text.empty() && isLetter(text.front());
}

// The digits of a number without its exponent.
struct Mantissa {
    std::string digits;
    std::size_t wholeDigits = 0; // how many of them stand before the point
    bool hasPoint = false;
    bool isAmbiguous = false; // its comma might be a point or stand before thousands
};

// A group of three digits behind a separator, which is taken too; nothing where there is none.
std::string_view takeGroup(std::string_view& rest, std::string_view separator)
{
    std::string_view behind = rest;
    if (!take(behind, separator) || digitsAtFront(behind).size() != 3) {
        return {};
    }
    const std::string_view group = takeDigits(behind);
    rest = behind;
    return group;
}

std::string takeGroups(std::string_view& rest, std::string_view separator)
{
    std::string digits;
    std::string_view group = takeGroup(rest, separator);
    while (!group.empty()) {
        digits += group;
        group = takeGroup(rest, separator);
    }
    return digits;
}

// One comma is a point; several, or one before a point, stand between thousands.
std::string takeCommaGroups(std::string_view& rest)
{
    std::string_view behind = rest;
    std::string digits = takeGroups(behind, ",");
    const bool hasFraction = startsWith(behind, ".") && startsWithDigit(behind.substr(1));
    if (digits.size() <= 3 && !hasFraction) {
        return {};
    }
    rest = behind;
    return digits;
}

std::string takeFraction(std::string_view& rest)
{
    std::string digits(takeDigits(rest));
    while (!digits.empty() && digits.size() % 3 == 0 && startsWith(rest, " ")) {
        const std::string_view group = digitsAtFront(rest.substr(1));
        if (group.empty() || group.size() > 3) {
            break;
        }
        digits += group;
        rest.remove_prefix(1 + group.size());
    }
    return digits;
}

// Of a text that begins with a digit, or with a point or comma and a digit.
Mantissa takeMantissa(std::string_view& rest)
{
    Mantissa mantissa;
    mantissa.digits = takeDigits(rest);
    bool hasThousandsCommas = false;
    if (!mantissa.digits.empty() && mantissa.digits.size() <= 3 && mantissa.digits[0] != '0') {
        const std::string groups = takeCommaGroups(rest);
        hasThousandsCommas = !groups.empty();
        mantissa.digits += hasThousandsCommas ? groups : takeGroups(rest, " ");
    }
    mantissa.wholeDigits = mantissa.digits.size();
    const bool isComma =
        !hasThousandsCommas && startsWith(rest, ",") && startsWithDigit(rest.substr(1));
    mantissa.hasPoint = take(rest, isComma ? "," : ".");
    if (!mantissa.hasPoint) {
        return mantissa;
    }
    const std::string fraction = takeFraction(rest);
    const bool mayBeThousands =
        mantissa.wholeDigits <= 3 && mantissa.digits.find_first_not_of('0') != std::string::npos;
    mantissa.isAmbiguous = isComma && mayBeThousands && fraction.size() == 3;
    mantissa.digits += fraction;
    return mantissa;
}

// Far beyond any number that is typed, and far from an overflow.
constexpr std::int64_t greatestExponent = 1'000'000'000'000'000;

std::optional<std::int64_t> takeInteger(std::string_view& rest)
{
    std::string_view behind = rest;
    const bool isNegative = take(behind, "-");
    if (!isNegative) {
        take(behind, "+");
    }
    takeBlanks(behind);
    const std::string_view digits = takeDigits(behind);
    if (digits.empty()) {
        return std::nullopt;
    }
    std::int64_t value = 0;
    for (const char digit : digits) {
        value = std::min(value * 10 + (digit - '0'), greatestExponent);
    }
    rest = behind;
    return isNegative ? -value : value;
}

// "^-2", "**(-2)", …
std::optional<std::int64_t> takePower(std::string_view& rest)
{
    std::string_view behind = rest;
    takeBlanks(behind);
    if (!take(behind, "^") && !take(behind, "**")) {
        return std::nullopt;
    }
    takeBlanks(behind);
    const bool hasBracket = take(behind, "(") || take(behind, "{");
    const std::optional<std::int64_t> power = takeInteger(behind);
    if (!power || (hasBracket && !take(behind, ")") && !take(behind, "}"))) {
        return std::nullopt;
    }
    rest = behind;
    return power;
}

// "e-2"
std::optional<std::int64_t> takeLetterExponent(std::string_view& rest)
{
    std::string_view behind = rest;
    takeBlanks(behind);
    if (!take(behind, "e") && !take(behind, "E")) {
        return std::nullopt;
    }
    takeBlanks(behind);
    const std::optional<std::int64_t> exponent = takeInteger(behind);
    rest = exponent ? behind : rest;
    return exponent;
}

bool takeTimes(std::string_view& rest)
{
    constexpr std::string_view signs[] = {"x", "X", "×", "*", "·"};
    return std::any_of(std::begin(signs), std::end(signs),
                       [&rest](std::string_view sign) { return take(rest, sign); });
}

// "×10^-2", "x 10-2"; without a "^" a sign has to show that 102 is not meant.
std::optional<std::int64_t> takePowerOfTen(std::string_view& rest)
{
    std::string_view behind = rest;
    takeBlanks(behind);
    if (!takeTimes(behind)) {
        return std::nullopt;
    }
    takeBlanks(behind);
    if (!take(behind, "10")) {
        return std::nullopt;
    }
    std::optional<std::int64_t> power = takePower(behind);
    if (!power) {
        takeBlanks(behind);
        const bool hasSign = startsWith(behind, "-") || startsWith(behind, "+");
        power = hasSign ? takeInteger(behind) : std::nullopt;
    }
    rest = power ? behind : rest;
    return power;
}

std::optional<std::int64_t> takeExponent(std::string_view& rest)
{
    const std::optional<std::int64_t> exponent = takeLetterExponent(rest);
    return exponent ? exponent : takePowerOfTen(rest);
}

TypedNumber numberOf(const Mantissa& mantissa, std::int64_t exponent)
{
    TypedNumber number;
    const std::size_t first = mantissa.digits.find_first_not_of('0');
    if (first == std::string::npos) {
        return number;
    }
    number.digits = mantissa.digits.substr(first);
    number.mostFigures = static_cast<std::int64_t>(number.digits.size());
    number.digits.erase(number.digits.find_last_not_of('0') + 1);
    number.fewestFigures =
        mantissa.hasPoint ? number.mostFigures : static_cast<std::int64_t>(number.digits.size());
    number.place = static_cast<std::int64_t>(mantissa.wholeDigits) - 1 -
                   static_cast<std::int64_t>(first) + exponent;
    return number;
}

std::string cannotRead(std::string_view part)
{
    return "I can't read this part: '" + quotable(part) + "'";
}

std::string askBack(const Mantissa& mantissa)
{
    const std::string whole = mantissa.digits.substr(0, mantissa.wholeDigits);
    const std::string fraction = mantissa.digits.substr(mantissa.wholeDigits);
    return "Do you mean " + whole + fraction + " or " + whole + "." + fraction + "?";
}

// Text that begins with a number.
NumberReading takeNumber(std::string_view& rest)
{
    std::string_view behindTen = rest;
    if (take(behindTen, "10")) {
        const std::optional<std::int64_t> power = takePower(behindTen);
        if (power) {
            rest = behindTen;
            return {numberOf({"1", 1, false, false}, *power), ""};
        }
    }
    const Mantissa mantissa = takeMantissa(rest);
    const std::optional<std::int64_t> exponent = takeExponent(rest);
    if (mantissa.isAmbiguous && !exponent) {
        return {{}, askBack(mantissa)};
    }
    return {numberOf(mantissa, exponent.value_or(0)), ""};
}

bool isOneOf(char character, std::string_view characters)
{
    return characters.find(character) != std::string_view::npos;
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
        const bool begins = isDigit(character) ||
                            (isOneOf(character, ".,") && startsWithDigit(plain.substr(i + 1)));
        if (begins && !isInSymbol && openBrackets == 0) {
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
    return text.substr(0, text.find_last_not_of(characters) + 1);
}

bool endsWith(std::string_view text, std::string_view ending)
{
    return text.size() >= ending.size() && text.substr(text.size() - ending.size()) == ending;
}

bool endsWithEquality(std::string_view front)
{
    constexpr std::string_view signs[] = {"=", ":", "~", "≈", "≅", "≃", "∼", "～", "(", "["};
    return std::any_of(std::begin(signs), std::end(signs),
                       [front](std::string_view sign) { return endsWith(front, sign); });
}

// Whether the number means the same without what stands in front of it and of its sign.
bool canBeSkipped(std::string_view front, bool hasSign)
{
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

// The unit without the substance: "g of NaCl" -> "g".
std::string_view withoutSubstance(std::string_view unit, std::string_view formula)
{
    const std::string_view other = formula == "H2O" ? "water" : "";
    const std::string_view byFormula = withoutEnding(unit, formula);
    const std::string_view left =
        byFormula.size() < unit.size() ? byFormula : withoutEnding(unit, other);
    return left.size() < unit.size() ? withoutEnding(left, "of") : unit;
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
std::string convert(TypedNumber& number, std::string_view behind, const Ask& ask)
{
    takeBlanks(behind);
    const std::string_view unit = withoutSubstance(withoutAtTheEnd(behind, " .,;!?"), ask.of);
    if (unit.find_first_not_of(" )]}") == std::string_view::npos) {
        return "";
    }
    const std::optional<Unit> typed = unitOf(unit);
    const std::optional<Unit> asked = unitOf(ask.unit);
    if (typed && asked && typed->measure == asked->measure) {
        number.place += typed->power - asked->power;
        return "";
    }
    return typed || looksLikeUnit(unit) ? "The answer should be in " + ask.unit + "."
                                        : cannotRead(unit);
}

} // namespace

NumberReading readNumber(std::string_view plain, const Ask& ask)
{
    if (plain.empty()) {
        return {{}, "Type a number."};
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
    std::string_view rest = plain.substr(start);
    NumberReading reading = takeNumber(rest);
    reading.number.isNegative = endsWith(inFront, "-");
    const std::string problem = convert(reading.number, rest, ask);
    return problem.empty() ? reading : NumberReading{{}, problem};
}

} // namespace lesson
