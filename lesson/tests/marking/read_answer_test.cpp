#include "lesson/marking/read_answer.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "lesson/kinds/kinds.hpp"
#include "lesson/reading/typed_spans.hpp"
#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

// "formula:Ca(OH)2 text: + ion:SO4|2-"
std::string shown(const Spans& spans)
{
    std::string text;
    for (const Span& span : spans) {
        text += text.empty() ? "" : " ";
        switch (span.kind) {
        case Span::Kind::text:
            text += "'" + span.text + "'";
            break;
        case Span::Kind::formula:
            text += span.text;
            break;
        case Span::Kind::ion:
            text += span.text + "|" + span.detail;
            break;
        case Span::Kind::number:
            text += "#" + span.text;
            break;
        case Span::Kind::unit:
            text += "u:" + span.text;
            break;
        case Span::Kind::fraction:
            text += "[" + shown(span.over) + "]/[" + shown(span.under) + "]";
            break;
        case Span::Kind::quantity:
        case Span::Kind::name:
        case Span::Kind::nameless:
        case Span::Kind::sentence:
        case Span::Kind::line:
            text += "?";
            break;
        }
    }
    return text;
}

std::string read(const Exercise& exercise, std::string_view typed, const Writing& writing = {})
{
    const std::optional<Spans> spans = readAnswer(exercise, typed, writing);
    return spans.has_value() ? shown(*spans) : "nothing";
}

struct ReadCase {
    const char* typed;
    const char* shown;
};

Exercise withAnswer(Ask ask, Answer answer)
{
    Exercise exercise = {};
    exercise.ask = std::move(ask);
    exercise.answer = std::move(answer);
    return exercise;
}

TEST(ReadAnswerTest, OfANumberAndItsUnit)
{
    const Exercise exercise =
        withAnswer({Form::number, "c", "NaOH", "mol/L", 3, {}}, NumberAnswer{ratio(4557, 100000)});
    // clang-format off
    const ReadCase cases[] = {
        {"0.0456", "#0.0456"},
        {".0456 mol/L", "#0.0456 u:mol/L"},
        {"c(NaOH) = 4,56×10⁻² mol/dm³", "#4.56e-2 u:mol/dm3"},
        {"45.6 mmol l-1", "#45.6 u:mmol/L"},
        {"0.0456 mol dm⁻³", "#0.0456 u:mol dm-3"},
        {"45 600e-6 M", "#45600e-6 u:M"},
        {"250.", "#250."},
        {"1,250.5", "#1250.5"},
        {"10^-2", "#1e-2"},
        {"7/60", "[#7]/[#60]"},
        {"1.14e-3/0.025 M", "[#1.14e-3]/[#0.025] u:M"},
        {"1,250", "nothing"},
        {"-5", "nothing"},
        {"5 g", "nothing"},
        {"5 or 6", "nothing"},
        {"", "nothing"},
        {"\xFF", "nothing"},
    };
    // clang-format on
    for (const ReadCase& c : cases) {
        EXPECT_EQ(read(exercise, c.typed), c.shown) << c.typed;
    }
    Writing comma;
    comma.decimal = ',';
    EXPECT_EQ(read(exercise, "1,250", comma), "#1.250");
    EXPECT_EQ(read(exercise, "1.250,5 M", comma), "#1250.5 u:M");
    EXPECT_EQ(read(exercise, "1.250", comma), "nothing");
}

TEST(ReadAnswerTest, OfAnIonAndItsCharge)
{
    struct Case {
        const char* ion;
        const char* typed;
        const char* shown;
    };
    // clang-format off
    const Case cases[] = {
        {"sulfate", "SO42-", "SO4|2-"},
        {"sulfate", "(SO4)2-", "(SO4)|2-"},
        {"sulfate", "SO4-2", "SO4|2-"},
        {"sulfate", "SO4^2-", "SO4|2-"},
        {"sulfate", "SO₄²⁻", "SO4|2-"},
        {"sulfate", "SO4--", "SO4|2-"},
        {"sulfate", "SO4 2 minus", "SO4|2-"},
        {"sulfate", "[SO4]^{2-} (aq)", "(SO4)|2- '(aq)'"},
        {"sulfate", "SO4", "SO4"},
        {"sulfate", "SO₄₂₋", "'SO₄₂₋'"},
        {"sulfate", "S", "S"},
        {"sulfate", "Xy2-", "nothing"},
        {"sulfate", "so42-", "nothing"},
        {"nitrate", "NO3-", "NO3|-"},
        {"nitrate", "NO³⁻", "NO|3-"},
        {"nitrate", "SO42-", "SO4|2-"},
        {"nitrate", "(SO4)2-", "(SO4)|2-"},
        {"nitride", "N3-", "N|3-"},
        {"nitride", "N₃⁻", "N3|-"},
        {"calcium", "Ca2+", "Ca|2+"},
        {"calcium", "Ca+2", "Ca|2+"},
        {"calcium", "Ca++", "Ca|2+"},
        {"calcium", "Ca²", "'Ca²'"},
        {"ammonium", "NH4+", "NH4|+"},
        {"iron(III)", "Fe(III)", "Fe(III)"},
        {"ethanoate", "CH3COO^-", "CH3COO|-"},
        {"ethanoate", "AcO-", "CH3COO|-"},
        {"ethanoate", "-OOCCH3", "OOCCH3|-"},
        {"dichromate", "Cr2O72-", "Cr2O7|2-"},
    };
    // clang-format on
    for (const Case& c : cases) {
        const IonRow* const ion = findIon(c.ion);
        ASSERT_NE(ion, nullptr) << c.ion;
        EXPECT_EQ(read(withAnswer({Form::ion, "", "", "", 0, {}}, IonAnswer{ion}), c.typed),
                  c.shown)
            << c.typed << " for " << c.ion;
    }
}

TEST(ReadAnswerTest, OfAFormula)
{
    const Exercise exercise = withAnswer({Form::formula, "", "", "", 0, {}},
                                         FormulaAnswer{findIon("calcium"), findIon("hydroxide")});
    // clang-format off
    const ReadCase cases[] = {
        {"Ca(OH)2", "Ca(OH)2"},
        {"Ca(OH)_2 (s)", "Ca(OH)2 '(s)'"},
        {"Ca[OH]₂", "Ca(OH)2"},
        {"\\ce{Ca(OH)2}", "Ca(OH)2"},
        {"Ca{OH}_2", "Ca(OH)2"},
        {"C a (O H) 2", "Ca(OH)2"},
        {"Ca1(OH)2", "Ca(OH)2"},
        {"Ca(OH)^2", "Ca(OH)|2"},
        {"Ca2+(OH-)2", "Ca2|+ (OH|- )2"},
        {"2CaO", "2CaO"},
        {"CuSO4*5H2O", "CuSO4.5H2O"},
        {"Ca(OAc)2", "Ca(CH3COO)2"},
        {"Ca(OH", "nothing"},
        {"ca(oh)2", "nothing"},
        {"calcium hydroxide", "nothing"},
        {"", "nothing"},
    };
    // clang-format on
    for (const ReadCase& c : cases) {
        EXPECT_EQ(read(exercise, c.typed), c.shown) << c.typed;
    }
}

TEST(ReadAnswerTest, OfAnEquation)
{
    const Exercise exercise = makeExercise({4821, 1, &neutralisationKind, 1});
    // clang-format off
    const ReadCase cases[] = {
        {"HCl + NaOH -> NaCl + H2O", "HCl ' + ' NaOH ' → ' NaCl ' + ' H2O"},
        {"2 HCl(aq)+CaO = CaCl2 (aq) + H2O", "#2 HCl '(aq) + ' CaO ' → ' CaCl2 '(aq) + ' H2O"},
        {"1/2 H2SO4 + NaOH", "[#1]/[#2] H2SO4 ' + ' NaOH"},
        {"0.5 H2SO4 <=> HCl", "[#1]/[#2] H2SO4 ' ⇌ ' HCl"},
        {"H2O <- HCl", "H2O ' ← ' HCl"},
        {"HCl and NaOH give NaCl", "HCl ' + ' NaOH ' → ' NaCl"},
        {"HCl + Ca(O -> CaCl2", "nothing"},
        {"H+ + OH- -> H2O", "nothing"},
        {"HCl + NaOH -> NaCl und", "nothing"},
        {"-> H2O", "nothing"},
        {"H₂_SO4 → NaCl↓", "H2SO4 ' → ' NaCl '(s)'"},
        {"hcl", "nothing"},
        {"acid + base", "nothing"},
        {"", "nothing"},
    };
    // clang-format on
    for (const ReadCase& c : cases) {
        EXPECT_EQ(read(exercise, c.typed), c.shown) << c.typed;
    }
}

TEST(ReadAnswerTest, OfWhetherItDissolves)
{
    const Exercise exercise =
        withAnswer({Form::solubility, "", "", "", 0, {Sentence::answerYes, Sentence::answerNo}},
                   SolubilityAnswer{true, line("All nitrates are soluble.")});
    // clang-format off
    const ReadCase cases[] = {
        {"y", "'yes'"},
        {"It is very soluble.", "'yes'"},
        {"insoluble", "'no'"},
        {"maybe", "nothing"},
    };
    // clang-format on
    for (const ReadCase& c : cases) {
        EXPECT_EQ(read(exercise, c.typed), c.shown) << c.typed;
    }
}

TEST(ReadAnswerTest, OfAPrecipitate)
{
    const Exercise exercise = withAnswer(
        {Form::formula, "", "", "", 0, {}},
        PrecipitateAnswer{findIon("silver"), findIon("chloride"), line("Chlorides are soluble.")});
    // clang-format off
    const ReadCase cases[] = {
        {"AgCl(s)", "AgCl '(s)'"},
        {"the precipitate is AgCl", "AgCl"},
        {"AgCl solid", "AgCl '(s)'"},
        {"none", "'none'"},
        {"both stay in solution", "'both stay in solution'"},
        {"silver chloride", "nothing"},
        {"AgCl + NaNO3", "nothing"},
    };
    // clang-format on
    for (const ReadCase& c : cases) {
        EXPECT_EQ(read(exercise, c.typed), c.shown) << c.typed;
    }
}

// All that may be typed for exercises of every kind: their keys and slips, and these in the
// spellings of others.
std::vector<std::string> spellingsOfAnswers()
{
    std::set<std::string> texts;
    for (const Kind* const kind : allKinds()) {
        for (int level = 1; level <= 3; ++level) {
            for (unsigned number = 1; number <= 40; ++number) {
                const Exercise exercise = makeExercise({4821, number, kind, level});
                texts.insert(typedKey(exercise));
                for (const Slip& slip : exercise.slips) {
                    texts.insert(slip.text);
                }
            }
        }
    }
    std::vector<std::string> all;
    for (const std::string& text : texts) {
        const auto replaced = [text](std::string_view from, std::string_view to) {
            std::string other = text;
            for (std::size_t i = other.find(from); i != std::string::npos;
                 i = other.find(from, i + to.size())) {
                other.replace(i, from.size(), to);
            }
            return other;
        };
        for (std::string other :
             {text, " " + text + ".", text + " (aq)", "2" + text, "= " + text, replaced("^", ""),
              replaced("(", "["), replaced("2", "₂"), replaced("2", "²"), replaced("2", "_2"),
              replaced(".", ","), replaced("->", "="), replaced(" ", ""), replaced("O", "o"),
              replaced("l", "1"), replaced("+", "and"), replaced("2-", "-2"), text.substr(1),
              text.substr(0, text.size() / 2)}) {
            all.push_back(std::move(other));
        }
    }
    return all;
}

// What is shown, typed as it is shown, is marked as what was typed; and whatever is right is shown.
TEST(ReadAnswerTest, WhatIsShownIsWhatIsMarked)
{
    const std::vector<std::string> typed = spellingsOfAnswers();
    ASSERT_GT(typed.size(), 5000U);
    for (const Kind* const kind : allKinds()) {
        int shownTexts = 0;
        for (unsigned number = 1; number <= 6; ++number) {
            const Exercise exercise =
                makeExercise({4821, number, kind, static_cast<int>(1 + number % 3)});
            for (std::size_t i = number; i < typed.size(); i += 41) {
                const std::optional<Spans> spans = readAnswer(exercise, typed[i], {});
                const Verdict verdict = markAnswer(exercise, typed[i]).verdict;
                EXPECT_TRUE(spans.has_value() || verdict != Verdict::correct) << typed[i];
                if (spans.has_value()) {
                    ++shownTexts;
                    EXPECT_EQ(markAnswer(exercise, typedText(*spans)).verdict, verdict)
                        << typed[i] << " as " << shown(*spans) << " for " << typedKey(exercise);
                }
            }
            EXPECT_TRUE(readAnswer(exercise, typedKey(exercise), {}).has_value())
                << typedKey(exercise);
        }
        EXPECT_GT(shownTexts, 50) << kind->slug;
    }
}

} // namespace

} // namespace lesson
