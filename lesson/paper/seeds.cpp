#include "lesson/paper/seeds.hpp"

#include <cstdint>

#include "lesson/kinds/kind.hpp"

namespace lesson
{

namespace
{

// Keeps the streams of draws apart.
enum StreamOfDraws : std::uint32_t { quantities = 1, walk = 2 };

} // namespace

Draws drawsFor(const Place& place)
{
    return Draws({quantities, place.paper, place.kind->seed,
                  static_cast<std::uint32_t>(place.level), place.number});
}

int memberFor(const Place& place, const Pool& pool)
{
    return memberOnWalk(pool, {walk, place.kind->seed, static_cast<std::uint32_t>(place.level)},
                        place.paper, place.number);
}

} // namespace lesson
