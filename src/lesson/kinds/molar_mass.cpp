#include "lesson/kinds/molar_mass.hpp"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "lesson/compound.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/kinds/quantities.hpp"
#include "lesson/tables/elements.hpp"
#include "lesson/tables/pairs.hpp"

namespace lesson
{

namespace
{

constexpr int figures = 4;

struct Substance {
    std::string formula;
    std::string name;
    std::string american;
    Composition composition;
};

// ---------------------------------------------------------------------------------- the draw

bool hasBracket(const std::string& formula)
{
    return formula.find('(') != std::string::npos;
}

// Level 1 has the formulas without a bracket, level 2 those with one.
std::vector<Pair> pairsOf(bool withBracket)
{
    std::vector<Pair> pairs;
    for (const Pair& pair : pairsForFormulas()) {
        if (hasBracket(compoundFormula(*pair.cation, *pair.anion)) == withBracket) {
            pairs.push_back(pair);
        }
    }
    return pairs;
}

const std::vector<Pair>& pairsOfLevel(int level)
{
    static const std::vector<Pair> plain = pairsOf(false);
    static const std::vector<Pair> bracketed = pairsOf(true);
    return level == 1 ? plain : bracketed;
}

// The walk goes through one class: each substance of a level is as likely as any other.
template <typename Row>
const Row& memberOf(const Place& place, const std::vector<Row>& rows)
{
    const int member = memberFor(place, {{0, static_cast<int>(rows.size())}});
    return rows[static_cast<std::size_t>(member)];
}

Substance draw(const Place& place)
{
    Substance drawn;
    if (place.level == 3) {
        const SoluteRow& hydrate = memberOf(place, hydrates());
        drawn = {std::string(hydrate.formula),
                 std::string(hydrate.name),
                 std::string(hydrate.american),
                 {}};
    } else {
        const auto& [cation, anion] = memberOf(place, pairsOfLevel(place.level));
        drawn = {compoundFormula(*cation, *anion),
                 compoundName(*cation, *anion),
                 americanName(*cation, *anion),
                 {}};
    }
    drawn.composition = compositionOf(drawn.formula);
    return drawn;
}

// ------------------------------------------------------------------------------ the solution

Spans countTerm(AtomCount atom)
{
    const Span symbol = formula(std::string(element(atom.element).symbol));
    return atom.count == 1 ? line(symbol) : line(number(std::to_string(atom.count)), " ", symbol);
}

Spans massTerm(AtomCount atom)
{
    const Span mass = number(std::string(element(atom.element).shown));
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

const FormulaPart* bracketOf(const Composition& composition)
{
    const auto found =
        std::find_if(composition.parts.begin(), composition.parts.end(),
                     [](const FormulaPart& part) { return part.times > 1 && !part.isWater; });
    return found == composition.parts.end() ? nullptr : &*found;
}

const FormulaPart* waterOf(const Composition& composition)
{
    const FormulaPart& last = composition.parts.back();
    return last.isWater ? &last : nullptr;
}

std::string firstSentence(const Composition& composition)
{
    if (waterOf(composition) != nullptr) {
        return "Count the atoms; the water belongs to the crystal.";
    }
    if (bracketOf(composition) != nullptr) {
        return "Count the atoms; the number after the bracket counts everything inside.";
    }
    return "Count the atoms.";
}

// M = 249.69 = 249.7 g/mol, or M = 58.44 g/mol where the sum has no more figures than are asked.
Spans total(const Exercise& exercise, Ratio mass)
{
    const bool isRounded = valueOf(roundedTo(mass, figures)) != toHundredths(mass);
    const Spans unrounded = isRounded ? line(" = ", number(shownMass(mass))) : Spans();
    return line(quantity("M"), unrounded, " = ", keyMeasure(exercise));
}

std::vector<Step> workedSolution(const Exercise& exercise, const Substance& drawn, Ratio mass)
{
    return {
        {line(firstSentence(drawn.composition)), atomLine(drawn.composition)},
        {line("Put in the masses."), massLine(drawn.composition)},
        {line("Add."), total(exercise, mass)},
    };
}

// --------------------------------------------------------------------------------- the slips

// The last symbol inside the bracket with its subscript: "O4" of Al2(SO4)3.
std::string_view lastInBracket(std::string_view formula)
{
    const std::string_view inside = formula.substr(0, formula.find(')'));
    std::size_t capital = inside.size() - 1;
    while (inside[capital] < 'A' || inside[capital] > 'Z') {
        --capital;
    }
    return inside.substr(capital);
}

void addBracketSlips(Exercise& exercise, const Substance& drawn, Ratio mass)
{
    const FormulaPart* const bracket = bracketOf(drawn.composition);
    if (bracket == nullptr) {
        return;
    }
    const std::string sentence = "The number after the bracket counts everything inside.";
    const Ratio more = ratio(bracket->times - 1);
    const Ratio inside = massOf(bracket->atoms);
    const Ratio ignored = mass - more * inside;
    const Ratio forLastOnly = ignored + more * molarMassOf(lastInBracket(drawn.formula));
    addSlip(exercise, ignored, sentence);
    addSlip(exercise, forLastOnly, sentence);
}

void addWaterSlips(Exercise& exercise, const Substance& drawn, Ratio mass)
{
    const FormulaPart* const water = waterOf(drawn.composition);
    if (water == nullptr) {
        return;
    }
    const std::string sentence = "The number before H2O counts whole water molecules.";
    const Ratio molecules = ratio(water->times);
    const Ratio more = molecules - ratio(1);
    const Ratio withoutWater = mass - molecules * massOf(water->atoms);
    const Ratio takenOnce = mass - more * massOf(water->atoms);
    const Ratio onHydrogenOnly = mass - more * molarMassOf("O");
    addSlip(exercise, withoutWater, sentence);
    addSlip(exercise, takenOnce, sentence);
    addSlip(exercise, onHydrogenOnly, sentence);
}

void addSlips(Exercise& exercise, const Substance& drawn, Ratio mass)
{
    addBracketSlips(exercise, drawn, mass);
    addWaterSlips(exercise, drawn, mass);
    int atomicNumbers = 0;
    for (const AtomCount atom : drawn.composition.atoms) {
        atomicNumbers += atom.count * atom.element;
    }
    addSlip(exercise, ratio(atomicNumbers), "Use the relative masses, not the atomic numbers.");
}

// ---------------------------------------------------------------------------- rounded masses

// Masses in thousandths, as in the table.

// What boards print besides a mass of the table rounded.
struct PrintedMass {
    std::string_view symbol;
    int thousandths;
};
constexpr PrintedMass alsoPrinted[] = {
    {"H", 1010},
    {"S", 32070},
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
    if (row.symbol != "Cl") {
        addRounded(masses, row.thousandths, 1000);
    }
    for (const PrintedMass& other : alsoPrinted) {
        if (other.symbol == row.symbol) {
            masses.push_back(other.thousandths);
        }
    }
    return masses;
}

void sortOut(std::vector<int>& numbers)
{
    std::sort(numbers.begin(), numbers.end());
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

Exercise molarMassExercise(const Place& place)
{
    const Substance drawn = draw(place);
    const Ratio mass = massOf(drawn.composition.atoms);
    Exercise exercise =
        numberExercise(place, {Form::number, "M", drawn.formula, "g/mol", figures, {}},
                       {mass, roundedMolarMasses(drawn.formula), true, false});
    exercise.prompt = line("Calculate the molar mass of ", name(drawn.name, drawn.american), ", ",
                           formula(drawn.formula), ", in ", unit("g/mol"), ".");
    exercise.given = {GivenCompound{drawn.formula, drawn.name}};
    exercise.solution = workedSolution(exercise, drawn, mass);
    addSlips(exercise, drawn, mass);
    return exercise;
}

} // namespace lesson
