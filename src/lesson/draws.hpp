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

// A finite pool of members 0, 1, 2, …, at least one, which stand class by class, the classes group
// by group.
struct PoolClass {
    int group;
    int size;
};
using Pool = std::vector<PoolClass>;

// The member that exercise `number` (from 1) meets on a walk through the pool: each step draws the
// group, then a class of it, then a member of that, each among those of which something is left;
// when nothing is, the walk begins anew in another order. So no member comes again while there is a
// new one, and at first every group and class comes equally often; where the pool has more than two
// members, none follows itself.
int memberOnWalk(const Pool& pool, Seed seed, unsigned number);

} // namespace lesson
