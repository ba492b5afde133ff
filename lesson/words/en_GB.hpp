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

    // ---- kinds/ion_formula

    // ---- kinds/solubility

    // ---- kinds/concentration

    // ---- kinds/dilution
    {Sentence::dilutionOfNewConcentration,      "{volume} of {concentration} {solution} is diluted to {total}. Calculate the concentration of the diluted solution in {unit mol/L}."},
    {Sentence::dilutionOfVolume,                "Calculate the volume, in {unit mL}, of {concentration} {solution} needed to make {total} of a {diluted} solution."},
    {Sentence::dilutionOfOriginalConcentration, "{volume} of {solution} is diluted to {total}. The diluted solution has a concentration of {diluted}. Calculate the original concentration in {unit mol/L}."},
    {Sentence::dilutionOfWater,                 "Calculate the volume of water, in {unit mL}, that has to be added to {volume} of {concentration} {solution} to bring its concentration down to {diluted}. Assume that the volumes add up."},

    // ---- kinds/neutralisation

    // ---- kinds/titration

    // ---- kinds/shared

    // ---- chemistry/solubility

    // ---- chemistry/pairs_not_asked

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
