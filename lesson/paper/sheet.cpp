#include "lesson/paper/sheet.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <tuple>

#include "lesson/paper/list.hpp"
#include "lesson/text/quotable.hpp"

namespace lesson
{

namespace
{

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

// Adds a description, which stands behind "[".
std::string addDescribed(Sheet& sheet, std::string_view entry)
{
    if (entry.back() != ']') {
        return "There is no ] behind '[" + quotable(entry) + "'.";
    }
    entry.remove_suffix(1);
    const Reference described = {{}, std::string(entry)};
    sheet.entries.push_back({{}, 1, 1, described.description});
    return entry.empty() ? "There is nothing between [ and ]." : exerciseOf(described).error;
}

// Adds "4*titration" to a sheet; gives the error, if there is one.
std::string addEntry(Sheet& sheet, std::string_view entry)
{
    if (entry.size() > 1 && entry.front() == '[') {
        return addDescribed(sheet, entry.substr(1));
    }
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

// Of a sheet that is not too long: in its drawn exercises.
std::string errorInDrawn(const Sheet& sheet)
{
    std::set<std::tuple<std::uint32_t, int, unsigned>> drawn;
    for (const auto& [place, description] : referencesOf(sheet)) {
        if (!description.empty()) {
            continue;
        }
        if (sheet.paper == 0) {
            return errorOfPaper();
        }
        if (!drawn.insert({place.kind->seed, place.level, place.number}).second) {
            return "Exercise " + std::to_string(place.number) + " of " +
                   nameOf({place.kind, place.level}) + " is there twice.";
        }
    }
    return {};
}

} // namespace

Sheet readSheet(std::string_view text)
{
    Sheet sheet;
    if (text.find('/') < text.find('[')) {
        sheet.paper = takePaper(text);
        sheet.error = sheet.paper == 0 ? errorOfPaper() : "";
    }
    if (sheet.error.empty() && !text.empty()) {
        sheet.error =
            readParts(text, [&sheet](std::string_view entry) { return addEntry(sheet, entry); });
    }
    if (sheet.error.empty()) {
        sheet.error = errorInTotal(sheet.entries);
    }
    if (sheet.error.empty()) {
        sheet.error = errorInDrawn(sheet);
    }
    return sheet;
}

std::vector<Reference> referencesOf(const Sheet& sheet)
{
    std::vector<Reference> references;
    for (const SheetEntry& entry : sheet.entries) {
        for (unsigned at = 0; at < entry.count; ++at) {
            references.push_back(
                {{sheet.paper, entry.first + at, entry.kind.kind, entry.kind.level},
                 entry.description});
        }
    }
    return references;
}

} // namespace lesson
