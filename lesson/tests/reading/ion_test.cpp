#include "lesson/reading/ion.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "lesson/chemistry/ions.hpp"
#include "lesson/marking/ion.hpp"
#include "lesson/reading/typed.hpp"
#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

const std::string rightSentence = "Correct.";
const std::string loweredCharge = "The charge stands above, not below.";
const std::string raisedCount = "Which number stands below, which above?";

std::vector<const IonRow*> allIons()
{
    std::vector<const IonRow*> all;
    for (const auto* const list : {&cations(), &anions(), &furtherIons()}) {
        all.insert(all.end(), list->begin(), list->end());
    }
    return all;
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// One character of an ion as it is typed, and where.
enum class Place { plain, below, above };

struct Typed {
    char character;
    bool isOfCharge;
    Place place;
};

// The ways to type that something stands below or above.
enum class Notation { unicode, marks, braces, html };

std::string inUnicode(char c, Place place)
{
    const std::string below[] = {"₀", "₁", "₂", "₃", "₄", "₅", "₆", "₇", "₈", "₉"};
    const std::string above[] = {"⁰", "¹", "²", "³", "⁴", "⁵", "⁶", "⁷", "⁸", "⁹"};
    if (c == '-') {
        return place == Place::below ? "₋" : "⁻";
    }
    if (c == '+') {
        return place == Place::below ? "₊" : "⁺";
    }
    return (place == Place::below ? below : above)[c - '0'];
}

std::string written(const Typed& typed, Notation notation)
{
    const std::string c(1, typed.character);
    if (typed.place == Place::plain) {
        return c;
    }
    const bool isBelow = typed.place == Place::below;
    switch (notation) {
    case Notation::unicode:
        return inUnicode(typed.character, typed.place);
    case Notation::marks:
        return (isBelow ? "_" : "^") + c;
    case Notation::braces:
        return (isBelow ? "_{" : "^{") + c + "}";
    case Notation::html:
        break;
    }
    return isBelow ? "<sub>" + c + "</sub>" : "<sup>" + c + "</sup>";
}

std::string written(const std::vector<Typed>& typed, Notation notation)
{
    std::string text;
    for (const Typed& one : typed) {
        text += written(one, notation);
    }
    return text;
}

// What stands where it should not: a digit of the formula above, or any of the charge below.
std::string expectedFor(const std::vector<Typed>& typed)
{
    bool isLowered = false;
    for (const Typed& one : typed) {
        if (!one.isOfCharge && one.place == Place::above) {
            return raisedCount;
        }
        isLowered = isLowered || (one.isOfCharge && one.place == Place::below);
    }
    return isLowered ? loweredCharge : rightSentence;
}

// "SO⁻₂": a digit below that follows a sign above may count atoms.
bool countsBehindTheSign(const std::vector<Typed>& typed)
{
    const Typed& last = typed.back();
    return last.place == Place::below && isDigit(last.character) &&
           typed[typed.size() - 2].place != Place::below;
}

// The ion with its charge, the size or the sign first; no size where that is 1.
std::vector<Typed> plainlyTyped(const IonRow& ion, bool isSignFirst)
{
    std::vector<Typed> typed;
    for (const char c : ion.formula) {
        typed.push_back({c, false, Place::plain});
    }
    const int size = std::abs(ion.charge);
    const std::string number = size == 1 ? "" : std::to_string(size);
    const std::string sign = ion.charge < 0 ? "-" : "+";
    for (const char c : isSignFirst ? sign + number : number + sign) {
        typed.push_back({c, true, Place::plain});
    }
    return typed;
}

// Puts the digits and the sign into the places of a number that counts in threes; false where it
// counts beyond all of them.
bool putInPlaces(std::vector<Typed>& typed, int number)
{
    for (Typed& one : typed) {
        if (isDigit(one.character) || one.isOfCharge) {
            one.place = static_cast<Place>(number % 3);
            number /= 3;
        }
    }
    return number == 0;
}

TEST(IonPlacesTest, EveryDigitAndSignPlainLoweredOrRaisedInEachNotation)
{
    int right = 0;
    int lowered = 0;
    int raised = 0;
    for (const IonRow* const ion : allIons()) {
        for (const bool isSignFirst : {false, true}) {
            std::vector<Typed> typed = plainlyTyped(*ion, isSignFirst);
            for (int number = 0; putInPlaces(typed, number); ++number) {
                const std::string expected = expectedFor(typed);
                for (const Notation notation :
                     {Notation::unicode, Notation::marks, Notation::braces, Notation::html}) {
                    const std::string text = written(typed, notation);
                    const Mark mark = markIon({ion}, {}, text);
                    if (countsBehindTheSign(typed)) {
                        EXPECT_NE(mark.verdict, Verdict::correct)
                            << text << " for " << british(nameOf(*ion));
                        continue;
                    }
                    EXPECT_EQ(plain(mark.sentence), expected)
                        << text << " for " << british(nameOf(*ion));
                    (expected == rightSentence   ? right
                     : expected == loweredCharge ? lowered
                                                 : raised)++;
                }
            }
        }
    }
    EXPECT_GT(right, 1000);
    EXPECT_GT(lowered, 1000);
    EXPECT_GT(raised, 500);
}

// Lowered and raised throughout, an ion can be no other one.
TEST(IonPlacesTest, WhatIsMarkedThroughoutIsOneIonAlone)
{
    for (const IonRow* const typedIon : allIons()) {
        std::vector<Typed> typed = plainlyTyped(*typedIon, false);
        for (Typed& one : typed) {
            one.place = one.isOfCharge           ? Place::above
                        : isDigit(one.character) ? Place::below
                                                 : Place::plain;
        }
        for (const Notation notation : {Notation::unicode, Notation::marks, Notation::braces}) {
            const std::string text = written(typed, notation);
            for (const IonRow* const asked : allIons()) {
                EXPECT_EQ(markIon({asked}, {}, text).verdict == Verdict::correct, asked == typedIon)
                    << text << " for " << british(nameOf(*asked));
            }
        }
    }
}

TEST(IonPlacesTest, UsualSpellingsOfWhatStandsBelowAndAbove)
{
    struct Row {
        const char* ion;
        std::vector<std::string> typed;
        std::string sentence;
    };
    const Row rows[] = {
        {"nitride",
         {"N3-", "N³⁻", "N^3-", "N^-3", "N3⁻", "N 3-", "N^{3-}", "N(3-)"},
         rightSentence},
        {"nitride",
         {"N₃⁻", "N_3^-", "N_3-", "N_{3}^{-}", "N⁻₃", "N_{3-}", "N₃₋", "N<sub>3</sub>-"},
         loweredCharge},
        {"oxide", {"O_2^-", "O₂⁻", "O₂-", "O-_2", "O_{2-}"}, loweredCharge},
        {"calcium", {"Ca₂⁺", "Ca_2+", "Ca_{2+}", "Ca₂₊", "Ca+₂"}, loweredCharge},
        {"aluminium", {"Al_3+", "Al₃+", "Al_3^+"}, loweredCharge},
        {"sodium", {"Na₊", "Na_+"}, loweredCharge},
        {"sulfate",
         {"SO₄2-",        "SO4²⁻",       "SO₄²⁻",       "SO_4^{2-}", "SO_{4}^{2-}",
          "SO4^2⁻",       "SO_42-",      "SO^{2-}_4",   "SO²⁻₄",     "SO_4 ^2-",
          "SO_(4)^(2-)",  "SO₄^(2-)",    "SO_{4}2-",    "SO4^{2}-",  "SO₄(²⁻)",
          "SO4(^2-)",     "SO4^2-ion",   "SO4^2^-",     "[SO₄]²⁻",   "SO<sub>4</sub><sup>2-</sup>",
          "\\ce{SO4^2-}", "$SO_4^{2-}$", "(SO_4)^{2-}", "SO₄²⁻(aq)"},
         rightSentence},
        {"sulfate",
         {"SO₄₂⁻", "SO_4_2^-", "SO_{42}^{-}", "SO_{42-}", "SO4_2-", "SO4-_2"},
         loweredCharge},
        {"sulfate",
         {"SO⁴²⁻", "SO⁴2-", "SO^42-", "SO^4^2-", "SO⁴₂₋", "SO^{42-}", "SO^{4}2-"},
         raisedCount},
        {"nitrate",
         {"NO3-", "NO₃⁻", "NO3⁻", "NO_3^-", "NO^-_3", "NO⁻₃", "NO^{-}_{3}", "NO_3-"},
         rightSentence},
        {"nitrate", {"NO³⁻", "NO^3-", "NO^{3-}", "NO³-", "NO(3-)"}, raisedCount},
        {"nitrite", {"NO²⁻", "NO^2-"}, raisedCount},
        {"ammonium", {"NH⁴⁺", "NH^4+"}, raisedCount},
        {"dichromate", {"Cr²O₇²⁻", "Cr^2O7^2-", "Cr₂O⁷²⁻"}, raisedCount},
        {"dichromate", {"Cr₂O₇₂⁻", "Cr_2O_7_2-"}, loweredCharge},
        {"iron(III)", {"Fe3⁺", "Fe⁺³", "Fe+³", "Fe⁺3", "Fe^3⁺", "Fe³+", "Fe^{+3}"}, rightSentence},
        {"iron(II)", {"Fe₃⁺"}, loweredCharge},
        {"iron(III)", {"Fe(III)₃⁺"}, loweredCharge},
        {"ethanoate",
         {"CH₃-COO⁻", "CH_{3}-COO^-", "CH₃COO⁻", "C₂H₃O₂⁻", "-OOCCH3", "⁻OOCCH₃", "⁻O₂CCH₃"},
         rightSentence},
    };
    for (const Row& row : rows) {
        for (const std::string& typed : row.typed) {
            EXPECT_EQ(plain(markIon({findIon(row.ion)}, {}, typed).sentence), row.sentence)
                << typed << " for " << row.ion;
        }
    }
}

TEST(TypedIonTest, HasOneSpelling)
{
    const std::vector<std::pair<std::string, std::string>> rows = {
        {"SO4^2- (aq).", "SO4^2^-"},
        {"SO_{4}^{2-}", "SO_4^2^-"},
        {"[SO₄]²⁻", "(SO_4)^2^-"},
        {"Fe ^ 3+", "Fe^3^+"},
        {"Fe(3+)", "Fe^3^+"},
        {"Fe^III", "Fe^III"},
        {"SO^{2-}_4", "SO_4^2^-"},
        {"Cr2O7 2-", "Cr2O7^2^-"},
        {"Cr2O7 2 -", "Cr2O7^2^-"},
        {"Cr2 O7 2", "Cr2O72"},
        {"SO 42-", "SO42-"},
        {"Fe 3+", "Fe3+"},
        {"Na", "Na"},
        {"", ""},
    };
    for (const auto& [typed, expected] : rows) {
        const std::string text = markedIon(markedTyped(typed));
        EXPECT_EQ(text, expected) << typed;
        EXPECT_EQ(markedIon(text), expected) << typed;
    }
}

TEST(TypedIonTest, DigitsBeforeASignAreSplitEachWay)
{
    std::vector<std::string> read;
    for (const IonReading& reading : readIon("SO42-").readings) {
        read.push_back(reading.bare + " " + std::to_string(reading.charge));
    }
    EXPECT_EQ(read, (std::vector<std::string>{"SO42 -1", "SO4 -2"}));
}

TEST(TypedIonTest, WhatIsMarkedIsReadInOneWay)
{
    const TypedIon ion = readIon("SO_4^2-");
    ASSERT_EQ(ion.readings.size(), 1U);
    EXPECT_EQ(ion.readings[0].bare, "SO4");
    EXPECT_EQ(ion.readings[0].charge, -2);
    EXPECT_TRUE(ion.hasRaised);
    EXPECT_TRUE(ion.hasSign);
}

} // namespace

} // namespace lesson
