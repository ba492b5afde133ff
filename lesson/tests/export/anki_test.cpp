#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "lesson/lesson.h"
#include "lesson/tests/support/reference.hpp"

namespace lesson
{

namespace
{

std::string fileOf(const char* sheet)
{
    return lesson_export(sheetOf(4821, sheet).c_str(), "anki", nullptr);
}

// Those of the cards, behind the header.
std::vector<std::string> cardsOf(const char* sheet)
{
    std::istringstream file(fileOf(sheet));
    std::vector<std::string> cards;
    for (std::string line; std::getline(file, line);) {
        if (line[0] != '#') {
            cards.push_back(line);
        }
    }
    return cards;
}

TEST(AnkiTest, TheHeaderTellsHowTheCardsAreRead)
{
    EXPECT_EQ(fileOf("ion-formula")
                  .find("#separator:Tab\n#html:true\n#notetype:Basic\n"
                        "#deck:Chemical calculations practice\n"
                        "#tags column:3\n"),
              0U);
}

TEST(AnkiTest, ACardIsTaggedByKindLevelAndPaper)
{
    const char* const cases[][2] = {
        {"compound-formula:3@5", "\tcompound-formula level-3 paper-4821"},
        {"ion-formula:1@9", "\tion-formula level-1 paper-4821"},
        {"solubility:2", "\tsolubility level-2 paper-4821"},
    };
    for (const auto& [sheet, tags] : cases) {
        const std::vector<std::string> cards = cardsOf(sheet);
        ASSERT_EQ(cards.size(), 1U) << sheet;
        EXPECT_EQ(cards[0].substr(cards[0].rfind('\t')), tags) << cards[0];
    }
}

// The key in bold type, and a line for each step.
TEST(AnkiTest, TheBackHasTheKeyAndTheSteps)
{
    std::string card;
    for (int number = 1; card.find("of the sulfate ion") == std::string::npos; ++number) {
        ASSERT_LT(number, 100) << "nobody asks for sulfate";
        card = cardsOf(("ion-formula:2@" + std::to_string(number)).c_str()).at(0);
    }
    EXPECT_EQ(card, "Write the formula of the sulfate ion, together with its charge.\t"
                    "<b>SO<sub>4</sub><sup>2−</sup></b>"
                    "<br>Sulfate is one sulfur and four oxygens. SO<sub>4</sub>"
                    "<br>The group as a whole has the charge 2−. SO<sub>4</sub><sup>2−</sup>\t"
                    "ion-formula level-2 paper-4821");
}

TEST(AnkiTest, WhatIsLeftOutIsCounted)
{
    struct Case {
        const char* sheet;
        std::size_t cards;
        const char* remark;
    };
    const Case cases[] = {
        {"ion-formula:2,titration", 1,
         "# 1 calculation or equation is left out, since it fits no card.\n"},
        {"ion-formula:2,2*titration,3*neutralisation", 1,
         "# 5 calculations and equations are left out, since they fit no card.\n"},
        // Level 2 has twelve ions.
        {"13*ion-formula:2", 12, "# 1 exercise is left out that an earlier card asks already.\n"},
        {"24*ion-formula:2,molar-mass", 12,
         "# 12 exercises are left out that earlier cards ask already.\n"},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(cardsOf(one.sheet).size(), one.cards) << one.sheet;
        EXPECT_NE(fileOf(one.sheet).find(one.remark), std::string::npos) << fileOf(one.sheet);
    }
    EXPECT_EQ(fileOf("12*ion-formula:2").find("\n# "), std::string::npos);
}

} // namespace

} // namespace lesson
