#include "lesson/reading/units.hpp"

#include <gtest/gtest.h>

#include <string>

namespace lesson
{

namespace
{

struct UnitCase {
    const char* typed;
    Dimension dimension;
    int power;
};

TEST(UnitsTest, APrintedUnitIsTheOneThatWasTyped)
{
    struct Case {
        const char* typed;
        const char* printed;
    };
    // clang-format off
    const Case cases[] = {
        {"mol/L", "mol/L"}, {"moles per litre", "mol/L"}, {"mol L^-1", "mol/L"}, {"mmol L-1", "mmol/L"},
        {"mol/dm^3", "mol/dm³"}, {"mol.dm^{-3}", "mol dm⁻³"}, {"M", "M"}, {"mM", "mM"},
        {"mmol dm^-3", "mmol dm⁻³"}, {"mmol/l", "mmol/L"}, {"g mol-1", "g mol⁻¹"},
        {"mol/dm-3", "mol/dm³"}, {"g/mol-1", "g/mol"}, {"mmol/L^-1", "mmol/L"},
        {"cm^3", "cm³"}, {"cc", "cm³"}, {"ML", "mL"}, {"litres", "L"}, {"dm3", "dm³"},
        {"ltr", "L"}, {"cubic centimetres", "cm³"},
        {"cubic decimeter", "dm³"}, {"moles per cubic decimetre", "mol/dm³"},
        {"KG", "kg"}, {"mg", "mg"}, {"grams", "g"},
    };
    // clang-format on
    for (const Case& c : cases) {
        const std::optional<Unit> unit = unitOf(c.typed);
        ASSERT_TRUE(unit.has_value()) << c.typed;
        EXPECT_EQ(unit->printed, c.printed) << c.typed;
    }
}

TEST(UnitsTest, KnowsEveryUsualSpelling)
{
    // clang-format off
    const UnitCase cases[] = {
        {"mol/L", Dimension::concentration, 0},
        {"mol/l", Dimension::concentration, 0},
        {"MOL/L", Dimension::concentration, 0},
        {"Mol/L", Dimension::concentration, 0},
        {"mol / L", Dimension::concentration, 0},
        {"mol L-1", Dimension::concentration, 0},
        {"mol L^-1", Dimension::concentration, 0},
        {"mol L^{-1}", Dimension::concentration, 0},
        {"mol L^(-1)", Dimension::concentration, 0},
        {"mol.L-1", Dimension::concentration, 0},
        {"mol·L^-1", Dimension::concentration, 0},
        {"mol*L^-1", Dimension::concentration, 0},
        {"mol*L**-1", Dimension::concentration, 0},
        {"molL-1", Dimension::concentration, 0},
        {"mol/dm3", Dimension::concentration, 0},
        {"mol/dm^3", Dimension::concentration, 0},
        {"mol dm-3", Dimension::concentration, 0},
        {"mol dm^-3", Dimension::concentration, 0},
        {"mol.dm^{-3}", Dimension::concentration, 0},
        {"mol per litre", Dimension::concentration, 0},
        {"moles per liter", Dimension::concentration, 0},
        {"mol per L", Dimension::concentration, 0},
        {"moles/litre", Dimension::concentration, 0},
        {"mols/dm3", Dimension::concentration, 0},
        {"mole/L", Dimension::concentration, 0},
        {"M", Dimension::concentration, 0},
        {"molar", Dimension::concentration, 0},
        {"Molar", Dimension::concentration, 0},
        {"(mol/L)", Dimension::concentration, 0},
        {"[mol/L]", Dimension::concentration, 0},
        {"[M]", Dimension::concentration, 0},
        {"mM", Dimension::concentration, -3},
        {"mmol/L", Dimension::concentration, -3},
        {"mmol/l", Dimension::concentration, -3},
        {"mmol L-1", Dimension::concentration, -3},
        {"mmol dm^-3", Dimension::concentration, -3},
        {"mmol/dm3", Dimension::concentration, -3},
        {"millimoles per litre", Dimension::concentration, -3},
        {"millimolar", Dimension::concentration, -3},
        {"mmol/mL", Dimension::concentration, 0},
        {"mmol cm-3", Dimension::concentration, 0},
        // Divided twice.
        {"mol/dm-3", Dimension::concentration, 0},
        {"mol/dm^-3", Dimension::concentration, 0},
        {"mol / dm^{-3}", Dimension::concentration, 0},
        {"moles per dm-3", Dimension::concentration, 0},
        {"mol/L-1", Dimension::concentration, 0},
        {"mol/litre^(-1)", Dimension::concentration, 0},
        {"mmol/dm-3", Dimension::concentration, -3},
        {"mmol/cm-3", Dimension::concentration, 0},
        {"g/mol-1", Dimension::molarMass, 0},
        {"g/mol^-1", Dimension::molarMass, 0},
        {"kg/mol-1", Dimension::molarMass, 3},
        {"kg mol^-1", Dimension::molarMass, 3},
        {"kg/mol", Dimension::molarMass, 3},
        {"g/mol", Dimension::molarMass, 0},
        {"G/Mol", Dimension::molarMass, 0},
        {"g mol-1", Dimension::molarMass, 0},
        {"g mol^-1", Dimension::molarMass, 0},
        {"g.mol-1", Dimension::molarMass, 0},
        {"g·mol^-1", Dimension::molarMass, 0},
        {"grams per mole", Dimension::molarMass, 0},
        {"g/mole", Dimension::molarMass, 0},
        {"kg", Dimension::mass, 3},
        {"kilograms", Dimension::mass, 3},
        {"g", Dimension::mass, 0},
        {"G", Dimension::mass, 0},
        {"gram", Dimension::mass, 0},
        {"grams", Dimension::mass, 0},
        {"grammes", Dimension::mass, 0},
        {"mg", Dimension::mass, -3},
        {"milligrams", Dimension::mass, -3},
        {"L", Dimension::volume, 0},
        {"l", Dimension::volume, 0},
        {"litres", Dimension::volume, 0},
        {"Liters", Dimension::volume, 0},
        {"dm3", Dimension::volume, 0},
        {"dm^3", Dimension::volume, 0},
        {"mL", Dimension::volume, -3},
        {"ml", Dimension::volume, -3},
        {"ML", Dimension::volume, -3},
        {"mls", Dimension::volume, -3},
        {"millilitres", Dimension::volume, -3},
        {"milliliter", Dimension::volume, -3},
        {"cc", Dimension::volume, -3},
        {"cm3", Dimension::volume, -3},
        {"cm^3", Dimension::volume, -3},
        {"CM3", Dimension::volume, -3},
    };
    // clang-format on
    for (const UnitCase& c : cases) {
        const std::optional<Unit> unit = unitOf(c.typed);
        ASSERT_TRUE(unit) << c.typed;
        EXPECT_EQ(unit->dimension, c.dimension) << c.typed;
        EXPECT_EQ(unit->power, c.power) << c.typed;
    }
}

TEST(UnitsTest, OtherUnitsAndTextsAreNone)
{
    const char* const others[] = {
        "",         "m",       "mm",     "MM",   "Mm",          "mol",      "mol L",    "mol/L-3",
        "mol-L",    "L/mol",   "g/L",    "%",    "cm",          "cm2",      "dm",       "m3",
        "mol/kg",   "mol/m3",  "µL",     "gmol", "per",         "of",       "-1",       "mol//L",
        "kmol/L",   "mol per", "g/mol2", "\xC2", "mol/L mol/L", "mol/dm-1", "mol/dm-2", "mol/dm--3",
        "mol/m-3",  "mol/-L",  "mol/-1", "/-1",  "-3/",         "mol/L-",   "L-1/mol",  "mol-1/g",
        "mol/L-11",
    };
    for (const char* const other : others) {
        EXPECT_FALSE(unitOf(other)) << other;
    }
}

TEST(UnitsTest, TakesAnEndingAway)
{
    struct Case {
        const char* typed;
        const char* ending;
        const char* left;
    };
    const Case cases[] = {
        {"g NaCl", "NaCl", "g "},
        {"g nacl", "NaCl", "g "},
        {"M (NaOH)", "NaOH", "M ("},
        {"g Na2CO3 · 10H2O", "Na2CO3.10H2O", "g "},
        {"g Ca(CH3COO)2", "Ca(CH3COO)2", "g "},
        {"NaCl", "NaCl", ""},
        {"g KCl", "NaCl", "g KCl"},
        {"l", "NaCl", "l"},
        {"", "NaCl", ""},
        {"g", "", "g"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(withoutEnding(c.typed, c.ending), c.left) << c.typed << ", " << c.ending;
    }
}

} // namespace

} // namespace lesson
