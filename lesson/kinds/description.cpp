#include "lesson/kinds/description.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "lesson/text/quotable.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

// The text up to the next separator, which goes with it.
std::string_view takeUpTo(std::string_view& rest, char separator)
{
    const std::string_view part = rest.substr(0, rest.find(separator));
    rest.remove_prefix(std::min(rest.size(), part.size() + 1));
    return part;
}

constexpr int mostFigures = 4;
constexpr int mostDecimals = 6;

// Digits with or without a point inside, at most four of them besides zeros at the front.
std::optional<Ratio> numberOf(std::string_view text)
{
    std::int64_t digits = 0;
    int decimals = -1; // before the point
    for (const char character : text) {
        if (character == '.' && decimals < 0) {
            decimals = 0;
        } else if (character >= '0' && character <= '9') {
            digits = 10 * digits + (character - '0');
            decimals += decimals < 0 ? 0 : 1;
        } else {
            return std::nullopt;
        }
        if (digits >= powerOfTen(mostFigures).numerator || decimals > mostDecimals) {
            return std::nullopt;
        }
    }
    const bool isNumber = digits > 0 && decimals != 0 && text.front() != '.';
    return isNumber ? std::optional(ratio(digits) / powerOfTen(std::max(decimals, 0)))
                    : std::nullopt;
}

} // namespace

Description& Description::with(std::string_view name, std::string_view value)
{
    for (const std::string_view part :
         {std::string_view(";"), name, std::string_view("="), value}) {
        fields += part;
    }
    return *this;
}

FieldReader::FieldReader(std::string_view text)
{
    while (!text.empty()) {
        std::string_view value = takeUpTo(text, ';');
        const std::string_view name = takeUpTo(value, '=');
        if (has(name)) {
            fail(say<Sentence::errorFieldTwice>(quotable(name)));
        }
        entries.push_back({name, value});
    }
}

FieldReader::~FieldReader() = default;

bool FieldReader::has(std::string_view name) const
{
    return std::any_of(entries.begin(), entries.end(),
                       [name](const Entry& entry) { return entry.name == name; });
}

std::string_view FieldReader::text(std::string_view name)
{
    const auto entry = std::find_if(entries.begin(), entries.end(),
                                    [name](const Entry& one) { return one.name == name; });
    if (entry == entries.end()) {
        fail(say<Sentence::errorFieldMissing>(std::string(name)));
        return {};
    }
    entry->isTaken = true;
    return entry->value;
}

Ratio FieldReader::number(std::string_view name)
{
    return numberIn(name, text(name));
}

std::vector<Ratio> FieldReader::numbers(std::string_view name)
{
    std::vector<Ratio> all;
    std::string_view rest = text(name);
    while (!rest.empty()) {
        all.push_back(numberIn(name, takeUpTo(rest, ',')));
    }
    return all;
}

Ratio FieldReader::numberIn(std::string_view name, std::string_view value)
{
    const std::optional<Ratio> number = numberOf(value);
    if (!number) {
        fail(say<Sentence::errorFieldNumber>(std::string(name), quotable(value)));
    }
    return number.value_or(ratio(1));
}

int FieldReader::level(int otherwise)
{
    if (!has("level")) {
        return otherwise;
    }
    const std::string_view value = text("level");
    if (value != "1" && value != "2" && value != "3") {
        fail(say<Sentence::errorLevel>());
        return otherwise;
    }
    return value.front() - '0';
}

void FieldReader::fail(const Span& sentence)
{
    if (firstProblem.empty()) {
        firstProblem = line(sentence);
    }
}

void FieldReader::failAsNotAsked(std::string_view name, std::string_view value)
{
    fail(say<Sentence::errorFieldNotAsked>(quotable(value), std::string(name)));
}

Spans FieldReader::problem() const
{
    if (!firstProblem.empty()) {
        return firstProblem;
    }
    const auto unknown = std::find_if(entries.begin(), entries.end(),
                                      [](const Entry& entry) { return !entry.isTaken; });
    return unknown == entries.end()
               ? Spans()
               : line(say<Sentence::errorFieldUnknown>(quotable(unknown->name)));
}

} // namespace lesson
