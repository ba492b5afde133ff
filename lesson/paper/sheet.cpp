#include "lesson/paper/sheet.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <tuple>

#include "lesson/paper/list.hpp"
#include "lesson/text/quotable.hpp"
#include "lesson/words/say.hpp"

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

Spans errorInFirst(std::string_view text, std::optional<unsigned> first, unsigned count,
                   KindAndLevel kind)
{
    if (!first || *first == 0 || *first > greatestNumber) {
        return line(say<Sentence::errorFirstNumber>(number(std::to_string(greatestNumber)),
                                                    quotable(text)));
    }
    return count > greatestNumber + 1 - *first
               ? line(say<Sentence::errorLastNumber>(nameOf(kind),
                                                     number(std::to_string(greatestNumber))))
               : Spans();
}

// Adds a description, which stands behind "[".
Spans addDescribed(Sheet& sheet, std::string_view entry)
{
    if (entry.back() != ']') {
        return line(say<Sentence::errorNoClosingBracket>(quotable(entry)));
    }
    entry.remove_suffix(1);
    const Reference described = {{}, std::string(entry)};
    sheet.entries.push_back({{}, 1, 1, described.description});
    return entry.empty() ? line(say<Sentence::errorEmptyBrackets>()) : exerciseOf(described).error;
}

// Adds "4*titration" to a sheet; gives the error, if there is one.
Spans addEntry(Sheet& sheet, std::string_view entry)
{
    if (entry.size() > 1 && entry.front() == '[') {
        return addDescribed(sheet, entry.substr(1));
    }
    const EntryText parts = partsOf(entry);
    const std::optional<unsigned> count = wholeIn(parts.count, greatestSheet);
    if (!count) {
        return line(say<Sentence::errorCount>(quotable(parts.count)));
    }
    const NamedKind one = readKind(parts.kind, Sentence::errorMixedOnSheet);
    if (!one.error.empty()) {
        return one.error;
    }
    const std::optional<unsigned> first = wholeIn(parts.first, greatestNumber);
    Spans problem = errorInFirst(parts.first, first, *count, one.kind);
    if (problem.empty()) {
        sheet.entries.push_back({one.kind, *count, *first});
    }
    return problem;
}

Spans errorInTotal(const std::vector<SheetEntry>& entries)
{
    unsigned total = 0;
    for (const SheetEntry& entry : entries) {
        total = std::min(total + entry.count, greatestSheet + 1);
    }
    if (total == 0) {
        return line(say<Sentence::errorEmptySheet>());
    }
    return total > greatestSheet
               ? line(say<Sentence::errorLongSheet>(number(std::to_string(greatestSheet))))
               : Spans();
}

// Of a sheet that is not too long: in its drawn exercises.
Spans errorInDrawn(const Sheet& sheet)
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
            return line(say<Sentence::errorExerciseTwice>(number(std::to_string(place.number)),
                                                          nameOf({place.kind, place.level})));
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
        sheet.error = sheet.paper == 0 ? errorOfPaper() : Spans();
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
