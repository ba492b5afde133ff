#pragma once

#include "lesson/paper/draws.hpp"
#include "lesson/paper/place.hpp"

// The seeds of a paper: what makes the draws of each of its exercises its own.
namespace lesson
{

// The draws of an exercise whose quantities are drawn freely.
Draws drawsFor(const Place& place);

// The member of a finite pool that an exercise is about: the paper walks through the pool.
int memberFor(const Place& place, const Pool& pool);

} // namespace lesson
