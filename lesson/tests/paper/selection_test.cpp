#include "lesson/paper/selection.hpp"
#include "lesson/tests/support/plain.hpp"
#include "lesson/words/say.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lesson
{

bool operator==(const KindAndLevel& a, const KindAndLevel& b)
{
    return a.kind == b.kind && a.level == b.level;
}

void PrintTo(const KindAndLevel& one, std::ostream* out)
{
    *out << nameOf(one);
}

namespace
{

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

TEST(SelectionTest, AKindIsNamedAloneOrWithItsLevel)
{
    struct Case {
        const char* level;
        int expected;
    };
    const Case cases[] = {{"", 2}, {":1", 1}, {":2", 2}, {":3", 3}};
    for (const Kind* const kind : allKinds()) {
        for (const auto& [level, expected] : cases) {
            const std::string name = std::string(kind->slug) + level;
            const Selection selection = readSelection(name);
            EXPECT_THAT(selection.kinds, ElementsAre(KindAndLevel{kind, expected})) << name;
            EXPECT_EQ(plain(selection.error), "") << name;
        }
    }
}

TEST(SelectionTest, SeveralKindsInAnyOrder)
{
    for (const char* const names :
         {"titration:3,dilution,titration:1", "dilution:2,titration:1,titration:3"}) {
        EXPECT_THAT(readSelection(names).kinds,
                    ElementsAre(KindAndLevel{&dilutionKind, 2}, KindAndLevel{&titrationKind, 1},
                                KindAndLevel{&titrationKind, 3}))
            << names;
    }
}

TEST(SelectionTest, MixedIsAllEightAtLevelTwo)
{
    std::vector<KindAndLevel> expected;
    for (const Kind* const kind : allKinds()) {
        expected.push_back({kind, 2});
    }
    EXPECT_THAT(readSelection("mixed").kinds, ElementsAreArray(expected));
}

TEST(SelectionTest, WhatCannotBeReadIsToldInASentence)
{
    struct Case {
        const char* names;
        const char* error;
    };
    const char* const none = "Name a kind of exercise.";
    const char* const mixedAlone = "The kind mixed stands alone, without a level.";
    const Case cases[] = {
        {"", none},
        {",", none},
        {"dilution,", none},
        {",dilution", none},
        {"dilution,,titration", none},
        {":2", none},
        {"dillution", "There is no kind of exercise called 'dillution'."},
        {"Dilution", "There is no kind of exercise called 'Dilution'."},
        {"dilution, titration", "There is no kind of exercise called ' titration'."},
        {"\x80\n", "There is no kind of exercise called '\uFFFD\uFFFD'."},
        {"dilution:", "The level of dilution has to be 1, 2 or 3."},
        {"dilution:0", "The level of dilution has to be 1, 2 or 3."},
        {"dilution:4", "The level of dilution has to be 1, 2 or 3."},
        {"dilution:22", "The level of dilution has to be 1, 2 or 3."},
        {"dilution:two", "The level of dilution has to be 1, 2 or 3."},
        {"dilution:2:2", "The level of dilution has to be 1, 2 or 3."},
        {"dilution: 2", "The level of dilution has to be 1, 2 or 3."},
        {"dilution,titration,dilution", "The kind dilution:2 is there twice."},
        {"dilution:2,dilution", "The kind dilution:2 is there twice."},
        {"mixed,dilution", mixedAlone},
        {"dilution,mixed", mixedAlone},
        {"mixed,mixed", mixedAlone},
        {"mixed:1", mixedAlone},
    };
    for (const Case& one : cases) {
        const Selection selection = readSelection(one.names);
        EXPECT_EQ(plain(selection.error), one.error) << one.names;
        EXPECT_TRUE(selection.kinds.empty()) << one.names;
    }
}

TEST(SelectionTest, ALongNameIsCutInTheSentence)
{
    const std::string error = plain(readSelection(std::string(1000000, 'x')).error);
    EXPECT_LT(error.size(), 200U);
}

TEST(SelectionTest, OneKindKeepsPaperAndNumber)
{
    const Selection selection = readSelection("titration:3");
    for (const unsigned number : {1U, 2U, 77U, 999999U}) {
        const Place place = placeOf(selection, 4821, number);
        EXPECT_EQ(place.paper, 4821U);
        EXPECT_EQ(place.number, number);
        EXPECT_EQ(place.kind, &titrationKind);
        EXPECT_EQ(place.level, 3);
    }
}

using Order = std::vector<std::pair<const Kind*, int>>;

Order block(const Selection& selection, unsigned paper, unsigned index)
{
    const auto size = static_cast<unsigned>(selection.kinds.size());
    Order order;
    for (unsigned i = 0; i < size; ++i) {
        const Place place = placeOf(selection, paper, index * size + i + 1);
        EXPECT_EQ(place.number, index * size + i + 1);
        order.emplace_back(place.kind, place.level);
    }
    return order;
}

TEST(SelectionTest, EveryBlockHasEachKindOnce)
{
    for (const char* const names :
         {"mixed", "dilution,titration", "dilution:1,dilution:2,dilution:3"}) {
        const Selection selection = readSelection(names);
        for (unsigned paper = 1; paper <= 100; ++paper) {
            for (unsigned index = 0; index < 5; ++index) {
                const Order order = block(selection, paper, index);
                const std::set<std::pair<const Kind*, int>> distinct(order.begin(), order.end());
                EXPECT_EQ(distinct.size(), selection.kinds.size())
                    << names << ", paper " << paper << ", block " << index;
            }
        }
    }
}

// Three kinds have six orders: with 6,000 blocks each comes about 1,000 times.
TEST(SelectionTest, EveryOrderComesAboutEquallyOften)
{
    const Selection selection = readSelection("molar-mass,solubility,titration");
    std::map<Order, int> counts;
    for (unsigned paper = 1; paper <= 60; ++paper) {
        for (unsigned index = 0; index < 100; ++index) {
            ++counts[block(selection, paper, index)];
        }
    }
    ASSERT_EQ(counts.size(), 6U);
    double chiSquare = 0.0;
    for (const auto& [order, count] : counts) {
        chiSquare += (count - 1000.0) * (count - 1000.0) / 1000.0;
    }
    EXPECT_LT(chiSquare, 20.5) << "5 degrees of freedom, one seed in a thousand is worse";
}

TEST(SelectionTest, TheOrderOfTheNamesDoesNotMatter)
{
    const Selection one = readSelection("titration,dilution:1,solubility:3");
    const Selection other = readSelection("solubility:3,titration:2,dilution:1");
    const Selection all = readSelection("titration,dilution,molar-mass,neutralisation,solubility,"
                                        "concentration,ion-formula,compound-formula");
    for (unsigned index = 0; index < 50; ++index) {
        EXPECT_EQ(block(one, 7, index), block(other, 7, index)) << "block " << index;
        EXPECT_EQ(block(all, 7, index), block(readSelection("mixed"), 7, index))
            << "block " << index;
    }
}

// A kind that is none of the library's.
Kind unknownKind(std::uint32_t seed, std::string_view slug)
{
    return {seed, 1, slug, Sentence::last, {}, false, nullptr, nullptr};
}
const Kind toy = unknownKind(8, "toy");

// "titration:2#3", and so for the first exercises of a paper.
std::string placesOf(std::string_view names, const KindList& kinds)
{
    const Selection selection = readSelection(names, kinds);
    std::string text = plain(selection.error);
    for (unsigned number = 1; number <= 40; ++number) {
        const Place place = placeOf(selection, 4821, number);
        text += nameOf({place.kind, place.level}) + "#" + std::to_string(place.number) + " ";
    }
    return text;
}

TEST(SelectionTest, AKindMoreAnywhereInTheListChangesNothingForTheOthers)
{
    for (std::size_t at = 0; at <= allKinds().size(); ++at) {
        KindList kinds = allKinds();
        kinds.insert(kinds.begin() + static_cast<std::ptrdiff_t>(at), &toy);
        for (const char* const names : {"mixed", "dilution:1,titration", "solubility"}) {
            EXPECT_EQ(placesOf(names, kinds), placesOf(names, allKinds()))
                << names << ", toy at " << at;
        }
    }
}

TEST(SelectionTest, TheOrderOfTheListDoesNotMatter)
{
    const KindList backwards(allKinds().rbegin(), allKinds().rend());
    for (const char* const names : {"mixed", "dilution:1,titration", "titration:3,solubility"}) {
        EXPECT_EQ(placesOf(names, backwards), placesOf(names, allKinds())) << names;
    }
}

TEST(SelectionTest, KindsBeyondTheFirstWordOfTheSetAreToldApart)
{
    const Kind far = unknownKind(40, "far");
    KindList kinds = allKinds();
    kinds.push_back(&far);
    kinds.push_back(&toy);
    const auto orders = [&](const std::string& names) {
        std::string text;
        const Selection selection = readSelection(names, kinds);
        for (unsigned number = 1; number <= 80; ++number) {
            text += placeOf(selection, 7, number).kind == &titrationKind ? "t" : ".";
        }
        return text;
    };
    EXPECT_NE(orders("titration,far:1"), orders("titration,far:2"));
    EXPECT_NE(orders("titration,far:3"), orders("titration,toy:3"));
    EXPECT_EQ(orders("far:3,titration"), orders("titration,far:3"));
}

TEST(KindsTest, NoSeedSlugOrTitleIsThereTwice)
{
    std::set<std::uint32_t> seeds;
    std::set<std::string_view> slugs;
    std::set<std::string> titles;
    for (const Kind* const kind : allKinds()) {
        EXPECT_TRUE(seeds.insert(kind->seed).second) << kind->slug;
        EXPECT_TRUE(slugs.insert(kind->slug).second) << kind->slug;
        EXPECT_TRUE(titles.insert(plain({say(kind->title)})).second) << kind->slug;
        EXPECT_EQ(findKind(kind->slug), kind);
    }
}

// Papers that are printed have the numbers that these seeds give.
TEST(KindsTest, SeedsAreThoseThatPapersWerePrintedWith)
{
    const char* const slugs[] = {"molar-mass",     "compound-formula", "ion-formula",
                                 "solubility",     "concentration",    "dilution",
                                 "neutralisation", "titration"};
    for (std::uint32_t seed = 0; seed < std::size(slugs); ++seed) {
        ASSERT_NE(findKind(slugs[seed]), nullptr) << slugs[seed];
        EXPECT_EQ(findKind(slugs[seed])->seed, seed) << slugs[seed];
    }
}

} // namespace

} // namespace lesson
