#include "lesson/marking/equation_coefficients.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "lesson/chemistry/elements.hpp"
#include "lesson/marking/equation_extras.hpp"
#include "lesson/marking/ions_by_atoms.hpp"
#include "lesson/marking/marks.hpp"
#include "lesson/numbers/decimal.hpp"

namespace lesson
{

namespace
{

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

} // namespace

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

} // namespace lesson
