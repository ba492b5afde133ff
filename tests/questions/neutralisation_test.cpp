#include "questions/neutralisation.hpp"

#include <gtest/gtest.h>

#include "support/reaction.hpp"
#include "support/scripted_draws.hpp"

namespace
{

TEST(NeutralisationQuestionTest, AsksForTheEquation)
{
    struct Case {
        const char* acidAnion;
        const char* baseCation;
        const char* baseAnion;
        const char* question;
        const char* answer;
    };
    const Case cases[] = {
        {"chloride", "sodium", "hydroxide",
         "Write a balanced equation for hydrochloric acid plus sodium hydroxide.\n",
         "HCl + NaOH -> NaCl + H2O\n"},
        {"sulphate", "iron(III)", "hydroxide",
         "Write a balanced equation for sulphuric acid plus iron(III) hydroxide.\n",
         "3H2SO4 + 2Fe(OH)3 -> Fe2(SO4)3 + 6H2O\n"},
        {"carbonate", "ammonium", "carbonate",
         "Write a balanced equation for carbonic acid plus ammonium carbonate.\n",
         "H2CO3 + (NH4)2CO3 -> (NH4)2CO3 + H2O + CO2\n"},
    };
    for (const Case& c : cases) {
        const QandA made =
            neutralisationQuestion(reactionOf(c.acidAnion, c.baseCation, c.baseAnion));
        EXPECT_EQ(made.question, c.question);
        EXPECT_EQ(made.answer, c.answer);
    }
}

TEST(NeutralisationQuestionTest, OneThatCannotBeBalancedHasAnApologyForItsAnswer)
{
    const QandA made = neutralisationQuestion(reactionOf("chloride", "sodium", "sulfide"));
    EXPECT_EQ(made.question,
              "Write a balanced equation for hydrochloric acid plus sodium sulfide.\n");
    EXPECT_EQ(made.answer, "Computer does not have the answer for this question.\n");
}

TEST(NeutralisationQuestionTest, DrawsTheAcidThenTheBaseAndNothingElse)
{
    const ScriptedDraws draws({drawOfIon(33), drawOfIon(38), drawOfIon(24)});
    const QandA made = neutralisationQuestion();
    EXPECT_EQ(made.question, "Write a balanced equation for nitric acid plus ammonium oxide.\n");
    EXPECT_EQ(made.answer, "2HNO3 + (NH4)2O -> 2NH4NO3 + H2O\n");
}

} // namespace
