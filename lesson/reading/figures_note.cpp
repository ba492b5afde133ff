#include "lesson/reading/figures_note.hpp"

#include <algorithm>
#include <cstddef>

#include "lesson/text/scan.hpp"

namespace lesson
{

namespace
{

constexpr std::string_view words[] = {
    "s.f",
    "sf",
    "significant figures",
    "sig figs",
    "sig. figs",
    "sig fig",
    "sig. fig",
    "sig.figs",
    "sigfigs",
    "sigfig",
    "sig figures",
    "sig. figures",
    "figures",
    "d.p",
    "dp",
    "decimal places",
};
constexpr std::string_view counts[] = {"one", "two", "three", "four", "five", "six"};
constexpr std::string_view leads[] = {"to", "correct", "rounded"};

// Without the blanks and letters of the ending; the whole text where it has another one.
std::string_view withoutWord(std::string_view text, std::string_view ending)
{
    return lowerCase(text.substr(text.size() - std::min(text.size(), ending.size()))) == ending
               ? withoutAtTheEnd(text.substr(0, text.size() - ending.size()), " ")
               : text;
}

// Without the count of figures at its end, a digit or a word; the whole text where there is none.
std::string_view withoutCount(std::string_view text)
{
    if (!text.empty() && isDigit(text.back())) {
        return text.substr(0, text.size() - 1);
    }
    for (const std::string_view count : counts) {
        const std::string_view left = withoutWord(text, count);
        if (left.size() < text.size()) {
            return left;
        }
    }
    return text;
}

} // namespace

std::string_view withoutNote(std::string_view text)
{
    const std::string_view plain = withoutAtTheEnd(text, " .,;!?)]");
    for (const std::string_view word : words) {
        const std::string_view left = withoutWord(plain, word);
        std::string_view note = withoutCount(left);
        if (left.size() < plain.size() && note.size() < left.size()) {
            note = withoutAtTheEnd(note, " ");
            for (const std::string_view lead : leads) {
                note = withoutWord(note, lead);
            }
            return withoutAtTheEnd(note, " ,;([");
        }
    }
    return text;
}

namespace
{

std::string_view withoutNoteApart(std::string_view text)
{
    const std::string_view left = withoutNote(text);
    const std::string_view note = text.substr(left.size());
    const bool isApart = !note.empty() && (isOneOf(note[0], " ([") || startsWith(note, ", "));
    return isApart ? left : text;
}

} // namespace

std::string withoutNotes(std::string_view text)
{
    const std::size_t close = text.find(')');
    const bool hasBrackets = text.find('(') < close && close != std::string_view::npos;
    const std::size_t length = hasBrackets ? close + 1 : text.size();
    const std::string_view left = withoutNoteApart(text.substr(0, length));
    const bool isNoted = hasBrackets && left.size() < length;
    return isNoted ? std::string(left).append(text.substr(length))
                   : std::string(withoutNoteApart(text));
}

} // namespace lesson
