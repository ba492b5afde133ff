// What marks say in each language, and however the reader writes.

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "lesson/kinds/kinds.hpp"
#include "lesson/marking/equation.hpp"
#include "lesson/marking/formula.hpp"
#include "lesson/marking/ion.hpp"
#include "lesson/marking/number.hpp"
#include "lesson/marking/solubility.hpp"
#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

std::vector<std::string> everyWriting()
{
    std::vector<std::string> all;
    for (const char* const language : {"en-GB", "en-US"}) {
        for (const char* const decimal : {";decimal=.", ";decimal=,"}) {
            for (const char* const volume : {";volume=mL", ";volume=cm3"}) {
                for (const char* const per : {";per=slash", ";per=power"}) {
                    all.push_back(std::string(language) + decimal + volume + per);
                }
            }
        }
    }
    return all;
}

struct Quoted {
    const char* typed;
    const char* quoted;
};

using MarkTyped = std::function<Mark(std::string_view typed, const Writing& writing)>;

void expectQuoted(const MarkTyped& mark, const std::vector<Quoted>& cases)
{
    for (const std::string& name : everyWriting()) {
        const Writing writing = readWriting(name).writing;
        for (const Quoted& c : cases) {
            EXPECT_THAT(plainText(mark(c.typed, writing).sentence, writing),
                        testing::HasSubstr("'" + std::string(c.quoted) + "'"))
                << c.typed << " in " << name;
        }
    }
}

// Units, names and numbers in it are the learner's own, and a bracket of it is no argument.
TEST(MarksInWordsTest, WhatWasTypedForANumberIsQuotedAsItWas)
{
    const Ask ask = {Form::number, "c", "HCl", "mol/L", 3, {}};
    expectQuoted(
        [&ask](std::string_view typed, const Writing& writing) {
            return markNumber({ratio(290, 1000)}, ask, {}, typed, writing);
        },
        {
            {"aluminium", "aluminium"},
            {"aluminum hydrogen carbonate", "aluminum hydrogen carbonate"},
            {"12 + 3 mL", "+ 3 mL"},
            {"12 + 3.25 cm3", "+ 3.25 cm3"},
            {"2 + 0,250 mol/L", "+ 0,250 mol/L"},
            {"{unit mL}", "{unit mL}"},
            {"{part}", "{part}"},
            {"a litre of caesium chloride, a litre of caesium",
             "a litre of caesium chloride, a litre of …"},
        });
}

TEST(MarksInWordsTest, WhatWasTypedForAFormulaIsQuotedAsItWas)
{
    expectQuoted(
        [](std::string_view typed, const Writing&) {
            return markFormula({findIon("aluminium"), findIon("fluoride")}, {}, typed);
        },
        {
            {"aluminium fluoride?", "aluminium fluoride?"},
            {"aluminium ethanoate", "aluminium ethanoate"},
            {"aluminum acetate", "aluminum acetate"},
            {"{formula H2O}", "{formula H2O}"},
        });
    expectQuoted([](std::string_view typed,
                    const Writing&) { return markIon({findIon("aluminium")}, {}, typed); },
                 {
                     {"hydrogencarbonate", "hydrogencarbonate"},
                     {"12 + 3 mL", "+ 3 mL"},
                     {"{ion Sr 2+}", "{ion Sr 2+}"},
                 });
}

TEST(MarksInWordsTest, WhatWasTypedOfSolubilityIsQuotedAsItWas)
{
    expectQuoted(
        [](std::string_view typed, const Writing&) {
            return markSolubility({true, line("All nitrates are soluble.")}, typed);
        },
        {
            {"perhaps in 0.5 mL", "perhaps in 0.5 mL"},
            {"aluminium ethanoate", "aluminium ethanoate"},
        });
    expectQuoted(
        [](std::string_view typed, const Writing&) {
            return markPrecipitate({nullptr, nullptr, {}}, {}, typed);
        },
        {
            {"aluminium ethanoate", "aluminium ethanoate"},
            {"sodium hydrogencarbonate", "sodium hydrogencarbonate"},
            {"0,5 mL", "0,5 mL"},
        });
}

TEST(MarksInWordsTest, WhatWasTypedInAnEquationIsQuotedAsItWas)
{
    const EquationAnswer answer = {findAcid("HCl"), {findIon("aluminium"), findIon("hydroxide")}};
    expectQuoted(
        [&answer](std::string_view typed, const Writing&) { return markEquation(answer, typed); },
        {
            {"3HCl + aluminium hydroxide -> AlCl3 + 3H2O", "aluminium hydroxide"},
            {"3HCl + Al(OH)3 -> aluminum chloride + 3H2O", "aluminum chloride"},
            {"3HCl + 0,5 mL -> AlCl3 + 3H2O", "mL"},
            {"3HCl + {name} -> AlCl3 + 3H2O", "{name}"},
        });
}

// ---------------------------------------------------------------------- in the reader's words

struct Told {
    const char* typed;
    const char* writing;
    const char* sentence;
};

TEST(MarksInWordsTest, NumbersAndUnitsAreInTheReadersWriting)
{
    const Ask ask = {Form::number, "c", "HCl", "mol/L", 3, {}};
    const NumberAnswer answer = {ratio(290, 1000), {}, false, true};
    // clang-format off
    const Told cases[] = {
        {"", "en-GB;decimal=,", "Type a number, such as 0,125."},
        {"0,2900001", "en-GB;decimal=,", "The value is right. Now give it to 3 significant figures."},
        {"0,291", "en-GB;decimal=,", "Correct. To 3 significant figures it is 0,290."},
        {"0,29", "en-GB;decimal=,", "Keep the zero: 0,290."},
        {"291 mmol/L", "en-GB;volume=cm3", "Correct. To 3 significant figures it is 290 mmol/dm3."},
        {"291 mmol/L", "en-GB;per=power", "Correct. To 3 significant figures it is 290 mmol L-1."},
        {"291 mmol/dm3", "en-GB;per=power", "Correct. To 3 significant figures it is 290 mmol dm-3."},
        {"291 mmol dm-3", "en-GB;per=power", "Correct. To 3 significant figures it is 290 mmol dm⁻³."},
        {"12 g", "en-GB;volume=cm3;per=power", "The answer should be in mol dm-3."},
        {"290", "en-GB;volume=cm3", "Right digits, wrong size. Check each volume: cm3 or dm3?"},
        {"1.250", "en-GB;decimal=,", "Do you mean 1250 or 1,250?"},
        {"1,250", "en-US", "Do you mean 1250 or 1.250?"},
    };
    // clang-format on
    for (const Told& c : cases) {
        const Writing writing = readWriting(c.writing).writing;
        const Mark mark = markNumber(answer, ask, {}, c.typed, writing);
        EXPECT_EQ(plainText(mark.sentence, writing), c.sentence) << c.typed << ", " << c.writing;
    }
}

TEST(MarksInWordsTest, SubstancesHaveTheReadersNames)
{
    const EquationAnswer alumina = {findAcid("HCl"), {findIon("aluminium"), findIon("hydroxide")}};
    const EquationAnswer vinegar = {findAcid("CH3COOH"), {findIon("sodium"), findIon("carbonate")}};
    struct Case {
        EquationAnswer answer;
        const char* typed;
        const char* british;
        const char* american;
    };
    const Case cases[] = {
        {alumina, "HCl + Al(OH)3 -> AlCl3 + H2O", // clang-format off
         "Count the chlorine atoms: 1 on the left, 3 on the right.",
         "Count the chlorine atoms: 1 on the left, 3 on the right."},
        {alumina, "3HCl + 2Al(OH)3 -> AlCl3 + 3H2O",
         "Count the aluminium atoms: 2 on the left, 1 on the right.",
         "Count the aluminum atoms: 2 on the left, 1 on the right."},
        {alumina, "CH3COOH + Al(OH)3 -> AlCl3 + 3H2O",
         "CH3COOH is ethanoic acid. Read again which acid is asked for.",
         "CH3COOH is acetic acid. Read again which acid is asked for."},
        {vinegar, "2CH3COOH + NaHCO3 -> 2CH3COONa + H2O + CO2",
         "Carbonate and hydrogencarbonate are two different ions.",
         "Carbonate and hydrogen carbonate are two different ions."},
        {vinegar, "CH3COOH + Na2CO3 -> CH3COONa + NaHCO3",
         "True with less acid. Neutralise completely.",
         "True with less acid. Neutralize completely."}, // clang-format on
    };
    for (const Case& c : cases) {
        const Spans said = markEquation(c.answer, c.typed).sentence;
        EXPECT_EQ(plainText(said, readWriting("en-GB").writing), c.british) << c.typed;
        EXPECT_EQ(plainText(said, readWriting("en-US").writing), c.american) << c.typed;
    }
}

bool hasBritishWord(const std::string& text)
{
    const std::vector<const char*> words = {"aluminium",   "Aluminium",        "caesium",
                                            "thanoate",    "thanoic",          "ydrogencarbonate",
                                            "ydrogensulf", "ydrogenphosphate", "anganate(VII)",
                                            "thanedio",    "utralis",          " titre"};
    return std::any_of(words.begin(), words.end(),
                       [&text](const char* word) { return text.find(word) != std::string::npos; });
}

TEST(MarksInWordsTest, NoBritishWordIsSaidInAmerica)
{
    const Writing american = readWriting("en-US").writing;
    int british = 0;
    for (const Kind* const kind : allKinds()) {
        for (int level = 1; level <= 3; ++level) {
            for (unsigned number = 1; number <= 60; ++number) {
                const Exercise exercise = makeExercise({4821, number, kind, level});
                std::vector<std::string> typed = {"no",    "yes",     "none",
                                                  "Al4O6", "HCO3^2-", "CH3COOH"};
                for (const Slip& slip : exercise.slips) {
                    typed.push_back(slip.text);
                }
                for (const std::string& text : typed) {
                    const Spans said = markAnswer(exercise, text).sentence;
                    british += hasBritishWord(plain(said)) ? 1 : 0;
                    EXPECT_FALSE(hasBritishWord(plainText(said, american)))
                        << text << ": " << plainText(said, american);
                }
            }
        }
    }
    EXPECT_GT(british, 100);
}

} // namespace

} // namespace lesson
