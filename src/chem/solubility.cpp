#include "chem/solubility.hpp"

#include <algorithm>
#include <initializer_list>
#include <string_view>

namespace
{

using Formulas = std::initializer_list<std::string_view>;

bool isOneOf(Formulas formulas, const std::string& formula)
{
    return std::find(formulas.begin(), formulas.end(), formula) != formulas.end();
}

} // namespace

// The rules, from the first to the last; the first that covers the pair decides. Kept: the lists of
// exceptions differ from rule to rule (no strontium oxide, manganese and lead among the fluorides,
// no exception at all among the hydroxides).
char isSolubleChar(Ion cation, Ion anion)
{
    const auto solubleBut = [&cation](Formulas exceptions) {
        return isOneOf(exceptions, cation.formula) ? 'N' : 'Y';
    };
    const auto insolubleBut = [&cation](Formulas exceptions) {
        return isOneOf(exceptions, cation.formula) ? 'Y' : 'N';
    };
    const auto anionIs = [&anion](Formulas formulas) { return isOneOf(formulas, anion.formula); };

    // Compounds of these alkali metals, of hydrogen and of ammonium are soluble.
    if (isOneOf({"K", "H", "Na", "Li", "NH4"}, cation.formula)) {
        return 'Y';
    }
    // Acetates and nitrates are soluble.
    if (anionIs({"CH3COO", "NO3"})) {
        return 'Y';
    }
    // Chlorides, iodides and bromides are soluble, but for these.
    if (anionIs({"Cl", "I", "Br"})) {
        return solubleBut({"Ag", "Hg", "Pb"});
    }
    // Sulphates are soluble, but for these.
    if (anionIs({"SO4"})) {
        return solubleBut({"Ba", "Sr", "Pb"});
    }
    // Carbonates, phosphates and hydroxides are insoluble.
    if (anionIs({"CO3", "PO4", "OH"})) {
        return 'N';
    }
    // Sulfides are insoluble, but for these.
    if (anionIs({"S"})) {
        return insolubleBut({"Be", "Mg", "Ca", "Ba", "Sr"});
    }
    // Fluorides are soluble, but for these.
    if (anionIs({"F"})) {
        return solubleBut({"Be", "Mg", "Ca", "Ba", "Sr", "Pb", "Mn"});
    }
    // Oxides are insoluble, but for these.
    if (anionIs({"O"})) {
        return insolubleBut({"Ca", "Ba"});
    }
    return ' ';
}

std::string isSolubleWord(char verdict)
{
    switch (ucase(verdict)) {
    case 'Y':
        return "soluble";
    case 'N':
        return "insoluble";
    default:
        return "<an error occurred>";
    }
}
