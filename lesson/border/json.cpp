#include "lesson/border/json.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "lesson/numbers/decimal.hpp"
#include "lesson/text/utf8.hpp"

namespace lesson
{

namespace
{

constexpr std::string_view replacementCharacter = "\uFFFD";

// Which bytes stand in a JSON string as they are, and are whole characters: most of an exercise is
// such text, so they are looked up.
constexpr std::array<bool, 256> findPlain()
{
    std::array<bool, 256> plain = {};
    for (std::size_t c = ' '; c <= '~'; ++c) {
        plain[c] = c != '"' && c != '\\';
    }
    return plain;
}
constexpr std::array<bool, 256> isPlain = findPlain();

std::size_t plainLength(std::string_view text)
{
    std::size_t length = 0;
    while (length < text.size() && isPlain[static_cast<unsigned char>(text[length])]) {
        ++length;
    }
    return length;
}

std::string escaped(char c)
{
    if (c == '"' || c == '\\') {
        return {'\\', c};
    }
    constexpr std::string_view digits = "0123456789abcdef";
    const auto code = static_cast<unsigned char>(c);
    return {'\\', 'u', '0', '0', digits[code / 16U], digits[code % 16U]};
}

bool isEscaped(char c)
{
    return c == '"' || c == '\\' || static_cast<unsigned char>(c) < 0x20U;
}

} // namespace

// Between two values stands a comma. What was written last tells whether one is needed: a string
// ends with its quotation mark, so an opening bracket or a colon at the end is never text.
void Json::separate()
{
    const char last = out.empty() ? ':' : out.back();
    if (last != '[' && last != '{' && last != ':') {
        out += ',';
    }
}

void Json::open(char bracket)
{
    separate();
    out += bracket;
}

Json& Json::key(std::string_view name)
{
    separate();
    out += '"';
    out += name;
    out += "\":";
    return *this;
}

void Json::text(std::string_view value)
{
    separate();
    out += '"';
    while (!value.empty()) {
        std::size_t length = plainLength(value);
        if (length > 0) {
            out += value.substr(0, length);
        } else if (isEscaped(value.front())) {
            length = 1;
            out += escaped(value.front());
        } else {
            length = characterLength(value);
            out += length > 0 ? value.substr(0, length) : replacementCharacter;
        }
        value.remove_prefix(std::max<std::size_t>(length, 1));
    }
    out += '"';
}

void Json::number(int value)
{
    number(std::to_string(value));
}

void Json::number(Ratio value)
{
    number(exactText(value));
}

void Json::number(const std::string& decimal)
{
    separate();
    out += decimal;
}

void Json::boolean(bool value)
{
    number(std::string(value ? "true" : "false"));
}

std::string Json::take()
{
    return std::exchange(out, {});
}

} // namespace lesson
