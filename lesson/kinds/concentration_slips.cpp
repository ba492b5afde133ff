#include <algorithm>
#include <numeric>
#include <string_view>
#include <tuple>

#include "lesson/chemistry/composition.hpp"
#include "lesson/kinds/concentration_parts.hpp"
#include "lesson/kinds/shared/quantities.hpp"

namespace lesson
{

namespace
{

constexpr Ratio thousand = {1000, 1};

// Of who miscounts the waters of a hydrate.
void addSlipsOfWater(Exercise& exercise, const Preparation& drawn, const FormulaPart& water)
{
    const Ratio more = ratio(water.times - 1);
    const Ratio takenOnce = drawn.molarMass - more * massOf(water.atoms);
    const Ratio onHydrogenOnly = drawn.molarMass - more * molarMassOf("O");
    const Ratio salt = takenOnce - massOf(water.atoms);
    addSlip(exercise, answerFor(drawn, salt), Sentence::slipMassOfWater);
    addSlip(exercise, answerFor(drawn, takenOnce), Sentence::slipWaterNumber);
    addSlip(exercise, answerFor(drawn, onHydrogenOnly), Sentence::slipWaterNumber);
    addSlip(exercise, answerFor(drawn, salt * (drawn.molarMass - salt)), Sentence::slipDot);
}

// The molar mass with the numbers behind brackets left out, or the small ones.
Ratio withoutBracketNumber(const Composition& composition)
{
    Ratio mass;
    for (const FormulaPart& part : composition.parts) {
        mass = mass + massOf(part.atoms) * ratio(part.isWater ? part.times : 1);
    }
    return mass;
}

// Those of the water, in H2O, with them or not.
Ratio withoutSmallNumbers(const Composition& composition, bool withThoseOfWater)
{
    Ratio mass;
    for (const FormulaPart& part : composition.parts) {
        Atoms atoms = part.atoms;
        for (AtomCount& atom : atoms) {
            atom.count = part.isWater && !withThoseOfWater ? atom.count : 1;
        }
        mass = mass + massOf(atoms) * ratio(part.times);
    }
    return mass;
}

// The last symbol inside the bracket with its number, "O4" of "Al2(SO4)3"; all of it without one.
std::string_view lastInBracket(std::string_view formula)
{
    const std::string_view inside = formula.substr(0, formula.find(')'));
    return inside.substr(inside.find_last_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ"));
}

void addSlipsOfBracket(Exercise& exercise, const Preparation& drawn, const Composition& composition)
{
    const auto bracket =
        std::find_if(composition.parts.begin(), composition.parts.end(),
                     [](const FormulaPart& part) { return part.times > 1 && !part.isWater; });
    if (bracket == composition.parts.end()) {
        return;
    }
    const Ratio ignored = withoutBracketNumber(composition);
    const Ratio last = molarMassOf(lastInBracket(drawn.substance->formula));
    addSlip(exercise, answerFor(drawn, ignored), Sentence::slipBracketNumber);
    addSlip(exercise, answerFor(drawn, ignored + ratio(bracket->times - 1) * last),
            Sentence::slipBracketNumber);
}

int atomicNumbersOf(const Atoms& atoms)
{
    return std::accumulate(atoms.begin(), atoms.end(), 0,
                           [](int sum, AtomCount atom) { return sum + atom.count * atom.element; });
}

void addSlipsOfMolarMass(Exercise& exercise, const Preparation& drawn)
{
    const Composition composition = compositionOf(drawn.substance->formula);
    if (composition.parts.back().isWater) {
        addSlipsOfWater(exercise, drawn, composition.parts.back());
    }
    addSlipsOfBracket(exercise, drawn, composition);
    for (const bool withThoseOfWater : {true, false}) {
        addSlip(exercise, answerFor(drawn, withoutSmallNumbers(composition, withThoseOfWater)),
                Sentence::slipSmallNumbers);
    }
    addSlip(exercise, answerFor(drawn, ratio(atomicNumbersOf(composition.atoms))),
            Sentence::slipAtomicNumbers);
}

// Divided by 100 or by 10, the volume comes out too large, and the answer so many times too large
// or too small.
void addSlipsOfLitre(Exercise& exercise, const Preparation& drawn, Ratio answer, Ratio times)
{
    if (drawn.volume < ratio(1)) {
        addSlip(exercise, answer * times, Sentence::slipMillilitres);
        addSlip(exercise, answer * times * times, Sentence::slipMillilitres);
    }
}

void addSlipsForConcentration(Exercise& exercise, const Preparation& drawn)
{
    const auto& [m, M, V] = std::tie(drawn.mass, drawn.molarMass, drawn.volume);
    const Ratio n = m / M;
    addSlip(exercise, m / V, Sentence::slipGramsPerLitre);
    addSlip(exercise, n, Sentence::slipAmount);
    addSlipsOfLitre(exercise, drawn, n / V, ratio(1, 10));
    addSlip(exercise, n * V, Sentence::slipRelation);
    for (const Ratio wrong : {m * M / V, m * M, M / m / V, M / m, m * M * V}) {
        addSlip(exercise, wrong, Sentence::slipDividedOtherwise);
    }
    addSlip(exercise, m / V / thousand, Sentence::slipGramsPerMillilitre);
    addSlip(exercise, n * V * thousand, Sentence::slipRelation);
    addSlip(exercise, V / n, Sentence::slipRelation);
}

void addSlipsForMass(Exercise& exercise, const Preparation& drawn)
{
    const auto& [c, M, V] = std::tie(drawn.concentration, drawn.molarMass, drawn.volume);
    const Ratio n = c * V;
    addSlip(exercise, n, Sentence::slipAmount);
    addSlip(exercise, c * M, Sentence::slipOneLitre);
    addSlipsOfLitre(exercise, drawn, n * M, ratio(10));
    addSlip(exercise, c / V * M, Sentence::slipRelation);
    addSlip(exercise, n / M, Sentence::slipMassOfMole);
    addSlip(exercise, M / n, Sentence::slipMassOfMole);
    addSlip(exercise, n * thousand, Sentence::slipAmount);
    addSlip(exercise, V * M, Sentence::slipOneMolePerLitre);
    addSlip(exercise, V / c * M, Sentence::slipRelation);
}

} // namespace

void addConcentrationSlips(Exercise& exercise, const Preparation& drawn)
{
    if (!drawn.isMolarMassTold) {
        addSlipsOfMolarMass(exercise, drawn);
    }
    (drawn.asksForMass ? addSlipsForMass : addSlipsForConcentration)(exercise, drawn);
}

} // namespace lesson
