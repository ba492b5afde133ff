// A list of exercises as the library reads it, "4*titration,dilution:1@7", and what is in it one by one.
import type { SheetEntry } from "../types";

export const mostExercises = 1000; // of one sheet, and of all its versions together
export const greatestNumber = 999999;
const usualLevel = 2;

// One exercise of any paper.
export interface Numbered {
    kind: string;
    level: number;
    number: number;
}

export function listOf(entries: SheetEntry[]): string {
    return entries
        .map(
            (entry) => `${entry.count === 1 ? "" : `${entry.count}*`}${kindOf(entry)}${entry.first === undefined ? "" : `@${entry.first}`}`,
        )
        .join(",");
}

// With each count spelt out, so that it is never taken for a choice of kinds: "4*titration,1*dilution:1@7".
export function spelt(entries: SheetEntry[]): string {
    return entries.map((entry) => (entry.count === 1 ? `1*${listOf([entry])}` : listOf([entry]))).join(",");
}

export function isList(kinds: string): boolean {
    return /[*@]/.test(kinds);
}

// As the library reads a kind: "titration", "dilution:1".
export function kindOf({ kind, level }: { kind: string; level: number }): string {
    return level === usualLevel ? kind : `${kind}:${level}`;
}

export function countOf(entries: SheetEntry[]): number {
    return entries.reduce((sum, entry) => sum + entry.count, 0);
}

export function oneByOne(entries: SheetEntry[]): Numbered[] {
    return entries.flatMap(({ kind, level, count, first = 1 }) =>
        Array.from({ length: count }, (_, at) => ({ kind, level, number: first + at })),
    );
}

// What follows each other by number as well is one entry.
export function entriesOf(exercises: Numbered[]): SheetEntry[] {
    const entries: SheetEntry[] = [];
    for (const one of exercises) {
        const last = entries[entries.length - 1];
        if (last !== undefined && last.kind === one.kind && last.level === one.level && (last.first ?? 1) + last.count === one.number) {
            last.count += 1;
        } else {
            entries.push({ kind: one.kind, level: one.level, count: 1, ...firstOf(one.number) });
        }
    }
    return entries;
}

// Null for a list that cannot be read, has too many exercises or one of them twice.
export function readList(text: string): SheetEntry[] | null {
    const entries = text.split(",").map(entryOf);
    const read = entries.filter((entry): entry is SheetEntry => entry !== null);
    return read.length === entries.length && countOf(read) <= mostExercises && isEachOnce(read) ? read : null;
}

function isEachOnce(entries: SheetEntry[]): boolean {
    const names = oneByOne(entries).map((one) => `${kindOf(one)}@${one.number}`);
    return new Set(names).size === names.length;
}

function entryOf(text: string): SheetEntry | null {
    const [, count = "1", kind, level = String(usualLevel), first = "1"] =
        /^(?:(\d+)\*)?([a-z][a-z-]*)(?::([123]))?(?:@(\d+))?$/.exec(text) ?? [];
    if (kind === undefined || !isCount(count, mostExercises) || !isCount(first, greatestNumber + 1 - Number(count))) {
        return null;
    }
    return { kind, level: Number(level), count: Number(count), ...firstOf(Number(first)) };
}

function firstOf(number: number): { first?: number } {
    return number === 1 ? {} : { first: number };
}

// A whole number from 1, without zeros in front.
export function isCount(text: string, most: number): boolean {
    return /^[1-9]\d{0,5}$/.test(text) && Number(text) <= most;
}
