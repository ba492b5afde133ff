#pragma once

#include "lesson/exercise.hpp"
#include "lesson/paper/draws.hpp"

namespace lesson
{

// One function a kind, each in the file of its name: it draws an exercise, and writes its prompt,
// its worked solution and its slips.
Exercise molarMassExercise(const Place& place);
Exercise compoundFormulaExercise(const Place& place);
Exercise ionFormulaExercise(const Place& place);
Exercise solubilityExercise(const Place& place);
Exercise concentrationExercise(const Place& place);
Exercise dilutionExercise(const Place& place);
Exercise neutralisationExercise(const Place& place);
Exercise titrationExercise(const Place& place);

// The draws of an exercise whose quantities are drawn freely.
Draws drawsFor(const Place& place);

// The member of a finite pool that an exercise is about: the paper walks through the pool.
int memberFor(const Place& place, const Pool& pool);

} // namespace lesson
