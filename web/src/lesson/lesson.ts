// The lesson library behind its functions, asked in the reader's writing.
import { type Argument, type LessonFunction, type LessonModule, textOf } from "../../../lesson/border/module.mjs";
import type { Exercise, KindInfo, Lesson, Mark, Settings, Span, Tables } from "../types";

export function lessonOf(module: LessonModule, settings: () => Settings): Lesson {
    const told = new Map<string, unknown>(); // what takes longer than an exercise, once in each writing
    const json = (name: LessonFunction, ...args: Argument[]): unknown => JSON.parse(textOf(module, name, ...args));
    const once = (name: LessonFunction, writing: string): unknown => {
        const key = `${name} ${writing}`;
        if (!told.has(key)) {
            told.set(key, json(name, writing));
        }
        return told.get(key);
    };
    const present = () => writingOf(settings());
    return {
        kinds: () => once("lesson_kinds", present()) as KindInfo[],
        tables: (names) => once("lesson_tables", names === undefined ? present() : writingOf({ ...settings(), names })) as Tables,
        exercise(paper, number, kinds) {
            const result = json("lesson_exercise", `${paper}/${number}/${kinds}`, present()) as Exercise | { error: string };
            return "error" in result ? null : result;
        },
        mark(paper, number, kinds, typed, decimal) {
            const writing = writingOf({ ...settings(), ...(decimal === undefined ? {} : { decimal }) });
            return json("lesson_mark", `${paper}/${number}/${kinds}`, typed, writing) as Mark;
        },
        read: (paper, number, kinds, typed) =>
            (json("lesson_read", `${paper}/${number}/${kinds}`, typed, present()) as { read: Span[] }).read,
        exported(paper, sheet, format) {
            const text = textOf(module, "lesson_export", `${paper}/${sheet}`, format, present());
            // No file of these formats begins with a brace.
            return text.startsWith("{") ? (JSON.parse(text) as { error: string }) : { file: text };
        },
    };
}

// As the library reads it: "en-GB", "en-US;decimal=,;volume=cm3;per=power".
export function writingOf({ names, decimal, volume, per }: Settings): string {
    return [
        names === "american" ? "en-US" : "en-GB",
        ...(decimal === "," ? ["decimal=,"] : []),
        ...(volume === "cm3" ? ["volume=cm3"] : []),
        ...(per === "power" ? ["per=power"] : []),
    ].join(";");
}
