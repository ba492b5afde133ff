#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>

namespace lesson
{

// Whether each row of a table stands at the place of its id, up to the last one.
template <typename Row, std::size_t N, typename Id>
constexpr bool areAtTheirPlaces(const Row (&rows)[N], Id Row::*id, Id last)
{
    for (std::size_t i = 0; i < N; ++i) {
        if (rows[i].*id != static_cast<Id>(i)) {
            return false;
        }
    }
    return rows[N - 1].*id == last;
}

// Some of the members of an enumeration, which has 64 at most.
template <typename Id>
class IdSet
{
public:
    constexpr IdSet(std::initializer_list<Id> ids)
    {
        for (const Id id : ids) {
            bits |= bitOf(id);
        }
    }
    constexpr bool has(Id id) const
    {
        return (bits & bitOf(id)) != 0;
    }
    friend constexpr IdSet operator|(IdSet a, const IdSet& b)
    {
        a.bits |= b.bits;
        return a;
    }

private:
    static constexpr std::uint64_t bitOf(Id id)
    {
        return std::uint64_t{1} << static_cast<unsigned>(id);
    }

    std::uint64_t bits = 0;
};

} // namespace lesson
