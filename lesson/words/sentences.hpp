#pragma once

#include <cstdint>

namespace lesson
{

// Every sentence that the library says, in the order in which the languages list them; en_GB.hpp
// has them in English.
enum class Sentence : std::uint16_t {
    // ---- titles and levels of kinds
    molarMassTitle,
    molarMassLevel1,
    molarMassLevel2,
    molarMassLevel3,
    compoundFormulaTitle,
    compoundFormulaLevel1,
    compoundFormulaLevel2,
    compoundFormulaLevel3,
    ionFormulaTitle,
    ionFormulaLevel1,
    ionFormulaLevel2,
    ionFormulaLevel3,
    solubilityTitle,
    solubilityLevel1,
    solubilityLevel2,
    solubilityLevel3,
    concentrationTitle,
    concentrationLevel1,
    concentrationLevel2,
    concentrationLevel3,
    dilutionTitle,
    dilutionLevel1,
    dilutionLevel2,
    dilutionLevel3,
    neutralisationTitle,
    neutralisationLevel1,
    neutralisationLevel2,
    neutralisationLevel3,
    titrationTitle,
    titrationLevel1,
    titrationLevel2,
    titrationLevel3,

    // ---- kinds/molar_mass

    // ---- kinds/compound_formula

    // ---- kinds/ion_formula

    // ---- kinds/solubility

    // ---- kinds/concentration

    // ---- kinds/dilution
    dilutionOfNewConcentration,
    dilutionOfVolume,
    dilutionOfOriginalConcentration,
    dilutionOfWater,

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
    errorPaper,
    errorNumber,
    errorNoKind,
    errorUnknownKind,
    errorLevelOfKind,
    errorMixedWithOthers,
    errorMixedOnSheet,
    errorKindTwice,
    errorCount,
    errorFirstNumber,
    errorLastNumber,
    errorNoClosingBracket,
    errorEmptyBrackets,
    errorEmptySheet,
    errorLongSheet,
    errorExerciseTwice,
    errorFieldTwice,
    errorFieldMissing,
    errorFieldUnknown,
    errorFieldNumber,
    errorLevel,
    errorFieldNotAsked,
    errorValuesNotAsked,
    errorMolarMass,
    errorAcidOrBase,
    errorTitre,
    errorTitreCount,
    errorReaction,
    errorMixture,
    errorUnknownLanguage,
    errorUnknownWriting,

    // ---- export

    // ---- border
    errorNoTypedText,
    errorFormat,
    errorNoCard,

    last,
};

} // namespace lesson
