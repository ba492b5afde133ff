#include "lesson/marking/equation.hpp"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "lesson/chemistry/elements.hpp"
#include "lesson/marking/equation_extras.hpp"
#include "lesson/marking/equation_roles.hpp"
#include "lesson/marking/ions_by_atoms.hpp"
#include "lesson/marking/marks.hpp"
#include "lesson/numbers/decimal.hpp"
#include "lesson/reading/equation.hpp"
#include "lesson/reading/formula.hpp"
#include "lesson/reading/formula_spelling.hpp"
#include "lesson/reading/lookalikes.hpp"
#include "lesson/reading/names.hpp"
#include "lesson/reading/typed.hpp"
#include "lesson/text/quotable.hpp"

namespace lesson
{

namespace
{

// ---- The substances are not the right ones

bool standsFor(const std::vector<Extra>& extras, const Role& role)
{
    return std::any_of(extras.begin(), extras.end(),
                       [&role](const Extra& extra) { return extra.meant == &role; });
}

// How many of water and carbon dioxide are all that is missing, however acid, base and salt are
// spelt; 0 where something else is there or is not there.
int forgottenProducts(const Roles& roles, const Assignment& assignment,
                      const std::vector<Extra>& extras)
{
    int forgotten = 0;
    for (std::size_t i = 0; i < roles.size(); ++i) {
        if (!isMissing(assignment, i) || standsFor(extras, roles[i])) {
            continue;
        }
        if (roles[i].kind != SpeciesKind::molecule) {
            return 0;
        }
        ++forgotten;
    }
    const bool areAllExplained = std::all_of(
        extras.begin(), extras.end(), [](const Extra& extra) { return extra.meant != nullptr; });
    return areAllExplained ? forgotten : 0;
}

Mark markOfWrong(const Extra& extra)
{
    return markOf(Verdict::wrong, say(extra.typed.isOnTheLeft ? Sentence::markDoesNotReact
                                                              : Sentence::markDoesNotForm,
                                      typedFormula(*extra.typed.term)));
}

// How often an element is there on a side; none where that is beyond all range.
std::optional<Ratio> countOnSide(const std::vector<TypedTerm>& side, int element)
{
    constexpr int mostAtoms = 1000000;
    constexpr std::int64_t mostCounted = 1000000000;
    constexpr std::int64_t greatestDenominator = 10000;
    Ratio sum = ratio(0);
    for (const TypedTerm& term : side) {
        const int atoms = countOf(term.formula.atoms, element);
        if (atoms > mostAtoms) {
            return std::nullopt;
        }
        sum = sum + term.coefficient * ratio(atoms);
        if (sum.numerator > mostCounted || sum.denominator > greatestDenominator) {
            return std::nullopt;
        }
    }
    return sum;
}

bool isBalanced(const TypedEquation& typed)
{
    for (int element = 1; element <= elementCount; ++element) {
        const std::optional<Ratio> left = countOnSide(typed.left, element);
        if (!left.has_value() || left != countOnSide(typed.right, element)) {
            return false;
        }
    }
    return true;
}

const Extra* firstOf(const std::vector<Extra>& extras, Mistake mistake)
{
    const auto found = std::find_if(extras.begin(), extras.end(), [mistake](const Extra& extra) {
        return extra.mistake == mistake;
    });
    return found == extras.end() ? nullptr : &*found;
}

Mark slipOf(const Extra& extra)
{
    return {Verdict::slip, extra.sentence};
}

bool isHalfWay(const Extra& extra)
{
    return extra.mistake == Mistake::acidSalt || extra.mistake == Mistake::halfCarbonate;
}

// Whether it is an equation of less base or less acid, and true as that; what is left by less base
// and what is left by less acid react with each other.
bool isTrueHalfWay(const TypedEquation& typed, const std::vector<Extra>& extras)
{
    return std::all_of(extras.begin(), extras.end(), isHalfWay) && isBalanced(typed) &&
           (firstOf(extras, Mistake::acidSalt) == nullptr ||
            firstOf(extras, Mistake::halfCarbonate) == nullptr);
}

// Whether acid and base stand where the products belong, and these where they do.
bool isBackwards(const TypedEquation& typed, const Roles& roles)
{
    TypedEquation turned = typed;
    std::swap(turned.left, turned.right);
    return hasRightSubstances(assigned(turned, roles, false));
}

Mark markSubstances(const TypedEquation& typed, const Roles& roles, const Assignment& assignment)
{
    if (isBackwards(typed, roles)) {
        return markOf(Verdict::slip, Sentence::markArrowTurned);
    }
    const std::vector<Extra> extras = explainedExtras(roles, assignment);
    if (const Extra* const extra = firstOf(extras, Mistake::ammoniaAndWater)) {
        return {Verdict::unreadable, extra->sentence};
    }
    for (const Mistake mistake :
         {Mistake::carbonicAcid, Mistake::hydrogenGas, Mistake::otherSubstance}) {
        if (const Extra* const extra = firstOf(extras, mistake)) {
            return slipOf(*extra);
        }
    }
    const int forgotten = forgottenProducts(roles, assignment, extras);
    if (forgotten > 0) {
        return markOf(Verdict::slip, forgotten == 1 ? Sentence::markOneMoreProduct
                                                    : Sentence::markTwoMoreProducts);
    }
    if (const Extra* const extra = firstOf(extras, Mistake::misspelt)) {
        return slipOf(*extra);
    }
    for (const Mistake mistake : {Mistake::acidSalt, Mistake::halfCarbonate}) {
        if (const Extra* const extra = firstOf(extras, mistake)) {
            const bool isAcidSalt = mistake == Mistake::acidSalt;
            return !isTrueHalfWay(typed, extras)
                       ? slipOf(*extra)
                       : markOf(Verdict::slip,
                                isAcidSalt ? Sentence::markLessBase : Sentence::markLessAcid);
        }
    }
    return extras.empty() ? markOf(Verdict::wrong, Sentence::markNotYet)
                          : markOfWrong(extras.front());
}

// ---- The coefficients are not the right ones

Ratio atomsOnSide(const Roles& roles, const Assignment& assignment, bool isOnTheLeft, int element)
{
    Ratio sum = ratio(0);
    for (std::size_t i = 0; i < roles.size(); ++i) {
        if (roles[i].isOnTheLeft == isOnTheLeft) {
            sum = sum + assignment.amounts[i] * ratio(countOf(roles[i].atoms, element));
        }
    }
    return sum;
}

// 5, 2.5, 5/3
Spans counted(Ratio count)
{
    constexpr std::int64_t mostDecimals = 10000;
    if (mostDecimals % count.denominator == 0) {
        return {number(exactText(count))};
    }
    return line(number(std::to_string(count.numerator)), "/",
                number(std::to_string(count.denominator)));
}

// In the order in which one balances: the metal, what the salt has besides, carbon, and hydrogen
// and oxygen last.
std::vector<int> elementsToCount(const Roles& roles)
{
    const Role& salt = saltOf(roles);
    std::vector<int> elements;
    for (const std::string_view formula : {salt.cation->formula, salt.anion->formula}) {
        for (const AtomCount& atom : atomsOf(formula)) {
            if (atom.element != elements::hydrogen && atom.element != elements::oxygen) {
                elements.push_back(atom.element);
            }
        }
    }
    elements.insert(elements.end(), {elements::carbon, elements::hydrogen, elements::oxygen});
    return elements;
}

// The substances are right, their coefficients are not.
Mark markUnbalanced(const TypedEquation& typed, const Roles& roles, const Assignment& assignment)
{
    for (const int atomicNumber : elementsToCount(roles)) {
        Ratio left = atomsOnSide(roles, assignment, true, atomicNumber);
        Ratio right = atomsOnSide(roles, assignment, false, atomicNumber);
        if (left != right) {
            if (typed.arrow == Arrow::toTheLeft) {
                std::swap(left, right);
            }
            return markOf(Verdict::slip,
                          say<Sentence::markCountAtoms>(nameOf(element(atomicNumber)),
                                                        counted(left), counted(right)));
        }
    }
    return markOf(Verdict::wrong, Sentence::markNotYet); // GCOVR_EXCL_LINE: some element differs
}

Mark markCoefficients(const TypedEquation& typed, const Roles& roles, const Assignment& assignment)
{
    const std::optional<Ratio> times = multiplier(assignment, roles);
    if (!times.has_value()) {
        return markUnbalanced(typed, roles, assignment);
    }
    if (*times != ratio(1)) {
        return markOf(Verdict::slip, Sentence::markSmallestNumbers);
    }
    if (assignment.wrongState != nullptr) {
        return markOf(Verdict::slip,
                      say<Sentence::markState>(typedFormula(*assignment.wrongState)));
    }
    if (typed.arrow == Arrow::twoWay) {
        return markOf(Verdict::correct, Sentence::markOneWayArrow);
    }
    return markOf(Verdict::correct, Sentence::markCorrect);
}

// ---- What cannot be read

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

} // namespace

Mark markEquation(const EquationAnswer& answer, std::string_view typed)
{
    const std::string plain = spelledOut(plainTyped(typed));
    if (plain.empty()) {
        return markOf(Verdict::unreadable, Sentence::markTypeEquation);
    }
    const TypedEquation equation = readEquation(plain);
    const Roles roles = rolesOf(answer);
    const Assignment assignment = assigned(equation, roles, false);
    if (!hasRightSubstances(assignment) &&
        isRight(equation, assigned(equation, roles, true), roles)) {
        return markOf(Verdict::slip, Sentence::markCapitals);
    }
    if (!equation.unread.empty()) {
        return markUnread(equation, plain, roles);
    }
    if (equation.arrow == Arrow::none) {
        return markOf(Verdict::unreadable, Sentence::markPutArrow);
    }
    if (assignment.tooMany != nullptr) {
        return unreadable(assignment.tooMany->text, Sentence::markTypeEquation);
    }
    return hasRightSubstances(assignment) ? markCoefficients(equation, roles, assignment)
                                          : markSubstances(equation, roles, assignment);
}

} // namespace lesson
