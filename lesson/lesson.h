#pragma once

// The lesson for a front end in any language: C linkage, UTF-8 in and out, every result a JSON
// text, but for a file by `lesson_export`, that holds until the next call of the same function on
// the same thread. docs/lesson.md describes the results.
//
// Arguments that mean nothing give {"error": "…"}, a sentence: a null pointer, a paper or a number
// outside 1 to 999999, kinds or a sheet that cannot be read (lesson/choice.hpp), an unknown format.

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

// The exercises of a sheet ("4*titration:2,3*dilution,titration@9"), those of each entry numbered
// from 1 or from the number behind its @, as the text of a file for another program: "moodle" gives
// XML for Moodle's question bank, "anki" lines of cards, as many as fit a card. Only an error is
// JSON, and begins with "{", which no file does; for Anki it is one too where no exercise of the
// sheet fits a card.
const char* lesson_export(unsigned paper, const char* sheet, const char* format);

#ifdef __cplusplus
}
#endif
