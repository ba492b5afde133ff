#include <algorithm>
#include <numeric>
#include <string>
#include <string_view>
#include <tuple>

#include "lesson/chemistry/composition.hpp"
#include "lesson/kinds/concentration_parts.hpp"
#include "lesson/marking/number.hpp"

namespace lesson
{

namespace
{

constexpr const char* isAmount = "That is an amount. One step is left.";
constexpr const char* isRelatedOtherwise =
    "Check how amount, concentration and volume are related.";
constexpr const char* isDividedOtherwise = "Which is divided by which? One mole has the mass M.";
constexpr const char* isNoLitre = "How many mL are in a litre?";
constexpr const char* isMassConcentration = "Turn the mass into moles first.";

constexpr Ratio thousand = {1000, 1};

// Of who miscounts the waters of a hydrate.
void addSlipsOfWater(Exercise& exercise, const Preparation& drawn, const FormulaPart& water)
{
    const char* const isWholeMolecule = "The number before H2O counts whole water molecules.";
    const Ratio more = ratio(water.times - 1);
    const Ratio takenOnce = drawn.molarMass - more * massOf(water.atoms);
    const Ratio onHydrogenOnly = drawn.molarMass - more * molarMassOf("O");
    const Ratio salt = takenOnce - massOf(water.atoms);
    addSlip(exercise, answerFor(drawn, salt), "The water in the crystals has mass too.");
    addSlip(exercise, answerFor(drawn, takenOnce), isWholeMolecule);
    addSlip(exercise, answerFor(drawn, onHydrogenOnly), isWholeMolecule);
    addSlip(exercise, answerFor(drawn, salt * (drawn.molarMass - salt)),
            "The dot adds the water: it does not multiply.");
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
    const char* const isForAll = "The number after the bracket counts everything inside.";
    const auto bracket =
        std::find_if(composition.parts.begin(), composition.parts.end(),
                     [](const FormulaPart& part) { return part.times > 1 && !part.isWater; });
    if (bracket == composition.parts.end()) {
        return;
    }
    const Ratio ignored = withoutBracketNumber(composition);
    const Ratio last = molarMassOf(lastInBracket(drawn.substance->formula));
    addSlip(exercise, answerFor(drawn, ignored), isForAll);
    addSlip(exercise, answerFor(drawn, ignored + ratio(bracket->times - 1) * last), isForAll);
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
                "The small numbers count atoms: each of them has its mass.");
    }
    addSlip(exercise, answerFor(drawn, ratio(atomicNumbersOf(composition.atoms))),
            "Use the relative masses, not the atomic numbers.");
}

// Divided by 100 or by 10, the volume comes out too large, and the answer so many times too large
// or too small.
void addSlipsOfLitre(Exercise& exercise, const Preparation& drawn, Ratio answer, Ratio times)
{
    if (drawn.volume < ratio(1)) {
        addSlip(exercise, answer * times, isNoLitre);
        addSlip(exercise, answer * times * times, isNoLitre);
    }
}

void addSlipsForConcentration(Exercise& exercise, const Preparation& drawn)
{
    const auto& [m, M, V] = std::tie(drawn.mass, drawn.molarMass, drawn.volume);
    const Ratio n = m / M;
    addSlip(exercise, m / V, std::string("That is in g/L. ") + isMassConcentration);
    addSlip(exercise, n, isAmount);
    addSlipsOfLitre(exercise, drawn, n / V, ratio(1, 10));
    addSlip(exercise, n * V, isRelatedOtherwise);
    for (const Ratio wrong : {m * M / V, m * M, M / m / V, M / m, m * M * V}) {
        addSlip(exercise, wrong, isDividedOtherwise);
    }
    addSlip(exercise, m / V / thousand, std::string("That is in g/mL. ") + isMassConcentration);
    addSlip(exercise, n * V * thousand, isRelatedOtherwise);
    addSlip(exercise, V / n, isRelatedOtherwise);
}

void addSlipsForMass(Exercise& exercise, const Preparation& drawn)
{
    const auto& [c, M, V] = std::tie(drawn.concentration, drawn.molarMass, drawn.volume);
    const Ratio n = c * V;
    addSlip(exercise, n, isAmount);
    addSlip(exercise, c * M, "That is for one litre.");
    addSlipsOfLitre(exercise, drawn, n * M, ratio(10));
    addSlip(exercise, c / V * M, isRelatedOtherwise);
    addSlip(exercise, n / M, "One mole has the mass M.");
    addSlip(exercise, M / n, "One mole has the mass M.");
    addSlip(exercise, n * thousand, isAmount);
    addSlip(exercise, V * M, "That is for a concentration of 1 mol/L.");
    addSlip(exercise, V / c * M, isRelatedOtherwise);
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
