#include "lesson/kinds/molar_mass.hpp"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "lesson/chemistry/composition.hpp"
#include "lesson/chemistry/elements.hpp"
#include "lesson/chemistry/pairs_not_asked.hpp"
#include "lesson/chemistry/substances.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/kinds/molar_mass_slips.hpp"
#include "lesson/kinds/shared/classified.hpp"
#include "lesson/kinds/shared/quantities.hpp"
#include "lesson/kinds/shared/record.hpp"
#include "lesson/numbers/sort_few.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

constexpr int figures = 4;

struct Substance {
    std::string formula;
    Name name;
    int weight; // how common it is
    Composition composition;
};

// ---------------------------------------------------------------------------------- the draw

bool hasBracket(const Composition& composition)
{
    return std::any_of(composition.parts.begin(), composition.parts.end(),
                       [](const FormulaPart& part) { return part.times > 1 && !part.isWater; });
}

Substance substanceOf(const Pair& pair)
{
    const auto& [cation, anion] = pair;
    const std::string formula = compoundFormula(*cation, *anion);
    return {formula, nameOf(*cation, *anion), weightOf(pair), compositionOf(formula)};
}

Substance substanceOf(const SubstanceRow& row)
{
    return {row.formula, row.name, row.weight, compositionOf(row.formula)};
}

// Level 1 has molecules and the salts without a bracket, level 2 the salts with one, level 3
// hydrates.
std::vector<Substance> substancesOf(int level)
{
    std::vector<Substance> substances;
    for (const SubstanceRow& row : level == 3 ? crystals() : molecules()) {
        if (level != 2) {
            substances.push_back(substanceOf(row));
        }
    }
    for (const Pair& pair : pairsForFormulas()) {
        const Substance salt = substanceOf(pair);
        if (level == (hasBracket(salt.composition) ? 2 : 1)) {
            substances.push_back(salt);
        }
    }
    return substances;
}

Classified<Substance> poolOf(int level)
{
    return classified(
        substancesOf(level),
        [](const Substance& substance) {
            return ClassKey{0, 0, substance.weight};
        },
        allTheSame);
}

const Classified<Substance>& poolOfLevel(int level)
{
    static const Classified<Substance> levels[] = {poolOf(1), poolOf(2), poolOf(3)};
    return levels[level - 1];
}

// ------------------------------------------------------------------------------ the solution

Spans countTerm(AtomCount atom)
{
    const Span symbol = formula(std::string(element(atom.element).symbol));
    return atom.count == 1 ? line(symbol) : line(number(std::to_string(atom.count)), " ", symbol);
}

Spans massTerm(AtomCount atom)
{
    const Span mass = number(shownMass(element(atom.element)));
    return atom.count == 1 ? line(mass) : line(number(std::to_string(atom.count)), "(", mass, ")");
}

// Terms, made by `term`, with pluses between.
template <typename Items, typename Term>
Spans sumOf(const Items& items, Term term)
{
    Spans sum;
    for (const auto& item : items) {
        if (!sum.empty()) {
            append(sum, " + ");
        }
        append(sum, term(item));
    }
    return sum;
}

// A part of a formula as a term, what stands in it made by `inside`: 3(S + 4 O).
template <typename Inside>
Spans termOf(const FormulaPart& part, Inside inside)
{
    return part.times == 1 ? inside(part)
                           : line(number(std::to_string(part.times)), "(", inside(part), ")");
}

// Cu + S + 4 O + 5(2 H + O)
Spans atomLine(const Composition& composition)
{
    const auto inside = [](const FormulaPart& part) { return sumOf(part.atoms, countTerm); };
    return sumOf(composition.parts, [&](const FormulaPart& part) { return termOf(part, inside); });
}

// 63.55 + 32.06 + 4(16.00) + 5(18.016): everybody knows what water is made of.
Spans massLine(const Composition& composition)
{
    const auto inside = [](const FormulaPart& part) {
        return part.isWater ? line(number(exactText(massOf(part.atoms))))
                            : sumOf(part.atoms, massTerm);
    };
    return sumOf(composition.parts, [&](const FormulaPart& part) { return termOf(part, inside); });
}

Step countingStep(const Composition& composition)
{
    const Spans atoms = atomLine(composition);
    if (composition.parts.back().isWater) {
        return {{say<Sentence::molarMassCountWater>()},
                atoms,
                {say<Sentence::hintMolarMassCountWater>()}};
    }
    if (hasBracket(composition)) {
        return {{say<Sentence::molarMassCountBracket>()},
                atoms,
                {say<Sentence::hintMolarMassCountBracket>()}};
    }
    return {{say<Sentence::molarMassCount>()}, atoms, {say<Sentence::hintMolarMassCount>()}};
}

// M = 249.69 = 249.7 g/mol, or M = 58.44 g/mol where two decimals are no more than is asked.
Spans total(const Exercise& exercise, Ratio mass)
{
    const bool isRounded = valueOf(roundedTo(mass, figures)) != toHundredths(mass);
    const Spans unrounded = isRounded ? line(" = ", number(shownMass(mass))) : Spans();
    return line(quantity("M"), unrounded, " = ", exercise.key);
}

std::vector<Step> workedSolution(const Exercise& exercise, const Substance& drawn, Ratio mass)
{
    return {
        countingStep(drawn.composition),
        {{say<Sentence::molarMassPutIn>()},
         massLine(drawn.composition),
         {say<Sentence::hintMolarMassPutIn>()}},
        {{say<Sentence::molarMassAdd>()},
         total(exercise, mass),
         {say<Sentence::hintMolarMassAdd>()}},
    };
}

// ---------------------------------------------------------------------------- rounded masses

// Masses in thousandths, as in the table.

// What boards print besides a mass of the table rounded.
struct PrintedMass {
    int element;
    int thousandths;
};
constexpr PrintedMass alsoPrinted[] = {
    {elements::hydrogen, 1010},
    {elements::sulfur, 32070},
};

// The two neighbours where it is halfway.
void addRounded(std::vector<int>& masses, int mass, int unit)
{
    const int lower = mass / unit * unit;
    const int rest = mass - lower;
    if (2 * rest <= unit) {
        masses.push_back(lower);
    }
    if (2 * rest >= unit) {
        masses.push_back(lower + unit);
    }
}

// As a board may print it: as here, to one decimal, or whole, but never chlorine as 35.
std::vector<int> printedMasses(const ElementRow& row)
{
    std::vector<int> masses = {row.thousandths};
    addRounded(masses, row.thousandths, 100);
    if (row.number != elements::chlorine) {
        addRounded(masses, row.thousandths, 1000);
    }
    for (const PrintedMass& other : alsoPrinted) {
        if (other.element == row.number) {
            masses.push_back(other.thousandths);
        }
    }
    return masses;
}

void sortOut(std::vector<int>& numbers)
{
    sortFew(numbers);
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
}

} // namespace

Spans sumOfMasses(std::string_view formula)
{
    return massLine(compositionOf(formula));
}

// Each element has one mass in the whole formula, whatever the others have: a board may print one
// to two decimals and another as a whole number.
std::vector<Ratio> roundedMolarMasses(std::string_view formula)
{
    std::vector<int> sums = {0};
    for (const AtomCount atom : compositionOf(formula).atoms) {
        std::vector<int> longerSums;
        for (const int mass : printedMasses(element(atom.element))) {
            for (const int sum : sums) {
                longerSums.push_back(sum + atom.count * mass);
            }
        }
        sortOut(longerSums);
        sums = std::move(longerSums);
    }
    std::vector<Ratio> masses;
    masses.reserve(sums.size());
    for (const int thousandths : sums) {
        masses.push_back(ratio(thousandths, 1000));
    }
    return masses;
}

namespace
{

// ---------------------------------------------------------------------- draw, write, read, make

const Substance& draw(const Place& place)
{
    return memberFor(place, poolOfLevel(place.level));
}

Description write(const Substance& substance)
{
    return Description().with("formula", substance.formula);
}

Substance read(FieldReader& fields)
{
    const std::string_view formula = fields.text("formula");
    for (int level = 1; level <= levelCount; ++level) {
        for (const Substance& substance : poolOfLevel(level).members) {
            if (substance.formula == formula) {
                return substance;
            }
        }
    }
    fields.failAsNotAsked("formula", formula);
    return poolOfLevel(1).members.front();
}

int levelOf(const Substance& substance)
{
    const bool isHydrate = substance.composition.parts.back().isWater;
    return isHydrate ? 3 : hasBracket(substance.composition) ? 2 : 1;
}

Exercise make(const Place& place, const Substance& drawn)
{
    const Ratio mass = massOf(drawn.composition.atoms);
    Exercise exercise =
        numberExercise(place, {Form::number, "M", drawn.formula, "g/mol", figures, {}},
                       {mass, roundedMolarMasses(drawn.formula), true, false});
    exercise.prompt = {say<Sentence::molarMassAsked>(drawn.name, formula(drawn.formula))};
    exercise.given = {GivenCompound{drawn.formula, drawn.name}};
    exercise.solution = workedSolution(exercise, drawn, mass);
    addMolarMassSlips(exercise, drawn.formula);
    return exercise;
}

} // namespace

const Kind molarMassKind = {
    0,
    1,
    "molar-mass",
    Sentence::molarMassTitle,
    {Sentence::molarMassLevel1, Sentence::molarMassLevel2, Sentence::molarMassLevel3},
    false,
    drawnExercise<draw, write, levelOf, make>,
    describedExercise<read, write, levelOf, make>,
    Drawing::none,
    true,
};

} // namespace lesson
