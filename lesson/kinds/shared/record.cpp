#include "lesson/kinds/shared/record.hpp"

namespace lesson
{

std::string textOf(Description description, const Place& place, int levelOfRecord)
{
    if (place.level != levelOfRecord) {
        description.with("level", std::to_string(place.level));
    }
    return std::string(place.kind->slug) + description.fields;
}

NamedExercise notMade(Spans problem)
{
    return {{}, std::move(problem)};
}

NamedExercise madeOf(Exercise exercise)
{
    return {std::move(exercise), {}};
}

} // namespace lesson
