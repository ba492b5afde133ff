#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "lesson/paper/seeds.hpp"

namespace lesson
{

// The members of a finite pool, class by class, with the pool that a paper walks through.
template <typename Member>
struct Classified {
    std::vector<Member> members;
    Pool pool;
};

// Where a member belongs: its group, the number of its class in this, and how common it is.
// Draws walk through groups and classes in the order of their numbers.
struct ClassKey {
    int group;
    int ofGroup;
    int weight = 1;
};

// The `most` of a pool whose groups and classes come equally often until nothing is left of them.
constexpr int allTheSame = 1;

// The order that puts members with such keys class by class, and the pool of them in that order.
struct Classes {
    std::vector<std::size_t> order;
    Pool pool;
};
Classes classesOf(const std::vector<ClassKey>& keys, int most);

// Puts members of a class together, and in it those that are equally common; these stay in their
// order. A group, or a class, counts for `most` at most, as Pool tells.
template <typename Member, typename KeyOf>
Classified<Member> classified(const std::vector<Member>& members, KeyOf keyOf, int most)
{
    std::vector<ClassKey> keys;
    keys.reserve(members.size());
    for (const Member& member : members) {
        keys.push_back(keyOf(member));
    }
    Classes classes = classesOf(keys, most);
    Classified<Member> all = {{}, std::move(classes.pool)};
    all.members.reserve(members.size());
    for (const std::size_t i : classes.order) {
        all.members.push_back(members[i]);
    }
    return all;
}

template <typename Member>
const Member& memberFor(const Place& place, const Classified<Member>& all)
{
    return all.members[static_cast<std::size_t>(memberFor(place, all.pool))];
}

} // namespace lesson
