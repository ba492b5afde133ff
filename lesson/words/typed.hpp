#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace lesson
{

// Rows of a table.
template <typename Row>
class List
{
public:
    // A table is such a list by itself.
    template <std::size_t N>
    // cppcheck-suppress noExplicitConstructor
    constexpr List(const Row (&rows)[N]) : first(rows), count(N)
    {
    }
    const Row* begin() const
    {
        return first;
    }
    const Row* end() const
    {
        return first + count;
    }

private:
    const Row* first;
    std::size_t count;
};

// What is typed, and what it stands for.
struct Spelling {
    std::string_view typed;
    std::string_view plain;
};

using WordList = List<std::string_view>;
using SpellingList = List<Spelling>;

// The words of a language that are read in typed answers, in lower case.
struct TypedWords {
    // ---- whether a compound dissolves
    WordList yes;
    WordList no;
    WordList soluble;
    WordList insoluble;
    WordList negations;
    WordList verbs;       // behind the name of a compound: "is"
    WordList opinions;    // "think", which negations may stand before
    WordList everyOne;    // "all", before a class of salts
    WordList behindClass; // "are", behind it
    WordList fillers;     // tell nothing
    WordList degrees;     // may stand between two words that belong together
    WordList notQuite;
    WordList pronouns;  // begin a reason
    WordList reasons;   // "because"
    SpellingList inTwo; // two words that are typed for one: "in", "soluble"

    // ---- that nothing precipitates
    WordList none;         // in a word or in several
    WordList noneAlone;    // behind which anything may follow but an exception
    WordList alternatives; // "or"
    WordList noSuch;       // "no", before what it denies
    WordList denials;
    WordList everything;
    WordList inSolution;
    WordList aqueous;
    WordList precipitating;
    WordList nouns; // what "no" can stand before, perhaps with one of the adjectives
    WordList adjectives;
    WordList betweenDenial; // between a denial and what it denies: "none of them is soluble"
    WordList aroundNone;
    WordList exceptions;
    WordList usualNones; // for who compares texts alone, the key first

    // ---- around the formula of a precipitate, each before its own end
    WordList beforePrecipitate;
    WordList behindPrecipitate;

    // ---- names, states, units, equations
    WordList shortNames;    // of substances, with less letters than other words: "acid"
    WordList ionNouns;      // behind the name of an ion
    WordList noSubstances;  // "heat"
    SpellingList states;    // "aqueous": aq
    SpellingList units;     // "litres": l
    SpellingList equations; // "gives": ->
};

inline bool isAmong(const WordList& words, std::string_view word)
{
    return std::find(words.begin(), words.end(), word) != words.end();
}

// What a word stands for; empty where it is none of them.
inline std::string_view plainOf(const SpellingList& spellings, std::string_view typed)
{
    const auto* const known =
        std::find_if(spellings.begin(), spellings.end(),
                     [typed](const Spelling& spelling) { return spelling.typed == typed; });
    return known == spellings.end() ? "" : known->plain;
}

// Those of both Englishes.
extern const TypedWords typedEnglish;

} // namespace lesson
