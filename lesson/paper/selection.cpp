#include "lesson/paper/selection.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <tuple>
#include <utility>

#include "lesson/paper/draws.hpp"
#include "lesson/paper/list.hpp"
#include "lesson/text/quotable.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

constexpr std::string_view mixed = "mixed";
constexpr std::uint32_t seedsOfMixed = 8; // 0 to 7
constexpr int levelUnlessNamed = 2;

bool isBefore(KindAndLevel a, KindAndLevel b)
{
    return std::tie(a.kind->seed, a.level) < std::tie(b.kind->seed, b.level);
}

// 0 where it is none.
int levelNamed(std::string_view text)
{
    return text.size() == 1 && text[0] >= '1' && text[0] < '1' + levelCount ? text[0] - '0' : 0;
}

NamedKind error(const Span& sentence)
{
    return {{}, line(sentence)};
}

// Puts a kind in its place among those before it, and tells whether it is not there yet.
bool insert(std::vector<KindAndLevel>& kinds, KindAndLevel one)
{
    const auto place = std::lower_bound(kinds.begin(), kinds.end(), one, isBefore);
    const bool isNew = place == kinds.end() || isBefore(one, *place);
    if (isNew) {
        kinds.insert(place, one);
    }
    return isNew;
}

Selection mixedOf(const KindList& kinds)
{
    Selection selection;
    for (const Kind* const kind : kinds) {
        if (kind->seed < seedsOfMixed) {
            insert(selection.kinds, {kind, levelUnlessNamed});
        }
    }
    return selection;
}

// Gives the error, if there is one.
Spans add(std::vector<KindAndLevel>& kinds, const NamedKind& named)
{
    return !named.error.empty()        ? named.error
           : insert(kinds, named.kind) ? Spans()
                                       : line(say<Sentence::errorKindTwice>(nameOf(named.kind)));
}

// The set of the chosen kinds, whatever the order in which they were named: a bit for each kind and
// level, in as many words as it takes.
Seed setOf(const std::vector<KindAndLevel>& kinds)
{
    constexpr std::size_t bitsOfWord = 32;
    Seed words;
    for (const KindAndLevel& one : kinds) {
        const std::size_t bit =
            std::size_t{one.kind->seed} * levelCount + static_cast<std::size_t>(one.level) - 1;
        words.resize(std::max(words.size(), bit / bitsOfWord + 1));
        words[bit / bitsOfWord] |= std::uint32_t{1} << (bit % bitsOfWord);
    }
    return words;
}

Seed seedOfBlock(unsigned paper, unsigned block, const std::vector<KindAndLevel>& kinds)
{
    Seed seed = {paper, block};
    const Seed set = setOf(kinds);
    seed.insert(seed.end(), set.begin(), set.end());
    return seed;
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

std::string nameOf(KindAndLevel one)
{
    return std::string(one.kind->slug) + ":" + std::to_string(one.level);
}

NamedKind readKind(std::string_view name, Sentence errorOfMixed, const KindList& kinds)
{
    const std::size_t colon = name.find(':');
    const std::string_view slug = name.substr(0, colon);
    if (slug.empty()) {
        return error(say<Sentence::errorNoKind>());
    }
    if (slug == mixed) {
        return error(say(errorOfMixed));
    }
    const Kind* const kind = findKind(slug, kinds);
    if (kind == nullptr) {
        return error(say<Sentence::errorUnknownKind>(quotable(slug)));
    }
    const int level =
        colon == std::string_view::npos ? levelUnlessNamed : levelNamed(name.substr(colon + 1));
    if (level == 0) {
        return error(say<Sentence::errorLevelOfKind>(std::string(slug)));
    }
    return {{kind, level}, {}};
}

Selection readSelection(std::string_view names, const KindList& kinds)
{
    if (names == mixed) {
        return mixedOf(kinds);
    }
    Selection selection;
    selection.error = readParts(names, [&](std::string_view name) {
        return add(selection.kinds, readKind(name, Sentence::errorMixedWithOthers, kinds));
    });
    if (!selection.error.empty()) {
        selection.kinds.clear();
    }
    return selection;
}

Place placeOf(const Selection& selection, unsigned paper, unsigned number)
{
    const auto kinds = static_cast<std::uint32_t>(selection.kinds.size());
    const KindAndLevel drawn =
        kinds == 1 ? selection.kinds.front()
                   : shuffledTo((number - 1) % kinds, selection.kinds,
                                seedOfBlock(paper, (number - 1) / kinds, selection.kinds));
    return {paper, number, drawn.kind, drawn.level};
}

} // namespace lesson
