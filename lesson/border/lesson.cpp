#include "lesson/lesson.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "lesson/border/exercise_json.hpp"
#include "lesson/border/json.hpp"
#include "lesson/border/tables_json.hpp"
#include "lesson/exercise.hpp"
#include "lesson/export/anki.hpp"
#include "lesson/export/moodle.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/paper/selection.hpp"
#include "lesson/paper/sheet.hpp"

namespace lesson
{

namespace
{

std::string errorJson(std::string_view sentence)
{
    Json json;
    json.object([&] { json.member("error", sentence); });
    return json.take();
}

std::string kindsJson()
{
    Json json;
    json.array(allKinds(), [&](const Kind* kind) {
        json.object([&] {
            json.member("kind", kind->slug);
            json.member("title", kind->title);
            json.key("levels").array(kind->levels,
                                     [&](std::string_view level) { json.text(level); });
        });
    });
    return json.take();
}

bool isWithin(unsigned number, unsigned greatest)
{
    return number >= 1 && number <= greatest;
}

std::string errorOfPaper()
{
    return "The paper has to be a number from 1 to " + std::to_string(greatestPaper) + ".";
}

// What is wrong with the arguments; empty where nothing is.
std::string errorIn(unsigned paper, unsigned number, const Selection& selection)
{
    if (!isWithin(paper, greatestPaper)) {
        return errorOfPaper();
    }
    if (!isWithin(number, greatestNumber)) {
        return "The number of the exercise has to be from 1 to " + std::to_string(greatestNumber) +
               ".";
    }
    return selection.error;
}

// What `answerTo` makes of the exercise that the arguments mean, or the error in them.
template <typename AnswerTo>
std::string withExercise(unsigned paper, unsigned number, const char* kind,
                         const AnswerTo& answerTo)
{
    const Selection selection = readSelection(kind == nullptr ? "" : kind);
    const std::string error = errorIn(paper, number, selection);
    return error.empty() ? answerTo(makeExercise(placeOf(selection, paper, number)))
                         : errorJson(error);
}

std::string markedJson(const Exercise& exercise, const char* typed)
{
    return typed == nullptr ? errorJson("There is no typed text.")
                            : markJson(markAnswer(exercise, typed));
}

struct Format {
    std::string_view name;
    std::string (*write)(const std::vector<Place>& places);
};
constexpr Format formats[] = {{"moodle", moodleXml}, {"anki", ankiCards}};

const Format* findFormat(std::string_view name)
{
    const auto* const found =
        std::find_if(std::begin(formats), std::end(formats),
                     [name](const Format& format) { return format.name == name; });
    return found == std::end(formats) ? nullptr : found;
}

std::string exported(unsigned paper, const char* sheetText, const char* formatName)
{
    if (!isWithin(paper, greatestPaper)) {
        return errorJson(errorOfPaper());
    }
    const Sheet sheet = readSheet(sheetText == nullptr ? "" : sheetText);
    if (!sheet.error.empty()) {
        return errorJson(sheet.error);
    }
    const Format* const format = findFormat(formatName == nullptr ? "" : formatName);
    if (format == nullptr) {
        return errorJson("The format has to be moodle or anki.");
    }
    std::string file = format->write(placesOf(sheet, paper));
    return file.empty() ? errorJson("Nothing on this sheet fits a card: formulas, ions and "
                                    "solubility do.")
                        : file;
}

// Puts a text where it holds until the next one, and gives it to C.
const char* kept(std::string& place, std::string text)
{
    place = std::move(text);
    return place.c_str();
}

} // namespace

} // namespace lesson

// A result holds until the next call of the same function, which is what the analyzer complains of.
// NOLINTBEGIN(clang-analyzer-cplusplus.InnerPointer)
const char* lesson_kinds(void)
{
    thread_local std::string result;
    return lesson::kept(result, lesson::kindsJson());
}

const char* lesson_exercise(unsigned paper, unsigned number, const char* kind)
{
    thread_local std::string result;
    return lesson::kept(result, lesson::withExercise(paper, number, kind, lesson::exerciseJson));
}

const char* lesson_mark(unsigned paper, unsigned number, const char* kind, const char* typed)
{
    thread_local std::string result;
    return lesson::kept(result, lesson::withExercise(paper, number, kind,
                                                     [typed](const lesson::Exercise& exercise) {
                                                         return lesson::markedJson(exercise, typed);
                                                     }));
}

const char* lesson_tables(void)
{
    thread_local std::string result;
    return lesson::kept(result, lesson::tablesJson());
}

const char* lesson_export(unsigned paper, const char* sheet, const char* format)
{
    thread_local std::string result;
    return lesson::kept(result, lesson::exported(paper, sheet, format));
}
// NOLINTEND(clang-analyzer-cplusplus.InnerPointer)
