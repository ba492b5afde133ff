#include "lesson/tests/every/reading.hpp"

#include <cctype>
#include <cstring>

#include "lesson/lesson.h"
#include "lesson/tests/support/reference.hpp"

namespace
{

// Puts every number of a JSON text in quotation marks.
std::string withNumbersAsTexts(const std::string& json)
{
    std::string result;
    result.reserve(json.size() + json.size() / 8);
    bool isInText = false;
    bool isInNumber = false;
    for (std::size_t i = 0; i < json.size(); ++i) {
        const char c = json[i];
        const bool isOfNumber = !isInText && (std::isdigit(static_cast<unsigned char>(c)) != 0 ||
                                              c == '-' || (isInNumber && std::strchr("+.eE", c)));
        if (isOfNumber != isInNumber) {
            result += '"';
            isInNumber = isOfNumber;
        }
        result += c;
        if (isInText && c == '\\') {
            result += json[++i];
        } else if (c == '"') {
            isInText = !isInText;
        }
    }
    return result;
}

std::string memberOr(const Json& json, const char* name, const std::string& otherwise)
{
    const auto found = json.find(name);
    return found == json.end() ? otherwise : found->get<std::string>();
}

std::string textOfSpan(const Json& span)
{
    if (span.contains("fraction")) {
        return "(" + textOf(span["fraction"][0]) + ")/(" + textOf(span["fraction"][1]) + ")";
    }
    if (span.contains("ion")) {
        return span["ion"].get<std::string>() + "^" + span["charge"].get<std::string>();
    }
    if (span.contains("quantity")) {
        const std::string of = memberOr(span, "of", "");
        return span["quantity"].get<std::string>() + memberOr(span, "index", "") +
               (of.empty() ? "" : "(" + of + ")");
    }
    // Text, formula, number, unit or name.
    return span.begin()->get<std::string>();
}

} // namespace

const std::vector<std::string>& everyKind()
{
    static const std::vector<std::string> all = [] {
        std::vector<std::string> kinds;
        for (const Json& row : Json::parse(lesson_kinds(nullptr))) {
            for (std::size_t level = 1; level <= row["levels"].size(); ++level) {
                kinds.push_back(row["kind"].get<std::string>() + ":" + std::to_string(level));
            }
        }
        return kinds;
    }();
    return all;
}

Json exerciseAt(const std::string& kind, unsigned paper, unsigned number)
{
    return Json::parse(withNumbersAsTexts(exerciseText(kind, paper, number)));
}

std::string exerciseText(const std::string& kind, unsigned paper, unsigned number)
{
    return lesson_exercise(drawn(paper, number, kind).c_str(), nullptr);
}

Json markOn(const std::string& kind, unsigned paper, unsigned number, const std::string& typed)
{
    return Json::parse(lesson_mark(drawn(paper, number, kind).c_str(), typed.c_str(), nullptr));
}

std::string verdictOn(const std::string& kind, unsigned paper, unsigned number,
                      const std::string& typed)
{
    return markOn(kind, paper, number, typed).value("verdict", "none");
}

std::string textOf(const Json& spans)
{
    std::string text;
    bool isBehindNumber = false;
    for (const Json& span : spans) {
        text += (isBehindNumber && span.contains("unit") ? " " : "") + textOfSpan(span);
        isBehindNumber = span.contains("number");
    }
    return text;
}

std::vector<std::pair<std::string, std::string>> measuresIn(const Json& spans)
{
    static const Json nothing = Json::object();
    std::vector<std::pair<std::string, std::string>> measures;
    for (std::size_t i = 0; i < spans.size(); ++i) {
        const Json& next = i + 1 < spans.size() ? spans[i + 1] : nothing;
        if (spans[i].contains("number") && !next.contains("formula")) {
            measures.emplace_back(spans[i]["number"], next.contains("unit") ? next["unit"] : "");
        }
        if (spans[i].contains("fraction")) {
            for (const Json& part : spans[i]["fraction"]) {
                const auto inside = measuresIn(part);
                measures.insert(measures.end(), inside.begin(), inside.end());
            }
        }
    }
    return measures;
}

void Problems::at(const std::string& kindAndLevel, unsigned paperNumber, unsigned exerciseNumber)
{
    kind = kindAndLevel;
    paper = paperNumber;
    number = exerciseNumber;
}

void Problems::expect(bool isKept, const char* rule, const std::string& detail)
{
    if (isKept) {
        return;
    }
    Found& entry = found[rule];
    if (entry.count++ == 0) {
        entry.first = kind + ", paper " + std::to_string(paper) + ", number " +
                      std::to_string(number) + ": " + detail;
    }
}

std::string Problems::text() const
{
    std::string text;
    for (const auto& [rule, entry] : found) {
        text += "NOT KEPT " + std::to_string(entry.count) + " times: " + rule + "\n    first at " +
                entry.first + "\n";
    }
    return text;
}
