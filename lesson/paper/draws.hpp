#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>
#include <vector>

namespace lesson
{

// All that tells one stream of draws from another.
using Seed = std::vector<std::uint32_t>;

// What is drawn for one exercise. The same seed gives the same draws everywhere: generator and
// seeding are fixed by the standard, and the bounded draws, which are not, are made here.
class Draws
{
public:
    explicit Draws(const Seed& seed);

    // Each of 0 to `bound` - 1 equally likely; `bound` is not 0.
    std::uint32_t below(std::uint32_t bound);
    // Each of `low` to `high` equally likely.
    int between(int low, int high);
    // Each element of a table or vector equally likely; it is not empty.
    template <typename Table>
    const auto& oneOf(const Table& table)
    {
        return std::data(table)[below(static_cast<std::uint32_t>(std::size(table)))];
    }

private:
    std::mt19937 generator;
};

// A finite pool of members 0, 1, 2, …, at least one. They stand part by part, the parts of a class
// together, and the classes of a group. The members of a part are equally common.
struct PoolPart {
    int group;
    int ofClass; // told from those of the same group
    int weight;  // of each member, 1 or more: how common it is in comparison with others
    int size;
};
struct Pool {
    std::vector<PoolPart> parts;
    // What a group, or a class, counts for at most when one is drawn: with 1, all count the same
    // until nothing is left of them; with much, what is left of each decides.
    int most;
};

// The member that exercise `number` (from 1) of a paper meets on its walk through the pool;
// `stream` tells apart the walks of a paper. Each step draws the group, by the weights of what is
// left of it, then a class of it likewise, then a member of that by its weight; when nothing is
// left, the walk begins anew in another order. So no member comes again while there is a new one,
// and the common ones come sooner. Where there are more than two members, none follows itself; and
// where there are more than five, a paper and the next one never meet the same member at the same
// number, but by chance where there are hundreds.
int memberOnWalk(const Pool& pool, const Seed& stream, unsigned paper, unsigned number);

} // namespace lesson
