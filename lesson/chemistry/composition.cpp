#include "lesson/chemistry/composition.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "lesson/chemistry/elements.hpp"
#include "lesson/numbers/decimal.hpp"
#include "lesson/text/scan.hpp"

namespace lesson
{

namespace
{

// What is read, piece by piece from the front:
//
//   formula = { part } [ "." [ count ] atoms ]     part  = atoms | "(" atoms ")" [ count ]
//   atoms   = symbol [ count ] { … }               count = a whole number; 1 where there is none
//
// Each function below takes one of these off the front of `rest`.

int takeCount(std::string_view& rest)
{
    return std::max(static_cast<int>(wholeNumber(takeDigits(rest))), 1);
}

int takeSymbol(std::string_view& rest)
{
    const std::size_t length = rest.size() > 1 && isSmall(rest[1]) ? 2 : 1;
    return findElement(takeLength(rest, length))->number;
}

void add(Atoms& atoms, AtomCount more)
{
    const auto same = std::find_if(atoms.begin(), atoms.end(),
                                   [more](AtomCount atom) { return atom.element == more.element; });
    if (same == atoms.end()) {
        atoms.push_back(more);
    } else {
        same->count += more.count;
    }
}

Atoms takeAtoms(std::string_view& rest)
{
    Atoms atoms;
    while (!rest.empty() && isCapital(rest.front())) {
        const int number = takeSymbol(rest);
        const int count = takeCount(rest);
        add(atoms, {number, count});
    }
    return atoms;
}

FormulaPart takePart(std::string_view& rest)
{
    FormulaPart part = {{}, 1, rest.front() == '.'};
    const bool isBracket = rest.front() == '(';
    takeLength(rest, isBracket || part.isWater ? 1 : 0);
    if (part.isWater) {
        part.times = takeCount(rest);
    }
    part.atoms = takeAtoms(rest);
    if (take(rest, ")")) {
        part.times = takeCount(rest);
    }
    return part;
}

} // namespace

bool operator==(AtomCount a, AtomCount b)
{
    return a.element == b.element && a.count == b.count;
}

Composition compositionOf(std::string_view formula)
{
    Composition composition;
    while (!formula.empty()) {
        const FormulaPart part = takePart(formula);
        for (const AtomCount atom : part.atoms) {
            add(composition.atoms, {atom.element, part.times * atom.count});
        }
        composition.parts.push_back(part);
    }
    return composition;
}

int countOf(const Atoms& atoms, int element)
{
    const auto found = std::find_if(atoms.begin(), atoms.end(), [element](const AtomCount& atom) {
        return atom.element == element;
    });
    return found == atoms.end() ? 0 : found->count;
}

Ratio massOf(const Atoms& atoms)
{
    std::int64_t thousandths = 0;
    for (const AtomCount atom : atoms) {
        thousandths += std::int64_t{atom.count} * element(atom.element).thousandths;
    }
    return ratio(thousandths, 1000);
}

Ratio molarMassOf(std::string_view formula)
{
    return massOf(compositionOf(formula).atoms);
}

Ratio toHundredths(Ratio mass)
{
    const Ratio hundredths = mass * ratio(100) + ratio(1, 2);
    return ratio(hundredths.numerator / hundredths.denominator, 100);
}

std::string shownMass(Ratio mass)
{
    const Ratio hundredths = toHundredths(mass) * ratio(100);
    return plainText({hundredths.numerator, -2});
}

} // namespace lesson
