#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/chemistry/name.hpp"
#include "lesson/words/sentences.hpp"

namespace lesson
{

// A text of a language with what it is for.
template <typename Id>
struct Word {
    Id id;
    std::string_view text;
};

// Rows in the order of their ids.
template <typename Id>
struct Words {
    const Word<Id>* rows;
    std::size_t count;
};

// What a language says. Where one has no row for something, it says what the one does that it rests
// upon.
struct Language {
    std::string_view tag; // "en-GB"
    const Language* base; // null where it has all itself
    Words<Sentence> sentences;
    Words<int> elements; // by their atomic numbers
    Words<Ion> ions;     // with their Roman numerals: "copper(II)"
    Words<Acid> acids;
    Words<Molecule> molecules;
    std::string_view ammoniaSolution;
};

const Language& britishEnglish();
const Language& americanEnglish();

// The one of a tag, "en-US"; null where there is none.
const Language* findLanguage(std::string_view tag);

// The pattern of a sentence, see pattern.hpp.
std::string_view patternIn(const Language& language, Sentence sentence);

// A name as it stands within a sentence: "copper(II) sulfate pentahydrate".
std::string nameIn(const Language& language, const Name& name);
// The same in every language: "aluminium sulfate", "aluminum sulfate".
std::vector<std::string> namesOf(const Name& name);

} // namespace lesson
