// What questions have in common, so that it stands on a sheet once: how many figures are wanted, and the
// words around what is asked for.

import type { Exercise, Form, SheetRoute, Span } from "../types";
import { marksOf } from "./worth";

// Exercises that follow each other, from `from` up to, not with, `to`. Under a frame each says only its
// own part of the question.
export interface Group {
    from: number;
    to: number;
    frame: Span[] | null; // "Write the formula of the … ion, together with its charge."
}

const fewest = 4; // fewer take no less room under a frame
const shortForms: Form[] = ["formula", "ion", "solubility"];

// How many figures all the numbers are to have; null where they differ or only one is asked for.
export function agreedFigures(exercises: Exercise[]): number | null {
    const figures = exercises.flatMap(({ ask }) => ask.figures ?? []);
    return figures.length > 1 && new Set(figures).size === 1 ? figures[0]! : null;
}

export function groupsOf(exercises: Exercise[], { columns, room }: Pick<SheetRoute, "columns" | "room">): Group[] {
    const words = exercises.map((exercise) => (columns === "auto" && isShort(exercise, room) ? wordsOf(exercise) : ""));
    const groups: Group[] = [];
    for (let from = 0, to = 0; from < exercises.length; from = to) {
        to = endOf(words, from);
        const frame = words[from] !== "" && to - from >= fewest ? frameOf(exercises[from]!) : null;
        const last = groups[groups.length - 1];
        if (frame === null && last?.frame === null) {
            last.to = to;
        } else {
            groups.push({ from, to, frame });
        }
    }
    return groups;
}

// What is asked for, without the words around it: "iron(II) sulfate, FeSO4".
export function ownPartOf({ prompt }: Exercise): Span[] {
    const [from, to] = boundsOf(prompt);
    return prompt.slice(from, to);
}

// Half a page is wide enough for these, but not for a calculation that wants much room.
function isShort({ ask }: Exercise, room: SheetRoute["room"]): boolean {
    return shortForms.includes(ask.form) || (ask.quantity === "M" && room !== "much");
}

function wordsOf(exercise: Exercise): string {
    return JSON.stringify([frameOf(exercise), exercise.ask.figures, marksOf(exercise)]);
}

function endOf(words: string[], from: number): number {
    const end = words.findIndex((word, at) => at > from && word !== words[from]);
    return end < 0 ? words.length : end;
}

function frameOf({ prompt }: Exercise): Span[] {
    const [from, to] = boundsOf(prompt);
    const [next, ...rest] = prompt.slice(to);
    const behind = next !== undefined && "text" in next ? next.text.replace(/^[,.]/, "") : "";
    return [...prompt.slice(0, from), { text: `…${behind}` }, ...rest];
}

// From the first name to the last name or formula.
function boundsOf(prompt: Span[]): [number, number] {
    const own = prompt.map((span) => "name" in span || "formula" in span);
    return [own.indexOf(true), own.lastIndexOf(true) + 1];
}
