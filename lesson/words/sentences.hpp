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
    compoundFormulaPrompt,
    compoundFormulaOneOfEach,
    compoundFormulaFewestIons,
    compoundFormulaNoCharges,
    compoundFormulaSmallNumbers,
    hintCompoundFormulaName,
    hintCompoundFormulaRomanNumeral,
    hintCompoundFormulaCharges,
    hintCompoundFormulaHowMany,
    hintCompoundFormulaBracket,
    hintCompoundFormulaOrder,

    // ---- kinds/ion_formula
    ionFormulaPrompt,
    ionFormulaAtoms,
    ionFormulaOneAtom,
    ionFormulaTwoAtoms,
    ionFormulaThreeAtoms,
    ionFormulaFourAtoms,
    ionFormulaFiveAtoms,
    ionFormulaSixAtoms,
    ionFormulaSevenAtoms,
    ionFormulaMoreAtoms,
    ionFormulaLastAtoms,
    ionFormulaChargeOfGroup,
    ionFormulaNumeralIsNoCharge,
    ionFormulaOfElement,
    ionFormulaSymbol,
    ionFormulaChargeInName,
    ionFormulaOnlyElectron,
    ionFormulaSameCharge,
    ionFormulaLoses,
    ionFormulaLosesInLaterGroup,
    ionFormulaTakesUp,
    ionFormulaOneElectron,
    ionFormulaTwoElectrons,
    ionFormulaThreeElectrons,
    hintIonFormulaElement,
    hintIonFormulaIde,
    hintIonFormulaChargeInName,
    hintIonFormulaElectronsMissing,
    hintIonFormulaElectronsLost,
    hintIonFormulaSameCharge,
    hintIonFormulaAte,
    hintIonFormulaIte,
    hintIonFormulaAmmonium,
    hintIonFormulaHydroxide,
    hintIonFormulaCyanide,
    hintIonFormulaVinegar,
    hintIonFormulaHydrogen,
    hintIonFormulaTwoHydrogens,
    hintIonFormulaDichromate,
    hintIonFormulaThio,
    hintIonFormulaLeftByAcid,
    hintIonFormulaLeftByVinegar,
    hintIonFormulaLeftByCarbonicAcid,
    hintIonFormulaOfChloride,
    hintIonFormulaOfNitrate,
    hintIonFormulaOfSulfate,
    hintIonFormulaOfChromate,
    hintIonFormulaBroughtAlong,
    hintIonFormulaGivenAway,
    hintIonFormulaWithoutHydrogen,
    hintIonFormulaWithoutHydrogens,
    hintIonFormulaManganate,
    slipIonFormulaHydronium,
    slipIonFormulaHydroxide,
    slipIonFormulaPeroxide,
    slipIonFormulaChromate,
    slipIonFormulaAcid,
    slipIonFormulaHydrogens,
    slipIonFormulaCarbons,
    slipIonFormulaOwnCharge,
    slipIonFormulaOxidationNumber,

    // ---- kinds/solubility
    solubilityPrompt,
    solubilityOfTwoSolutions,
    solubilityIsSoluble,
    solubilityIsInsoluble,
    solubilityIonsTogether,
    solubilityPartners,
    solubilityPrecipitate,
    solubilityNoPrecipitate,
    solubilityNone,
    hintSolubilityIons,
    hintSolubilityRule,
    hintSolubilityIonsTogether,
    hintSolubilityPartners,
    hintSolubilityPrecipitate,
    slipSolubilityStaysDissolved,
    slipSolubilityWasDissolved,

    // ---- kinds/concentration

    // ---- kinds/dilution
    dilutionOfNewConcentration,
    dilutionOfVolume,
    dilutionOfOriginalConcentration,
    dilutionOfWater,

    // ---- kinds/neutralisation
    neutralisationPrompt,
    neutralisationIonsOfSalt,
    neutralisationOfAmmonia,
    neutralisationOfHydroxide,
    neutralisationOfOxide,
    neutralisationOfCarbonate,
    neutralisationBalance,
    neutralisationBalanceBoth,
    neutralisationBalanceWater,
    neutralisationBalanceWaterAndGas,
    neutralisationThenWater,
    neutralisationThenWaterAndGas,
    neutralisationCheck,
    neutralisationOnEachSide,
    hintNeutralisationAmmonium,
    hintNeutralisationSalt,
    hintNeutralisationOfAmmonia,
    hintNeutralisationOfHydroxide,
    hintNeutralisationOfOxide,
    hintNeutralisationOfCarbonate,
    hintNeutralisationBalance,
    hintNeutralisationWaterOfHydroxide,
    hintNeutralisationWaterOfOxide,
    hintNeutralisationWaterOfCarbonate,
    hintNeutralisationCheck,

    // ---- kinds/titration

    // ---- kinds/shared
    saltIons,

    // ---- chemistry/solubility
    ruleAllSoluble,
    ruleSoluble,
    ruleSolubleButSilverLead,
    ruleSolubleButBariumLead,
    ruleOfThreeSoluble,
    ruleInsolubleButAlkaliMetals,
    ruleInsolubleButThree,
    ruleInsolubleButFour,
    familyHalides,
    familyCarbonatesAndPhosphates,

    // ---- chemistry/pairs_not_asked
    notAskedAmmoniumHydroxide,
    notAskedSilverHydroxide,
    notAskedTinHydroxide,
    notAskedNotThere,
    notAskedCarbonateInWater,
    notAskedTinCarbonate,
    notAskedNoSubstance,
    notAskedIronIodide,
    notAskedCopperIodide,
    notAskedTinNitrate,
    notAskedIronSulfide,
    notAskedNitride,
    notAskedPhosphide,
    notAskedBasicSalt,
    notAskedOxidisedByAir,
    notAskedWhetherOxideDissolves,
    notAskedWhetherNitrideDissolves,
    notAskedWhetherPhosphideDissolves,
    notAskedTablesOnFluorides,
    notAskedTinWithoutAcid,
    notAskedTablesWithoutTin,
    notAskedDissolvesALittle,
    notAskedHardlyDissolves,
    notAskedOnlyInSolution,
    notAskedDissolvesInHotWater,
    notAskedReactsWithWater,
    notAskedReactsOrTooSlow,

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
