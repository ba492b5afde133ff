#include "lesson/export/moodle.hpp"

#include <algorithm>
#include <string_view>
#include <utility>

#include "lesson/export/expected.hpp"
#include "lesson/export/html.hpp"
#include "lesson/export/units.hpp"
#include "lesson/kinds/kind.hpp"
#include "lesson/text/scan.hpp"
#include "lesson/words/render.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

// The elements stand in the order in which Moodle writes them itself.

// HTML goes in as it is: it never holds "]]>", since it has a reference for each ">" of a text.
void addHtml(std::string& xml, std::string_view tag, std::string_view html)
{
    addAll(xml, {"<", tag, " format=\"html\"><text>"});
    if (!html.empty()) {
        addAll(xml, {"<![CDATA[", html, "]]>"});
    }
    addAll(xml, {"</text></", tag, ">\n"});
}

// ------------------------------------------------------------------------------ its four types

enum class Type { numerical, shortAnswer, multipleChoice, cloze };

std::string_view nameOf(Type type)
{
    constexpr std::string_view names[] = {"numerical", "shortanswer", "multichoice", "cloze"};
    return names[static_cast<int>(type)];
}

Type typeOf(const Ask& ask)
{
    if (ask.form == Form::number) {
        return Type::numerical;
    }
    if (ask.form == Form::equation) {
        return Type::cloze;
    }
    return ask.choices.empty() ? Type::shortAnswer : Type::multipleChoice;
}

// What to type, below the question.
Spans adviceFor(const Ask& ask)
{
    switch (typeOf(ask)) {
    case Type::numerical:
        return {say<Sentence::exportTypeNumber>(number(std::to_string(ask.figures)))};
    case Type::cloze:
        return {say<Sentence::exportTypeCoefficients>()};
    case Type::multipleChoice:
        return {};
    case Type::shortAnswer:
        break;
    }
    const Span subscripts = say<Sentence::exportTypeSubscripts>();
    return ask.form == Form::ion ? line(subscripts, " ", say<Sentence::exportTypeCharge>())
                                 : Spans{subscripts};
}

// --------------------------------------------------------------------------------- the question

// A gap knows nothing of the other ones, so that a sentence about one number has to leave open what
// they are. What would end it early (braces, ~, #) is in no sentence.
std::string gap(int coefficient, const Writing& writing)
{
    const std::string twice = std::to_string(2 * coefficient);
    std::string text = "{1:NUMERICAL:=" + std::to_string(coefficient) + ":0";
    addAll(text, {"~%0%", twice, ":0#", plainText({say<Sentence::exportGapDoubled>()}, writing)});
    if (coefficient % 2 != 0) {
        const std::string half = std::to_string(coefficient / 2) + ".5";
        addAll(text, {"~%0%", half, ":0#", plainText({say<Sentence::exportGapHalf>()}, writing)});
    }
    return text + "}";
}

std::string sideOf(const std::vector<std::pair<int, std::string>>& side, const Writing& writing)
{
    std::string html;
    for (const auto& [coefficient, species] : side) {
        addAll(html, {html.empty() ? "" : " + ", gap(coefficient, writing), " ",
                      htmlOf({formula(species)})});
    }
    return html;
}

std::string gapsOf(const Equation& equation, const Writing& writing)
{
    return "<p>" + sideOf(equation.left, writing) + " → " + sideOf(equation.right, writing) +
           "</p>";
}

std::string questionOf(const Exercise& exercise, const Writing& writing)
{
    std::string html;
    addAll(html, {"<p>", htmlOf(exercise.prompt), "</p>"});
    if (exercise.ask.form == Form::equation) {
        html += gapsOf(*exercise.equation, writing);
    }
    const Spans advice = adviceFor(exercise.ask);
    if (!advice.empty()) {
        addAll(html, {"<p>", htmlOf(rendered(advice, writing)), "</p>"});
    }
    return html;
}

std::string htmlOfStep(const Step& step)
{
    return htmlOf(step.say) + (step.math.empty() ? "" : "<br>") + htmlOf(step.math);
}

std::string solutionOf(const Exercise& exercise)
{
    std::string html = "<ol>";
    for (const Step& step : exercise.solution) {
        addAll(html, {"<li>", htmlOfStep(step), "</li>"});
    }
    return html + "</ol>";
}

// The number or the equation that is asked for, as the step that arrives at it shows it. What else
// is asked for, the last step alone tells.
std::string htmlOfResult(const Exercise& exercise)
{
    const bool isShown = exercise.ask.form == Form::number || exercise.ask.form == Form::equation;
    return isShown ? htmlOf(exercise.key) : std::string();
}

// Each is shown behind a wrong try, and there is one try more than hints: first what helps without
// giving anything away, then the solution up to the step that arrives at the answer.
std::vector<std::string> hintsOf(const Exercise& exercise)
{
    const std::vector<Step>& steps = exercise.solution;
    const std::string result = htmlOfResult(exercise);
    std::vector<std::string> hints;
    if (!steps.front().hint.empty()) {
        hints.push_back(htmlOf(steps.front().hint));
    }
    for (std::size_t i = 0; i + 1 < steps.size(); ++i) {
        if (!result.empty() && endsWith(htmlOf(steps[i].math), result)) {
            break;
        }
        hints.push_back(htmlOfStep(steps[i]));
    }
    return hints;
}

void addHints(std::string& xml, const Exercise& exercise)
{
    // Of several gaps it is told how many are right, and the wrong ones are emptied.
    const bool hasGaps = typeOf(exercise.ask) == Type::cloze;
    for (const std::string& hint : hintsOf(exercise)) {
        addAll(xml, {"<hint format=\"html\"><text><![CDATA[", hint, "]]></text>\n",
                     hasGaps ? "<shownumcorrect/>\n<clearwrong/>\n" : "", "</hint>\n"});
    }
}

// ---------------------------------------------------------------------------------- the answers

void addAnswer(std::string& xml, const Expected& expected, std::string_view format)
{
    addAll(xml, {"<answer fraction=\"", std::to_string(expected.percent), "\" format=\"", format,
                 "\"><text>", escaped(expected.text), "</text>\n"});
    addHtml(xml, "feedback", escaped(expected.sentence));
    if (!expected.tolerance.empty()) {
        addAll(xml, {"<tolerance>", expected.tolerance, "</tolerance>\n"});
    }
    xml += "</answer>\n";
}

void addUnits(std::string& xml, const Exercise& exercise)
{
    xml += "<units>\n";
    for (const UnitRow& row : unitsBehind(exercise)) {
        addAll(xml, {"<unit><multiplier>", row.times, "</multiplier><unit_name>", row.name,
                     "</unit_name></unit>\n"});
    }
    xml += "</units>\n";
    // Neither graded nor asked for: typed behind the number or not.
    xml += "<unitgradingtype>0</unitgradingtype>\n<unitpenalty>0</unitpenalty>\n"
           "<showunits>0</showunits>\n<unitsleft>0</unitsleft>\n";
}

void addAnswers(std::string& xml, const Exercise& exercise, const Writing& writing)
{
    const Type type = typeOf(exercise.ask);
    if (type == Type::shortAnswer) {
        // Capitals matter in formulas, and in "none" they do not.
        xml += isNone(exercise) ? "<usecase>0</usecase>\n" : "<usecase>1</usecase>\n";
    } else if (type == Type::multipleChoice) {
        xml += "<single>true</single>\n<shuffleanswers>false</shuffleanswers>\n"
               "<answernumbering>none</answernumbering>\n";
    }
    for (const Expected& expected : expectedAnswers(exercise, writing)) {
        addAnswer(xml, expected, type == Type::multipleChoice ? "html" : "moodle_auto_format");
    }
    if (type == Type::numerical) {
        addUnits(xml, exercise);
    }
}

// ------------------------------------------------------------------------------------ the file

// How a question bank tells a question from others.
struct Label {
    std::string name; // "Paper 4821, titration, level 2, number 3"
    std::string id;   // "4821-titration-2-3"
};

Label labelOf(const Place& place, std::size_t placeOnSheet, const Writing& writing)
{
    const std::string slug(place.kind->slug);
    const std::string level = std::to_string(place.level);
    const bool isDrawn = place.paper != 0;
    const std::string paper = isDrawn ? std::to_string(place.paper) : "own";
    const std::string at = std::to_string(isDrawn ? place.number : placeOnSheet);
    const Span name =
        isDrawn ? say<Sentence::exportNameOfDrawn>(number(paper), slug, number(level), number(at))
                : say<Sentence::exportNameOfDescribed>(number(at), slug, number(level));
    return {plainText({name}, writing), paper + "-" + slug + "-" + level + "-" + at};
}

void addQuestion(std::string& xml, const Exercise& exercise, const Label& label,
                 const Writing& writing)
{
    const Place& place = exercise.place;
    const Type type = typeOf(exercise.ask);
    addAll(xml, {"<question type=\"", nameOf(type), "\">\n<name><text>", escaped(label.name),
                 "</text></name>\n"});
    addHtml(xml, "questiontext", questionOf(exercise, writing));
    addHtml(xml, "generalfeedback", solutionOf(exercise));
    if (type != Type::cloze) { // whose grade is that of its gaps
        xml += "<defaultgrade>1</defaultgrade>\n";
    }
    addAll(xml, {"<penalty>0.3333333</penalty>\n<hidden>0</hidden>\n<idnumber>", label.id,
                 "</idnumber>\n"});
    addAnswers(xml, exercise, writing);
    addHints(xml, exercise);
    addAll(xml, {"<tags>\n<tag><text>", place.kind->slug, "</text></tag>\n<tag><text>level ",
                 std::to_string(place.level), "</text></tag>\n</tags>\n</question>\n"});
}

// Drawn exercises have their paper, others have none.
Span categoryOf(const std::vector<Reference>& exercises)
{
    const auto drawn =
        std::find_if(exercises.begin(), exercises.end(),
                     [](const Reference& reference) { return reference.description.empty(); });
    return drawn == exercises.end()
               ? say<Sentence::exportExercises>()
               : say<Sentence::exportPaper>(number(std::to_string(drawn->place.paper)));
}

} // namespace

std::string moodleXml(const std::vector<Reference>& exercises, const Writing& writing)
{
    std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<quiz>\n"
                      "<question type=\"category\">\n<category>";
    const Spans path = line("top/", say<Sentence::exportTitle>(), "/", categoryOf(exercises));
    addAll(xml, {"<text>", escaped(plainText(path, writing)), "</text></category>\n</question>\n"});
    std::size_t placeOnSheet = 0;
    for (const Reference& reference : exercises) {
        Exercise exercise = exerciseOf(reference).exercise;
        render(exercise, writing);
        addQuestion(xml, exercise, labelOf(exercise.place, ++placeOnSheet, writing), writing);
    }
    return xml + "</quiz>\n";
}

} // namespace lesson
