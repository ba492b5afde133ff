#include "lesson/words/language.hpp"

#include <algorithm>

namespace lesson
{

namespace
{

template <typename Id>
const Word<Id>* find(const Words<Id>& words, Id id)
{
    const auto place = static_cast<std::size_t>(id);
    if (place < words.count && words.rows[place].id == id) { // where nothing is left out
        return words.rows + place;
    }
    const Word<Id>* const end = words.rows + words.count;
    const Word<Id>* const found = std::lower_bound(
        words.rows, end, id, [](const Word<Id>& word, Id wanted) { return word.id < wanted; });
    return found == end || found->id != id ? nullptr : found;
}

// As the language or the one that it rests upon has it; every id has a row in the last of them.
template <typename Id>
std::string_view textOf(const Language& language, Words<Id> Language::*words, Id id)
{
    const Word<Id>* const word = find(language.*words, id);
    return word == nullptr ? textOf(*language.base, words, id) : word->text;
}

std::string_view ionIn(const Language& language, std::uint8_t id)
{
    return textOf(language, &Language::ions, static_cast<Ion>(id));
}

const NameForms& formsOf(const Language& language)
{
    return language.forms == nullptr ? formsOf(*language.base) : *language.forms;
}

std::string withWater(const Language& language, std::string_view dry, int water)
{
    return water == 0 ? std::string(dry) : formsOf(language).hydrate(dry, water);
}

std::string_view ammoniaSolutionIn(const Language& language)
{
    return language.ammoniaSolution.empty() ? ammoniaSolutionIn(*language.base)
                                            : language.ammoniaSolution;
}

} // namespace

const std::vector<const Language*>& allLanguages()
{
    static const std::vector<const Language*> all = {&britishEnglish(), &americanEnglish()};
    return all;
}

const Language* findLanguage(std::string_view tag)
{
    for (const Language* const language : allLanguages()) {
        if (language->tag == tag) {
            return language;
        }
    }
    return nullptr;
}

std::string_view patternIn(const Language& language, Sentence sentence)
{
    return textOf(language, &Language::sentences, sentence);
}

const TypedWords& typedWordsOf(const Language& language)
{
    return language.typed == nullptr ? typedWordsOf(*language.base) : *language.typed;
}

namespace
{

std::vector<const TypedWords*> findTypedWords()
{
    std::vector<const TypedWords*> all;
    for (const Language* const language : allLanguages()) {
        if (language->typed != nullptr) {
            all.push_back(language->typed);
        }
    }
    return all;
}

} // namespace

const std::vector<const TypedWords*>& allTypedWords()
{
    static const std::vector<const TypedWords*> all = findTypedWords();
    return all;
}

bool isTyped(WordList TypedWords::*list, std::string_view word)
{
    const auto& all = allTypedWords();
    return std::any_of(all.begin(), all.end(), [list, word](const TypedWords* words) {
        return isAmong(words->*list, word);
    });
}

std::string_view plainOf(SpellingList TypedWords::*list, std::string_view word)
{
    for (const TypedWords* const words : allTypedWords()) {
        const std::string_view plain = plainOf(words->*list, word);
        if (!plain.empty()) {
            return plain;
        }
    }
    return "";
}

std::string nameIn(const Language& language, const Name& name)
{
    switch (name.of) {
    case Name::Of::nothing:
        break;
    case Name::Of::element:
        return std::string(textOf(language, &Language::elements, int{name.id}));
    case Name::Of::ion:
        return std::string(ionIn(language, name.id));
    case Name::Of::ionAlone: {
        const std::string_view inFull = ionIn(language, name.id);
        return std::string(inFull.substr(0, inFull.find('(')));
    }
    case Name::Of::family:
        return formsOf(language).family(ionIn(language, name.id));
    case Name::Of::compound:
        return withWater(
            language,
            formsOf(language).compound(ionIn(language, name.id), ionIn(language, name.anion)),
            name.water);
    case Name::Of::acid:
        return withWater(language, textOf(language, &Language::acids, static_cast<Acid>(name.id)),
                         name.water);
    case Name::Of::ammoniaSolution:
        return std::string(ammoniaSolutionIn(language));
    case Name::Of::molecule:
        return std::string(textOf(language, &Language::molecules, static_cast<Molecule>(name.id)));
    }
    return {};
}

std::vector<std::string> namesOf(const Name& name)
{
    std::vector<std::string> names;
    for (const Language* const language : allLanguages()) {
        names.push_back(nameIn(*language, name));
    }
    return names;
}

} // namespace lesson
