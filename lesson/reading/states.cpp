#include "lesson/reading/states.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>

#include "lesson/text/scan.hpp"
#include "lesson/words/language.hpp"

namespace lesson
{

namespace
{

// Behind a formula; the last one is an arrow that points up.
constexpr Spelling signs[] = {{"↓", "s"}, {"↑", "g"}, {" ^", "g"}};
constexpr Spelling symbols[] = {{"s", "s"}, {"l", "l"}, {"g", "g"}, {"aq", "aq"}};

std::string_view takeSign(std::string_view& formula)
{
    const auto* const sign =
        std::find_if(std::begin(signs), std::end(signs), [&formula](const Spelling& spelling) {
            return takeEnd(formula, spelling.typed);
        });
    return sign == std::end(signs) ? "" : sign->plain;
}

struct Brackets {
    std::string_view opening;
    std::string_view closing;
};

// What stands in the last of these brackets, where that is the end; else empty.
std::string_view inside(std::string_view formula, const Brackets& brackets)
{
    const std::size_t begin = formula.rfind(brackets.opening);
    if (!endsWith(formula, brackets.closing) || begin == std::string_view::npos) {
        return "";
    }
    const std::string_view behind = formula.substr(begin + brackets.opening.size());
    return behind.substr(0, behind.size() - std::min(brackets.closing.size(), behind.size()));
}

std::string_view without(std::string_view formula, std::string_view typed, const Brackets& brackets)
{
    formula.remove_suffix(typed.size() + brackets.closing.size());
    takeEnd(formula, brackets.opening);
    return formula;
}

constexpr Brackets curly = {"{", "}"};
constexpr Brackets rounded = {"(", ")"};
constexpr Brackets blank = {" ", ""};

} // namespace

std::string_view stateIn(std::string_view brackets)
{
    brackets = trimmed(brackets);
    if (startsWith(brackets, "(") && takeEnd(brackets, ")")) { // "_{(aq)}"
        brackets = trimmed(brackets.substr(1));
    }
    const std::string lower = lowerCase(brackets);
    const std::string_view symbol = plainOf(symbols, lower);
    return symbol.empty() ? plainOf(&TypedWords::states, lower) : symbol;
}

std::string_view takeState(std::string_view& formula)
{
    const std::string_view sign = takeSign(formula);
    if (!sign.empty()) {
        return sign;
    }
    for (const Brackets& brackets : {curly, rounded, blank}) {
        const std::string_view typed = inside(formula, brackets);
        // "Na2 S" has a sulfur, and no state.
        const bool mayBeSymbol = brackets.closing.empty() && typed != lowerCase(typed);
        const std::string_view state = mayBeSymbol ? "" : stateIn(typed);
        if (!state.empty()) {
            formula = trimmed(without(formula, typed, brackets));
            takeEnd(formula, "_");
            return state;
        }
    }
    return "";
}

std::string_view takeSymbolOfState(std::string_view& formula)
{
    std::string_view left = formula;
    const bool isInBraces = takeEnd(left, "}"); // "NaCl_{(s)}"
    std::string_view state = takeEnd(left, "↓") ? "s" : takeEnd(left, "↑") ? "g" : "";
    if (state.empty()) {
        const std::string_view typed = inside(left, rounded);
        state = typed == "S" ? "" : plainOf(symbols, lowerCase(typed));
        left = state.empty() ? left : without(left, typed, rounded);
    }
    if (state.empty() || (isInBraces && !takeEnd(left, "{"))) {
        return "";
    }
    takeEnd(left, "_");
    formula = left;
    return state;
}

std::string_view withoutFullStop(std::string_view formula)
{
    return takeEnd(formula, ".") ? formula : withoutAtTheEnd(formula, " ");
}

std::string_view withoutState(std::string_view formula)
{
    formula = withoutFullStop(formula);
    takeSymbolOfState(formula);
    return formula;
}

} // namespace lesson
