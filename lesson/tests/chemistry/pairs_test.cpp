#include "lesson/chemistry/pairs_not_asked.hpp"
#include "lesson/chemistry/solubility.hpp"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "lesson/tests/support/plain.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

Pair pairOf(const char* cation, const char* anion)
{
    return {findIon(cation), findIon(anion)};
}

std::string textOf(const Pair& pair)
{
    return british(nameOf(*pair.cation, *pair.anion));
}

TEST(PairsTest, AsManyAreAskedAsWereCountedByHand)
{
    EXPECT_EQ(pairsForFormulas().size(), 227U);
    EXPECT_EQ(pairsForSolubility().size(), 153U);
}

TEST(PairsTest, EveryPairThatIsNotAskedHasASentenceForIt)
{
    int sentences = 0;
    for (const IonRow* const cation : cations()) {
        for (const IonRow* const anion : anions()) {
            for (const auto& reason : {whyFormulaIsNotAsked({cation, anion}),
                                       whySolubilityIsNotAsked({cation, anion})}) {
                if (reason) {
                    ++sentences;
                    const std::string text = plain({say(*reason)});
                    EXPECT_EQ(text.back(), '.') << text;
                    EXPECT_TRUE(text.front() >= 'A' && text.front() <= 'Z') << text;
                    EXPECT_EQ(text.find('{'), std::string::npos) << text;
                }
            }
        }
    }
    EXPECT_EQ(sentences, 19 * 15 - 227 + 19 * 15 - 153);
}

TEST(PairsTest, FormulasThatAreNotAsked)
{
    const Pair notAsked[] = {
        pairOf("ammonium", "hydroxide"),        pairOf("silver", "hydroxide"),
        pairOf("tin(II)", "hydroxide"),         pairOf("ammonium", "oxide"),
        pairOf("aluminium", "carbonate"),       pairOf("chromium(III)", "carbonate"),
        pairOf("iron(III)", "carbonate"),       pairOf("tin(II)", "carbonate"),
        pairOf("lithium", "hydrogencarbonate"), pairOf("iron(III)", "iodide"),
        pairOf("copper(II)", "iodide"),         pairOf("tin(II)", "nitrate"),
        pairOf("iron(III)", "sulfide"),         pairOf("sodium", "nitride"),
        pairOf("lithium", "phosphide"),         pairOf("iron(II)", "ethanoate"),
        pairOf("aluminium", "ethanoate"),       pairOf("tin(II)", "ethanoate"),
    };
    for (const Pair& pair : notAsked) {
        EXPECT_TRUE(whyFormulaIsNotAsked(pair)) << textOf(pair);
        EXPECT_TRUE(whySolubilityIsNotAsked(pair)) << textOf(pair);
    }
    const Pair asked[] = {
        pairOf("sodium", "hydrogencarbonate"), pairOf("calcium", "hydrogencarbonate"),
        pairOf("aluminium", "nitride"),        pairOf("zinc", "phosphide"),
        pairOf("lead(II)", "ethanoate"),       pairOf("silver", "oxide"),
        pairOf("tin(II)", "chloride"),
    };
    for (const Pair& pair : asked) {
        EXPECT_FALSE(whyFormulaIsNotAsked(pair)) << textOf(pair);
    }
}

// What a school's solubility table says, cation by cation, written anew: + dissolves, - does not,
// and a blank for what is not asked.
TEST(PairsTest, SolubilityIsThatOfASchoolTable)
{
    const char* const columns[] = {"chloride", "bromide",           "iodide",    "hydroxide",
                                   "nitrate",  "hydrogencarbonate", "ethanoate", "sulfide",
                                   "sulfate",  "carbonate",         "phosphate"};
    // clang-format off
    const std::map<std::string, std::string> table = {
        //                  Cl Br I OH NO3 HCO3 Ac S SO4 CO3 PO4
        {"lithium",        "+++++ +++  "},
        {"sodium",         "+++++++++++"},
        {"potassium",      "+++++++++++"},
        {"ammonium",       "+++ +++++++"},
        {"silver",         "--- +  - --"},
        {"magnesium",      "+++-+ + +--"},
        {"calcium",        "+++ + +  --"},
        {"barium",         "+++ + + ---"},
        {"manganese(II)",  "+++-+ +-+--"},
        {"iron(II)",       "+++-+  -+--"},
        {"cobalt(II)",     "+++-+ +-+--"},
        {"nickel(II)",     "+++-+ +-+--"},
        {"copper(II)",     "++ -+ +-+--"},
        {"zinc",           "+++-+ +-+--"},
        {"tin(II)",        "           "},
        {"lead(II)",       "  --+ +----"},
        {"aluminium",      "+  -+   + -"},
        {"chromium(III)",  "+  -+   + -"},
        {"iron(III)",      "++ -+   + -"},
    };
    // clang-format on
    std::size_t asked = 0;
    for (const auto& [cation, row] : table) {
        for (std::size_t i = 0; i < std::size(columns); ++i) {
            const Pair pair = pairOf(cation.c_str(), columns[i]);
            const bool isAsked = !whySolubilityIsNotAsked(pair);
            ASSERT_EQ(isAsked, row[i] != ' ') << textOf(pair);
            if (isAsked) {
                ++asked;
                EXPECT_EQ(isSoluble(pair), row[i] == '+') << textOf(pair);
            }
        }
    }
    EXPECT_EQ(asked, 153U);
}

TEST(PairsTest, ExceptionsAreTheFewAgainstTheRule)
{
    std::set<std::string> exceptions;
    for (const Pair& pair : pairsForSolubility()) {
        if (isException(pair)) {
            exceptions.insert(compoundFormula(*pair.cation, *pair.anion));
        }
    }
    EXPECT_EQ(exceptions,
              (std::set<std::string>{"AgCl", "AgBr", "AgI", "PbI2", "BaSO4", "PbSO4", "LiOH",
                                     "NaOH", "KOH", "Na2CO3", "K2CO3", "Na3PO4", "K3PO4", "Li2S",
                                     "Na2S", "K2S", "(NH4)2CO3", "(NH4)2S", "(NH4)3PO4"}));
}

} // namespace

} // namespace lesson
