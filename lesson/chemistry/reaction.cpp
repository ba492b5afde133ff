#include "lesson/chemistry/reaction.hpp"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace lesson
{

namespace
{

// clang-format off
constexpr AcidRow acidRows[] = {
    {"HCl",     "hydrochloric acid", "",            1, 5, Ion::chloride},
    {"HBr",     "hydrobromic acid",  "",            1, 1, Ion::bromide},
    {"HNO3",    "nitric acid",       "",            1, 5, Ion::nitrate},
    {"H2SO4",   "sulfuric acid",     "",            2, 5, Ion::sulfate},
    {"H3PO4",   "phosphoric acid",   "",            3, 3, Ion::phosphate},
    {"CH3COOH", "ethanoic acid",     "acetic acid", 1, 4, Ion::ethanoate},
    {"H2C2O4",  "ethanedioic acid",  "oxalic acid", 2, 1, Ion::ethanedioate},
};

// What a base does.
struct Uptake {
    int protons; // that it takes
    int water;   // molecules that it becomes
    int carbonDioxide;
};

struct BaseRow {
    Ion anion;
    Uptake ofOne;
};
constexpr BaseRow baseRows[] = {
    {Ion::hydroxide,         {1, 1, 0}},
    {Ion::oxide,             {2, 1, 0}},
    {Ion::carbonate,         {2, 1, 1}},
    {Ion::hydrogencarbonate, {1, 1, 1}},
};
constexpr Uptake ofAmmonia = {1, 0, 0};
// clang-format on

// Of one formula unit.
Uptake uptakeOf(const Base& base)
{
    if (base.anion == nullptr) {
        return ofAmmonia;
    }
    const auto* const row =
        std::find_if(std::begin(baseRows), std::end(baseRows),
                     [&base](const BaseRow& r) { return r.anion == base.anion->id; });
    const int anions = anionsIn(*base.cation, *base.anion);
    const Uptake& one = row->ofOne;
    return {anions * one.protons, anions * one.water, anions * one.carbonDioxide};
}

std::string termOf(int coefficient, const std::string& formula)
{
    return (coefficient == 1 ? "" : std::to_string(coefficient)) + formula;
}

using Side = std::vector<std::pair<int, std::string>>;

std::string textOf(const Side& side)
{
    std::string text;
    for (const auto& [coefficient, species] : side) {
        text += (text.empty() ? "" : " + ") + termOf(coefficient, species);
    }
    return text;
}

void append(Spans& spans, const Side& side)
{
    bool isFirst = true;
    for (const auto& [coefficient, species] : side) {
        if (!isFirst) {
            append(spans, " + ");
        }
        isFirst = false;
        if (coefficient != 1) {
            append(spans, number(std::to_string(coefficient)));
        }
        append(spans, formula(species));
    }
}

} // namespace

const std::vector<const AcidRow*>& acids()
{
    static const std::vector<const AcidRow*> pointers = [] {
        std::vector<const AcidRow*> all;
        for (const AcidRow& row : acidRows) {
            all.push_back(&row);
        }
        return all;
    }();
    return pointers;
}

const AcidRow* findAcid(std::string_view formula)
{
    const auto* const row =
        std::find_if(std::begin(acidRows), std::end(acidRows),
                     [formula](const AcidRow& r) { return r.formula == formula; });
    return row == std::end(acidRows) ? nullptr : row;
}

const IonRow& anionOf(const AcidRow& acid)
{
    return rowOf(acid.anion);
}

Base ammonia()
{
    return {&rowOf(Ion::ammonium), nullptr};
}

std::string formulaOf(const Base& base)
{
    return base.anion == nullptr ? "NH3" : compoundFormula(*base.cation, *base.anion);
}

std::string nameOf(const Base& base)
{
    return base.anion == nullptr ? "ammonia solution" : compoundName(*base.cation, *base.anion);
}

std::string americanNameOf(const Base& base)
{
    return base.anion == nullptr ? "" : americanName(*base.cation, *base.anion);
}

std::string saltFormula(const AcidRow& acid, const Base& base)
{
    return compoundFormula(*base.cation, anionOf(acid));
}

std::string saltName(const AcidRow& acid, const Base& base)
{
    return compoundName(*base.cation, anionOf(acid));
}

std::string americanSaltName(const AcidRow& acid, const Base& base)
{
    return americanName(*base.cation, anionOf(acid));
}

Equation neutralisationOf(const AcidRow& acid, const Base& base)
{
    return equationOf(acid.formula, acid.protons, anionOf(acid), base);
}

// As many protons are given as are taken, and no fewer do: their least common multiple. The anions
// of the acid tell how much salt that is.
Equation equationOf(std::string_view acidFormula, int protons, const IonRow& anion,
                    const Base& base)
{
    const Uptake unit = uptakeOf(base);
    const int given = std::lcm(protons, unit.protons);
    const int ofAcid = given / protons;
    const int ofBase = given / unit.protons;
    const int ofSalt = ofAcid / anionsIn(*base.cation, anion);
    Equation equation;
    equation.left = {{ofAcid, std::string(acidFormula)}, {ofBase, formulaOf(base)}};
    equation.right = {{ofSalt, compoundFormula(*base.cation, anion)}};
    if (unit.water > 0) {
        equation.right.emplace_back(ofBase * unit.water, "H2O");
    }
    if (unit.carbonDioxide > 0) {
        equation.right.emplace_back(ofBase * unit.carbonDioxide, "CO2");
    }
    return equation;
}

std::string textOf(const Equation& equation)
{
    return textOf(equation.left) + " -> " + textOf(equation.right);
}

Spans spansOf(const Equation& equation)
{
    Spans spans;
    spans.reserve(3 * (equation.left.size() + equation.right.size()));
    append(spans, equation.left);
    append(spans, " → ");
    append(spans, equation.right);
    return spans;
}

} // namespace lesson
