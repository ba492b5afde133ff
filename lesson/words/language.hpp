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

template <typename Id, std::size_t N>
constexpr bool areInOrder(const Word<Id> (&rows)[N])
{
    bool isAbove = true;
    for (std::size_t i = 1; i < N; ++i) {
        isAbove = isAbove && rows[i - 1].id < rows[i].id;
    }
    return isAbove;
}

// How a language makes names of names.
struct NameForms {
    std::string (*family)(std::string_view anion); // all compounds of it: "sulfates"
    std::string (*compound)(std::string_view cation, std::string_view anion);
    std::string (*hydrate)(std::string_view dry, int water); // of 1 to 10 molecules of water
};
extern const NameForms englishForms;

// What a language says. Where one has nothing for something, it says what the one does that it
// rests upon, as those of several countries do; another language rests upon none, and has all.
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
    const NameForms* forms;
};

const Language& britishEnglish();
const Language& americanEnglish();

// All of them, and the one of a tag, "en-US"; null where there is none.
const std::vector<const Language*>& allLanguages();
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
