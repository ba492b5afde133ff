#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "lesson/chemistry/ions.hpp"
#include "lesson/words/language.hpp"
#include "lesson/words/render.hpp"

// Lines and names as plain text, in British English unless they say American.
namespace lesson
{

inline std::string plain(const Spans& line)
{
    return plainText(line, Writing());
}

inline std::string plainAmerican(const Spans& line)
{
    Writing writing;
    writing.language = &americanEnglish();
    return plainText(line, writing);
}

// The key as it is typed.
inline std::string typedKey(const Exercise& exercise)
{
    return keyText(exercise, Writing());
}

inline std::string british(const Name& name)
{
    return nameIn(britishEnglish(), name);
}

inline std::string american(const Name& name)
{
    return nameIn(americanEnglish(), name);
}

// The ion of a name, "copper(II)", "sulfate"; null where there is none.
inline const IonRow* findIon(std::string_view name)
{
    for (std::size_t id = 0; id < ionCount; ++id) {
        const IonRow& ion = rowOf(static_cast<Ion>(id));
        if (british(nameOf(ion)) == name) {
            return &ion;
        }
    }
    return nullptr;
}

} // namespace lesson
