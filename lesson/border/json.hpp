#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "lesson/numbers/ratio.hpp"

namespace lesson
{

// Writes one JSON text, without blanks, from the front to the end. It is no library because the
// lesson needs so little of one: nothing is ever read, the text goes straight into one string, and
// values are exact decimals rather than binary ones. That keeps the WebAssembly module small.
//
// The text is valid whatever it is given, as long as every object holds members and every member
// one value.
//
//   Json json;
//   json.object([&] {
//       json.member("kind", "titration");
//       json.key("levels").array(levels, [&](const Level& level) { json.text(level.title); });
//   });
//   json.take() -> {"kind":"titration","levels":["…","…"]}
class Json
{
public:
    // What comes next is the value of this member. Its name has nothing to escape.
    Json& key(std::string_view name);

    // A byte that is no UTF-8 becomes U+FFFD.
    void text(std::string_view value);
    void number(int value);
    // As `exactText` writes it.
    void number(Ratio value);
    // A decimal text that shows more than its value: "22.10".
    void number(const std::string& decimal);
    void boolean(bool value);

    // `writeMembers` writes each by `key` and a value, or by `member`.
    template <typename WriteMembers>
    void object(const WriteMembers& writeMembers)
    {
        open('{');
        writeMembers();
        out += '}';
    }
    // An array of what `writeElements` writes.
    template <typename WriteElements>
    void elements(const WriteElements& writeElements)
    {
        open('[');
        writeElements();
        out += ']';
    }
    // One value for each element, which `writeElement` writes.
    template <typename Table, typename WriteElement>
    void array(const Table& table, const WriteElement& writeElement)
    {
        elements([&] {
            for (const auto& element : table) {
                writeElement(element);
            }
        });
    }

    void member(std::string_view name, std::string_view value)
    {
        key(name).text(value);
    }
    void member(std::string_view name, int value)
    {
        key(name).number(value);
    }
    void member(std::string_view name, Ratio value)
    {
        key(name).number(value);
    }

    // The text, which leaves nothing behind.
    std::string take();

private:
    void open(char bracket);
    void separate();

    std::string out;
};

} // namespace lesson
