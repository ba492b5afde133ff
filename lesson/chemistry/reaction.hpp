#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "lesson/chemistry/compounds.hpp"
#include "lesson/words/spans.hpp"

namespace lesson
{

// An acid that gives away all its protons to a base.
struct AcidRow {
    std::string_view formula;
    std::string_view name;     // "ethanoic acid"
    std::string_view american; // "acetic acid"; empty where that is the same
    int protons;               // of one molecule
    int weight;                // how common it is in comparison with others, as IonRow has it
    Ion anion;                 // what is left without them
};

// Hydrochloric, hydrobromic, nitric, sulfuric, phosphoric, ethanoic and ethanedioic acid.
const std::vector<const AcidRow*>& acids();

// The one with this formula, "H2SO4"; null where there is none.
const AcidRow* findAcid(std::string_view formula);

const IonRow& anionOf(const AcidRow& acid);

// The hydroxide, oxide, carbonate or hydrogencarbonate of a cation. Ammonia solution is the base of
// the ammonium ion and no anion.
struct Base {
    const IonRow* cation;
    const IonRow* anion; // null for ammonia
};
Base ammonia();

// "Ca(OH)2", "NH3".
std::string formulaOf(const Base& base);
// "calcium hydroxide", "ammonia solution".
std::string nameOf(const Base& base);
// Empty where it is the same.
std::string americanNameOf(const Base& base);

// Their salt, when all protons of the acid are gone: "CaSO4", "calcium sulfate". The American name
// is empty where it is the same.
std::string saltFormula(const AcidRow& acid, const Base& base);
std::string saltName(const AcidRow& acid, const Base& base);
std::string americanSaltName(const AcidRow& acid, const Base& base);

// A balanced equation: coefficient and formula of each species.
struct Equation {
    std::vector<std::pair<int, std::string>> left;
    std::vector<std::pair<int, std::string>> right;
};

// Their complete neutralisation, balanced in lowest terms: the acid and the base on the left; the
// salt, water and carbon dioxide on the right, as far as they form. Ammonia forms no water.
//   H2SO4, Al(OH)3 -> 3H2SO4 + 2Al(OH)3 -> Al2(SO4)3 + 6H2O
Equation neutralisationOf(const AcidRow& acid, const Base& base);

// The same where a molecule of the acid gives away so many of its protons and becomes this ion:
// with 1 and hydrogensulfate, "H2SO4 + NaOH -> NaHSO4 + H2O".
Equation equationOf(std::string_view acidFormula, int protons, const IonRow& anion,
                    const Base& base);

// The equation as it is typed, "2HCl + Na2CO3 -> 2NaCl + H2O + CO2", and as it is typeset.
std::string textOf(const Equation& equation);
Spans spansOf(const Equation& equation);

} // namespace lesson
