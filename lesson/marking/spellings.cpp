#include "lesson/marking/spellings.hpp"

#include <iterator>

#include "lesson/chemistry/compounds.hpp"

namespace lesson
{

namespace
{

// Chemists write it from either end.
constexpr std::string_view ethanoates[] = {"CH3COO", "CH3CO2", "C2H3O2",   "H3CCOO", "H3CCO2",
                                           "OOCCH3", "O2CCH3", "CH3C(O)O", "H3C2O2"};

std::string joined(std::string_view a, std::string_view b)
{
    return std::string(a).append(b);
}

std::string bracketed(std::string_view group)
{
    return joined("(", group) + ")";
}

// Of one ethanoate and what `partner` is, either of them first.
void addPaired(std::vector<std::string>& spellings, std::string_view partner)
{
    for (const std::string_view group : ethanoates) {
        spellings.push_back(joined(partner, group));
        spellings.push_back(joined(group, partner));
        spellings.push_back(joined(partner, bracketed(group)));
        spellings.push_back(joined(bracketed(group), partner));
    }
}

// Of several, `number` telling how many.
void addBracketed(std::vector<std::string>& spellings, std::string_view partner,
                  std::string_view number)
{
    for (const std::string_view group : ethanoates) {
        const std::string repeated = joined(bracketed(group), number);
        spellings.push_back(joined(partner, repeated));
        spellings.push_back(joined(repeated, partner));
    }
}

} // namespace

std::vector<std::string> spellingsOf(const IonRow& ion)
{
    std::vector<std::string> spellings = {std::string(ion.formula)};
    if (ion.id == Ion::hydroxide) {
        spellings.emplace_back("HO");
    }
    if (ion.id == Ion::ethanoate) {
        spellings.insert(spellings.end(), std::begin(ethanoates), std::end(ethanoates));
    }
    return spellings;
}

std::vector<std::string> spellingsOf(const IonRow& cation, const IonRow& anion)
{
    std::vector<std::string> spellings = {compoundFormula(cation, anion)};
    if (anion.id != Ion::ethanoate) {
        return spellings;
    }
    const int several = anionsIn(cation, anion);
    if (several > 1) {
        addBracketed(spellings, cation.formula, std::to_string(several));
        return spellings;
    }
    addPaired(spellings, cation.formula);
    if (cation.id == Ion::hydrogen) {
        spellings.emplace_back("C2H4O2");
    }
    return spellings;
}

} // namespace lesson
