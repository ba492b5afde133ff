#include "lesson/marking/equation_unread.hpp"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "lesson/marking/marks.hpp"
#include "lesson/reading/formula.hpp"
#include "lesson/reading/lookalikes.hpp"
#include "lesson/reading/names.hpp"
#include "lesson/text/quotable.hpp"

namespace lesson
{

namespace
{

using IsSuch = bool (*)(const TypedTerm&);

std::ptrdiff_t countTerms(const TypedEquation& typed, IsSuch isSuch)
{
    return std::count_if(typed.left.begin(), typed.left.end(), isSuch) +
           std::count_if(typed.right.begin(), typed.right.end(), isSuch);
}

bool isTypedName(const TypedTerm& term)
{
    return !term.unread.empty() && isName(term.text);
}

// The sign of a charge that was taken for a "+" or for the beginning of an arrow leaves its "^".
bool hasCharge(const TypedTerm& term)
{
    return (term.formula.isRead && term.formula.hasCharge) ||
           (!term.text.empty() && term.text.back() == '^');
}

// "CaCl2 - 2H2O"
bool hasMinusForPlus(const TypedTerm& term)
{
    const std::string_view text = term.text;
    const std::size_t minus = text.find('-');
    return minus != std::string_view::npos && isCompound(text.substr(0, minus)) &&
           isCompound(text.substr(minus + 1));
}

// The one term that is a name.
Mark markName(const TypedEquation& typed)
{
    const auto* const side =
        std::any_of(typed.left.begin(), typed.left.end(), isTypedName) ? &typed.left : &typed.right;
    const auto term = std::find_if(side->begin(), side->end(), isTypedName);
    return markOf(Verdict::unreadable, say<Sentence::markName>(quotable(term->text)));
}

} // namespace

Mark markUnread(const TypedEquation& typed, const std::string& plain, const Roles& roles)
{
    for (const Lookalike& other : lookalikesOf(plain)) {
        const TypedEquation meant = readEquation(other.meant);
        const Assignment assignment = assigned(meant, roles, false);
        if (meant.unread.empty() && hasRightSubstances(assignment)) {
            return markOf(isRight(meant, assignment, roles) ? Verdict::slip : Verdict::unreadable,
                          sentenceOf(other.mixup));
        }
    }
    if (hasRightSubstances(assigned(typed, roles, true))) {
        return markOf(Verdict::unreadable, Sentence::markCapitals);
    }
    if (typed.arrow != Arrow::none && countTerms(typed, hasMinusForPlus) > 0) {
        return markOf(Verdict::unreadable, Sentence::markPlusSigns);
    }
    const std::ptrdiff_t names = countTerms(typed, isTypedName);
    if (names > 1 || (names == 1 && typed.arrow == Arrow::none)) {
        return markOf(Verdict::unreadable, Sentence::markNames);
    }
    if (names == 1) {
        return markName(typed);
    }
    return countTerms(typed, hasCharge) > 0
               ? markOf(Verdict::unreadable, Sentence::markWholeFormulas)
               : unreadable(typed.unread, Sentence::markTypeEquation);
}

} // namespace lesson
