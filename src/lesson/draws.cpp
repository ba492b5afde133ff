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

// One round of a walk, which takes each member once.
class Round
{
public:
    explicit Round(const Pool& pool) : members(static_cast<std::size_t>(sizeOf(pool)))
    {
        std::iota(members.begin(), members.end(), 0);
        int first = 0;
        for (const PoolClass& part : pool) {
            classes.push_back({part.group, first, part.size});
            first += part.size;
        }
    }

    int take(Draws& draws)
    {
        const int group = drawGroup(draws);
        Class& drawn = drawClass(draws, group);
        int* const first = members.data() + drawn.first;
        int& member = first[draws.below(static_cast<std::uint32_t>(drawn.left))];
        std::swap(member, first[--drawn.left]);
        return first[drawn.left];
    }

private:
    struct Class {
        int group;
        int first;
        int left;
    };

    int drawGroup(Draws& draws) const
    {
        std::vector<int> groups;
        for (const Class& part : classes) {
            if (part.left > 0 && (groups.empty() || groups.back() != part.group)) {
                groups.push_back(part.group);
            }
        }
        return draws.oneOf(groups);
    }

    Class& drawClass(Draws& draws, int group)
    {
        std::vector<Class*> choice;
        for (Class& part : classes) {
            if (part.left > 0 && part.group == group) {
                choice.push_back(&part);
            }
        }
        return *draws.oneOf(choice);
    }

    std::vector<int> members;
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

int memberOnWalk(const Pool& pool, Seed seed, unsigned number)
{
    const auto members = static_cast<unsigned>(sizeOf(pool));
    seed.push_back((number - 1) / members);
    Draws draws(seed);
    Round round(pool);
    for (unsigned step = (number - 1) % members; step > 0; --step) {
        round.take(draws);
    }
    return round.take(draws);
}

} // namespace lesson
