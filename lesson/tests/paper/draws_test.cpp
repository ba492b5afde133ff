#include "lesson/paper/draws.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <numeric>
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

// Two groups, the second of two classes, whose members are not equally common.
const Pool pool = {{{0, 0, 3, 5}, {0, 0, 1, 1}, {1, 1, 2, 30}, {1, 2, 1, 4}}, 1};

int memberAt(const Pool& walked, unsigned paper, unsigned number)
{
    return memberOnWalk(walked, {7}, paper, number);
}

std::vector<int> walk(unsigned from, unsigned to, unsigned paper)
{
    std::vector<int> members;
    for (unsigned number = from; number <= to; ++number) {
        members.push_back(memberAt(pool, paper, number));
    }
    return members;
}

// How often members come first, of so many papers.
std::vector<double> sharesOfTheFirst(const Pool& walked, int size, unsigned papers)
{
    std::vector<double> shares(static_cast<std::size_t>(size));
    for (unsigned paper = 1; paper <= papers; ++paper) {
        shares[static_cast<std::size_t>(memberAt(walked, 2 * paper, 1))] += 1.0 / papers;
    }
    return shares;
}

TEST(WalkTest, EachRoundTakesEveryMemberOnce)
{
    for (unsigned paper = 1; paper <= 50; ++paper) {
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
    for (const int size : {3, 4, 5, 6, 9}) {
        const Pool small = {{{0, 0, 5, 2}, {1, 1, 1, size - 2}}, 1};
        for (unsigned paper = 1; paper <= 100; ++paper) {
            int last = -1;
            for (unsigned number = 1; number <= 30; ++number) {
                const int member = memberAt(small, paper, number);
                EXPECT_NE(member, last) << "paper " << paper << ", number " << number;
                last = member;
            }
        }
    }
}

TEST(WalkTest, APoolOfOneOrTwoIsWalkedTo)
{
    for (unsigned number = 1; number <= 10; ++number) {
        EXPECT_EQ(memberAt({{{0, 0, 1, 1}}, 1}, 3, number), 0);
        const int member = memberAt({{{0, 0, 1, 2}}, 1}, 3, number);
        EXPECT_TRUE(member == 0 || member == 1) << member;
    }
}

TEST(WalkTest, RoundsAndPapersDiffer)
{
    EXPECT_NE(walk(1, 40, 1), walk(41, 80, 1));
    EXPECT_NE(walk(1, 40, 1), walk(1, 40, 2));
    EXPECT_EQ(walk(1, 40, 1), walk(1, 40, 1));
    EXPECT_NE(memberOnWalk(pool, {7}, 5, 1) + 100 * memberOnWalk(pool, {7}, 5, 2),
              memberOnWalk(pool, {8}, 5, 1) + 100 * memberOnWalk(pool, {8}, 5, 2));
}

TEST(WalkTest, GroupsAndClassesComeEquallyOftenAtFirst)
{
    const std::vector<double> shares = sharesOfTheFirst(pool, 40, 4000);
    const auto shareOf = [&shares](int first, int size) {
        return std::accumulate(shares.begin() + first, shares.begin() + first + size, 0.0);
    };
    EXPECT_NEAR(shareOf(0, 6), 0.5, 0.03);
    EXPECT_NEAR(shareOf(6, 30), 0.25, 0.03);
    EXPECT_NEAR(shareOf(36, 4), 0.25, 0.03);
}

TEST(WalkTest, TheCommonOnesComeFirst)
{
    const std::vector<double> shares = sharesOfTheFirst({{{0, 0, 6, 1}, {0, 0, 1, 4}}, 1}, 5, 4000);
    // Any of them, equally likely, is put off to the end: 4/5 of 6/9, and 3/5 of 1/9 and 1/5 of
    // 1/4.
    EXPECT_NEAR(shares[0], 0.533, 0.03);
    EXPECT_NEAR(shares[1], 0.117, 0.02);
}

TEST(WalkTest, AGroupOfRareOnesComesByTheirWeights)
{
    const Pool rare = {{{0, 0, 1, 10}, {1, 1, 30, 20}}, 90};
    const std::vector<double> shares = sharesOfTheFirst(rare, 30, 4000);
    EXPECT_NEAR(std::accumulate(shares.begin(), shares.begin() + 10, 0.0), 0.1, 0.03);
}

// Neighbours in a class often get papers of consecutive numbers.
TEST(WalkTest, APaperAndTheNextOneNeverMeetTheSameMemberAtTheSameNumber)
{
    const std::vector<Pool> pools = {{{{0, 0, 1, 6}}, 1},
                                     {{{0, 0, 6, 4}, {0, 0, 1, 8}}, 1},
                                     {{{0, 0, 9, 2}, {1, 1, 1, 10}}, 1},
                                     pool};
    for (std::size_t i = 0; i < pools.size(); ++i) {
        for (unsigned paper = 1; paper <= 400; ++paper) {
            for (unsigned number = 1; number <= 20; ++number) {
                EXPECT_NE(memberAt(pools[i], paper, number), memberAt(pools[i], paper + 1, number))
                    << "pool " << i << ", paper " << paper << ", number " << number;
            }
        }
    }
}

} // namespace

} // namespace lesson
