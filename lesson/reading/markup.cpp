#include "lesson/reading/markup.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <vector>

#include "lesson/text/scan.hpp"

namespace lesson
{

namespace
{

struct Command {
    std::string_view typed;
    std::string_view plain;
};

// clang-format off
// Of two that begin alike the longer one stands first.
constexpr Command commands[] = {
    {"\\longrightarrow", "->"}, {"\\Longrightarrow", "->"}, {"\\rightarrow", "->"},
    {"\\Rightarrow", "->"}, {"\\xrightarrow{}", "->"}, {"\\longmapsto", "->"}, {"\\mapsto", "->"},
    {"\\rightleftharpoons", "<->"}, {"\\leftrightarrow", "<->"}, {"\\Leftrightarrow", "<->"},
    {"\\rightleftarrows", "<->"}, {"\\longleftarrow", "<-"}, {"\\leftarrow", "<-"},
    {"\\Leftarrow", "<-"}, {"\\left", ""}, {"\\right", ""}, {"\\to", "->"},
    {"\\times", "×"}, {"\\cdot", "·"}, {"\\bullet", "·"}, {"\\ast", "*"},
    {"\\uparrow", "↑"}, {"\\downarrow", "↓"},
    {"\\qquad", " "}, {"\\quad", " "}, {"\\,", " "}, {"\\;", " "}, {"\\:", " "}, {"\\ ", " "},
    {"\\\\", " "}, {"\\!", ""}, {"\\rm ", ""}, {"\\displaystyle", ""},
    {"&rarr;", "->"}, {"&#8594;", "->"}, {"&harr;", "<->"}, {"&gt;", ">"}, {"&lt;", "<"},
    {"&nbsp;", " "}, {"&middot;", "·"}, {"&times;", "×"}, {"&minus;", "-"},
    {"<sub>", "_{"}, {"</sub>", "}"}, {"<sup>", "^{"}, {"</sup>", "}"},
};
// What stands in their braces is the text.
constexpr std::string_view wrappers[] = {
    "\\ce{", "\\cf{", "\\chem{", "\\mathrm{", "\\mathsf{", "\\mathbf{", "\\mathit{", "\\textrm{",
    "\\textsf{", "\\textbf{", "\\textit{", "\\text{", "\\mbox{", "\\rm{",
};
constexpr std::string_view fractions[] = {"\\frac{", "\\dfrac{", "\\tfrac{"};
// clang-format on

// What the next closing brace belongs to.
enum class Open { group, wrapper, numerator };

class Reader
{
public:
    explicit Reader(std::string_view typed) : rest(typed) {}

    std::string read()
    {
        while (!rest.empty()) {
            if (!readCommand() && !readBrace()) {
                readOther();
            }
        }
        return plain;
    }

private:
    bool readCommand()
    {
        if (!isOneOf(rest.front(), "\\&<")) {
            return false;
        }
        if (takeOneOf(rest, wrappers)) {
            open.push_back(Open::wrapper);
            return true;
        }
        if (takeOneOf(rest, fractions)) {
            plain += ' '; // keeps it apart from a number in front
            open.push_back(Open::numerator);
            return true;
        }
        const auto* const command =
            std::find_if(std::begin(commands), std::end(commands),
                         [this](const Command& known) { return take(rest, known.typed); });
        if (command == std::end(commands)) {
            return false;
        }
        plain += command->plain;
        return true;
    }

    bool readBrace()
    {
        if (rest.front() == '{') {
            open.push_back(Open::group);
            return false;
        }
        if (rest.front() != '}' || open.empty()) {
            return false;
        }
        const Open closed = open.back();
        open.pop_back();
        if (closed == Open::group) {
            return false;
        }
        rest.remove_prefix(1);
        if (closed == Open::numerator) {
            plain += '/';
            if (take(rest, "{")) {
                open.push_back(Open::wrapper);
            }
        }
        return true;
    }

    // A "\" is gone but before a small letter, with which it is a command that is not known here.
    void readOther()
    {
        const bool isCommand = rest.size() > 1 && isSmall(rest[1]);
        if (rest.front() != '\\' || isCommand) {
            plain += rest.front();
        }
        rest.remove_prefix(1);
    }

    std::string_view rest;
    std::string plain;
    std::vector<Open> open;
};

// "\( … \)" and "\[ … \]" around the whole are signs of a formula, not brackets of it.
std::string_view withoutDelimiters(std::string_view typed)
{
    typed = trimmed(typed);
    constexpr std::size_t length = 2;
    const std::string_view begin = typed.substr(0, length);
    const std::string_view end = typed.substr(typed.size() - std::min(typed.size(), length));
    const bool isDelimited = (begin == "\\(" && end == "\\)") || (begin == "\\[" && end == "\\]");
    return isDelimited ? typed.substr(length, typed.size() - 2 * length) : typed;
}

} // namespace

std::string withoutMarkup(std::string_view typed)
{
    const bool hasMarkup = typed.find('\\') != std::string_view::npos ||
                           typed.find('&') != std::string_view::npos ||
                           typed.find("<su") != std::string_view::npos;
    return hasMarkup ? Reader(withoutDelimiters(typed)).read() : std::string(typed);
}

} // namespace lesson
