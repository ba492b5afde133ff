#pragma once

// The lesson for a front end in any language: C linkage, UTF-8 in and out, every result a JSON text
// that holds until the next call of the same function on the same thread. docs/lesson.md describes
// the results.
//
// Arguments that mean nothing give {"error": "…"}, a sentence: a null pointer, a paper or a number
// outside 1 to 999999, kinds that cannot be read (lesson/choice.hpp).

#ifdef __cplusplus
extern "C" {
#endif

// The kinds of exercises in the order in which to list them, with a title and what each of the
// levels 1 to 3 asks for.
const char* lesson_kinds(void);

// Exercise `number` of a paper, always the same. `kind` is a slug ("dilution"), a slug and a level
// ("dilution:1"), several of these separated by commas, or "mixed".
const char* lesson_exercise(unsigned paper, unsigned number, const char* kind);

// Marks what was typed for the exercise that the same arguments make; any text gets a mark.
const char* lesson_mark(unsigned paper, unsigned number, const char* kind, const char* typed);

// The data that the exercises rest on.
const char* lesson_tables(void);

#ifdef __cplusplus
}
#endif
