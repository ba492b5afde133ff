#include "lesson/paper/sheet.hpp"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <tuple>

#include "lesson/paper/list.hpp"
#include "lesson/text/quotable.hpp"

namespace lesson
{

namespace
{

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
               ? "The exercises of " + nameOf(kind) + " go beyond number " +
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
    const NamedKind one =
        readKind(parts.kind, "A sheet names each of its kinds, and mixed is none.");
    if (!one.error.empty()) {
        return one.error;
    }
    const std::optional<unsigned> first = wholeIn(parts.first, greatestNumber);
    std::string problem = errorInFirst(parts.first, first, *count, one.kind);
    if (problem.empty()) {
        sheet.entries.push_back({one.kind, *count, *first});
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
        return std::tuple(place.kind->seed, place.level, place.number);
    };
    std::vector<Place> places = placesOf(sheet, 1);
    std::sort(places.begin(), places.end(), [inOrder](const Place& one, const Place& other) {
        return inOrder(one) < inOrder(other);
    });
    const auto twice = std::adjacent_find(
        places.begin(), places.end(),
        [inOrder](const Place& one, const Place& other) { return inOrder(one) == inOrder(other); });
    return twice == places.end() ? std::string()
                                 : "Exercise " + std::to_string(twice->number) + " of " +
                                       nameOf({twice->kind, twice->level}) + " is there twice.";
}

} // namespace

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

} // namespace lesson
