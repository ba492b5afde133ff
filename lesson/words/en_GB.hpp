#pragma once

#include <array>
#include <cstddef>

#include "lesson/words/language.hpp"
#include "lesson/words/pattern.hpp"

namespace lesson
{

// clang-format off
constexpr Word<Sentence> britishSentences[] = {
    // ---- titles and levels of kinds
    {Sentence::molarMassTitle,        "Molar mass"},
    {Sentence::molarMassLevel1,       "Formulas without brackets"},
    {Sentence::molarMassLevel2,       "Formulas with brackets"},
    {Sentence::molarMassLevel3,       "Hydrates"},
    {Sentence::compoundFormulaTitle,  "Formula of a compound"},
    {Sentence::compoundFormulaLevel1, "Ions of one atom"},
    {Sentence::compoundFormulaLevel2, "Ions that are groups of atoms"},
    {Sentence::compoundFormulaLevel3, "Names with Roman numerals"},
    {Sentence::ionFormulaTitle,       "Formula of an ion"},
    {Sentence::ionFormulaLevel1,      "Ions of one atom"},
    {Sentence::ionFormulaLevel2,      "Common groups of atoms"},
    {Sentence::ionFormulaLevel3,      "All ions, with -ite and -ate"},
    {Sentence::solubilityTitle,       "Solubility in water"},
    {Sentence::solubilityLevel1,      "The rules"},
    {Sentence::solubilityLevel2,      "The rules and their exceptions"},
    {Sentence::solubilityLevel3,      "The precipitate of two solutions"},
    {Sentence::concentrationTitle,    "Mass and concentration"},
    {Sentence::concentrationLevel1,   "The concentration of a solution"},
    {Sentence::concentrationLevel2,   "The mass for a solution"},
    {Sentence::concentrationLevel3,   "Hydrates, molar mass not given"},
    {Sentence::dilutionTitle,         "Dilution"},
    {Sentence::dilutionLevel1,        "The new concentration"},
    {Sentence::dilutionLevel2,        "The volume to take or the original concentration"},
    {Sentence::dilutionLevel3,        "The water to add"},
    {Sentence::neutralisationTitle,   "Equations of neutralisation"},
    {Sentence::neutralisationLevel1,  "Acids and hydroxides"},
    {Sentence::neutralisationLevel2,  "Oxides, carbonates, hydrogencarbonates and ammonia"},
    {Sentence::neutralisationLevel3,  "Ratios with a 3 or a 6"},
    {Sentence::titrationTitle,        "Acid-base titration"},
    {Sentence::titrationLevel1,       "Ratio 1:1"},
    {Sentence::titrationLevel2,       "Other ratios"},
    {Sentence::titrationLevel3,       "Several titres, equation not given"},

    // ---- kinds/molar_mass

    // ---- kinds/compound_formula
    {Sentence::compoundFormulaPrompt,           "Write the formula of {compound}."},
    {Sentence::compoundFormulaOneOfEach,        "One of each: the charges cancel."},
    {Sentence::compoundFormulaFewestIons,       "Find the fewest ions whose charges cancel."},
    {Sentence::compoundFormulaNoCharges,        "Write the positive ion first, and leave out the charges."},
    {Sentence::compoundFormulaSmallNumbers,     "Write the positive ion first; small numbers count the ions."},
    {Sentence::hintCompoundFormulaName,         "The name begins with the positive ion and ends with the negative one."},
    {Sentence::hintCompoundFormulaRomanNumeral, "A Roman numeral tells the charge of the one in front of it."},
    {Sentence::hintCompoundFormulaCharges,      "What are their charges?"},
    {Sentence::hintCompoundFormulaHowMany,      "A compound has no charge. How many of each ion does that take?"},
    {Sentence::hintCompoundFormulaBracket,      "Which number belongs to a whole group of atoms?"},
    {Sentence::hintCompoundFormulaOrder,        "Which ion comes first? A number stands behind what it counts."},

    // ---- kinds/ion_formula
    {Sentence::ionFormulaPrompt,                 "Write the formula of the {ion} ion, together with its charge."},
    {Sentence::ionFormulaAtoms,                  "{Ion} is {atoms}."},
    {Sentence::ionFormulaOneAtom,                "one {element}"},
    {Sentence::ionFormulaTwoAtoms,               "two {element}s"},
    {Sentence::ionFormulaThreeAtoms,             "three {element}s"},
    {Sentence::ionFormulaFourAtoms,              "four {element}s"},
    {Sentence::ionFormulaFiveAtoms,              "five {element}s"},
    {Sentence::ionFormulaSixAtoms,               "six {element}s"},
    {Sentence::ionFormulaSevenAtoms,             "seven {element}s"},
    {Sentence::ionFormulaMoreAtoms,              "{some}, {more}"},
    {Sentence::ionFormulaLastAtoms,              "{some} and {last}"},
    {Sentence::ionFormulaChargeOfGroup,          "The group as a whole has the charge {charge}."},
    {Sentence::ionFormulaNumeralIsNoCharge,      "The Roman numeral is not the charge of the ion."},
    {Sentence::ionFormulaOfElement,              "{Ion} is an ion of {element}."},
    {Sentence::ionFormulaSymbol,                 "Take the symbol of {element}."},
    {Sentence::ionFormulaChargeInName,           "The Roman numeral tells the charge: {charge}."},
    {Sentence::ionFormulaOnlyElectron,           "The atom loses its only electron."},
    {Sentence::ionFormulaSameCharge,             "There is no Roman numeral, because it always has the same charge: {charge}."},
    {Sentence::ionFormulaLoses,                  "{Element} is in group {group}: its atom loses {electrons}."},
    {Sentence::ionFormulaLosesInLaterGroup,      "{Element} is in group {group} ({former}): its atom loses {electrons}."},
    {Sentence::ionFormulaTakesUp,                "{Element} is in group {group} ({former}): its atom takes up {electrons}."},
    {Sentence::ionFormulaOneElectron,            "one electron"},
    {Sentence::ionFormulaTwoElectrons,           "two electrons"},
    {Sentence::ionFormulaThreeElectrons,         "three electrons"},
    {Sentence::hintIonFormulaElement,            "Which element is it? Find it in the periodic table."},
    {Sentence::hintIonFormulaIde,                "Its name is that of an element with the ending -ide. Find the symbol."},
    {Sentence::hintIonFormulaChargeInName,       "The name itself tells the charge."},
    {Sentence::hintIonFormulaElectronsMissing,   "How many electrons are missing from the outer shell of its atom?"},
    {Sentence::hintIonFormulaElectronsLost,      "How many electrons are in the outer shell of its atom? It loses them."},
    {Sentence::hintIonFormulaSameCharge,         "Its charge is always the same and has to be looked up."},
    {Sentence::hintIonFormulaAte,                "The ending -ate tells of oxygen, the rest of the name of the other element."},
    {Sentence::hintIonFormulaIte,                "The ending -ite tells of oxygen, one atom less than -ate."},
    {Sentence::hintIonFormulaAmmonium,           "It is a molecule of ammonia joined to a hydrogen ion."},
    {Sentence::hintIonFormulaHydroxide,          "Its name is made of those of two elements."},
    {Sentence::hintIonFormulaCyanide,            "The ending -ide: there is no oxygen in it. It has two elements, one atom of each."},
    {Sentence::hintIonFormulaVinegar,            "Its acid is the one in vinegar, which has one hydrogen more."},
    {Sentence::hintIonFormulaHydrogen,           "Hydrogen comes first. What is the ion without it?"},
    {Sentence::hintIonFormulaTwoHydrogens,       "The beginning di- means two. Hydrogen comes first. What is the ion without it?"},
    {Sentence::hintIonFormulaDichromate,         "The beginning di- means two, the ending -ate tells of oxygen."},
    {Sentence::hintIonFormulaThio,               "Thio- stands for a sulfur in the place of an oxygen. What is the ion without it?"},
    {Sentence::hintIonFormulaLeftByAcid,         "Each hydrogen ion that {acid} gives away leaves a charge of 1− behind."},
    {Sentence::hintIonFormulaLeftByVinegar,      "Each hydrogen ion that the acid in vinegar gives away leaves a charge of 1− behind."},
    {Sentence::hintIonFormulaLeftByCarbonicAcid, "Each hydrogen ion that carbonic acid gives away leaves a charge of 1− behind."},
    {Sentence::hintIonFormulaOfChloride,         "Its charge is that of chloride."},
    {Sentence::hintIonFormulaOfNitrate,          "Its charge is that of nitrate."},
    {Sentence::hintIonFormulaOfSulfate,          "Its charge is that of sulfate."},
    {Sentence::hintIonFormulaOfChromate,         "Its charge is that of chromate."},
    {Sentence::hintIonFormulaBroughtAlong,       "The hydrogen ion brings its charge along."},
    {Sentence::hintIonFormulaGivenAway,          "It is a water molecule that has given a hydrogen ion away."},
    {Sentence::hintIonFormulaWithoutHydrogen,    "What is the charge without the hydrogen, and what does a hydrogen ion add?"},
    {Sentence::hintIonFormulaWithoutHydrogens,   "What is the charge without the hydrogen, and what does each hydrogen ion add?"},
    {Sentence::hintIonFormulaManganate,          "Manganese has the oxidation number +7, each oxygen −2. They add up to the charge."},
    {Sentence::slipIonFormulaHydronium,          "That is a hydrogen ion joined to a water molecule."},
    {Sentence::slipIonFormulaHydroxide,          "That is the hydroxide ion, which bases have."},
    {Sentence::slipIonFormulaPeroxide,           "That is the peroxide ion, which has two atoms."},
    {Sentence::slipIonFormulaChromate,           "That is chromate. What does di- tell you?"},
    {Sentence::slipIonFormulaAcid,               "That is the acid, which is no ion."},
    {Sentence::slipIonFormulaHydrogens,          "Check the number of hydrogen atoms."},
    {Sentence::slipIonFormulaCarbons,            "Check the number of carbon atoms."},
    {Sentence::slipIonFormulaOwnCharge,          "Hydrogen brings a charge of its own."},
    {Sentence::slipIonFormulaOxidationNumber,    "The Roman numeral is the oxidation number of manganese, not the charge of the ion."},

    // ---- kinds/solubility
    {Sentence::solubilityPrompt,             "Does {compound}, {formula}, dissolve in water?"},
    {Sentence::solubilityOfTwoSolutions,     "Solutions of {one} and {other} are mixed. Write the formula of the precipitate, or “none”."},
    {Sentence::solubilityIsSoluble,          "{compound} is soluble"},
    {Sentence::solubilityIsInsoluble,        "{compound} is insoluble"},
    {Sentence::solubilityIonsTogether,       "These ions come together."},
    {Sentence::solubilityPartners,           "Exchange the partners: these are the new pairs."},
    {Sentence::solubilityPrecipitate,        "So this is the precipitate."},
    {Sentence::solubilityNoPrecipitate,      "Both are soluble, so there is no precipitate."},
    {Sentence::solubilityNone,               "none"},
    {Sentence::hintSolubilityIons,           "Each compound here is made of two ions. The negative one tells which rule holds."},
    {Sentence::hintSolubilityRule,           "What is the rule for {compounds}? Does it name {cation}?"},
    {Sentence::hintSolubilityIonsTogether,   "Each salt falls apart into its ions in water. Which four are in the mixture?"},
    {Sentence::hintSolubilityPartners,       "Which compounds can the positive ions make with the negative ions of the other solution?"},
    {Sentence::hintSolubilityPrecipitate,    "Which of the new pairs does not stay in solution, if any?"},
    {Sentence::slipSolubilityStaysDissolved, "That one stays in solution."},
    {Sentence::slipSolubilityWasDissolved,   "That one was dissolved at the start. Look at the new pairs of ions."},

    // ---- kinds/concentration

    // ---- kinds/dilution
    {Sentence::dilutionOfNewConcentration,      "{volume} of {concentration} {solution} is diluted to {total}. Calculate the concentration of the diluted solution in {unit mol/L}."},
    {Sentence::dilutionOfVolume,                "Calculate the volume, in {unit mL}, of {concentration} {solution} needed to make {total} of a {diluted} solution."},
    {Sentence::dilutionOfOriginalConcentration, "{volume} of {solution} is diluted to {total}. The diluted solution has a concentration of {diluted}. Calculate the original concentration in {unit mol/L}."},
    {Sentence::dilutionOfWater,                 "Calculate the volume of water, in {unit mL}, that has to be added to {volume} of {concentration} {solution} to bring its concentration down to {diluted}. Assume that the volumes add up."},

    // ---- kinds/neutralisation
    {Sentence::neutralisationPrompt,               "Write the balanced equation for the complete neutralisation of {base} by {acid}. The salt is {salt}."},
    {Sentence::neutralisationIonsOfSalt,           "The salt has these ions, as many of each as make the charges cancel."},
    {Sentence::neutralisationOfAmmonia,            "Write the formulas: an acid and ammonia give a salt alone."},
    {Sentence::neutralisationOfHydroxide,          "Write the formulas: an acid and a hydroxide give a salt and water."},
    {Sentence::neutralisationOfOxide,              "Write the formulas: an acid and an oxide give a salt and water."},
    {Sentence::neutralisationOfCarbonate,          "Write the formulas: an acid and a {carbonate} give a salt, water and carbon dioxide."},
    {Sentence::neutralisationBalance,              "Balance the {part}."},
    {Sentence::neutralisationBalanceBoth,          "Balance the {metal}, then the {anion}."},
    {Sentence::neutralisationBalanceWater,         "Balance the water."},
    {Sentence::neutralisationBalanceWaterAndGas,   "Balance the water and the carbon dioxide."},
    {Sentence::neutralisationThenWater,            "Then the water."},
    {Sentence::neutralisationThenWaterAndGas,      "Then the water and the carbon dioxide."},
    {Sentence::neutralisationCheck,                "Count the atoms to check."},
    {Sentence::neutralisationOnEachSide,           "{counts} on each side"},
    {Sentence::hintNeutralisationAmmonium,         "Ammonia takes up a hydrogen ion of the acid. Which ion does it become?"},
    {Sentence::hintNeutralisationSalt,             "The salt is made of the positive ion of the base and of what the acid leaves. What are their charges?"},
    {Sentence::hintNeutralisationOfAmmonia,        "All the hydrogen of the acid goes to the ammonia. What is left over?"},
    {Sentence::hintNeutralisationOfHydroxide,      "What do the hydrogen of the acid and the OH of the base become?"},
    {Sentence::hintNeutralisationOfOxide,          "What do the hydrogen of the acid and the oxygen of the base become?"},
    {Sentence::hintNeutralisationOfCarbonate,      "Each {carbonate} gives carbon dioxide as well as water."},
    {Sentence::hintNeutralisationBalance,          "How many of each ion are in one unit of the salt? The left side has to bring as many."},
    {Sentence::hintNeutralisationWaterOfHydroxide, "Each OH of the base makes one water with one hydrogen of the acid."},
    {Sentence::hintNeutralisationWaterOfOxide,     "Each oxygen of the base makes one water with two hydrogens of the acid."},
    {Sentence::hintNeutralisationWaterOfCarbonate, "Each {carbonate} gives one water and one carbon dioxide."},
    {Sentence::hintNeutralisationCheck,            "Is each element there as often on the left as on the right?"},

    // ---- kinds/titration

    // ---- kinds/shared
    {Sentence::saltIons, "{Compound} has these ions."},

    // ---- chemistry/solubility
    {Sentence::ruleAllSoluble,                "All {compounds} are soluble."},
    {Sentence::ruleSoluble,                   "{Compounds} are soluble."},
    {Sentence::ruleSolubleButSilverLead,      "{Compounds} are soluble, except those of silver and lead."},
    {Sentence::ruleSolubleButBariumLead,      "{Compounds} are soluble, except those of barium and lead, and in part calcium and silver."},
    {Sentence::ruleOfThreeSoluble,            "The {compounds} of sodium, potassium and ammonium are soluble."},
    {Sentence::ruleInsolubleButAlkaliMetals,  "{Compounds} are insoluble, except those of lithium, sodium and potassium, and in part calcium and barium."},
    {Sentence::ruleInsolubleButThree,         "{Compounds} are insoluble, except those of sodium, potassium and ammonium."},
    {Sentence::ruleInsolubleButFour,          "{Compounds} are insoluble, except those of lithium, sodium, potassium and ammonium."},
    {Sentence::familyHalides,                 "halides"},
    {Sentence::familyCarbonatesAndPhosphates, "carbonates and phosphates"},

    // ---- chemistry/pairs_not_asked
    {Sentence::notAskedAmmoniumHydroxide,         "Ammonia solution holds ammonia and water; ammonium hydroxide cannot be obtained from it."},
    {Sentence::notAskedSilverHydroxide,           "It falls apart into silver oxide and water."},
    {Sentence::notAskedTinHydroxide,              "It has no simple formula: it loses some of its water at once."},
    {Sentence::notAskedNotThere,                  "It does not exist."},
    {Sentence::notAskedCarbonateInWater,          "It does not exist: with water the hydroxide and carbon dioxide form instead."},
    {Sentence::notAskedTinCarbonate,              "It is hardly known: it falls apart into tin(II) oxide and carbon dioxide."},
    {Sentence::notAskedNoSubstance,               "It cannot be obtained as a substance."},
    {Sentence::notAskedIronIodide,                "Iron(III) turns iodide into iodine, so that iron(II) iodide forms."},
    {Sentence::notAskedCopperIodide,              "Copper(II) turns iodide into iodine, so that copper(I) iodide forms."},
    {Sentence::notAskedTinNitrate,                "It falls apart: nitrate oxidises tin(II)."},
    {Sentence::notAskedIronSulfide,               "It falls apart into iron(II) sulfide and sulfur."},
    {Sentence::notAskedNitride,                   "It is unknown, or too unstable or unusual for school."},
    {Sentence::notAskedPhosphide,                 "It is unknown, or has another formula than its ions suggest."},
    {Sentence::notAskedBasicSalt,                 "What is sold under the name has another formula, with hydroxide or oxide in it."},
    {Sentence::notAskedOxidisedByAir,             "It is oxidised by air, and is hardly met at school."},
    {Sentence::notAskedWhetherOxideDissolves,     "An oxide does not just dissolve: it reacts with water to a hydroxide, or stays as it is."},
    {Sentence::notAskedWhetherNitrideDissolves,   "Nitrides do not dissolve: they react with water or stay as they are."},
    {Sentence::notAskedWhetherPhosphideDissolves, "Phosphides do not dissolve: they react with water."},
    {Sentence::notAskedTablesOnFluorides,         "School tables differ on fluorides."},
    {Sentence::notAskedTinWithoutAcid,            "Tin(II) compounds react with water unless there is acid."},
    {Sentence::notAskedTablesWithoutTin,          "School tables leave out the compounds of tin(II)."},
    {Sentence::notAskedDissolvesALittle,          "It dissolves a little: school tables differ."},
    {Sentence::notAskedHardlyDissolves,           "It hardly dissolves, unlike other alkali salts: school tables differ."},
    {Sentence::notAskedOnlyInSolution,            "It exists only in solution."},
    {Sentence::notAskedDissolvesInHotWater,       "It dissolves in hot water, but hardly in cold water: school tables differ."},
    {Sentence::notAskedReactsWithWater,           "It reacts with water."},
    {Sentence::notAskedReactsOrTooSlow,           "It reacts violently with water, or dissolves too slowly to tell."},

    // ---- marking, what several forms say

    // ---- marking/number

    // ---- marking/formula

    // ---- marking/ion

    // ---- marking/solubility

    // ---- marking/equation

    // ---- paper and descriptions
    {Sentence::errorPaper,            "The paper has to be a number from 1 to {greatest}."},
    {Sentence::errorNumber,           "The number of the exercise has to be from 1 to {greatest}."},
    {Sentence::errorNoKind,           "Name a kind of exercise."},
    {Sentence::errorUnknownKind,      "There is no kind of exercise called '{kind}'."},
    {Sentence::errorLevelOfKind,      "The level of {kind} has to be 1, 2 or 3."},
    {Sentence::errorMixedWithOthers,  "The kind mixed stands alone, without a level."},
    {Sentence::errorMixedOnSheet,     "A sheet names each of its kinds, and mixed is none."},
    {Sentence::errorKindTwice,        "The kind {kind} is there twice."},
    {Sentence::errorCount,            "The number of exercises has to be a whole number, not '{typed}'."},
    {Sentence::errorFirstNumber,      "The number behind @ has to be from 1 to {greatest}, not '{typed}'."},
    {Sentence::errorLastNumber,       "The exercises of {kind} go beyond number {greatest}."},
    {Sentence::errorNoClosingBracket, "There is no ] behind '[{typed}'."},
    {Sentence::errorEmptyBrackets,    "There is nothing between [ and ]."},
    {Sentence::errorEmptySheet,       "A sheet has at least one exercise."},
    {Sentence::errorLongSheet,        "A sheet has at most {most} exercises."},
    {Sentence::errorExerciseTwice,    "Exercise {number} of {kind} is there twice."},
    {Sentence::errorFieldTwice,       "The value {field} is there twice."},
    {Sentence::errorFieldMissing,     "The value {field} is missing."},
    {Sentence::errorFieldUnknown,     "This kind of exercise has no value called '{field}'."},
    {Sentence::errorFieldNumber,      "The value {field} has to be a number of at most four figures, not '{typed}'."},
    {Sentence::errorLevel,            "The level has to be 1, 2 or 3."},
    {Sentence::errorFieldNotAsked,    "Nothing is asked about '{typed}' as {field}."},
    {Sentence::errorValuesNotAsked,   "Nothing is asked about these values."},
    {Sentence::errorMolarMass,        "The molar mass {quantity M} of {substance} is {mass}."},
    {Sentence::errorAcidOrBase,       "{field} has to be {acid} or {base}."},
    {Sentence::errorTitre,            "A titre has at most two decimals, and no more than {number 50.00}{unit mL}."},
    {Sentence::errorTitreCount,       "There is one titre, or a rough one and two or three others."},
    {Sentence::errorReaction,         "Nothing is asked about '{acid}' and '{base}'."},
    {Sentence::errorMixture,          "Nothing is asked about what forms when {first} and {second} are mixed."},
    {Sentence::errorUnknownLanguage,  "There is no language called '{tag}'."},
    {Sentence::errorUnknownWriting,   "There is no way of writing called '{option}'."},

    // ---- export

    // ---- border
    {Sentence::errorNoTypedText, "There is no typed text."},
    {Sentence::errorFormat,      "The format has to be moodle or anki."},
    {Sentence::errorNoCard,      "Nothing on this sheet fits a card: formulas, ions and solubility do."},
};
// clang-format on

constexpr bool haveAllSentences()
{
    std::size_t place = 0;
    for (const Word<Sentence>& row : britishSentences) {
        if (row.id != static_cast<Sentence>(place++)) {
            return false;
        }
    }
    return static_cast<Sentence>(place) == Sentence::last;
}
static_assert(haveAllSentences(), "each sentence stands at its place");

// How many arguments a sentence takes.
constexpr std::size_t argumentCount(Sentence sentence)
{
    return argumentCount(britishSentences[static_cast<std::size_t>(sentence)].text);
}

} // namespace lesson
