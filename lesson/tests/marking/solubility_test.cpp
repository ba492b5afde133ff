#include "lesson/marking/solubility.hpp"

#include <gtest/gtest.h>

#include <string>

#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

const SolubilityAnswer dissolves = {true, line("All nitrates are soluble.")};
const SolubilityAnswer doesNot = {false, line("Carbonates are insoluble.")};

TEST(SolubilityMarkTest, YesAndNoInTheirUsualWords)
{
    for (const char* const yes : {"y",
                                  "Y",
                                  "yes",
                                  "YES",
                                  " Yes. ",
                                  "yes!",
                                  "soluble",
                                  "Soluble",
                                  "dissolves",
                                  "it  dissolves",
                                  "Yes, it does.",
                                  "Yes, it dissolves.",
                                  "yep",
                                  "Lead nitrate is soluble",
                                  "it is soluble",
                                  "\u00A0yes\t",
                                  "yes,",
                                  "\"yes\"",
                                  "“yes”",
                                  "(yes)",
                                  "yes (soluble)",
                                  "yes - soluble",
                                  "Yes: it is soluble.",
                                  "yes it does",
                                  "soluble in water",
                                  "It dissolves in water",
                                  "it does dissolve",
                                  "it will dissolve",
                                  "readily soluble",
                                  "very soluble",
                                  "completely soluble",
                                  "I think it is soluble",
                                  "answer: yes",
                                  "water soluble",
                                  "they dissolve",
                                  "this is soluble",
                                  "yes, because all nitrates are",
                                  "yes - all nitrates are soluble",
                                  "All nitrates are soluble.",
                                  "yes, as it is a nitrate",
                                  "yes, because it is soluble",
                                  "they're soluble",
                                  "soluble since carbonates are insoluble but this one is not"}) {
        EXPECT_EQ(markSolubility(dissolves, yes).verdict, Verdict::correct) << yes;
        EXPECT_EQ(plain(markSolubility(dissolves, yes).sentence),
                  "Correct. All nitrates are soluble.");
        EXPECT_EQ(markSolubility(doesNot, yes).verdict, Verdict::wrong) << yes;
        EXPECT_EQ(plain(markSolubility(doesNot, yes).sentence),
                  "Not right yet. Carbonates are insoluble.");
    }
    for (const char* const no : {"n",
                                 "N",
                                 "no",
                                 "No.",
                                 "NO",
                                 "insoluble",
                                 "INSOLUBLE",
                                 "not soluble",
                                 "in soluble",
                                 "does not dissolve",
                                 "doesn't dissolve",
                                 "It doesn\u2019t dissolve.",
                                 "no, it doesn't",
                                 "No, it is insoluble",
                                 "it's insoluble",
                                 "isn't soluble",
                                 "MgCO3 is insoluble",
                                 "nope",
                                 "no,",
                                 "insoluble in water",
                                 "not soluble in water",
                                 "it does not dissolve in water",
                                 "no it doesn't",
                                 "no it does not",
                                 "no, it isn’t",
                                 "won't dissolve",
                                 "cannot dissolve",
                                 "can't dissolve",
                                 "non-soluble",
                                 "in-soluble",
                                 "it is in soluble",
                                 "unsoluble",
                                 "insol.",
                                 "no (insoluble)",
                                 "no - insoluble",
                                 "doesn`t dissolve",
                                 "doesn´t dissolve",
                                 "practically insoluble",
                                 "it would not dissolve",
                                 "No because carbonates are insoluble",
                                 "not very soluble",
                                 "not at all soluble",
                                 "I don't think it is soluble",
                                 "almost insoluble",
                                 "nearly insoluble",
                                 "not nearly soluble",
                                 "no it isn't, it is insoluble",
                                 "it does not, it's insoluble",
                                 "does not dissolve, it is insoluble",
                                 "no, because it is not soluble",
                                 "no - all carbonates are insoluble",
                                 "no, it does not dissolve, it is insoluble"}) {
        EXPECT_EQ(markSolubility(doesNot, no).verdict, Verdict::correct) << no;
        EXPECT_EQ(plain(markSolubility(doesNot, no).sentence),
                  "Correct. Carbonates are insoluble.");
        EXPECT_EQ(markSolubility(dissolves, no).verdict, Verdict::wrong) << no;
    }
}

TEST(SolubilityMarkTest, OtherWordsAreAskedBack)
{
    EXPECT_EQ(plain(markSolubility(dissolves, "").sentence), "Choose yes or no.");
    EXPECT_EQ(plain(markSolubility(dissolves, " . ").sentence), "Choose yes or no.");
    EXPECT_EQ(plain(markSolubility(dissolves, "maybe").sentence),
              "I can't read this part: 'maybe'. Choose yes or no.");
    for (const std::string& typed : {std::string("yesno"),
                                     std::string("not sure"),
                                     std::string("yes, insoluble"),
                                     std::string("no, it dissolves"),
                                     std::string("yes and no"),
                                     std::string("yes, no"),
                                     std::string("soluble, insoluble"),
                                     std::string("not insoluble"),
                                     std::string("it isn't insoluble"),
                                     std::string("it is not at all insoluble"),
                                     std::string("not very insoluble"),
                                     std::string("I don't think it is insoluble"),
                                     std::string("not an insoluble salt"),
                                     std::string("almost soluble"),
                                     std::string("nearly soluble"),
                                     std::string("practically soluble"),
                                     std::string("almost completely soluble"),
                                     std::string("no, because it is soluble"),
                                     std::string("yes, since it is insoluble"),
                                     std::string("not as insoluble as chalk"),
                                     std::string("not all nitrates are soluble"),
                                     std::string("no, all nitrates are soluble"),
                                     std::string("yes, it isn't"),
                                     std::string("soluble or insoluble"),
                                     std::string("it is"),
                                     std::string("-"),
                                     std::string("because"),
                                     std::string("42"),
                                     std::string("I do not know"),
                                     std::string("\xFF"),
                                     std::string(1000000, 'y'),
                                     std::string(1000000, ' ') + "x"}) {
        EXPECT_EQ(markSolubility(dissolves, typed).verdict, Verdict::unreadable);
    }
}

PrecipitateAnswer leadIodide()
{
    return {findIon("lead(II)"), findIon("iodide"), line("Iodides are soluble, except some.")};
}

const PrecipitateAnswer nothing = {nullptr, nullptr, line("All nitrates are soluble.")};

const std::vector<Slip> slips = {{"KNO3", std::nullopt, line("That one stays in solution.")}};

TEST(PrecipitateMarkTest, TheFormulaInItsSpellings)
{
    for (const char* const typed : {"PbI2",
                                    " PbI₂ ",
                                    "PbI_2(s)",
                                    "PbI2↓",
                                    "Pb I2",
                                    "PbI2.",
                                    "PbI2 (solid)",
                                    "PbI2 solid",
                                    "PbI2 Solid.",
                                    "PbI2(s)↓",
                                    "PbI2 s",
                                    "PbI2_{(s)}",
                                    "PbI2 forms",
                                    "PbI2 (s) forms.",
                                    "PbI2 precipitates",
                                    "PbI2 is formed as a solid",
                                    "The precipitate is PbI2",
                                    "precipitate: PbI2(s)",
                                    "It is PbI2.",
                                    "PbI2 is the precipitate"}) {
        const Mark mark = markPrecipitate(leadIodide(), slips, typed);
        EXPECT_EQ(mark.verdict, Verdict::correct) << typed;
        EXPECT_EQ(plain(mark.sentence), "Correct. Iodides are soluble, except some.") << typed;
    }
    struct Row {
        const char* typed;
        Verdict verdict;
        const char* sentence;
    };
    const char* const lookAgain = "Not right yet. Check each new pair of ions against the rules.";
    const char* const solid = "A precipitate is a solid: (s).";
    const char* const name = "That is its name. Type its formula.";
    const char* const alone = "Type the formula of the precipitate alone, or none.";
    const Row rows[] = {
        {"pbi2", Verdict::slip, "Check the capitals: first letter large, second small."},
        {"KNO3", Verdict::slip, "That one stays in solution."},
        {"PbI2 (aq)", Verdict::slip, solid},
        {"PbI2(g)", Verdict::slip, solid},
        {"PbI2 (l)", Verdict::slip, solid},
        {"PbI2_{(aq)}", Verdict::slip, solid},
        {"PbI2 (aqueous)", Verdict::slip, solid},
        {"PbI2↑", Verdict::slip, solid},
        {"PbI2(s)(aq)", Verdict::slip, solid},
        {"The precipitate is PbI2(g).", Verdict::slip, solid},
        {"PbI(aq)", Verdict::slip,
         "The charges do not cancel yet. How many of each ion are needed?"},
        {"The precipitate is KNO3", Verdict::slip, "That one stays in solution."},
        {"pbi2 (solid)", Verdict::slip, "Check the capitals: first letter large, second small."},
        {"PbI", Verdict::slip, "The charges do not cancel yet. How many of each ion are needed?"},
        {"Pb2+I-2", Verdict::slip, "A compound has no charge: leave out the charges of its ions."},
        {"none", Verdict::wrong, lookAgain},
        {"C6H12O6", Verdict::wrong, lookAgain},
        {"all soluble", Verdict::wrong, lookAgain},
        {"PbI2 + KNO3", Verdict::unreadable, alone},
        {"PbI2+2KNO3", Verdict::unreadable, alone},
        {"PbI2, KNO3", Verdict::unreadable, alone},
        {"PbI2 and KNO3", Verdict::unreadable, alone},
        {"PbI2 or KNO3", Verdict::unreadable, alone},
        {"Pb(NO3)2 + 2KI -> PbI2 + 2KNO3", Verdict::unreadable, alone},
        {"Pb^2+ + 2I^- → PbI2", Verdict::unreadable, alone},
        {"neither dissolves", Verdict::unreadable,
         "I can't read this part: 'neither dissolves'. Type a formula, or none."},
        {"both are insoluble", Verdict::unreadable,
         "I can't read this part: 'both are insoluble'. Type a formula, or none."},
        {"nothing but PbI2", Verdict::unreadable,
         "I can't read this part: 'nothing but PbI2'. Type a formula, or none."},
        {"", Verdict::unreadable, "Type a formula, or none."},
        {"lead(II) iodide", Verdict::unreadable, name},
        {"Lead (II) Iodide", Verdict::unreadable, name},
        {"lead iodide", Verdict::unreadable, name},
        {"The precipitate is lead iodide.", Verdict::unreadable, name},
        {"lead(IV) iodide", Verdict::unreadable,
         "'lead(IV) iodide' is a name. Type a formula, or none."},
        {"potassium nitrate", Verdict::unreadable,
         "'potassium nitrate' is a name. Type a formula, or none."},
        {"Lead sulphate", Verdict::unreadable,
         "'Lead sulphate' is a name. Type a formula, or none."},
        {"There isn't one", Verdict::unreadable,
         "I can't read this part: 'There isn't one'. Type a formula, or none."},
        {"The precipitate is yellow", Verdict::unreadable,
         "I can't read this part: 'The precipitate is yellow'. Type a formula, or none."},
        {"I don't know", Verdict::unreadable,
         "I can't read this part: 'I don't know'. Type a formula, or none."},
        {"PbI2 perhaps", Verdict::unreadable,
         "I can't read this part: 'perhaps'. Type a formula, or none."},
        {"PbX2", Verdict::unreadable, "I can't read this part: 'X2'. Type a formula, or none."},
        {"yes", Verdict::unreadable, "I can't read this part: 'yes'. Type a formula, or none."},
    };
    for (const Row& row : rows) {
        const Mark mark = markPrecipitate(leadIodide(), slips, row.typed);
        EXPECT_EQ(mark.verdict, row.verdict) << row.typed;
        EXPECT_EQ(plain(mark.sentence), row.sentence) << row.typed;
    }
}

TEST(PrecipitateMarkTest, NoneInItsUsualWords)
{
    for (const char* const typed : {"none",
                                    "None",
                                    "NONE.",
                                    "no",
                                    "No",
                                    "NO",
                                    "n",
                                    "nothing",
                                    "no precipitate",
                                    "No precipitate.",
                                    "no  precipitate forms",
                                    "No ppt",
                                    "nil",
                                    "-",
                                    "–",
                                    "“none”",
                                    "\"none\"",
                                    "none formed",
                                    "None, both are soluble",
                                    "none,",
                                    "there's no precipitate",
                                    "No precipitate will form",
                                    "no precipitation occurs",
                                    "no precipitates are formed",
                                    "No, there is no precipitate",
                                    "no precipitate (all soluble)",
                                    "no - both soluble",
                                    "both soluble",
                                    "Both salts are soluble.",
                                    "all are soluble",
                                    "everything stays dissolved",
                                    "they all stay in solution",
                                    "no, nothing precipitates",
                                    "nothing precipitates out",
                                    "no visible reaction",
                                    "no insoluble product",
                                    "It is none",
                                    "neither is insoluble",
                                    "it doesn't precipitate",
                                    "a precipitate does not form",
                                    "NR",
                                    "n/a",
                                    "no, because all nitrates are soluble",
                                    "no precipitate is produced",
                                    "no precipitate is made",
                                    "no precipitate appears",
                                    "no, as both are soluble",
                                    "as both are soluble",
                                    "no precipitate as both are soluble",
                                    "they're both soluble",
                                    "no visible change",
                                    "no new solid forms",
                                    "no insoluble salt",
                                    "no, both are soluble",
                                    "no no precipitate",
                                    "no, it does not precipitate",
                                    "none, soluble",
                                    "none (soluble)",
                                    "no: everything stays in solution",
                                    "none of them is insoluble",
                                    "none of the products precipitates, they dissolve",
                                    "nothing happens, both are soluble"}) {
        const Mark mark = markPrecipitate(nothing, slips, typed);
        EXPECT_EQ(mark.verdict, Verdict::correct) << typed;
        EXPECT_EQ(plain(mark.sentence), "Correct. All nitrates are soluble.") << typed;
        EXPECT_EQ(markPrecipitate(leadIodide(), slips, typed).verdict, Verdict::wrong) << typed;
    }
}

TEST(PrecipitateMarkTest, TheOppositeOfNoneIsAskedBack)
{
    for (const char* const typed :
         {"no, it forms a precipitate", "no there is a precipitate", "no, a solid forms",
          "no, solid forms", "no, both form a solid", "no it will precipitate",
          "no, it is insoluble", "no, none dissolve", "nothing dissolves",
          "nothing stays in solution", "none are soluble", "none of them dissolve",
          "none of the products is soluble", "no product is soluble", "nothing but KBr",
          "nothing other than KBr", "nothing apart from KBr", "none or BaSO4", "BaSO4 or none"}) {
        EXPECT_EQ(markPrecipitate(nothing, slips, typed).verdict, Verdict::unreadable) << typed;
        EXPECT_EQ(markPrecipitate(leadIodide(), slips, typed).verdict, Verdict::unreadable)
            << typed;
    }
}

// A sulfur at the end stays, whether in small letters or in brackets.
TEST(PrecipitateMarkTest, SulfurIsNoState)
{
    const PrecipitateAnswer silver = {findIon("silver"), findIon("sulfide"), {}};
    for (const char* const typed : {"Ag2S", "Ag2 S", "Ag2S s", "Ag2S (s)", "Ag2S(S)"}) {
        EXPECT_EQ(markPrecipitate(silver, {}, typed).verdict, Verdict::correct) << typed;
    }
    EXPECT_EQ(plain(markPrecipitate(silver, {}, "Ag2(S)").sentence),
              "A bracket is needed only around a group of atoms that comes more than once.");
    EXPECT_EQ(plain(markPrecipitate(silver, {}, "ag2 s").sentence),
              "Check the capitals: first letter large, second small.");
}

TEST(PrecipitateMarkTest, SulfateInBothSpellings)
{
    const PrecipitateAnswer barium = {findIon("barium"), findIon("sulfate"), {}};
    for (const char* const typed : {"barium sulfate", "Barium Sulphate", "BARIUM SULPHATE (s)"}) {
        EXPECT_EQ(plain(markPrecipitate(barium, {}, typed).sentence),
                  "That is its name. Type its formula.")
            << typed;
    }
}

TEST(PrecipitateMarkTest, NoneAndACompound)
{
    for (const char* const typed :
         {"none, BaBr2", "none BaBr2", "None: BaBr2", "none, because BaSO4", "no because BaSO4",
          "nothing (BaSO4)", "none, BaBr2 is not soluble", "none, BaBr2 is insoluble",
          "none, BaBr2(s)", "none, KI", "none, barium bromide",
          "none because Lead (II) sulphate"}) {
        const Mark mark = markPrecipitate(nothing, slips, typed);
        EXPECT_EQ(mark.verdict, Verdict::unreadable) << typed;
        EXPECT_EQ(plain(mark.sentence),
                  "I can't read this part: '" + std::string(typed) + "'. Type a formula, or none.");
        EXPECT_EQ(markPrecipitate(leadIodide(), slips, typed).verdict, Verdict::unreadable);
    }
    for (const char* const typed :
         {"none, BaBr2 is soluble", "none, barium bromide is soluble",
          "none, soluble: barium bromide", "none, KNO3 and BaBr2 are both soluble",
          "none, because BaBr2 dissolves", "no, as BaBr2 is soluble", "none: KNO3(aq), BaBr2(aq)",
          "none (KNO3 and BaBr2 stay in solution)", "none, BaBr2 doesn't precipitate",
          "none, K+ and NO3- are spectators", "NONE, NO IONS REACT"}) {
        EXPECT_EQ(markPrecipitate(nothing, slips, typed).verdict, Verdict::correct) << typed;
        EXPECT_EQ(markPrecipitate(leadIodide(), slips, typed).verdict, Verdict::wrong) << typed;
    }
}

TEST(PrecipitateMarkTest, HostileTexts)
{
    for (const char* const piece : {"(s)", " s", "↓", " ", ".", "the ", " forms", "Pb ", "none ",
                                    "BaBr2 ", "(H", "^", "_{s}", "none, (", "sulph", "I don't "}) {
        std::string text = "PbI2";
        while (text.size() < 50000) {
            text += piece;
        }
        for (const std::string& typed : {text, "none, " + text, text.substr(4)}) {
            EXPECT_LT(plain(markPrecipitate(leadIodide(), slips, typed).sentence).size(), 300U)
                << piece;
            EXPECT_LT(plain(markPrecipitate(nothing, slips, typed).sentence).size(), 300U) << piece;
        }
    }
}

TEST(PrecipitateMarkTest, AFormulaWhereThereIsNone)
{
    EXPECT_EQ(plain(markPrecipitate(nothing, slips, "KNO₃").sentence),
              "That one stays in solution.");
    EXPECT_EQ(markPrecipitate(nothing, slips, "AgCl").verdict, Verdict::wrong);
    EXPECT_EQ(plain(markPrecipitate(nothing, slips, "KNO3 (solid)").sentence),
              "That one stays in solution.");
    EXPECT_EQ(markPrecipitate(nothing, slips, "AgCl forms").verdict, Verdict::wrong);
    EXPECT_EQ(plain(markPrecipitate(nothing, slips, "silver chloride").sentence),
              "'silver chloride' is a name. Type a formula, or none.");
    EXPECT_EQ(markPrecipitate(nothing, slips, "").verdict, Verdict::unreadable);
    EXPECT_EQ(plain(markPrecipitate(nothing, slips, "CuCO3 + NH4Cl").sentence),
              "Type the formula of the precipitate alone, or none.");
    EXPECT_EQ(plain(markPrecipitate(nothing, slips, "?").sentence),
              "I can't read this part: '?'. Type a formula, or none.");
    EXPECT_EQ(markPrecipitate(nothing, slips, std::string(1000000, '[')).verdict,
              Verdict::unreadable);
}

} // namespace

} // namespace lesson
