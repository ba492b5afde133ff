// The lesson library behind its functions.
import { type Argument, type LessonFunction, type LessonModule, textOf } from "../../../lesson/border/module.mjs";
import type { Exercise, KindInfo, Lesson, Mark, Tables } from "../types";

export function lessonOf(module: LessonModule): Lesson {
    let tables: Tables | null = null; // takes longer than an exercise, so it is made once
    const json = (name: LessonFunction, ...args: Argument[]): unknown => JSON.parse(textOf(module, name, ...args));
    return {
        kinds: () => json("lesson_kinds", null) as KindInfo[],
        tables: () => (tables ??= json("lesson_tables", null) as Tables),
        exercise(paper, number, kinds) {
            const result = json("lesson_exercise", `${paper}/${number}/${kinds}`, null) as Exercise | { error: string };
            return "error" in result ? null : result;
        },
        mark: (paper, number, kinds, typed) => json("lesson_mark", `${paper}/${number}/${kinds}`, typed, null) as Mark,
        exported(paper, sheet, format) {
            const text = textOf(module, "lesson_export", `${paper}/${sheet}`, format, null);
            // No file of these formats begins with a brace.
            return text.startsWith("{") ? (JSON.parse(text) as { error: string }) : { file: text };
        },
    };
}
