#include "lesson/reading/typed.hpp"

#include <algorithm>
#include <cstddef>

#include "lesson/reading/markup.hpp"
#include "lesson/text/scan.hpp"

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
    // Blanks: tab, line ends, no-break, the typographer's widths, ideographic.
    {"\t", " "}, {"\n", " "}, {"\v", " "}, {"\f", " "}, {"\r", " "}, {"\u0085", " "},
    {"\u00A0", " "}, {"\u1680", " "}, {"\u2000", " "}, {"\u2001", " "}, {"\u2002", " "},
    {"\u2003", " "}, {"\u2004", " "}, {"\u2005", " "}, {"\u2006", " "}, {"\u2007", " "},
    {"\u2008", " "}, {"\u2009", " "}, {"\u200A", " "}, {"\u2028", " "}, {"\u2029", " "},
    {"\u202F", " "}, {"\u205F", " "}, {"\u3000", " "},
    // Nothing to see: soft hyphen, joiners, marks of direction, byte-order mark, variants.
    {"\u00AD", ""}, {"\u200B", ""}, {"\u200C", ""}, {"\u200D", ""}, {"\u200E", ""},
    {"\u200F", ""}, {"\u2060", ""}, {"\u2061", ""}, {"\u2062", ""}, {"\u2063", ""},
    {"\u2064", ""}, {"\uFEFF", ""}, {"\uFE0E", ""}, {"\uFE0F", ""},
    // Minus signs and dashes, and plus signs.
    {"\u2010", "-"}, {"\u2011", "-"}, {"\u2012", "-"}, {"\u2013", "-"}, {"\u2014", "-"},
    {"\u2015", "-"}, {"\u2043", "-"}, {"\u2212", "-"}, {"\u2796", "-"}, {"\uFE58", "-"},
    {"\uFE63", "-"}, {"\u02D7", "-"},
    {"\u2795", "+"}, {"\uFE62", "+"},
    // Arrows.
    {"\u2192", "->"}, {"\u27F6", "->"}, {"\u21D2", "->"}, {"\u27F9", "->"}, {"\u279D", "->"},
    {"\u279C", "->"}, {"\u2794", "->"}, {"\u21C0", "->"}, {"\u21FE", "->"}, {"\u21C1", "->"},
    {"\u27A1", "->"}, {"\u2B95", "->"}, {"\u279E", "->"}, {"\u2799", "->"}, {"\u279B", "->"},
    {"\u279F", "->"}, {"\u27A0", "->"}, {"\u27A4", "->"}, {"\u27A8", "->"}, {"\u21A6", "->"},
    {"\u21E2", "->"}, {"\u21E8", "->"}, {"\u21FC", "->"}, {"\u27FE", "->"}, {"\u2907", "->"},
    {"\u2B62", "->"}, {"\U0001F812", "->"}, {"\U0001F816", "->"}, {"\U0001F852", "->"},
    {"\U0001F862", "->"}, {"\U0001F872", "->"}, {"\u21AA", "->"},
    {"\u25B6", "->"}, {"\u25BA", "->"}, {"\u203A", ">"},
    // What a word processor makes of "-->", "==>" and "<=>".
    {"\uF0E0", "->"}, {"\uF0E8", "->"}, {"\uF0F3", "<->"},
    {"\u21CC", "<->"}, {"\u21CB", "<->"}, {"\u21C4", "<->"}, {"\u2194", "<->"}, {"\u21D4", "<->"},
    {"\u21C6", "<->"}, {"\u27F7", "<->"}, {"\u27FA", "<->"}, {"\u21FF", "<->"}, {"\u2B0C", "<->"},
    {"\u2190", "<-"}, {"\u27F5", "<-"}, {"\u21D0", "<-"}, {"\u27F8", "<-"}, {"\u2B05", "<-"},
    {"\u2B60", "<-"},
    // Multiplication signs, and dots above the line.
    {"\u00D7", "×"}, {"\u2715", "×"}, {"\u2A2F", "×"}, {"\u2217", "*"},
    {"\u00B7", "·"}, {"\u2022", "·"}, {"\u2219", "·"}, {"\u22C5", "·"}, {"\u2027", "·"},
    {"\u02D9", "·"},
    // Quotation marks and apostrophes, and the accents and primes that are typed for them.
    {"\u2018", "'"}, {"\u2019", "'"}, {"\u201A", "'"}, {"\u00B4", "'"}, {"\u02BC", "'"},
    {"\u2032", "'"},
    {"\u201C", "\""}, {"\u201D", "\""}, {"\u201E", "\""}, {"\u00AB", "\""}, {"\u00BB", "\""},
    // The Arabic point, the sign between thousands, and the comma; the Chinese full stop.
    {"\u066B", "."}, {"\u066C", " "}, {"\u060C", ","}, {"\u3002", "."},
    // Roman numerals and the litre as one character.
    {"\u2160", "I"}, {"\u2161", "II"}, {"\u2162", "III"}, {"\u2166", "VII"}, {"\u2113", "l"},
    // Fractions as one character: a blank keeps them apart from a number in front.
    {"\u00BD", " 1/2"}, {"\u2153", " 1/3"}, {"\u2154", " 2/3"}, {"\u00BC", " 1/4"},
    {"\u00BE", " 3/4"}, {"\u2159", " 1/6"}, {"\u2044", "/"}, {"\u2215", "/"},
};

constexpr Spelling subscripts[] = {
    {"\u2080", "0"}, {"\u2081", "1"}, {"\u2082", "2"}, {"\u2083", "3"}, {"\u2084", "4"},
    {"\u2085", "5"}, {"\u2086", "6"}, {"\u2087", "7"}, {"\u2088", "8"}, {"\u2089", "9"},
    {"\u208A", "+"}, {"\u208B", "-"}, {"\u208D", "("}, {"\u208E", ")"},
};

// The digits of other scripts stand in a row from their 0, and within one last byte: Arabic, Persian,
// Devanagari, Bengali, Thai.
constexpr std::string_view zeros[] = {"\u0660", "\u06F0", "\u0966", "\u09E6", "\u0E50"};

constexpr Spelling superscripts[] = {
    {"\u2070", "0"}, {"\u00B9", "1"}, {"\u00B2", "2"}, {"\u00B3", "3"}, {"\u2074", "4"},
    {"\u2075", "5"}, {"\u2076", "6"}, {"\u2077", "7"}, {"\u2078", "8"}, {"\u2079", "9"},
    {"\u207A", "+"}, {"\u207B", "-"}, {"\u207D", "("}, {"\u207E", ")"},
};
// clang-format on

// What has no other spelling: of ASCII, all that can be printed.
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
        std::find_if(std::begin(table), std::end(table),
                     [text](const Spelling& spelling) { return startsWith(text, spelling.typed); });
    return found == std::end(table) ? nullptr : found;
}

// Letters, digits and signs as wide as Chinese characters: they stand in the order of ASCII, from
// "!" at U+FF01 to "~" at U+FF5E, whose last bytes go from 0x80 to 0xBF and then begin anew.
constexpr std::size_t wideLength = 3;
std::string asciiOfWide(std::string_view text)
{
    if (text.size() < wideLength || text[0] != '\xEF' || (text[1] != '\xBC' && text[1] != '\xBD')) {
        return "";
    }
    const int last = static_cast<unsigned char>(text[2]);
    const int code = (text[1] == '\xBC' ? 0x20 : 0x60) + last - 0x80;
    const bool isWide = last >= 0x80 && last <= 0xBF && code > ' ' && code <= '~';
    return isWide ? std::string(1, static_cast<char>(code)) : "";
}

// The digit of another script at the front of a text: its length, 0 where there is none, and which.
struct OtherDigit {
    std::size_t length;
    char plain;
};
OtherDigit otherDigitAt(std::string_view text)
{
    for (const std::string_view zero : zeros) {
        const std::size_t lead = zero.size() - 1;
        if (text.size() > lead && text.substr(0, lead) == zero.substr(0, lead)) {
            const int digit =
                static_cast<unsigned char>(text[lead]) - static_cast<unsigned char>(zero[lead]);
            if (digit >= 0 && digit <= 9) {
                return {zero.size(), static_cast<char>('0' + digit)};
            }
        }
    }
    return {0, '0'};
}

bool isAround(char character)
{
    return isOneOf(character, "'\"`$");
}

// Without blanks at the ends, what ends a sentence but changes no answer, and what some put around
// an answer to show where it begins and ends.
std::string_view withoutWrapping(std::string_view text)
{
    for (;;) {
        const std::size_t before = text.size();
        takeBlanks(text);
        text = withoutAtTheEnd(text, " ,;!");
        if (text.size() > 2 && isAround(text.front()) && text.back() == text.front()) {
            text = text.substr(1, text.size() - 2);
        }
        if (text.size() == before) {
            return text;
        }
    }
}

// `lowered` stands before each subscript.
std::string inOneSpelling(std::string_view typed, std::string_view lowered)
{
    const std::string text = withoutMarkup(typed);
    typed = text;
    std::string plain;
    bool inSuperscript = false;
    while (!typed.empty()) {
        const std::string_view ordinary = takeAll(typed, isOrdinary);
        if (!ordinary.empty()) {
            plain += ordinary;
            inSuperscript = false;
            continue;
        }
        const Spelling* const superscript = spellingAt(superscripts, typed);
        if (superscript != nullptr && !inSuperscript && (plain.empty() || plain.back() != '^')) {
            plain += '^';
        }
        inSuperscript = superscript != nullptr;
        const std::string wide = asciiOfWide(typed);
        if (!wide.empty()) {
            plain += wide;
            typed.remove_prefix(wideLength);
            continue;
        }
        const OtherDigit digit = otherDigitAt(typed);
        if (digit.length > 0) {
            plain += digit.plain;
            typed.remove_prefix(digit.length);
            continue;
        }
        const Spelling* const subscript = spellingAt(subscripts, typed);
        plain += subscript == nullptr ? "" : lowered;
        const Spelling* const known = inSuperscript          ? superscript
                                      : subscript != nullptr ? subscript
                                                             : spellingAt(spellings, typed);
        plain += known == nullptr ? typed.substr(0, 1) : known->plain;
        typed.remove_prefix(known == nullptr ? 1 : known->typed.size());
    }
    return std::string(withoutWrapping(plain));
}

} // namespace

std::string plainTyped(std::string_view typed)
{
    return inOneSpelling(typed, "");
}

std::string markedTyped(std::string_view typed)
{
    return inOneSpelling(typed, "_");
}

std::string withSeenMarks(std::string_view marked)
{
    std::string seen;
    while (!marked.empty()) {
        const bool isMark = isOneOf(marked.front(), "_^") && marked.size() > 1;
        const auto& table = marked.front() == '^' ? superscripts : subscripts;
        const auto* const spelling =
            std::find_if(std::begin(table), std::end(table), [marked](const Spelling& known) {
                return known.plain == marked.substr(1, 1);
            });
        const bool isSeen = isMark && spelling != std::end(table);
        seen += isSeen ? spelling->typed : marked.substr(0, 1);
        takeLength(marked, isSeen ? 2 : 1);
    }
    return seen;
}

} // namespace lesson
