#include "lesson/kinds/shared/classified.hpp"

#include <algorithm>
#include <numeric>
#include <tuple>

#include "lesson/numbers/sort_few.hpp"

namespace lesson
{

namespace
{

bool isSameClass(const ClassKey& a, const ClassKey& b)
{
    return a.group == b.group && a.ofGroup == b.ofGroup;
}

bool operator<(const ClassKey& a, const ClassKey& b)
{
    return std::tie(a.group, a.ofGroup, a.weight) < std::tie(b.group, b.ofGroup, b.weight);
}

} // namespace

Classes classesOf(const std::vector<ClassKey>& keys, int most)
{
    Classes all = {std::vector<std::size_t>(keys.size()), {{}, most}};
    std::iota(all.order.begin(), all.order.end(), std::size_t{0});
    sortFew(all.order, [&keys](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
    std::vector<PoolPart>& parts = all.pool.parts;
    const ClassKey* last = nullptr;
    for (const std::size_t i : all.order) {
        const ClassKey& key = keys[i];
        if (last == nullptr || *last < key) {
            const int before = last == nullptr ? 0 : parts.back().ofClass;
            const bool isNewClass = last == nullptr || !isSameClass(*last, key);
            parts.push_back({key.group, before + (isNewClass ? 1 : 0), key.weight, 0});
            last = &key;
        }
        ++parts.back().size;
    }
    return all;
}

} // namespace lesson
