#include "lesson/draws.hpp"

#include <algorithm>
#include <numeric>

namespace lesson
{

namespace
{

std::mt19937 seeded(const Seed& seed)
{
    std::seed_seq sequence(seed.begin(), seed.end());
    return std::mt19937(sequence);
}

int sizeOf(const Pool& pool)
{
    return std::accumulate(pool.begin(), pool.end(), 0,
                           [](int sum, const PoolClass& part) { return sum + part.size; });
}

// One of those of which something is left, each equally likely. They are counted and then counted
// off: a long walk draws often, and collecting them in a list would take most of its time.
template <typename Iterator>
Iterator drawn(Iterator begin, Iterator end, Draws& draws)
{
    const auto isLeft = [](const auto& part) { return part.left > 0; };
    const auto count = static_cast<std::uint32_t>(std::count_if(begin, end, isLeft));
    Iterator found = std::find_if(begin, end, isLeft);
    for (std::uint32_t before = draws.below(count); before > 0; --before) {
        found = std::find_if(std::next(found), end, isLeft);
    }
    return found;
}

// One round of a walk, which takes each member once.
class Round
{
public:
    explicit Round(const Pool& pool) : members(static_cast<std::size_t>(sizeOf(pool)))
    {
        std::iota(members.begin(), members.end(), 0);
        int first = 0;
        for (std::size_t i = 0; i < pool.size(); ++i) {
            if (i == 0 || pool[i].group != pool[i - 1].group) {
                groups.push_back({static_cast<std::ptrdiff_t>(i), 0, 0});
            }
            classes.push_back({first, pool[i].size});
            first += pool[i].size;
            ++groups.back().size;
            groups.back().left += pool[i].size;
        }
    }

    int take(Draws& draws)
    {
        Group& group = *drawn(groups.begin(), groups.end(), draws);
        const auto begin = classes.begin() + group.first;
        Class& part = *drawn(begin, begin + group.size, draws);
        int* const first = members.data() + part.first;
        int& member = first[draws.below(static_cast<std::uint32_t>(part.left))];
        --group.left;
        std::swap(member, first[--part.left]);
        return first[part.left];
    }

private:
    struct Group {
        std::ptrdiff_t first; // of its classes
        std::ptrdiff_t size;
        int left;
    };
    struct Class {
        int first; // of its members
        int left;
    };

    std::vector<int> members;
    std::vector<Group> groups;
    std::vector<Class> classes;
};

} // namespace

Draws::Draws(const Seed& seed) : generator(seeded(seed)) {}

// Draws that lie beyond the last whole multiple of the bound are drawn again, so that no result is
// likelier than another.
std::uint32_t Draws::below(std::uint32_t bound)
{
    constexpr std::uint64_t range = std::uint64_t{1} << 32U;
    const auto beyond = static_cast<std::uint32_t>(range % bound);
    for (;;) {
        const auto drawn = static_cast<std::uint32_t>(generator());
        if (drawn >= beyond) {
            return drawn % bound;
        }
    }
}

int Draws::between(int low, int high)
{
    return low + static_cast<int>(below(static_cast<std::uint32_t>(high - low + 1)));
}

namespace
{

// The member that a step of a round takes, both counted from 0.
int memberAt(const Pool& pool, Seed seed, unsigned round, unsigned step)
{
    seed.push_back(round);
    Draws draws(seed);
    Round walk(pool);
    for (; step > 0; --step) {
        walk.take(draws);
    }
    return walk.take(draws);
}

} // namespace

int memberOnWalk(const Pool& pool, Seed seed, unsigned number)
{
    const auto members = static_cast<unsigned>(std::max(sizeOf(pool), 1));
    const unsigned round = (number - 1) / members;
    const unsigned step = (number - 1) % members;
    // A round that would begin with the last member of the one before has its first two exchanged.
    const bool mayFollowItself = round > 0 && step < 2 && members > 2;
    if (mayFollowItself &&
        memberAt(pool, seed, round, 0) == memberAt(pool, seed, round - 1, members - 1)) {
        return memberAt(pool, seed, round, 1 - step);
    }
    return memberAt(pool, seed, round, step);
}

} // namespace lesson
