#include "lesson/marking/typed.hpp"

#include <algorithm>
#include <cstddef>

#include "lesson/utf8.hpp"

namespace lesson
{

namespace
{

struct Spelling {
    std::string_view typed;
    std::string_view plain;
};

// clang-format off
constexpr Spelling spellings[] = {
    // Blanks: tab, line ends, no-break, the typographer's widths, ideographic, byte-order mark.
    {"\t", " "}, {"\n", " "}, {"\v", " "}, {"\f", " "}, {"\r", " "},
    {"\u00A0", " "}, {"\u2000", " "}, {"\u2001", " "}, {"\u2002", " "}, {"\u2003", " "},
    {"\u2004", " "}, {"\u2005", " "}, {"\u2006", " "}, {"\u2007", " "}, {"\u2008", " "},
    {"\u2009", " "}, {"\u200A", " "}, {"\u202F", " "}, {"\u205F", " "}, {"\u3000", " "},
    // No width at all.
    {"\u200B", ""}, {"\u200C", ""}, {"\u200D", ""}, {"\u2060", ""}, {"\uFEFF", ""},
    {"\uFE0E", ""}, {"\uFE0F", ""},
    // Minus signs and dashes.
    {"\u2010", "-"}, {"\u2011", "-"}, {"\u2012", "-"}, {"\u2013", "-"}, {"\u2014", "-"},
    {"\u2015", "-"}, {"\u2212", "-"}, {"\uFE63", "-"}, {"\uFF0D", "-"}, {"\u02D7", "-"},
    {"\uFF0B", "+"},
    // Subscripts.
    {"\u2080", "0"}, {"\u2081", "1"}, {"\u2082", "2"}, {"\u2083", "3"}, {"\u2084", "4"},
    {"\u2085", "5"}, {"\u2086", "6"}, {"\u2087", "7"}, {"\u2088", "8"}, {"\u2089", "9"},
    {"\u208D", "("}, {"\u208E", ")"},
    // Arrows.
    {"\u2192", "->"}, {"\u27F6", "->"}, {"\u21D2", "->"}, {"\u27F9", "->"}, {"\u279D", "->"},
    {"\u279C", "->"}, {"\u2794", "->"}, {"\u21C0", "->"}, {"\u21FE", "->"},
    {"\u27A1", "->"}, {"\u2B95", "->"}, {"\u279E", "->"}, {"\u2799", "->"},
    {"\u21CC", "<->"}, {"\u21CB", "<->"}, {"\u21C4", "<->"}, {"\u2194", "<->"}, {"\u21D4", "<->"},
    {"\u21C6", "<->"}, {"\u27F7", "<->"},
    {"\u2190", "<-"}, {"\u27F5", "<-"}, {"\u21D0", "<-"}, {"\uFF1D", "="},
    // Multiplication signs, and dots above the line.
    {"\u00D7", "×"}, {"\u2715", "×"}, {"\u2A2F", "×"}, {"\u2217", "*"},
    {"\u00B7", "·"}, {"\u2022", "·"}, {"\u2219", "·"}, {"\u22C5", "·"}, {"\u2027", "·"},
    // Quotation marks and apostrophes.
    {"\u2018", "'"}, {"\u2019", "'"}, {"\u201C", "\""}, {"\u201D", "\""}, {"\u201E", "\""},
    // Fractions as one character: a blank keeps them apart from a number in front.
    {"\u00BD", " 1/2"}, {"\u2153", " 1/3"}, {"\u2154", " 2/3"}, {"\u00BC", " 1/4"},
    {"\u00BE", " 3/4"}, {"\u2159", " 1/6"}, {"\u2044", "/"}, {"\u2215", "/"},
};

constexpr Spelling superscripts[] = {
    {"\u2070", "0"}, {"\u00B9", "1"}, {"\u00B2", "2"}, {"\u00B3", "3"}, {"\u2074", "4"},
    {"\u2075", "5"}, {"\u2076", "6"}, {"\u2077", "7"}, {"\u2078", "8"}, {"\u2079", "9"},
    {"\u207A", "+"}, {"\u207B", "-"},
};
// clang-format on

bool isOrdinary(char character)
{
    return character >= ' ' && character <= '~';
}

// Most of what is typed is in none of the tables, and is not looked for in them.
template <std::size_t N>
const Spelling* spellingAt(const Spelling (&table)[N], std::string_view text)
{
    if (isOrdinary(text.front())) {
        return nullptr;
    }
    const auto* const found =
        std::find_if(std::begin(table), std::end(table), [text](const Spelling& spelling) {
            return text.substr(0, spelling.typed.size()) == spelling.typed;
        });
    return found == std::end(table) ? nullptr : found;
}

std::string_view withoutBlanksAtTheEnds(std::string_view text)
{
    while (!text.empty() && text.front() == ' ') {
        text.remove_prefix(1);
    }
    while (!text.empty() && text.back() == ' ') {
        text.remove_suffix(1);
    }
    return text;
}

// How many characters at the front have no other spelling: of ASCII, all that can be printed.
std::size_t ordinaryLength(std::string_view text)
{
    const auto isOrdinary = [](char c) { return c >= ' ' && c <= '~'; };
    return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), isOrdinary) -
                                    text.begin());
}

} // namespace

std::string plainTyped(std::string_view typed)
{
    std::string plain;
    bool inSuperscript = false;
    while (!typed.empty()) {
        const std::size_t ordinary = ordinaryLength(typed);
        if (ordinary > 0) {
            plain += typed.substr(0, ordinary);
            typed.remove_prefix(ordinary);
            inSuperscript = false;
            continue;
        }
        const Spelling* const superscript = spellingAt(superscripts, typed);
        if (superscript != nullptr && !inSuperscript && (plain.empty() || plain.back() != '^')) {
            plain += '^';
        }
        inSuperscript = superscript != nullptr;
        const Spelling* const known = inSuperscript ? superscript : spellingAt(spellings, typed);
        plain += known == nullptr ? typed.substr(0, 1) : known->plain;
        typed.remove_prefix(known == nullptr ? 1 : known->typed.size());
    }
    return std::string(withoutBlanksAtTheEnds(plain));
}

std::string quotable(std::string_view typed)
{
    constexpr int most = 40;
    std::string quoted;
    for (int characters = 0; !typed.empty(); ++characters) {
        if (characters == most) {
            return quoted + "…";
        }
        const std::size_t length = characterLength(typed);
        const auto first = static_cast<unsigned char>(typed.front());
        const bool isControl = first < 0x20U || first == 0x7FU;
        quoted += length == 0 || isControl ? "\uFFFD" : typed.substr(0, length);
        typed.remove_prefix(length == 0 ? 1 : length);
    }
    return quoted;
}

std::string lowerCase(std::string_view text)
{
    std::string lower(text);
    for (char& letter : lower) {
        if (letter >= 'A' && letter <= 'Z') {
            letter = static_cast<char>(letter - 'A' + 'a');
        }
    }
    return lower;
}

} // namespace lesson
