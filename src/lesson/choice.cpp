#include "lesson/choice.hpp"

#include <algorithm>
#include <bitset>
#include <cstdint>
#include <utility>

#include "lesson/draws.hpp"
#include "lesson/marking/typed.hpp"
#include "lesson/tables/kinds.hpp"

namespace lesson
{

namespace
{

constexpr std::string_view mixed = "mixed";
constexpr int levelUnlessNamed = 2;

// All kinds at all levels, in their order; a choice is a subset.
using Subset = std::bitset<static_cast<std::size_t>(kindCount) * levelCount>;

std::size_t placeInSubset(KindAndLevel one)
{
    return static_cast<std::size_t>(one.kind) * levelCount + static_cast<std::size_t>(one.level) -
           1;
}

KindAndLevel atPlaceInSubset(std::size_t place)
{
    return {static_cast<Kind>(place / levelCount), static_cast<int>(place % levelCount) + 1};
}

std::vector<KindAndLevel> kindsOf(const Subset& subset)
{
    std::vector<KindAndLevel> kinds;
    for (std::size_t place = 0; place < subset.size(); ++place) {
        if (subset.test(place)) {
            kinds.push_back(atPlaceInSubset(place));
        }
    }
    return kinds;
}

Subset everyKind()
{
    Subset subset;
    for (const KindRow& row : kinds()) {
        subset.set(placeInSubset({row.kind, levelUnlessNamed}));
    }
    return subset;
}

Choice error(std::string sentence)
{
    return {{}, std::move(sentence)};
}

// 0 where it is none.
int levelNamed(std::string_view text)
{
    return text.size() == 1 && text[0] >= '1' && text[0] < '1' + levelCount ? text[0] - '0' : 0;
}

// A slug with or without a level.
Choice readOne(std::string_view name)
{
    const std::size_t colon = name.find(':');
    const std::string_view slug = name.substr(0, colon);
    if (slug.empty()) {
        return error("Name a kind of exercise.");
    }
    if (slug == mixed) {
        return error("The kind mixed stands alone, without a level.");
    }
    const KindRow* const row = findKind(slug);
    if (row == nullptr) {
        return error("There is no kind of exercise called '" + quotable(slug) + "'.");
    }
    const int level =
        colon == std::string_view::npos ? levelUnlessNamed : levelNamed(name.substr(colon + 1));
    if (level == 0) {
        return error("The level of " + std::string(slug) + " has to be 1, 2 or 3.");
    }
    return {{{row->kind, level}}, {}};
}

std::string slugAndLevel(KindAndLevel one)
{
    return std::string(rowOf(one.kind).slug) + ":" + std::to_string(one.level);
}

// The chosen set in one number, whatever the order in which it was named.
std::uint32_t numberOf(const Choice& choice)
{
    Subset subset;
    for (const KindAndLevel& one : choice.kinds) {
        subset.set(placeInSubset(one));
    }
    return static_cast<std::uint32_t>(subset.to_ulong());
}

// The element that comes to this place when the elements are put in a random order.
KindAndLevel shuffledTo(std::uint32_t place, std::vector<KindAndLevel> kinds, const Seed& seed)
{
    Draws draws(seed);
    for (std::uint32_t i = 0;; ++i) {
        const auto left = static_cast<std::uint32_t>(kinds.size()) - i;
        std::swap(kinds[i], kinds[i + draws.below(left)]);
        if (i == place) {
            return kinds[i];
        }
    }
}

} // namespace

Choice readChoice(std::string_view names)
{
    if (names == mixed) {
        return {kindsOf(everyKind()), {}};
    }
    Subset subset;
    for (std::size_t comma = 0; comma != std::string_view::npos;) {
        comma = names.find(',');
        Choice one = readOne(names.substr(0, comma));
        if (!one.error.empty()) {
            return one;
        }
        const std::size_t place = placeInSubset(one.kinds.front());
        if (subset.test(place)) {
            return error("The kind " + slugAndLevel(one.kinds.front()) + " is there twice.");
        }
        subset.set(place);
        names.remove_prefix(comma == std::string_view::npos ? names.size() : comma + 1);
    }
    return {kindsOf(subset), {}};
}

Place placeOf(const Choice& choice, unsigned paper, unsigned number)
{
    const auto kinds = static_cast<std::uint32_t>(choice.kinds.size());
    const KindAndLevel drawn = kinds == 1
                                   ? choice.kinds.front()
                                   : shuffledTo((number - 1) % kinds, choice.kinds,
                                                {paper, (number - 1) / kinds, numberOf(choice)});
    return {paper, number, drawn.kind, drawn.level};
}

} // namespace lesson
