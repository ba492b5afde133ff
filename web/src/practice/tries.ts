// What one exercise has come to, as data and pure steps from one state to the next.
import type { Mark, Settings, Verdict } from "../types";

// At the first try; at a later one, wrong before; with a hint or a step; shown before it was solved.
export const results = ["first", "later", "help", "shown"] as const;
export type Result = (typeof results)[number];

export interface Progress {
    typed: string;
    failed: number; // tries that count and were wrong, until there is a result
    marked: string | null; // the text that the mark was given for
    decimal: Settings["decimal"]; // the sign by which it was read
    steps: number; // presses of "Show a step", so one more than there are steps once all is shown
    result: Result | null;
}

export interface Typed {
    text: string;
    decimal: Settings["decimal"];
}

export function resultOf(value: unknown): Result | null {
    return results.find((result) => result === value) ?? null;
}

// So many failed tries, and help is offered.
export const triesBeforeHelp = 2;

const harmless: ReadonlySet<Verdict> = new Set(["unreadable", "figures", "close"]);

// A try that counts is one that was read and was neither nearly right nor only badly rounded.
export function afterMark(progress: Progress, { text, decimal }: Typed, mark: Mark): Progress {
    const marked = { ...progress, typed: text, marked: text, decimal };
    if (progress.result !== null) {
        return marked;
    }
    if (mark.verdict === "correct") {
        return { ...marked, result: solvedHow(progress) };
    }
    return { ...marked, failed: progress.failed + (harmless.has(mark.verdict) ? 0 : 1) };
}

function solvedHow(progress: Progress): Result {
    return progress.steps > 0 ? "help" : progress.failed > 0 ? "later" : "first";
}

// The first press shows the hint to the first step; each further one a step, and the hint to the next.
export function afterStep(progress: Progress, all: number): Progress {
    const steps = Math.min(progress.steps + 1, all + 1);
    return { ...progress, steps, result: steps > all ? (progress.result ?? "shown") : progress.result };
}

export function afterAnswer(progress: Progress, all: number): Progress {
    return { ...progress, steps: all + 1, result: progress.result ?? "shown" };
}

export function typed(progress: Progress, text: string): Progress {
    return { ...progress, typed: text };
}

// The mark is of another answer than the one that stands in the field.
export function isMarkStale({ typed, marked }: Progress): boolean {
    return marked !== null && marked.trim() !== typed.trim();
}

export function offersHelp(progress: Progress): boolean {
    return progress.result === null && progress.failed >= triesBeforeHelp && progress.steps === 0;
}

export function isShownWhole(progress: Progress, all: number): boolean {
    return progress.steps > all;
}
