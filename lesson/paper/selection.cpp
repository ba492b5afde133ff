#include "lesson/paper/selection.hpp"

#include <algorithm>
#include <bitset>
#include <cstdint>
#include <optional>
#include <tuple>
#include <utility>

#include "lesson/kinds/list.hpp"
#include "lesson/paper/draws.hpp"
#include "lesson/reading/typed.hpp"

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

// A slug with or without a level; what to tell where it is `mixed`.
Choice readOne(std::string_view name, std::string_view errorOfMixed)
{
    const std::size_t colon = name.find(':');
    const std::string_view slug = name.substr(0, colon);
    if (slug.empty()) {
        return error("Name a kind of exercise.");
    }
    if (slug == mixed) {
        return error(std::string(errorOfMixed));
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

// Adds a single kind to those before it; gives the error, if there is one.
std::string add(Subset& subset, const Choice& one)
{
    if (!one.error.empty()) {
        return one.error;
    }
    const std::size_t place = placeInSubset(one.kinds.front());
    if (subset.test(place)) {
        return "The kind " + slugAndLevel(one.kinds.front()) + " is there twice.";
    }
    subset.set(place);
    return {};
}

// Hands the parts of a list to `read` up to the first with an error, which it gives.
template <typename Read>
std::string readParts(std::string_view list, const Read& read)
{
    for (std::size_t comma = 0; comma != std::string_view::npos;) {
        comma = list.find(',');
        std::string problem = read(list.substr(0, comma));
        if (!problem.empty()) {
            return problem;
        }
        list.remove_prefix(comma == std::string_view::npos ? list.size() : comma + 1);
    }
    return {};
}

// A whole number, as one more than `most` where it is greater; none where it is no number.
std::optional<unsigned> wholeIn(std::string_view text, unsigned most)
{
    unsigned number = 0;
    for (const char digit : text) {
        if (digit < '0' || digit > '9') {
            return std::nullopt;
        }
        number = std::min(number * 10 + static_cast<unsigned>(digit - '0'), most + 1);
    }
    return text.empty() ? std::nullopt : std::optional(number);
}

// "4*titration:2@5" in its parts; "1" where there is no count or no number.
struct EntryText {
    std::string_view count;
    std::string_view kind;
    std::string_view first;
};

EntryText partsOf(std::string_view entry)
{
    const std::size_t star = entry.find('*');
    const bool hasCount = star != std::string_view::npos;
    const std::string_view rest = entry.substr(hasCount ? star + 1 : 0);
    const std::size_t at = rest.find('@');
    const bool hasNumber = at != std::string_view::npos;
    return {hasCount ? entry.substr(0, star) : "1", rest.substr(0, at),
            hasNumber ? rest.substr(at + 1) : "1"};
}

std::string errorInFirst(std::string_view text, std::optional<unsigned> first, unsigned count,
                         KindAndLevel kind)
{
    if (!first || *first == 0 || *first > greatestNumber) {
        return "The number behind @ has to be from 1 to " + std::to_string(greatestNumber) +
               ", not '" + quotable(text) + "'.";
    }
    return count > greatestNumber + 1 - *first
               ? "The exercises of " + slugAndLevel(kind) + " go beyond number " +
                     std::to_string(greatestNumber) + "."
               : std::string();
}

// Adds "4*titration" to a sheet; gives the error, if there is one.
std::string addEntry(Sheet& sheet, std::string_view entry)
{
    const EntryText parts = partsOf(entry);
    const std::optional<unsigned> count = wholeIn(parts.count, greatestSheet);
    if (!count) {
        return "The number of exercises has to be a whole number, not '" + quotable(parts.count) +
               "'.";
    }
    const Choice one = readOne(parts.kind, "A sheet names each of its kinds, and mixed is none.");
    if (!one.error.empty()) {
        return one.error;
    }
    const std::optional<unsigned> first = wholeIn(parts.first, greatestNumber);
    std::string problem = errorInFirst(parts.first, first, *count, one.kinds.front());
    if (problem.empty()) {
        sheet.entries.push_back({one.kinds.front(), *count, *first});
    }
    return problem;
}

std::string errorInTotal(const std::vector<SheetEntry>& entries)
{
    unsigned total = 0;
    for (const SheetEntry& entry : entries) {
        total = std::min(total + entry.count, greatestSheet + 1);
    }
    if (total == 0) {
        return "A sheet has at least one exercise.";
    }
    return total > greatestSheet
               ? "A sheet has at most " + std::to_string(greatestSheet) + " exercises."
               : std::string();
}

// Of a sheet that is not too long.
std::string errorInRepeated(const Sheet& sheet)
{
    const auto inOrder = [](const Place& place) {
        return std::tuple(place.kind, place.level, place.number);
    };
    std::vector<Place> places = placesOf(sheet, 1);
    std::sort(places.begin(), places.end(), [inOrder](const Place& one, const Place& other) {
        return inOrder(one) < inOrder(other);
    });
    const auto twice = std::adjacent_find(
        places.begin(), places.end(),
        [inOrder](const Place& one, const Place& other) { return inOrder(one) == inOrder(other); });
    return twice == places.end()
               ? std::string()
               : "Exercise " + std::to_string(twice->number) + " of " +
                     slugAndLevel({twice->kind, twice->level}) + " is there twice.";
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
    std::string problem = readParts(names, [&subset](std::string_view name) {
        return add(subset, readOne(name, "The kind mixed stands alone, without a level."));
    });
    return problem.empty() ? Choice{kindsOf(subset), {}} : error(std::move(problem));
}

Sheet readSheet(std::string_view list)
{
    Sheet sheet;
    if (!list.empty()) {
        sheet.error =
            readParts(list, [&sheet](std::string_view entry) { return addEntry(sheet, entry); });
    }
    if (sheet.error.empty()) {
        sheet.error = errorInTotal(sheet.entries);
    }
    if (sheet.error.empty()) {
        sheet.error = errorInRepeated(sheet);
    }
    return sheet;
}

std::vector<Place> placesOf(const Sheet& sheet, unsigned paper)
{
    std::vector<Place> places;
    for (const SheetEntry& entry : sheet.entries) {
        for (unsigned at = 0; at < entry.count; ++at) {
            places.push_back({paper, entry.first + at, entry.kind.kind, entry.kind.level});
        }
    }
    return places;
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
