#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/chemistry/name.hpp"
#include "lesson/words/sentences.hpp"
#include "lesson/words/typed.hpp"

namespace lesson
{

// A text of a language with what it is for.
template <typename Id>
struct Word {
    Id id;
    const char* text; // half as large as a view: there are hundreds
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
    const TypedWords* typed;
};

const Language& britishEnglish();
const Language& americanEnglish();

// The one of a tag, "en-US"; null where there is none.
const Language* findLanguage(std::string_view tag);

// The pattern of a sentence, see pattern.hpp.
std::string_view patternIn(const Language& language, Sentence sentence);

// The words that are typed in a language, and those of every one, since a learner may type words of
// another one than the reader's.
const TypedWords& typedWordsOf(const Language& language);
const std::vector<const TypedWords*>& allTypedWords();

// Whether a word is in this list of any language, and what it stands for, empty where it is in
// none:
//   isTyped(&TypedWords::noSubstances, "heat")    plainOf(&TypedWords::units, "litres") -> "l"
bool isTyped(WordList TypedWords::*list, std::string_view word);
std::string_view plainOf(SpellingList TypedWords::*list, std::string_view word);

// A name as it stands within a sentence: "copper(II) sulfate pentahydrate".
std::string nameIn(const Language& language, const Name& name);
// The same in every language: "aluminium sulfate", "aluminum sulfate".
std::vector<std::string> namesOf(const Name& name);

} // namespace lesson
