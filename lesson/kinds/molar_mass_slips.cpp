#include "lesson/kinds/molar_mass_slips.hpp"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "lesson/chemistry/composition.hpp"
#include "lesson/chemistry/elements.hpp"
#include "lesson/kinds/shared/quantities.hpp"
#include "lesson/text/scan.hpp"

// A learner who miscounts works out the mass of another formula, so most slips are that formula:
// of Al2(SO4)3, AlSO by who leaves out all small numbers.
namespace lesson
{

namespace
{

// Elements of molecules of two atoms, but hydrogen, which has a slip of its own.
constexpr int twoByThemselves[] = {elements::fluorine, elements::chlorine, elements::bromine,
                                   elements::iodine,   elements::oxygen,   elements::nitrogen};

// A number in a formula: where its digits begin and end.
struct Run {
    std::size_t begin;
    std::size_t end;
};

std::vector<Run> numbersIn(std::string_view formula)
{
    std::vector<Run> runs;
    for (std::size_t i = 0; i < formula.size(); ++i) {
        if (isDigit(formula[i]) && (i == 0 || !isDigit(formula[i - 1]))) {
            runs.push_back({i, i});
        }
        if (isDigit(formula[i])) {
            runs.back().end = i + 1;
        }
    }
    return runs;
}

std::string without(const std::string& formula, const Run& run)
{
    return formula.substr(0, run.begin) + formula.substr(run.end);
}

std::string withoutBrackets(std::string formula)
{
    formula.erase(std::remove(formula.begin(), formula.end(), '('), formula.end());
    formula.erase(std::remove(formula.begin(), formula.end(), ')'), formula.end());
    return formula;
}

// The front of a formula up to and with a number, which counts all of it: "(AlF)3".
std::string countingAll(const std::string& formula, const Run& run)
{
    return "(" + withoutBrackets(formula.substr(0, run.begin)) + ")" + formula.substr(run.begin);
}

// The symbols of a formula in their order, with what stands behind each: "O4" of SO4.
std::vector<std::string> termsOf(std::string_view formula)
{
    std::vector<std::string> terms;
    for (const char c : formula) {
        if (isDigit(c) || isSmall(c)) {
            terms.back() += c;
        } else {
            terms.emplace_back(1, c);
        }
    }
    return terms;
}

std::string times(const std::string& term, int number)
{
    return "(" + term + ")" + std::to_string(number);
}

class MolarMassSlips
{
public:
    MolarMassSlips(Exercise& target, std::string_view ofFormula)
        : exercise(target), formula(ofFormula), salt(formula.substr(0, formula.find('.'))),
          water(formula.substr(salt.size())), composition(compositionOf(formula))
    {
    }

    void addAll()
    {
        addWater();
        addBracket();
        addSmallNumbers();
        addAtomicNumbers();
        addMoleculesOfElements();
        addHydrogen();
    }

private:
    void add(Ratio mass, Sentence sentence)
    {
        addSlip(exercise, mass, sentence);
    }

    void add(const std::string& otherFormula, Sentence sentence)
    {
        add(molarMassOf(otherFormula), sentence);
    }

    void addWater()
    {
        if (water.empty()) {
            return;
        }
        const FormulaPart& part = composition.parts.back();
        const Ratio molecules = ratio(part.times) * massOf(part.atoms);
        const std::string number = std::to_string(part.times);
        add(salt, Sentence::slipWaterNumber);
        add(salt + ".H2O", Sentence::slipWaterNumber);
        add(salt + times("H2", part.times) + "O", Sentence::slipWaterNumber);
        add(molarMassOf(salt) * molecules, Sentence::slipDot);
        add(salt + "." + number + "HO", Sentence::slipSmallNumbers);
        add(molarMassOf(salt + ".H2O") * ratio(part.times), Sentence::slipWaterNumber);
    }

    // With the number on nothing, on the last atom, on the first one, and on what stands in front.
    void addBracket()
    {
        const std::size_t open = salt.find('(');
        if (open == std::string::npos) {
            return;
        }
        const std::size_t close = salt.find(')');
        const std::size_t end =
            std::min(salt.find_first_not_of("0123456789", close + 1), salt.size());
        const std::string before = salt.substr(0, open);
        const std::string inside = salt.substr(open + 1, close - open - 1);
        const std::string behind = salt.substr(end) + water;
        const auto number = static_cast<int>(
            wholeNumber(std::string_view(salt).substr(close + 1, end - close - 1)));
        const std::vector<std::string> terms = termsOf(inside);
        const std::size_t first = terms.front().size();
        const std::size_t last = inside.size() - terms.back().size();
        add(before + inside + behind, Sentence::slipBracketNumber);
        add(before + inside.substr(0, last) + times(inside.substr(last), number) + behind,
            Sentence::slipBracketNumber);
        add(before + times(inside.substr(0, first), number) + inside.substr(first) + behind,
            Sentence::slipBracketNumber);
        add(times(before + inside, number) + behind, Sentence::slipBracketNumber);
    }

    void addSmallNumbers()
    {
        const std::vector<Run> all = numbersIn(salt);
        std::string none = salt;
        std::string bracketOnly = salt;
        for (auto run = all.rbegin(); run != all.rend(); ++run) {
            none = without(none, *run);
            bracketOnly = isOfBracket(*run) ? bracketOnly : without(bracketOnly, *run);
        }
        add(bracketOnly + water, Sentence::slipSmallNumbers);
        add(withoutBrackets(none) + water, Sentence::slipSmallNumbers);
        add(eachElementOnce(), Sentence::slipSmallNumbers);
        for (const Run& run : all) {
            if (!isOfBracket(run)) {
                add(without(salt, run) + water, Sentence::slipSmallNumbers);
            }
        }
        for (const Run& run : all) {
            if (salt.find('(') >= run.begin) {
                add(countingAll(salt, run) + water, Sentence::slipSmallNumbers);
            }
        }
    }

    bool isOfBracket(const Run& run) const
    {
        return run.begin > 0 && salt[run.begin - 1] == ')';
    }

    Ratio eachElementOnce() const
    {
        Atoms atoms = composition.atoms;
        for (AtomCount& atom : atoms) {
            atom.count = 1;
        }
        return massOf(atoms);
    }

    void addAtomicNumbers()
    {
        int all = 0;
        int eachOnce = 0;
        for (const AtomCount atom : composition.atoms) {
            all += atom.count * atom.element;
            eachOnce += atom.element;
        }
        add(ratio(all), Sentence::slipAtomicNumbers);
        add(ratio(eachOnce), Sentence::slipAtomicNumbers);
    }

    // As if an element that is Cl2 by itself were so in its compounds.
    void addMoleculesOfElements()
    {
        for (const AtomCount atom : composition.atoms) {
            if (std::find(std::begin(twoByThemselves), std::end(twoByThemselves), atom.element) !=
                std::end(twoByThemselves)) {
                add(massOf(composition.atoms) + massOf({atom}), Sentence::slipOneAtom);
            }
        }
    }

    void addHydrogen()
    {
        for (const AtomCount atom : composition.atoms) {
            if (atom.element == elements::hydrogen) {
                add(massOf(composition.atoms) - massOf({{elements::hydrogen, 1}}),
                    Sentence::slipHydrogenAtoms);
            }
        }
    }

    Exercise& exercise;
    std::string formula;
    std::string salt;  // what stands before the dot
    std::string water; // the dot and what stands behind it
    Composition composition;
};

} // namespace

void addMolarMassSlips(Exercise& exercise, std::string_view formula)
{
    MolarMassSlips(exercise, formula).addAll();
}

} // namespace lesson
