#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "lesson/kinds/description.hpp"
#include "lesson/kinds/kind.hpp"

// A kind is a few small functions on one record of the quantities of an exercise:
//
//   Record draw(const Place& place);
//   Description write(const Record& record);  what tells the quantities
//   Record read(FieldReader& fields);         out of one; means nothing where there is a problem
//   int levelOf(const Record& record);        the level where it belongs, if it is in several
//   Exercise make(const Place& place, const Record& record);
//
// The functions of a Kind follow from them.
namespace lesson
{

std::string textOf(Description description, const Place& place, int levelOfRecord);
NamedExercise notMade(Spans problem);
NamedExercise madeOf(Exercise exercise);

template <auto draw, auto write, auto levelOf, auto make>
Exercise drawnExercise(const Place& place)
{
    const auto& record = draw(place);
    Exercise exercise = make(place, record);
    exercise.description = textOf(write(record), place, levelOf(record));
    return exercise;
}

template <auto read, auto write, auto levelOf, auto make>
NamedExercise describedExercise(const Kind& kind, std::string_view text)
{
    FieldReader fields(text);
    const auto& record = read(fields); // which may be a row of a table
    const int level = fields.level(levelOf(record));
    if (Spans problem = fields.problem(); !problem.empty()) {
        return notMade(std::move(problem));
    }
    const Place place = {0, 0, &kind, level};
    Exercise exercise = make(place, record);
    exercise.description = textOf(write(record), place, levelOf(record));
    return madeOf(std::move(exercise));
}

} // namespace lesson
