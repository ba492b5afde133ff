#include "lesson/reading/markup.hpp"

#include <gtest/gtest.h>

#include <string>

#include "lesson/exercise.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

TEST(MarkupTest, CommandsAndBracesBecomePlainText)
{
    // clang-format off
    const struct {
        const char* typed;
        const char* plain;
    } rows[] = {
        {"", ""},
        {"2HCl + CaO -> CaCl2", "2HCl + CaO -> CaCl2"},
        {"\\ce{2HCl + CaO -> CaCl2 + H2O}", "2HCl + CaO -> CaCl2 + H2O"},
        {"$\\ce{SO4^{2-}}$", "$SO4^{2-}$"},
        {R"(\mathrm{Al}_{2}(\mathrm{SO}_{4})_{3})", "Al_{2}(SO_{4})_{3}"},
        {R"-(\(\mathrm{H_2O}\))-", "H_2O"},
        {"\\[ H_2O \\]", " H_2O "},
        {"Ca\\(OH\\)_2", "Ca(OH)_2"},
        {R"(2\*HCl \+ Na\_2O)", "2*HCl + Na_2O"},
        {"\\text{H}_2\\text{O}", "H_2O"},
        {"4.5 \\times 10^{-2}", "4.5 × 10^{-2}"},
        {"CuSO_4\\cdot 5H_2O", "CuSO_4· 5H_2O"},
        {"\\frac{1}{2}O_2", " 1/2O_2"},
        {"Fe\\left(OH\\right)_3", "Fe(OH)_3"},
        {"NaCl \\rightarrow Na", "NaCl -> Na"},
        {"\\NaCl\\", "NaCl"},
        {"H<sub>2</sub>O", "H_{2}O"},
        {"a &rarr; b &gt; c", "a -> b > c"},
        {"\\alpha", "\\alpha"},
        {"R&D", "R&D"},
        {"\\ce{NaCl", "NaCl"},
        {"NaCl}\\ce{}", "NaCl}"},
        {"\\(", "("},
        {"\\(\\)", ""},
    };
    // clang-format on
    for (const auto& row : rows) {
        EXPECT_EQ(withoutMarkup(row.typed), row.plain) << row.typed;
    }
}

// In whatever way the key of an exercise is wrapped, every form of answer is read.
TEST(MarkupTest, EveryFormOfAnswerMayBeWrapped)
{
    for (const Kind* const kind : {&compoundFormulaKind, &ionFormulaKind, &neutralisationKind,
                                   &solubilityKind, &molarMassKind}) {
        for (unsigned number = 1; number <= 20; ++number) {
            const Exercise exercise = makeExercise({7, number, kind, 3});
            for (const char* const begin : {"\\ce{", "$\\ce{", "\\mathrm{"}) {
                const std::string end = begin[0] == '$' ? "}$" : "}";
                const std::string typed = begin + typedKey(exercise) + end;
                EXPECT_EQ(markAnswer(exercise, typed).verdict, Verdict::correct) << typed;
            }
        }
    }
}

TEST(MarkupTest, LongTextsTakeLinearTime)
{
    for (const char* const piece :
         {"\\", "\\ce{", "}", "{", "\\frac{", "&", "<sub>", "\\x", "_", "rarr"}) {
        std::string typed;
        while (typed.size() < 400000) {
            typed += piece;
        }
        const Exercise exercise = makeExercise({7, 1, &neutralisationKind, 1});
        EXPECT_NE(markAnswer(exercise, typed).verdict, Verdict::correct) << piece;
    }
}

} // namespace

} // namespace lesson
