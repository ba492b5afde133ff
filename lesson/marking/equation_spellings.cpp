#include "lesson/marking/equation_spellings.hpp"

#include <algorithm>

#include "lesson/chemistry/composition.hpp"
#include "lesson/chemistry/compounds.hpp"
#include "lesson/chemistry/elements.hpp"
#include "lesson/marking/spellings.hpp"
#include "lesson/numbers/sort_few.hpp"

namespace lesson
{

namespace
{

struct OtherSpelling {
    std::string_view formula;
    std::string_view typed;
};
// clang-format off
// That show how the atoms are bound, or name them in another order.
constexpr OtherSpelling otherSpellings[] = {
    {"H2O", "HOH"}, {"H2O", "OH2"},
    {"CO2", "O2C"}, {"CO2", "OCO"},
    {"NH3", "H3N"},
    {"HNO3", "HONO2"}, {"HNO3", "O2NOH"}, {"HNO3", "NO2OH"},
    {"H2SO4", "SO2(OH)2"}, {"H2SO4", "O2S(OH)2"}, {"H2SO4", "(HO)2SO2"}, {"H2SO4", "(OH)2SO2"},
    {"H2SO4", "HOSO2OH"}, {"H2SO4", "HOSO3H"},
    {"H3PO4", "PO(OH)3"}, {"H3PO4", "OP(OH)3"}, {"H3PO4", "(HO)3PO"}, {"H3PO4", "(OH)3PO"},
    {"CH3COOH", "COOHCH3"}, {"CH3COOH", "C2H3OOH"}, {"CH3COOH", "H4C2O2"}, {"CH3COOH", "C2O2H4"},
    {"H2C2O4", "(COOH)2"}, {"H2C2O4", "HOOCCOOH"}, {"H2C2O4", "HO2CCO2H"}, {"H2C2O4", "C2H2O4"},
};
struct OtherSpellingOfIon {
    Ion ion;
    std::string_view typed;
};
constexpr OtherSpellingOfIon otherIons[] = {
    {Ion::hydrogencarbonate, "CO3H"}, {Ion::ammonium, "H4N"},
    {Ion::ethanedioate, "OOCCOO"}, {Ion::ethanedioate, "O2CCO2"},
};
// clang-format on

std::vector<std::string> spellingsOfIon(const IonRow& ion)
{
    std::vector<std::string> spellings = spellingsOf(ion);
    for (const OtherSpellingOfIon& other : otherIons) {
        if (other.ion == ion.id) {
            spellings.emplace_back(other.typed);
        }
    }
    return spellings;
}

// An ion as often as it is there, in brackets if it needs them.
std::string repeated(const std::string& ion, bool isGroup, int times)
{
    const std::string number = times == 1 ? "" : std::to_string(times);
    return (isGroup && times > 1 ? "(" + ion + ")" : ion) + number;
}

// "C4H6CaO4": carbon, hydrogen and then the other symbols by the alphabet, as lists of organic
// substances have it.
std::string formulaForLists(Atoms atoms)
{
    const auto place = [](const AtomCount& atom) {
        return atom.element == elements::carbon     ? std::string()
               : atom.element == elements::hydrogen ? std::string("0")
                                                    : std::string(element(atom.element).symbol);
    };
    sortFew(atoms,
            [&place](const AtomCount& a, const AtomCount& b) { return place(a) < place(b); });
    std::string formula;
    for (const AtomCount& atom : atoms) {
        formula += repeated(std::string(element(atom.element).symbol), false, atom.count);
    }
    return formula;
}

void addOfIons(std::vector<std::string>& spellings, const IonRow& cation, const IonRow& anion)
{
    const int cations = cationsIn(cation, anion);
    const int anions = anionsIn(cation, anion);
    for (const std::string& positive : spellingsOfIon(cation)) {
        const std::string first = repeated(positive, cation.isGroup, cations);
        for (const std::string& negative : spellingsOfIon(anion)) {
            const std::string second = repeated(negative, anion.isGroup, anions);
            spellings.push_back(first + second);
            spellings.push_back(second + first);
        }
    }
}

} // namespace

std::vector<std::string> spellingsInEquation(std::string_view formula, const IonRow* cation,
                                             const IonRow* anion)
{
    std::vector<std::string> spellings = {std::string(formula)};
    if (cation != nullptr) {
        spellings = spellingsOf(*cation, *anion);
        addOfIons(spellings, *cation, *anion);
        if (anion->id == Ion::ethanoate) {
            spellings.push_back(formulaForLists(compositionOf(formula).atoms));
        }
    }
    for (const OtherSpelling& other : otherSpellings) {
        if (other.formula == formula) {
            spellings.emplace_back(other.typed);
        }
    }
    return spellings;
}

} // namespace lesson
