#include "lesson/words/en_GB_sentences.hpp"

#include <cstddef>
#include <iterator>

namespace lesson
{

namespace
{

// What differs from British English.

// clang-format off
constexpr Word<Sentence> sentences[] = {
    {Sentence::neutralisationTitle,            "Equations of neutralization"},
    {Sentence::neutralisationLevel2,           "Oxides, carbonates, hydrogen carbonates and ammonia"},
    {Sentence::titrationLevel3,                "Several titers, equation not given"},
    {Sentence::ionFormulaNumeralIsNoCharge,    "The oxidation number of manganese is not the charge of the ion."},
    {Sentence::slipIonFormulaOxidationNumber,  "That is the oxidation number of manganese, not the charge of the ion."},
    {Sentence::hintConcentrationVolume,        "The concentration counts moles in a liter. How many liters are there here?"},
    {Sentence::hintConcentrationDivide,        "A concentration tells how many moles there would be in one liter."},
    {Sentence::hintConcentrationAmount,        "The concentration tells how many moles a liter has. How many have to be in this volume?"},
    {Sentence::slipMillilitres,                "How many {unit mL} are in a liter?"},
    {Sentence::slipOneLitre,                   "That is for one liter."},
    {Sentence::hintDilutionVolume,             "Both volumes need the same unit. How many milliliters are in a liter?"},
    {Sentence::neutralisationPrompt,           "Write the balanced equation for the complete neutralization of {base} by {acid}. The salt is {salt}."},
    {Sentence::titrationTitre,                 "The titer is {titre}."},
    {Sentence::titrationTwoTitres,             "The rough titer is {rough}, and the others are {first} and {second}."},
    {Sentence::titrationThreeTitres,           "The rough titer is {rough}, and the others are {first}, {second} and {third}."},
    {Sentence::titrationMean,                  "Take the mean, without the rough titer."},
    {Sentence::titrationVolumes,               "Convert both volumes to liters."},
    {Sentence::hintTitrationMean,              "Which titers agree within {number 0.10}{unit mL}? Only these count."},
    {Sentence::hintTitrationVolumes,           "A concentration in {unit mol/L} goes with a volume in liters. One liter is {number 1000}{unit mL}."},
    {Sentence::slipRoughTitreInMean,           "Leave the rough titer out of the mean."},
    {Sentence::slipRoughTitre,                 "The rough titer is only a first guess."},
    {Sentence::slipSumOfTitres,                "Divide the sum of the titers by how many they are."},
    {Sentence::notAskedTinNitrate,             "It falls apart: nitrate oxidizes tin(II)."},
    {Sentence::notAskedOxidisedByAir,          "It is oxidized by air, and is hardly met at school."},
    {Sentence::markCarbonates,                 "Carbonate and hydrogen carbonate are two different ions."},
    {Sentence::markSulfates,                   "Sulfate and hydrogen sulfate are two different ions."},
    {Sentence::markSulfites,                   "Sulfite and hydrogen sulfite are two different ions."},
    {Sentence::markPhosphates,                 "Phosphate and hydrogen phosphate are two different ions."},
    {Sentence::markDihydrogenphosphates,       "Phosphate and dihydrogen phosphate are two different ions."},
    {Sentence::markHydrogenphosphate,          "How many hydrogens has a hydrogen phosphate?"},
    {Sentence::markLessBase,                   "True with less base. Neutralize completely."},
    {Sentence::markLessAcid,                   "True with less acid. Neutralize completely."},
    {Sentence::markAcidSalt,                   "{formula} is an acid salt. Neutralize completely."},
    {Sentence::markHalfCarbonate,              "{formula} still reacts with the acid. Neutralize completely."},
    {Sentence::errorTitre,                     "A titer has at most two decimals, and no more than {number 50.00}{unit mL}."},
    {Sentence::errorTitreCount,                "There is one titer, or a rough one and two or three others."},
};

constexpr Word<int> elementNames[] = {
    {13, "aluminum"},
    {55, "cesium"},
};

constexpr Word<Ion> ionNames[] = {
    {Ion::aluminium, "aluminum"},
    {Ion::hydrogencarbonate, "hydrogen carbonate"},
    {Ion::ethanoate, "acetate"},
    {Ion::hydrogensulfate, "hydrogen sulfate"},
    {Ion::manganate7, "permanganate"},
    {Ion::hydrogensulfite, "hydrogen sulfite"},
    {Ion::hydrogenphosphate, "hydrogen phosphate"},
    {Ion::dihydrogenphosphate, "dihydrogen phosphate"},
    {Ion::ethanedioate, "oxalate"},
};

constexpr Word<Acid> acidNames[] = {
    {Acid::ethanoic, "acetic acid"},
    {Acid::ethanedioic, "oxalic acid"},
};
// clang-format on

constexpr bool haveArgumentsOfBritishOnes()
{
    bool haveAll = true;
    for (const Word<Sentence>& row : sentences) {
        const auto id = static_cast<std::size_t>(row.id);
        haveAll = haveAll && haveSameArguments(row.text, britishSentences[id].text);
    }
    return haveAll;
}

static_assert(haveArgumentsOfBritishOnes(), "a sentence takes what it does in British English");
static_assert(areReadable(sentences), "what stands in brackets can be read");
static_assert(areInOrder(sentences) && areInOrder(elementNames) && areInOrder(ionNames) &&
                  areInOrder(acidNames),
              "a sentence and a name are looked up by their ids");

} // namespace

const Language& americanEnglish()
{
    static const Language language = {
        "en-US",
        &britishEnglish(),
        {sentences, std::size(sentences)},
        {elementNames, std::size(elementNames)},
        {ionNames, std::size(ionNames)},
        {acidNames, std::size(acidNames)},
        {nullptr, 0},
        "",
        nullptr,
        nullptr,
    };
    return language;
}

} // namespace lesson
