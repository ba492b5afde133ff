#include "lesson/kinds/description.hpp"

#include <gtest/gtest.h>

#include <string>

#include "lesson/kinds/kinds.hpp"
#include "lesson/paper/reference.hpp"
#include "lesson/tests/support/calculation.hpp"
#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

// As somebody writes it who has never seen the exercise; the prompt tells it all.
TEST(DescriptionTest, ThePromptTellsWhatIsDescribed)
{
    struct Case {
        const char* description;
        const char* prompt;
        const char* key;
    };
    const Case cases[] = {
        {"molar-mass;formula=CuSO4.5H2O",
         "Calculate the molar mass of copper(II) sulfate pentahydrate, CuSO4.5H2O, in g/mol.",
         "249.7 g/mol"},
        {"compound-formula;cation=Fe^3+;anion=SO4^2-", "Write the formula of iron(III) sulfate.",
         "Fe2(SO4)3"},
        {"ion-formula;ion=SO4^2-",
         "Write the formula of the sulfate ion, together with its charge.", "SO4^2-"},
        {"solubility;cation=Ag^+;anion=Cl^-", "Does silver chloride, AgCl, dissolve in water?",
         "no"},
        {"solubility;cation1=Na^+;anion1=Cl^-;cation2=Ag^+;anion2=NO3^-",
         "Solutions of sodium chloride and silver nitrate are mixed. Write the formula of the "
         "precipitate, or “none”.",
         "AgCl"},
        // 4.44/174.26/0.100 = 0.25479
        {"concentration;substance=K2SO4;m=4.44;V=100;M=174.26",
         "4.44 g of potassium sulfate, K2SO4 (M = 174.26 g/mol), is dissolved in water and made up "
         "to 100 mL of solution. Calculate the concentration of the solution in mol/L.",
         "0.255 mol/L"},
        // 6.00 x 25.0/500 = 0.300
        {"dilution;V2=500;V1=25.0;c1=6.00;substance=HCl",
         "25.0 mL of 6.00 mol/L hydrochloric acid is diluted to 500 mL. Calculate the "
         "concentration "
         "of the diluted solution in mol/L.",
         "0.300 mol/L"},
        {"neutralisation;acid=H2SO4;base=KOH",
         "Write the balanced equation for the complete neutralisation of potassium hydroxide by "
         "sulfuric acid. The salt is potassium sulfate.",
         "H2SO4 + 2KOH -> K2SO4 + 2H2O"},
        // 0.204 x 30.70/25.0/2 = 0.12526
        {"titration;acid=HNO3;base=Na2CO3;asked=base;c=0.204;burette=acid;titre=30.70;pipette=25.0;"
         "indicator=methyl orange",
         "25.0 mL of sodium carbonate solution is titrated with 0.204 mol/L nitric acid from the "
         "burette, with methyl orange as the indicator, until the carbonate has reacted "
         "completely. The titre is 30.70 mL. The equation is 2HNO3 + Na2CO3 → 2NaNO3 + H2O + CO2. "
         "Calculate the concentration of the sodium carbonate solution in mol/L.",
         "0.125 mol/L"},
    };
    for (const Case& one : cases) {
        const NamedExercise named = exerciseNamed(one.description);
        EXPECT_EQ(plain(named.error), "") << one.description;
        EXPECT_EQ(plain(named.exercise.prompt), one.prompt) << one.description;
        EXPECT_EQ(typedKey(named.exercise), one.key) << one.description;
        EXPECT_EQ(named.exercise.place.paper, 0U) << one.description;
    }
}

// Only a level that the quantities do not tell is in a description.
TEST(DescriptionTest, TheLevelIsToldByTheQuantitiesOrBesides)
{
    struct Case {
        const char* description;
        int level;
        const char* again;
    };
    const Case cases[] = {
        {"ion-formula;ion=SO4^2-", 2, "ion-formula;ion=SO4^2-"},
        {"ion-formula;level=3;ion=SO4^2-", 3, "ion-formula;ion=SO4^2-;level=3"},
        {"ion-formula;ion=SO4^2-;level=2", 2, "ion-formula;ion=SO4^2-"},
        {"solubility;cation=Na^+;anion=Cl^-", 1, "solubility;cation=Na^+;anion=Cl^-"},
        {"solubility;cation=Ag^+;anion=Cl^-", 2, "solubility;cation=Ag^+;anion=Cl^-"},
        {"dilution;substance=HCl;c1=2.00;V1=25.0;c2=0.500", 3,
         "dilution;substance=HCl;c1=2.00;V1=25.0;c2=0.500"},
        {"neutralisation;acid=H3PO4;base=Ca(OH)2", 3, "neutralisation;acid=H3PO4;base=Ca(OH)2"},
    };
    for (const Case& one : cases) {
        const NamedExercise named = exerciseNamed(one.description);
        EXPECT_EQ(plain(named.error), "") << one.description;
        EXPECT_EQ(named.exercise.place.level, one.level) << one.description;
        EXPECT_EQ(named.exercise.description, one.again) << one.description;
    }
}

TEST(DescriptionTest, WhatCannotBeReadIsToldInASentence)
{
    const std::string dilution = "dilution;substance=HCl;";
    const std::string titration = "titration;acid=HCl;base=NaOH;asked=acid;c=0.105;";
    struct Case {
        std::string description;
        const char* error;
    };
    const char* const values = "Nothing is asked about these values.";
    const Case cases[] = {
        {"molar-mass", "The value formula is missing."},
        {"molar-mass;formula=Xx", "Nothing is asked about 'Xx' as formula."},
        {"molar-mass;formula=NaCl;formula=KCl", "The value formula is there twice."},
        {"molar-mass;formula=NaCl;mass=1", "This kind of exercise has no value called 'mass'."},
        {"molar-mass;formula=NaCl;level=4", "The level has to be 1, 2 or 3."},
        {"compound-formula;cation=Fe^3+;anion=I^-", "Nothing is asked about 'I^-' as anion."},
        {"compound-formula;cation=Fe3+;anion=Cl^-", "Nothing is asked about 'Fe3+' as cation."},
        {"solubility;cation1=Ag^+;anion1=NO3^-;cation2=Ag^+;anion2=NO3^-",
         "Nothing is asked about what forms when AgNO3 and AgNO3 are mixed."},
        {"concentration;substance=NaCl;m=5.84;V=250;M=58",
         "The molar mass M of NaCl is 58.44 g/mol."},
        {"concentration;substance=HCl;m=5.84;V=250", "Nothing is asked about 'HCl' as substance."},
        {dilution + "c1=6.00;V1=25.0", "The value V2 is missing."},
        {dilution + "c1=6.00;V1=500;V2=25.0", values},
        {dilution + "c1=99.0;V1=25.0;V2=500", values},
        {dilution + "c1=6.00;V1=0;V2=500",
         "The value V1 has to be a number of at most four figures, not '0'."},
        {dilution + "c1=6.00;V1=-5;V2=500",
         "The value V1 has to be a number of at most four figures, not '-5'."},
        {dilution + "c1=6.00;V1=25.;V2=500",
         "The value V1 has to be a number of at most four figures, not '25.'."},
        {dilution + "c1=6.00;V1=.5;V2=500",
         "The value V1 has to be a number of at most four figures, not '.5'."},
        {dilution + "c1=6.00;V1=12345;V2=500",
         "The value V1 has to be a number of at most four figures, not '12345'."},
        {dilution + "c1=6.00;V1=2.5.0;V2=500",
         "The value V1 has to be a number of at most four figures, not '2.5.0'."},
        {dilution + "c1=6.00;V1=99999999999999999999;V2=500",
         "The value V1 has to be a number of at most four figures, not '99999999999999999999'."},
        {"neutralisation;acid=HCl;base=HCl", "Nothing is asked about 'HCl' and 'HCl'."},
        {titration + "burette=left;titre=20.00;pipette=25.0;indicator=methyl orange",
         "burette has to be acid or base."},
        {titration + "burette=base;titre=2.005;pipette=25.0;indicator=methyl orange",
         "A titre has at most two decimals, and no more than 50.00 mL."},
        {titration + "burette=base;titre=50.01;pipette=25.0;indicator=methyl orange",
         "A titre has at most two decimals, and no more than 50.00 mL."},
        {titration + "burette=base;titre=20.00,21.00;pipette=25.0;indicator=methyl orange",
         "There is one titre, or a rough one and two or three others."},
        {titration + "burette=base;titre=;pipette=25.0;indicator=methyl orange",
         "There is one titre, or a rough one and two or three others."},
        {titration + "burette=base;titre=20.00;pipette=25.0;indicator=litmus",
         "Nothing is asked about 'litmus' as indicator."},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(plain(exerciseNamed(one.description).error), one.error) << one.description;
    }
}

} // namespace

} // namespace lesson
