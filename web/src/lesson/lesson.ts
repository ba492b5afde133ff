import type { Exercise, KindInfo, Lesson, Mark, Tables } from "../types";
import { type Exports, withTexts } from "./memory";

// The lesson library behind its five functions.
export function lessonOf(module: Exports): Lesson {
    let tables: Tables | null = null; // takes longer than an exercise, so it is made once
    return {
        kinds: () => JSON.parse(withTexts(module, [], module.lesson_kinds)) as KindInfo[],
        tables: () => (tables ??= JSON.parse(withTexts(module, [], module.lesson_tables)) as Tables),
        exercise(paper, number, kinds) {
            const json = withTexts(module, [kinds], (kind) => module.lesson_exercise(paper, number, kind!));
            const result = JSON.parse(json) as Exercise | { error: string };
            return "error" in result ? null : result;
        },
        mark(paper, number, kinds, typed) {
            const json = withTexts(module, [kinds, typed], (kind, text) => module.lesson_mark(paper, number, kind!, text!));
            return JSON.parse(json) as Mark;
        },
        exported(paper, sheet, format) {
            const text = withTexts(module, [sheet, format], (list, name) => module.lesson_export(paper, list!, name!));
            // No file of these formats begins with a brace.
            return text.startsWith("{") ? (JSON.parse(text) as { error: string }) : { file: text };
        },
    };
}
