#pragma once

#include <vector>

#include "lesson/numbers/decimal.hpp"
#include "lesson/numbers/ratio.hpp"

// Every order in which a learner may work an answer out. The factors are taken up one after
// another, beginning with any of them; what has come out is multiplied by the next one, divided by
// it, or the next one is divided by it. Each result on the way is rounded to three figures, or each
// to four, and a half goes up or down.
namespace lesson
{

// An answer as it is worked out: the factors above the line over those below it, and what is taken
// away from the quotient. All are as a prompt shows them, the factors above 0 and as ratios of
// numbers below 10^7; `less` is in the unit of the quotient.
struct Calculation {
    std::vector<Ratio> above;
    std::vector<Ratio> below;
    Ratio less = {};
    // How many moles of one substance react with one of another: a factor above the line, or its
    // reciprocal one below it, as one likes. No factor where it is 1.
    Ratio moles = ratio(1);
};

// What a learner may go on with who has worked a number out beforehand, such as a mean: the number
// itself, or rounded to three or four figures.
std::vector<Ratio> roundedOrKept(Ratio value);

// The answers that are marked as correct for one value, when they are typed to the figures asked
// for.
class CorrectAnswers
{
public:
    // Three figures are asked for.
    explicit CorrectAnswers(Ratio exact);

    // Whether every order ends at one of them. A calculation whose numbers were rounded beforehand
    // leads to another value than the exact one.
    bool haveEveryOrderOf(const Calculation& calculation) const;

private:
    Decimal least;
    Decimal greatest;
};

} // namespace lesson
