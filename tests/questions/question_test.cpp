#include "questions/question.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/compounds.hpp"
#include "support/scripted_draws.hpp"

namespace
{

class QuestionTest : public WithCompounds
{
};

// What each kind draws, and how its question begins.
struct Kind {
    int number; // on the menu
    std::vector<int> draws;
    std::string begin;
};

const Kind massConcentration = {
    1, {drawOfCompound(3), 0, 0, 0}, "Calculate the concentration (in mol/L) "};
const Kind dilution = {2, {0, drawOfCompound(3), 0, 0, 0, 0, 0}, "To dilute "};
const Kind neutralisation = {
    3, {drawOfIon(31), drawOfIon(26), drawOfIon(36)}, "Write a balanced equation for "};
const Kind titration = {4,
                        {drawOfIon(31), drawOfIon(26), drawOfIon(36), 0, 0, 0, 0, 0},
                        "Calculate the concentration of "};

bool beginsWith(const std::string& text, const std::string& begin)
{
    return text.compare(0, begin.size(), begin) == 0;
}

// The script fails the test unless exactly the draws of the kind are taken.
void expectKind(int asked, std::vector<int> draws, const Kind& kind)
{
    draws.insert(draws.end(), kind.draws.begin(), kind.draws.end());
    const ScriptedDraws script(draws);
    const QandA made = makeQuestion(static_cast<QuestionType>(asked));
    EXPECT_TRUE(beginsWith(made.question, kind.begin)) << made.question;
    EXPECT_NE(made.answer, "") << made.question;
}

TEST_F(QuestionTest, EachKindIsMadeWithoutAnotherDraw)
{
    for (const Kind* kind : {&massConcentration, &dilution, &neutralisation, &titration}) {
        expectKind(kind->number, {}, *kind);
    }
}

TEST_F(QuestionTest, ARandomKindIsDrawnByThresholds)
{
    struct Case {
        int drawn;
        const Kind& expected;
    };
    const Case cases[] = {
        {0, massConcentration},  {536870910, massConcentration}, {536870911, dilution},
        {1073741822, dilution},  {1073741823, titration}, // Kept: never neutralisation.
        {1610612736, titration}, {2147483647, titration},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.drawn);
        expectKind(0, {c.drawn}, c.expected);
    }
}

TEST_F(QuestionTest, ANumberOutsideTheMenuIsARandomKind)
{
    using Int = std::numeric_limits<int>;
    for (const int number : {-1, 0, 5, 100, Int::max(), Int::min()}) {
        SCOPED_TRACE(number);
        expectKind(number, {0}, massConcentration);
        expectKind(number, {2147483647}, titration);
    }
}

TEST_F(QuestionTest, WithoutCompoundsTheKindsThatDrawThemThrow)
{
    dissolvable.clear();
    {
        const ScriptedDraws draws({drawOfCompound(1)});
        EXPECT_THROW(makeQuestion(massConcentrationKind), std::out_of_range);
    }
    const ScriptedDraws draws({0, drawOfCompound(1)});
    EXPECT_THROW(makeQuestion(dilutionKind), std::out_of_range);
}

} // namespace
