#include "lesson/export/spelt.hpp"

#include <cstddef>
#include <iterator>

#include "lesson/text/scan.hpp"

namespace lesson
{

namespace
{

using Texts = std::vector<std::string>;

constexpr std::string_view lowDigits[] = {"₀", "₁", "₂", "₃", "₄", "₅", "₆", "₇", "₈", "₉"};
constexpr std::string_view highDigits[] = {"⁰", "¹", "²", "³", "⁴", "⁵", "⁶", "⁷", "⁸", "⁹"};

// "SO4" -> "SO₄"
std::string withLowDigits(std::string_view formula)
{
    std::string text;
    for (const char c : formula) {
        text += isDigit(c) ? lowDigits[c - '0'] : std::string_view(&c, 1);
    }
    return text;
}

// "Al2(SO4)3" -> "Al_2(SO_4)_3", or with brackets "Al_{2}(SO_{4})_{3}"
std::string withUnderscores(std::string_view formula, bool hasBrackets)
{
    std::string text;
    for (std::size_t i = 0; i < formula.size(); ++i) {
        const bool begins = isDigit(formula[i]) && (i == 0 || !isDigit(formula[i - 1]));
        const bool ends =
            isDigit(formula[i]) && (i + 1 == formula.size() || !isDigit(formula[i + 1]));
        text += begins ? (hasBrackets ? "_{" : "_") : "";
        text += formula[i];
        text += ends && hasBrackets ? "}" : "";
    }
    return text;
}

// A charge: its size, which may be left out where it is 1, and its sign.
struct Charge {
    std::string size;
    char sign;
};

Charge chargeIn(std::string_view plain)
{
    return {std::string(plain.substr(0, plain.size() - 1)), plain.back()};
}

// How charges are typed: n stands for the size, s for the sign. The usual ways come first.
constexpr std::string_view chargePatterns[] = {
    "^ns", "ns", "^{ns}", " ns", "sn", "^sn", "^{sn}", "(ns)",
};
constexpr std::size_t usualPatterns = 2;

std::string filled(std::string_view pattern, std::string_view size, std::string_view sign)
{
    std::string text;
    for (const char c : pattern) {
        text += c == 'n' ? size : c == 's' ? sign : std::string_view(&c, 1);
    }
    return text;
}

std::string raised(const Charge& charge)
{
    std::string text;
    for (const char digit : charge.size) {
        text += highDigits[digit - '0'];
    }
    return text + (charge.sign == '-' ? "⁻" : "⁺");
}

void addPatterns(Texts& texts, const Charge& charge, std::string_view sign, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        texts.push_back(filled(chargePatterns[i], charge.size, sign));
    }
}

// "2-" -> "^2-", "2-", "²⁻"
Texts usualCharges(const Charge& charge)
{
    Texts texts;
    addPatterns(texts, charge, std::string_view(&charge.sign, 1), usualPatterns);
    texts.push_back(raised(charge));
    return texts;
}

// With a 1 written, two signs for a charge of 2, and the real minus sign.
Texts allCharges(const Charge& charge)
{
    Texts texts = usualCharges(charge);
    const std::string sign(1, charge.sign);
    addPatterns(texts, charge, sign, std::size(chargePatterns));
    if (charge.size.empty()) {
        addPatterns(texts, {"1", charge.sign}, sign, std::size(chargePatterns));
    } else {
        texts.emplace_back(static_cast<std::size_t>(charge.size[0] - '0'), charge.sign);
    }
    if (charge.sign == '-') {
        addPatterns(texts, charge, "−", usualPatterns);
    }
    return texts;
}

void addEach(Texts& texts, const std::string& formula, const Texts& charges)
{
    for (const std::string& charge : charges) {
        texts.push_back(formula + charge);
    }
}

} // namespace

Texts usualSpellings(std::string_view text)
{
    const std::size_t place = text.find('^');
    const std::string plain(text.substr(0, place));
    if (place == std::string_view::npos) {
        return {plain, withLowDigits(plain)};
    }
    Texts texts;
    const Texts charges = usualCharges(chargeIn(text.substr(place + 1)));
    addEach(texts, plain, charges);
    addEach(texts, withLowDigits(plain), charges);
    return texts;
}

Texts rareSpellings(std::string_view text)
{
    const std::size_t place = text.find('^');
    const std::string plain(text.substr(0, place));
    const std::string low = withUnderscores(plain, false);
    const std::string lowInBrackets = withUnderscores(plain, true);
    if (place == std::string_view::npos) {
        return {low, lowInBrackets};
    }
    const Charge charge = chargeIn(text.substr(place + 1));
    Texts texts;
    addEach(texts, plain, allCharges(charge));
    addEach(texts, low, allCharges(charge));
    addEach(texts, lowInBrackets, allCharges(charge));
    return texts;
}

std::vector<std::string> withLoweredCharge(std::string_view ion)
{
    const std::size_t place = ion.find('^');
    if (place == std::string_view::npos) {
        return {};
    }
    const Charge charge = chargeIn(ion.substr(place + 1));
    if (charge.size.empty()) {
        return {};
    }
    const std::string_view plain = ion.substr(0, place);
    const std::string below = withUnderscores(plain, false) + "_" + charge.size;
    return {withLowDigits(plain) + withLowDigits(charge.size) + raised({"", charge.sign}),
            below + "^" + charge.sign, below + charge.sign};
}

} // namespace lesson
