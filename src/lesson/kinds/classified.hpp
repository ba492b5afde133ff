#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "lesson/kinds/kinds.hpp"

namespace lesson
{

// The members of a finite pool, class by class, with the pool that a paper walks through.
template <typename Member>
struct Classified {
    std::vector<Member> members;
    Pool pool;
};

// Where a member belongs: its group, the name of its class in this, and how common it is.
struct ClassKey {
    int group;
    std::string name;
    int weight = 1;
};

inline bool isSameClass(const ClassKey& a, const ClassKey& b)
{
    return a.group == b.group && a.name == b.name;
}

inline bool operator<(const ClassKey& a, const ClassKey& b)
{
    return std::tie(a.group, a.name, a.weight) < std::tie(b.group, b.name, b.weight);
}

// The `most` of a pool whose groups and classes come equally often until nothing is left of them.
constexpr int allTheSame = 1;

// Puts members of a class together, and in it those that are equally common; these stay in their
// order. A group, or a class, counts for `most` at most, as Pool tells.
template <typename Member, typename KeyOf>
Classified<Member> classified(std::vector<Member> members, KeyOf keyOf, int most)
{
    std::stable_sort(members.begin(), members.end(),
                     [&keyOf](const Member& a, const Member& b) { return keyOf(a) < keyOf(b); });
    Pool pool = {{}, most};
    ClassKey last = {};
    int classes = 0;
    for (const Member& member : members) {
        ClassKey key = keyOf(member);
        if (pool.parts.empty() || last < key) {
            classes += isSameClass(last, key) ? 0 : 1;
            pool.parts.push_back({key.group, classes, key.weight, 0});
            last = std::move(key);
        }
        ++pool.parts.back().size;
    }
    return {std::move(members), std::move(pool)};
}

template <typename Member>
const Member& memberFor(const Place& place, const Classified<Member>& all)
{
    return all.members[static_cast<std::size_t>(memberFor(place, all.pool))];
}

} // namespace lesson
