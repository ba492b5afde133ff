#include "lesson/reading/unit_and_substance.hpp"

#include <cstddef>

#include "lesson/reading/units.hpp"
#include "lesson/text/scan.hpp"

namespace lesson
{

namespace
{

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

} // namespace

std::string_view withoutSubstance(std::string_view unit, std::string_view formula)
{
    const std::string_view other = formula == "H2O" ? "water" : "";
    const std::string_view byFormula = withoutEnding(unit, formula);
    const std::string_view left =
        byFormula.size() < unit.size() ? byFormula : withoutEnding(unit, other);
    return left.size() < unit.size() ? withoutEnding(left, "of") : unitBeforeSubstance(unit);
}

} // namespace lesson
