#pragma once

#include <cstddef>

// The exercises of one form of answer, "titration:1", and how many these are: each fuzz target of
// marks has its own.
extern const char* const markedKinds[];
extern const std::size_t markedKindCount;
