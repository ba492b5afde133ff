#include "lesson/draws.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <vector>

namespace lesson
{

namespace
{

TEST(DrawsTest, TheSameSeedGivesTheSameDraws)
{
    Draws first({4821, 3});
    Draws second({4821, 3});
    Draws other({4821, 4});
    int differing = 0;
    for (int i = 0; i < 100; ++i) {
        const std::uint32_t drawn = first.below(1000000);
        EXPECT_EQ(drawn, second.below(1000000)) << "draw " << i;
        differing += drawn != other.below(1000000) ? 1 : 0;
    }
    EXPECT_GT(differing, 90);
}

TEST(DrawsTest, EveryValueIsReachedAndAboutEquallyOften)
{
    Draws draws({7});
    std::array<int, 6> counts = {};
    for (int i = 0; i < 60000; ++i) {
        ++counts[draws.below(6)];
    }
    double chiSquare = 0.0;
    for (const int count : counts) {
        chiSquare += (count - 10000.0) * (count - 10000.0) / 10000.0;
    }
    EXPECT_LT(chiSquare, 20.5) << "5 degrees of freedom, one seed in a thousand is worse";
}

TEST(DrawsTest, BetweenReachesBothEnds)
{
    Draws draws({8});
    std::set<int> drawn;
    for (int i = 0; i < 1000; ++i) {
        drawn.insert(draws.between(-2, 2));
    }
    EXPECT_EQ(drawn, (std::set<int>{-2, -1, 0, 1, 2}));
    EXPECT_EQ(Draws({9}).between(5, 5), 5);
}

const Pool pool = {{0, 5}, {0, 1}, {1, 30}, {1, 4}};

std::vector<int> walk(unsigned from, unsigned to, std::uint32_t paper)
{
    std::vector<int> members;
    for (unsigned number = from; number <= to; ++number) {
        members.push_back(memberOnWalk(pool, {paper}, number));
    }
    return members;
}

TEST(WalkTest, EachRoundTakesEveryMemberOnce)
{
    for (std::uint32_t paper = 1; paper <= 50; ++paper) {
        for (unsigned round = 0; round < 3; ++round) {
            std::vector<int> members = walk(round * 40 + 1, round * 40 + 40, paper);
            std::sort(members.begin(), members.end());
            for (int i = 0; i < 40; ++i) {
                EXPECT_EQ(members[static_cast<std::size_t>(i)], i) << "paper " << paper;
            }
        }
    }
}

TEST(WalkTest, NoMemberFollowsItselfFromOneRoundToTheNext)
{
    const Pool small = {{0, 2}, {1, 1}};
    for (std::uint32_t paper = 1; paper <= 100; ++paper) {
        int last = -1;
        for (unsigned number = 1; number <= 30; ++number) {
            const int member = memberOnWalk(small, {paper}, number);
            EXPECT_NE(member, last) << "paper " << paper << ", number " << number;
            last = member;
        }
    }
}

TEST(WalkTest, RoundsAndPapersDiffer)
{
    EXPECT_NE(walk(1, 40, 1), walk(41, 80, 1));
    EXPECT_NE(walk(1, 40, 1), walk(1, 40, 2));
    EXPECT_EQ(walk(1, 40, 1), walk(1, 40, 1));
}

TEST(WalkTest, GroupsAndClassesComeEquallyOftenAtFirst)
{
    std::array<int, 4> counts = {};
    for (std::uint32_t paper = 1; paper <= 4000; ++paper) {
        const int member = memberOnWalk(pool, {paper}, 1);
        ++counts[member < 5 ? 0 : member < 6 ? 1 : member < 36 ? 2 : 3];
    }
    for (const int count : counts) {
        EXPECT_NEAR(count, 1000, 120);
    }
}

} // namespace

} // namespace lesson
