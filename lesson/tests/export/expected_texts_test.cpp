#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "lesson/chemistry/ions.hpp"
#include "lesson/export/expected.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/tests/support/plain.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

Exercise askingForIon(const char* formula, int charge, const std::string& key)
{
    Exercise exercise = {};
    exercise.ask.form = Form::ion;
    const std::size_t at = key.find('^');
    exercise.key = {ionSpan(key.substr(0, at), key.substr(at + 1))};
    exercise.answer = IonAnswer{findIon(formula, charge)};
    return exercise;
}

Exercise askingForFormula(const char* cation, const char* anion, const std::string& key)
{
    Exercise exercise = {};
    exercise.ask.form = Form::formula;
    exercise.key = {formula(key)};
    exercise.answer = FormulaAnswer{findIon(cation), findIon(anion)};
    return exercise;
}

const Expected* find(const std::vector<Expected>& expected, const std::string& text)
{
    const auto found = std::find_if(expected.begin(), expected.end(),
                                    [&text](const Expected& one) { return one.text == text; });
    return found == expected.end() ? nullptr : &*found;
}

int percentOf(const std::vector<Expected>& expected, const std::string& text)
{
    const Expected* const found = find(expected, text);
    return found == nullptr ? 0 : found->percent;
}

void expectRight(const Exercise& exercise, const std::vector<std::string>& texts)
{
    const std::vector<Expected> expected = expectedTexts(exercise, Writing());
    EXPECT_EQ(expected.front().text, texts.front());
    for (const std::string& text : texts) {
        EXPECT_EQ(percentOf(expected, text), 100) << text;
    }
}

TEST(ExpectedTextsTest, IonsInEverySpellingThatIsTyped)
{
    expectRight(askingForIon("Fe", 3, "Fe^3+"), {"Fe^3+", "Fe3+", "Fe^{3+}", "Fe 3+", "Fe+3",
                                                 "Fe^+3", "Fe^{+3}", "Fe(3+)", "Fe³⁺", "Fe+++"});
    expectRight(askingForIon("SO4", -2, "SO4^2-"),
                {"SO4^2-", "SO42-", "SO4^{2-}", "SO4 2-", "SO4-2", "SO4^-2", "SO4--", "SO4²⁻",
                 "SO₄²⁻", "SO₄2-", "SO₄^2-", "SO_4^2-", "SO_4^{2-}", "SO_{4}^{2-}", "SO4^2−",
                 "SO42−"});
    expectRight(askingForIon("Na", 1, "Na^+"), {"Na^+", "Na+", "Na⁺", "Na^{+}", "Na 1+", "Na1+",
                                                "Na^1+", "Na+1", "Na(+)", "Na^{1+}"});
    expectRight(askingForIon("CH3COO", -1, "CH3COO^-"),
                {"CH3COO^-", "CH3COO-", "CH3COO⁻", "CH₃COO⁻", "CH3CO2-", "C2H3O2^-", "C₂H₃O₂⁻"});
}

TEST(ExpectedTextsTest, FormulasInEverySpellingThatIsTyped)
{
    expectRight(askingForFormula("aluminium", "sulfate", "Al2(SO4)3"),
                {"Al2(SO4)3", "Al₂(SO₄)₃", "Al_2(SO_4)_3", "Al_{2}(SO_{4})_{3}"});
    expectRight(askingForFormula("sodium", "ethanoate", "CH3COONa"),
                {"CH3COONa", "NaCH3COO", "CH₃COONa", "NaC2H3O2", "CH3CO2Na", "NaCH₃CO₂"});
    expectRight(askingForFormula("calcium", "ethanoate", "Ca(CH3COO)2"),
                {"Ca(CH3COO)2", "(CH3COO)2Ca", "(CH₃COO)₂Ca", "Ca(C2H3O2)2", "Ca(CH3CO2)2"});
}

TEST(ExpectedTextsTest, APrecipitateOrNone)
{
    Exercise exercise = askingForFormula("lead(II)", "iodide", "PbI2");
    exercise.ask.form = Form::solubility;
    exercise.answer = PrecipitateAnswer{findIon("lead(II)"), findIon("iodide"), line("The rule.")};
    expectRight(exercise, {"PbI2", "PbI₂", "PbI2(s)", "PbI₂ (s)"});
    EXPECT_EQ(find(expectedTexts(exercise, Writing()), "PbI2")->sentence, "Correct. The rule.");
    EXPECT_EQ(find(expectedTexts(exercise, Writing()), "none")->percent, 0);
    exercise.key = {say<Sentence::answerNone>()};
    exercise.answer = PrecipitateAnswer{nullptr, nullptr, line("The rule.")};
    expectRight(exercise, {"none", "no", "nothing", "no precipitate", "no reaction"});
}

TEST(ExpectedTextsTest, MistakesAreTold)
{
    Exercise exercise = askingForIon("Fe", 3, "Fe^3+");
    exercise.slips = {{"Fe^2+", {}, line("Another iron.")}, {"Fe3", {}, line("No charge.")}};
    const std::vector<Expected> expected = expectedTexts(exercise, Writing());
    struct Case {
        const char* text;
        const char* sentence;
    };
    const Case cases[] = {
        {"Fe^2+", "Another iron."},
        {"Fe2+", "Another iron."},
        {"Fe²⁺", "Another iron."},
        {"Fe3", "No charge."},
        {"fe^3+", "Check the capitals: first letter large, second small."},
    };
    for (const Case& one : cases) {
        const Expected* const found = find(expected, one.text);
        ASSERT_NE(found, nullptr) << one.text;
        EXPECT_EQ(found->percent, 0) << one.text;
        EXPECT_EQ(found->sentence, one.sentence) << one.text;
    }
}

TEST(ExpectedTextsTest, ZerosForTheLetterOAndCapitalsAreTold)
{
    struct Case {
        const char* text;
        const char* sentence;
    };
    const auto expectTold = [](const Exercise& exercise, const std::vector<Case>& cases) {
        const std::vector<Expected> expected = expectedTexts(exercise, Writing());
        for (const Case& one : cases) {
            const Expected* const found = find(expected, one.text);
            ASSERT_NE(found, nullptr) << one.text;
            EXPECT_EQ(found->percent, 0) << one.text;
            EXPECT_EQ(found->sentence, one.sentence) << one.text;
        }
    };
    const char* const zero = "There is a zero where the letter O should be.";
    const char* const capitals = "Check the capitals: first letter large, second small.";
    expectTold(askingForFormula("sodium", "sulfate", "Na2SO4"),
               {{"Na2S04", zero}, {"NA2SO4", capitals}, {"na2so4", capitals}});
    expectTold(askingForFormula("sodium", "chloride", "NaCl"), {{"NACL", capitals}});
    expectTold(askingForIon("NO3", -1, "NO3^-"), {{"N03^-", zero}, {"N03-", zero}});
    expectTold(askingForIon("CH3COO", -1, "CH3COO^-"),
               {{"CH3C00^-", zero}, {"CH3C0O-", zero}, {"CH3CO0-", zero}});
}

TEST(ExpectedTextsTest, AChargeThatStandsBelowIsTold)
{
    const std::vector<Expected> sulfate =
        expectedTexts(askingForIon("SO4", -2, "SO4^2-"), Writing());
    for (const char* text : {"SO₄₂⁻", "SO_4_2^-", "SO_4_2-"}) {
        const Expected* const found = find(sulfate, text);
        ASSERT_NE(found, nullptr) << text;
        EXPECT_EQ(found->percent, 0) << text;
        EXPECT_EQ(found->sentence, "The charge stands above, not below.") << text;
    }
    const std::vector<Expected> nitride = expectedTexts(askingForIon("N", -3, "N^3-"), Writing());
    for (const char* text : {"N₃⁻", "N_3^-", "N_3-"}) {
        EXPECT_EQ(percentOf(nitride, text), 0) << text;
        EXPECT_NE(find(nitride, text), nullptr) << text;
    }
}

bool isTypedInSymbols(const Ask& ask)
{
    return ask.form != Form::number && ask.form != Form::equation && ask.choices.empty();
}

// All that is ever asked in words or formulas: the key first, every slip told as the exercise tells
// it, nothing twice, nothing that Moodle would take for more than itself.
TEST(ExpectedTextsTest, TheKeyComesFirstEverySlipIsToldAndNothingStandsTwice)
{
    for (const Kind* const kind : allKinds()) {
        for (unsigned number = 1; number <= 300; ++number) {
            const int level = 1 + static_cast<int>(number % 3);
            const Exercise exercise = makeExercise({5, number, kind, level});
            if (!isTypedInSymbols(exercise.ask)) {
                continue;
            }
            const std::vector<Expected> expected = expectedTexts(exercise, Writing());
            EXPECT_EQ(expected.front().text, typedKey(exercise));
            EXPECT_EQ(expected.front().percent, 100) << typedKey(exercise);
            for (const Slip& slip : exercise.slips) {
                const Expected* const found = find(expected, slip.text);
                ASSERT_NE(found, nullptr) << slip.text << " for " << typedKey(exercise);
                EXPECT_EQ(found->percent, 0) << slip.text << " for " << typedKey(exercise);
                EXPECT_EQ(found->sentence, plain(slip.sentence)) << slip.text;
            }
            for (const Expected& one : expected) {
                EXPECT_EQ(find(expected, one.text), &one) << one.text << " stands twice";
                EXPECT_EQ(one.text.find_first_of("*\\"), std::string::npos) << one.text;
                EXPECT_FALSE(one.sentence.empty()) << one.text;
            }
        }
    }
}

} // namespace

} // namespace lesson
