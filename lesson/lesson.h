#pragma once

// The lesson for a front end in any language: C linkage, UTF-8 in and out, every result a JSON
// text, but for a file by `lesson_export`, that holds until the next call of the same function on
// the same thread. docs/lesson.md describes the results.
//
// `exercise` names an exercise in one of two forms: drawn, "4821/3/titration:2", which is paper,
// number and kinds ("dilution", "dilution:1,titration" or "mixed"), or described, "dilution;
// substance=HCl;c1=6.00;V1=25.0;V2=500" without the blank, as every exercise tells it of itself.
//
// `writing` tells the language of the reader and how the reader writes numbers and units:
// "en-US;decimal=,;volume=cm3;per=power". Null or empty is "en-GB" with a point, mL and mol/L.
//
// Arguments that mean nothing give {"error": "…"}, a sentence: a null pointer, a paper or a number
// outside 1 to 999999, kinds, a description, a sheet or a writing that cannot be read, an unknown
// format.

#ifdef __cplusplus
extern "C" {
#endif

// The kinds of exercises in the order in which to list them, with a title and what each of the
// levels 1 to 3 asks for.
const char* lesson_kinds(const char* writing);

// The exercise, always the same one.
const char* lesson_exercise(const char* exercise, const char* writing);

// Marks what was typed for an exercise; any text gets a mark.
const char* lesson_mark(const char* exercise, const char* typed, const char* writing);

// What is read of what was typed for it, as a front end shows it while it is being typed; nothing
// where it says nothing that could be read. It gets the mark of what is shown.
const char* lesson_read(const char* exercise, const char* typed, const char* writing);

// The data that the exercises rest on.
const char* lesson_tables(const char* writing);

// The exercises of a sheet, "4821/4*titration:2,3*dilution,titration@9", those of each entry
// numbered from 1 or from the number behind its @, and among them described ones in square
// brackets, as the text of a file for another program: "moodle" gives XML for Moodle's question
// bank, "anki" lines of cards, as many as fit a card. Only an error is JSON, and begins with "{",
// which no file does; for Anki it is one too where no exercise of the sheet fits a card.
const char* lesson_export(const char* sheet, const char* format, const char* writing);

#ifdef __cplusplus
}
#endif
