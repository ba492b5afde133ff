#include "lesson/words/render.hpp"

#include <gtest/gtest.h>

#include <string>

#include "lesson/tests/support/plain.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

Writing writingOf(const char* text)
{
    return readWriting(text).writing;
}

// "Do you mean |n 1,250| or |n 1.250|?": kinds by a letter, words as they are.
std::string marked(const Spans& spans)
{
    std::string text;
    for (const Span& span : spans) {
        const char* const kind = span.kind == Span::Kind::number     ? "n "
                                 : span.kind == Span::Kind::unit     ? "u "
                                 : span.kind == Span::Kind::formula  ? "f "
                                 : span.kind == Span::Kind::ion      ? "i "
                                 : span.kind == Span::Kind::quantity ? "q "
                                 : span.kind == Span::Kind::name     ? "name "
                                                                     : "";
        const bool isText = span.kind == Span::Kind::text;
        text += isText ? span.text : "|" + (kind + span.text) + span.detail + span.index + "|";
    }
    return text;
}

TEST(RenderTest, NumbersAndUnitsAreAsTheReaderWrites)
{
    struct Case {
        const char* writing;
        const char* number;
        const char* concentration;
        const char* volume;
        const char* molarMass;
    };
    const Case cases[] = {
        {"en-GB", "5.00e-5", "mol/L", "mL", "g/mol"},
        {"en-GB;decimal=,", "5,00e-5", "mol/L", "mL", "g/mol"},
        {"en-GB;volume=cm3", "5.00e-5", "mol/dm3", "cm3", "g/mol"},
        {"en-GB;per=power", "5.00e-5", "mol L-1", "mL", "g mol-1"},
        {"en-US;decimal=,;volume=cm3;per=power", "5,00e-5", "mol dm-3", "cm3", "g mol-1"},
    };
    for (const Case& one : cases) {
        const Writing writing = writingOf(one.writing);
        EXPECT_EQ(numberIn(writing, "5.00e-5"), one.number) << one.writing;
        EXPECT_EQ(unitIn(writing, "mol/L"), one.concentration) << one.writing;
        EXPECT_EQ(unitIn(writing, "mL"), one.volume) << one.writing;
        EXPECT_EQ(unitIn(writing, "g/mol"), one.molarMass) << one.writing;
    }
}

TEST(RenderTest, ASentenceIsItsPatternWithItsArguments)
{
    const Span said = say<Sentence::dilutionOfNewConcentration>(
        measure("25.0", "mL"), measure("6.00", "mol/L"), formula("HCl"), measure("500", "mL"));
    EXPECT_EQ(marked(rendered({said}, writingOf("en-GB;decimal=,;volume=cm3;per=power"))),
              "|n 25,0||u cm3| of |n 6,00||u mol dm-3| |f HCl| is diluted to |n 500||u cm3|. "
              "Calculate the concentration of the diluted solution in |u mol dm-3|.");
}

TEST(RenderTest, WhatBeginsASentenceGetsACapital)
{
    EXPECT_EQ(plain({say<Sentence::ionFormulaOfElement>(nameOf(*findIon("chloride")),
                                                        nameOf(element(17)))}),
              "Chloride is an ion of chlorine.");
    EXPECT_EQ(plain({say<Sentence::saltIons>(nameOf(*findIon("aluminium"), *findIon("sulfate")))}),
              "Aluminium sulfate has these ions.");
    EXPECT_EQ(plainAmerican(
                  {say<Sentence::saltIons>(nameOf(*findIon("aluminium"), *findIon("sulfate")))}),
              "Aluminum sulfate has these ions.");
}

// What was typed keeps its numbers, its brackets and its names.
TEST(RenderTest, WhatWasTypedIsQuotedAsItIs)
{
    for (const char* const typed : {"1.5 mL", "{kind}", "aluminium", "}{", ""}) {
        const Spans said = {say<Sentence::errorUnknownKind>(std::string(typed))};
        EXPECT_EQ(plainText(said, writingOf("en-US;decimal=,;volume=cm3")),
                  "There is no kind of exercise called '" + std::string(typed) + "'.");
    }
}

TEST(RenderTest, ASentenceMayBeAnArgumentOrStandInALine)
{
    const Spans both = line("(", say<Sentence::answerYes>(), ") ",
                            fraction({number("1.5")}, {say<Sentence::answerNo>()}));
    const Spans made = rendered(both, writingOf("en-GB;decimal=,"));
    EXPECT_EQ(plainText(made), "(yes) (1,5)/(no)");
    EXPECT_EQ(made.size(), 2U) << "words join";
    EXPECT_EQ(plain({say<Sentence::errorUnknownKind>(say<Sentence::answerYes>())}),
              "There is no kind of exercise called 'yes'.");
}

TEST(RenderTest, AKeyIsWrittenAsItIsTyped)
{
    struct Case {
        Spans key;
        const char* british;
        const char* other;
    };
    const Equation equation = {{{2, "HCl"}, {1, "MgO"}}, {{1, "MgCl2"}, {1, "H2O"}}};
    const Case cases[] = {
        {measure("0.290", "mol/L"), "0.290 mol/L", "0,290 mol dm-3"},
        {{formula("CuSO4.5H2O")}, "CuSO4.5H2O", "CuSO4.5H2O"},
        {{ionSpan("SO4", "2-")}, "SO4^2-", "SO4^2-"},
        {spansOf(equation), "2HCl + MgO -> MgCl2 + H2O", "2HCl + MgO -> MgCl2 + H2O"},
        {{say<Sentence::answerNone>()}, "none", "none"},
    };
    for (const Case& one : cases) {
        Exercise exercise;
        exercise.key = one.key;
        EXPECT_EQ(keyText(exercise, Writing()), one.british);
        const Writing other = writingOf("en-US;decimal=,;volume=cm3;per=power");
        EXPECT_EQ(keyText(exercise, other), one.other);
        render(exercise, other);
        EXPECT_EQ(keyText(exercise, other), one.other) << "rendered once more";
    }
}

} // namespace

} // namespace lesson
