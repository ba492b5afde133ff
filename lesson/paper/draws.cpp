#include "lesson/paper/draws.hpp"

#include <algorithm>
#include <array>
#include <limits>
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

// The draws of a walk. An exercise takes several walks up, so their generator is one that is seeded
// at once: Knuth's linear congruential one, of whose numbers the lower half is too regular to use.
// It is written here, since libraries differ in how they seed theirs where the modulus is 2^64.
class WalkDraws
{
public:
    explicit WalkDraws(const Seed& seed)
    {
        std::seed_seq sequence(seed.begin(), seed.end());
        std::array<std::uint32_t, 2> words = {};
        sequence.generate(words.begin(), words.end());
        state = std::uint64_t{words[0]} << 32U | words[1];
    }

    // Each of 0 to `bound` - 1 equally likely: the whole part of the product of the bound and a
    // fraction. Those fractions are drawn again that would make some results likelier.
    int below(int bound)
    {
        constexpr std::uint64_t range = std::uint64_t{1} << 32U;
        const auto factor = static_cast<std::uint64_t>(bound);
        for (;;) {
            const std::uint64_t product = next() * factor;
            const std::uint64_t rest = product % range;
            if (rest >= factor || rest >= range % factor) {
                return static_cast<int>(product / range);
            }
        }
    }

private:
    std::uint64_t next()
    {
        state = state * 6364136223846793005U + 1442695040888963407U;
        return state >> 32U;
    }

    std::uint64_t state;
};

// Members that may not stand at a step, and what is in a place of the list that nobody takes.
using Avoided = std::array<int, 3>;
constexpr int nobody = -1;
constexpr Avoided nothing = {nobody, nobody, nobody};

bool isIn(const Avoided& avoided, int member)
{
    return std::find(avoided.begin(), avoided.end(), member) != avoided.end();
}

// What is left of a pool in a round.
class Rest
{
public:
    explicit Rest(const Pool& pool) : most(pool.most)
    {
        for (const PoolPart& part : pool.parts) {
            if (groups.empty() || part.group != lastGroup) {
                groups.push_back({static_cast<int>(classes.size()), 0, 0});
            }
            if (groups.back().count == 0 || part.ofClass != lastClass) {
                classes.push_back({static_cast<int>(parts.size()), 0, 0});
                ++groups.back().count;
            }
            lastGroup = part.group;
            lastClass = part.ofClass;
            parts.push_back({left, part.size, part.weight * part.size});
            left += part.size;
            ++classes.back().count;
            classes.back().weight += parts.back().weight;
            groups.back().weight += parts.back().weight;
        }
        members.resize(static_cast<std::size_t>(left));
        std::iota(members.begin(), members.end(), 0);
    }

    int size() const
    {
        return left;
    }

    // Takes one that is not to be avoided, unless so few are left that it might have to be; the
    // common ones sooner.
    int take(WalkDraws& draws, const Avoided& avoided)
    {
        return take(avoided, [&] { return drawn(draws); });
    }

    // The same, each equally likely.
    int takeAny(WalkDraws& draws, const Avoided& avoided)
    {
        return take(avoided, [&] { return placeOf(draws.below(left)); });
    }

private:
    // A group of classes, a class of parts, or a part of members.
    struct Section {
        int first;
        int count;
        int weight; // of all that is left in it
    };
    using Sections = std::vector<Section>;

    struct Place {
        Section* group;
        Section* ofClass;
        Section* part;
        int* member;
    };

    template <typename Draw>
    int take(const Avoided& avoided, Draw draw)
    {
        Place place = draw();
        while (isIn(avoided, *place.member) && left > static_cast<int>(avoided.size())) {
            place = draw();
        }
        return remove(place);
    }

    // So many members before it are left.
    Place placeOf(int before)
    {
        Section* group = groups.data();
        Section* ofClass = classes.data();
        Section* part = parts.data();
        while (before >= part->count) {
            before -= part->count;
            ++part;
            ofClass += part - parts.data() == ofClass->first + ofClass->count ? 1 : 0;
            group += ofClass - classes.data() == group->first + group->count ? 1 : 0;
        }
        return {group, ofClass, part, members.data() + part->first + before};
    }

    // One of the sections, by what is left in each, at most so much.
    static Section& drawn(Section* sections, int count, int atMost, WalkDraws& draws)
    {
        if (count == 1) {
            return *sections;
        }
        const int sum =
            std::accumulate(sections, sections + count, 0, [atMost](int all, const Section& s) {
                return all + std::min(s.weight, atMost);
            });
        int before = draws.below(sum);
        while (before >= std::min(sections->weight, atMost)) {
            before -= std::min(sections->weight, atMost);
            ++sections;
        }
        return *sections;
    }

    Place drawn(WalkDraws& draws)
    {
        Section& group = drawn(groups.data(), static_cast<int>(groups.size()), most, draws);
        Section& ofClass = drawn(classes.data() + group.first, group.count, most, draws);
        Section& part = drawn(parts.data() + ofClass.first, ofClass.count,
                              std::numeric_limits<int>::max(), draws);
        return {&group, &ofClass, &part, members.data() + part.first + draws.below(part.count)};
    }

    int remove(const Place& place)
    {
        const int weight = place.part->weight / place.part->count;
        place.group->weight -= weight;
        place.ofClass->weight -= weight;
        place.part->weight -= weight;
        --place.part->count;
        --left;
        int* const last = members.data() + place.part->first + place.part->count;
        std::swap(*place.member, *last);
        return *last;
    }

    int most;
    int left = 0;
    int lastGroup = 0;
    int lastClass = 0;
    Sections groups;
    Sections classes;
    Sections parts;
    std::vector<int> members;
};

using Members = std::vector<int>;

// Puts the last members of a round, which are few, into an order in which none stands where it is
// to be avoided. With two to avoid at each step there is one for four of them.
void arrange(Members& members, std::size_t from, const std::vector<Avoided>& avoided)
{
    const Members drawn(members.begin() + static_cast<std::ptrdiff_t>(from), members.end());
    std::vector<std::size_t> order(drawn.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    do {
        bool fits = true;
        for (std::size_t i = 0; i < order.size(); ++i) {
            members[from + i] = drawn[order[i]];
            fits = fits && !isIn(avoided[from + i], members[from + i]);
        }
        if (fits) {
            return;
        }
    } while (std::next_permutation(order.begin(), order.end()));
}

// The walks of one stream through a pool. Papers with an even number walk freely; one with an odd
// number avoids at each step the members that its two neighbours meet there. In a great pool they
// hardly ever meet the same, so that nobody has to walk along with the neighbours.
class Walks
{
public:
    Walks(const Pool& walked, const Seed& ofStream)
        : pool(walked), stream(ofStream), size(Rest(walked).size())
    {
    }

    int memberAt(unsigned paper, unsigned number) const
    {
        const auto members = static_cast<unsigned>(size);
        const std::size_t step = (number - 1) % members;
        return roundOf(paper, (number - 1) / members, step + 1)[step];
    }

private:
    // The first members of a round, as many as `steps` or more.
    Members roundOf(unsigned paper, unsigned round, std::size_t steps) const
    {
        Begun begun = begin(paper, round);
        const auto others = static_cast<std::size_t>(begun.rest.size());
        const std::size_t unarranged = others - std::min(others, std::size_t{4});
        steps = steps <= unarranged ? steps : others + 1;
        const std::vector<Avoided> avoided = avoidedIn(paper, round, steps);
        Members members;
        while (members.size() < std::min(steps, unarranged)) {
            members.push_back(begun.rest.take(begun.draws, avoided[members.size()]));
        }
        if (steps > unarranged) {
            while (members.size() < others) {
                members.push_back(begun.rest.take(begun.draws, nothing));
            }
            arrange(members, unarranged, avoided);
            members.push_back(begun.last);
        }
        return members;
    }

    // A round whose last member, which may be any, is drawn before all others, so that the next
    // round can begin with another one without going through this one.
    struct Begun {
        WalkDraws draws;
        Rest rest; // without the last
        int last;
    };

    Begun begin(unsigned paper, unsigned round) const
    {
        Seed seed = stream;
        seed.push_back(paper);
        seed.push_back(round);
        Begun begun = {WalkDraws(seed), Rest(pool), nobody};
        const Avoided avoided = avoidsOthers(paper) ? Avoided{begin(paper - 1, round).last,
                                                              begin(paper + 1, round).last, nobody}
                                                    : nothing;
        begun.last = begun.rest.takeAny(begun.draws, avoided);
        return begun;
    }

    std::vector<Avoided> avoidedIn(unsigned paper, unsigned round, std::size_t steps) const
    {
        std::vector<Avoided> avoided(steps, nothing);
        if (avoidsOthers(paper)) {
            const Members before = roundOf(paper - 1, round, steps);
            const Members behind = roundOf(paper + 1, round, steps);
            for (std::size_t i = 0; i < steps; ++i) {
                avoided[i] = {before[i], behind[i], nobody};
            }
        }
        if (round > 0) {
            avoided[0].back() = begin(paper, round - 1).last;
        }
        return avoided;
    }

    bool avoidsOthers(unsigned paper) const
    {
        constexpr int little = 5; // nothing would be left to choose from
        constexpr int great = 500;
        return paper % 2 == 1 && size > little && size < great;
    }

    const Pool& pool;
    const Seed& stream;
    int size;
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

int memberOnWalk(const Pool& pool, const Seed& stream, unsigned paper, unsigned number)
{
    return Walks(pool, stream).memberAt(paper, number);
}

} // namespace lesson
