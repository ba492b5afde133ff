#include "lesson/words/language.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "lesson/paper/reference.hpp"
#include "lesson/reading/words.hpp"
#include "lesson/tests/support/plain.hpp"
#include "lesson/words/pattern.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

std::vector<std::string> allTags()
{
    std::vector<std::string> tags;
    for (const Language* const language : allLanguages()) {
        tags.emplace_back(language->tag);
    }
    return tags;
}

std::vector<Sentence> allSentences()
{
    std::vector<Sentence> all;
    for (int id = 0; id < static_cast<int>(Sentence::last); ++id) {
        all.push_back(static_cast<Sentence>(id));
    }
    return all;
}

Writing writingIn(const std::string& tag)
{
    return readWriting(tag).writing;
}

TEST(LanguageTest, OneIsFoundByItsTag)
{
    ASSERT_EQ(allTags(), (std::vector<std::string>{"en-GB", "en-US"}));
    for (const std::string& tag : allTags()) {
        ASSERT_NE(findLanguage(tag), nullptr) << tag;
        EXPECT_EQ(findLanguage(tag)->tag, tag);
    }
    for (const char* const tag : {"", "en", "en-gb", "de-DE"}) {
        EXPECT_EQ(findLanguage(tag), nullptr) << tag;
    }
}

// Every argument stands somewhere, and no bracket is left over.
TEST(LanguageTest, EverySentenceIsSaidInEachLanguage)
{
    for (const std::string& tag : allTags()) {
        for (const Sentence sentence : allSentences()) {
            const std::string pattern(patternIn(*findLanguage(tag), sentence));
            std::vector<Piece> arguments;
            const std::vector<std::string> words = {"<1>", "<2>", "<3>", "<4>", "<5>",
                                                    "<6>", "<7>", "<8>", "<9>"};
            const std::size_t count = argumentCount(patternIn(britishEnglish(), sentence));
            ASSERT_LE(count, words.size()) << pattern;
            for (std::size_t i = 0; i < count; ++i) {
                arguments.emplace_back(words[i]);
            }
            const Span said = sentenceOf(sentence, arguments.data(), count);
            const std::string text = plainText({said}, writingIn(tag));
            EXPECT_FALSE(text.empty())
                << tag << ", the one behind " << patternIn(*findLanguage(tag), sentence);
            EXPECT_EQ(text.find_first_of("{}"), std::string::npos) << tag << ": " << pattern;
            for (std::size_t i = 0; i < count; ++i) {
                EXPECT_NE(text.find(words[i]), std::string::npos) << words[i] << " of " << pattern;
            }
        }
    }
}

TEST(LanguageTest, AmericanSentencesHaveNoBritishWord)
{
    for (const Sentence sentence : allSentences()) {
        const std::string pattern(patternIn(americanEnglish(), sentence));
        for (const char* const word :
             {"aluminium", "caesium", "thanoate", "thanoic", "ydrogencarbonate", "ydrogensulf",
              "ydrogenphosphate", "litre", "metre", " titre", "utralis", "xidis", "olour",
              "ulph"}) {
            EXPECT_EQ(pattern.find(word), std::string::npos) << word << " in " << pattern;
        }
    }
}

// The others have all of their own: a learner of one is told nothing in another.
TEST(LanguageTest, ALanguageRestsOnItselfInAnotherCountry)
{
    for (const Language* const language : allLanguages()) {
        const std::string_view own = language->tag.substr(0, language->tag.find('-'));
        if (language->base != nullptr) {
            EXPECT_EQ(language->base->tag.substr(0, language->base->tag.find('-')), own)
                << language->tag;
        }
    }
}

TEST(LanguageTest, WhereANameHasNoNumeralNothingIsSaidOfOne)
{
    const Exercise permanganate = exerciseNamed("ion-formula;ion=MnO4^-").exercise;
    ASSERT_EQ(american(nameOf(*findIon("manganate(VII)"))), "permanganate");
    std::vector<Spans> lines = {permanganate.prompt};
    for (const Step& step : permanganate.solution) {
        lines.insert(lines.end(), {step.say, step.hint});
    }
    for (const Slip& slip : permanganate.slips) {
        lines.push_back(slip.sentence);
    }
    for (const Spans& line : lines) {
        const std::string text = plainText(line, writingIn("en-US"));
        EXPECT_EQ(text.find("umeral"), std::string::npos) << text;
    }
}

TEST(LanguageTest, ASubstanceHasANameInEachLanguage)
{
    const IonRow& aluminium = *findIon("aluminium");
    const IonRow& copper = *findIon("copper(II)");
    const IonRow& ethanoate = *findIon("ethanoate");
    const IonRow& sulfate = *findIon("sulfate");
    const IonRow& hydrogencarbonate = *findIon("hydrogencarbonate");
    struct Case {
        Name name;
        const char* british;
        const char* american;
    };
    const Case cases[] = {
        {nameOf(element(13)), "aluminium", "aluminum"},
        {nameOf(element(55)), "caesium", "cesium"},
        {nameOf(element(16)), "sulfur", "sulfur"},
        {nameOf(copper), "copper(II)", "copper(II)"},
        {nameAlone(copper), "copper", "copper"},
        {nameOfFamily(ethanoate), "ethanoates", "acetates"},
        {nameOf(aluminium, ethanoate), "aluminium ethanoate", "aluminum acetate"},
        {nameOf(*findIon("sodium"), hydrogencarbonate), "sodium hydrogencarbonate",
         "sodium hydrogen carbonate"},
        {nameOf(copper, sulfate, 5), "copper(II) sulfate pentahydrate",
         "copper(II) sulfate pentahydrate"},
        {nameOf(Molecule::carbonDioxide), "carbon dioxide", "carbon dioxide"},
        {Name(), "", ""},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(british(one.name), one.british);
        EXPECT_EQ(american(one.name), one.american);
        EXPECT_EQ(namesOf(one.name), (std::vector<std::string>{one.british, one.american}));
    }
}

// What a language calls an answer is understood when it is typed.
TEST(LanguageTest, AnswersInWordsAreRead)
{
    for (const std::string& tag : allTags()) {
        const Writing writing = writingIn(tag);
        EXPECT_EQ(saidOf(plainText({say<Sentence::answerYes>()}, writing)), Said::itDissolves);
        EXPECT_EQ(saidOf(plainText({say<Sentence::answerNo>()}, writing)), Said::itDoesNot);
        const std::string none = plainText({say<Sentence::answerNone>()}, writing);
        EXPECT_TRUE(saysNone(none)) << none;
        EXPECT_EQ(*typedWordsOf(*writing.language).usualNones.begin(), none);
    }
}

// In a gap of a question these signs would end it.
TEST(LanguageTest, WhatIsToldInAGapEndsItNowhere)
{
    for (const std::string& tag : allTags()) {
        for (const Sentence sentence : {Sentence::exportGapDoubled, Sentence::exportGapHalf}) {
            const std::string text(patternIn(*findLanguage(tag), sentence));
            EXPECT_EQ(text.find_first_of("{}~#=\\"), std::string::npos) << text;
        }
    }
}

} // namespace

} // namespace lesson
