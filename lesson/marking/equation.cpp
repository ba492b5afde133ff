#include "lesson/marking/equation.hpp"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "lesson/chemistry/elements.hpp"
#include "lesson/marking/equation_coefficients.hpp"
#include "lesson/marking/equation_extras.hpp"
#include "lesson/marking/equation_unread.hpp"
#include "lesson/marking/marks.hpp"
#include "lesson/reading/formula_spelling.hpp"
#include "lesson/reading/typed.hpp"

namespace lesson
{

namespace
{

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

std::optional<Mark> markHalfWay(const TypedEquation& typed, const std::vector<Extra>& extras)
{
    constexpr std::pair<Mistake, Sentence> truths[] = {
        {Mistake::acidSalt, Sentence::markLessBase},
        {Mistake::halfCarbonate, Sentence::markLessAcid},
    };
    for (const auto& [mistake, sentence] : truths) {
        if (const Extra* const extra = firstOf(extras, mistake)) {
            return isTrueHalfWay(typed, extras) ? markOf(Verdict::slip, sentence) : slipOf(*extra);
        }
    }
    return std::nullopt;
}

// Whether acid and base stand where the products belong, and these where they do.
bool isBackwards(const TypedEquation& typed, const Roles& roles)
{
    TypedEquation turned = typed;
    std::swap(turned.left, turned.right);
    return hasRightSubstances(assigned(turned, roles, false));
}

// The substances are not the right ones.
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
    if (const std::optional<Mark> halfWay = markHalfWay(typed, extras)) {
        return *halfWay;
    }
    return extras.empty() ? markOf(Verdict::wrong, Sentence::markNotYet)
                          : markOfWrong(extras.front());
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
