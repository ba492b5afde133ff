#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
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

// Where a member belongs: its group, and the name of its class, which is of no other group.
using ClassKey = std::pair<int, std::string>;

// Puts members of a class together; within a class they stay in their order.
template <typename Member, typename KeyOf>
Classified<Member> classified(std::vector<Member> members, KeyOf keyOf)
{
    std::stable_sort(members.begin(), members.end(),
                     [&keyOf](const Member& a, const Member& b) { return keyOf(a) < keyOf(b); });
    Pool pool;
    for (std::size_t i = 0; i < members.size(); ++i) {
        if (i == 0 || keyOf(members[i]) != keyOf(members[i - 1])) {
            pool.push_back({keyOf(members[i]).first, 0});
        }
        ++pool.back().size;
    }
    return {std::move(members), std::move(pool)};
}

template <typename Member>
const Member& memberFor(const Place& place, const Classified<Member>& all)
{
    return all.members[static_cast<std::size_t>(memberFor(place, all.pool))];
}

} // namespace lesson
