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
#include "lesson/marking/read_answer.hpp"
#include "lesson/paper/reference.hpp"
#include "lesson/paper/sheet.hpp"
#include "lesson/words/render.hpp"
#include "lesson/words/say.hpp"
#include "lesson/words/writing.hpp"

namespace lesson
{

namespace
{

std::string errorJson(const Spans& error, const Writing& writing)
{
    Json json;
    json.object([&] { json.member("error", plainText(error, writing)); });
    return json.take();
}

// Empty where there is none.
std::string_view nameOf(Drawing drawing)
{
    switch (drawing) {
    case Drawing::none:
        break;
    case Drawing::dilution:
        return "dilution";
    case Drawing::titration:
        return "titration";
    }
    return "";
}

std::string kindsJson(const Writing& writing)
{
    const auto text = [&writing](Sentence sentence) { return plainText({say(sentence)}, writing); };
    Json json;
    json.array(allKinds(), [&](const Kind* kind) {
        json.object([&] {
            json.member("kind", kind->slug);
            json.member("version", static_cast<int>(kind->version));
            json.member("title", text(kind->title));
            json.key("levels").array(kind->levels, [&](Sentence level) { json.text(text(level)); });
            if (kind->drawing != Drawing::none) {
                json.member("drawing", nameOf(kind->drawing));
            }
            json.key("masses").boolean(kind->needsMasses);
        });
    });
    return json.take();
}

std::string_view textIn(const char* text)
{
    return text == nullptr ? "" : text;
}

// What `answerTo` makes of the way in which the reader writes, or the error in its name.
template <typename AnswerTo>
std::string withWriting(const char* name, const AnswerTo& answerTo)
{
    const NamedWriting named = readWriting(textIn(name));
    return named.error.empty() ? answerTo(named.writing) : errorJson(named.error, named.writing);
}

// What `answerTo` makes of the exercise that a text names as well.
template <typename AnswerTo>
std::string withExercise(const char* text, const char* writing, const AnswerTo& answerTo)
{
    return withWriting(writing, [&](const Writing& written) {
        NamedExercise named = exerciseNamed(textIn(text));
        return named.error.empty() ? answerTo(std::move(named.exercise), written)
                                   : errorJson(named.error, written);
    });
}

// What `answerTo` makes of what was typed for it, too.
template <typename AnswerTo>
std::string withTyped(const char* text, const char* typed, const char* writing,
                      const AnswerTo& answerTo)
{
    return withExercise(text, writing, [&](const Exercise& exercise, const Writing& written) {
        return typed == nullptr ? errorJson({say<Sentence::errorNoTypedText>()}, written)
                                : answerTo(exercise, typed, written);
    });
}

std::string markedJson(const Exercise& exercise, std::string_view typed, const Writing& writing)
{
    return markJson(markAnswer(exercise, typed, writing), writing);
}

std::string readingJson(const Exercise& exercise, std::string_view typed, const Writing& writing)
{
    return readJson(readAnswer(exercise, typed, writing), writing);
}

struct Format {
    std::string_view name;
    std::string (*write)(const std::vector<Reference>& exercises, const Writing& writing);
};
constexpr Format formats[] = {{"moodle", moodleXml}, {"anki", ankiCards}};

const Format* findFormat(std::string_view name)
{
    const auto* const found =
        std::find_if(std::begin(formats), std::end(formats),
                     [name](const Format& format) { return format.name == name; });
    return found == std::end(formats) ? nullptr : found;
}

std::string exported(const char* sheetText, const char* formatName, const Writing& writing)
{
    const Sheet sheet = readSheet(textIn(sheetText));
    if (!sheet.error.empty()) {
        return errorJson(sheet.error, writing);
    }
    const Format* const format = findFormat(textIn(formatName));
    if (format == nullptr) {
        return errorJson({say<Sentence::errorFormat>()}, writing);
    }
    std::string file = format->write(referencesOf(sheet), writing);
    return file.empty() ? errorJson({say<Sentence::errorNoCard>()}, writing) : file;
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
const char* lesson_kinds(const char* writing)
{
    thread_local std::string result;
    return lesson::kept(result, lesson::withWriting(writing, lesson::kindsJson));
}

const char* lesson_exercise(const char* exercise, const char* writing)
{
    thread_local std::string result;
    return lesson::kept(result, lesson::withExercise(exercise, writing, lesson::exerciseJson));
}

const char* lesson_mark(const char* exercise, const char* typed, const char* writing)
{
    thread_local std::string result;
    return lesson::kept(result, lesson::withTyped(exercise, typed, writing, lesson::markedJson));
}

const char* lesson_read(const char* exercise, const char* typed, const char* writing)
{
    thread_local std::string result;
    return lesson::kept(result, lesson::withTyped(exercise, typed, writing, lesson::readingJson));
}

const char* lesson_tables(const char* writing)
{
    thread_local std::string result;
    return lesson::kept(result, lesson::withWriting(writing, [](const lesson::Writing& written) {
                            return lesson::tablesJson(written);
                        }));
}

const char* lesson_export(const char* sheet, const char* format, const char* writing)
{
    thread_local std::string result;
    return lesson::kept(result, lesson::withWriting(writing, [&](const lesson::Writing& written) {
                            return lesson::exported(sheet, format, written);
                        }));
}
// NOLINTEND(clang-analyzer-cplusplus.InnerPointer)
