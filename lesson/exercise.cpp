#include "lesson/exercise.hpp"

#include "lesson/kinds/kind.hpp"

namespace lesson
{

Exercise::Exercise() : place{}, ask{} {}
Exercise::Exercise(const Exercise& other) = default;
Exercise::Exercise(Exercise&& other) noexcept = default;
Exercise& Exercise::operator=(const Exercise& other) = default;
Exercise& Exercise::operator=(Exercise&& other) noexcept = default;
Exercise::~Exercise() = default;

Exercise makeExercise(const Place& place)
{
    return place.kind->draw(place);
}

} // namespace lesson
