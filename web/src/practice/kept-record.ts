// The record: by kind, how the exercises were solved that were done on this device.

import { countOf, fieldsOf, read, remove, write } from "../shared/storage";
import { type Result, results } from "./tries";

// How many there are of each result; how many of the last ones in a row at the first try; whether those
// were ever as many as tick a kind.
export type Tally = Record<Result, number> & { row: number; ticked: boolean };
export type Tallies = Partial<Record<string, Tally>>;

const key = "chempractice.record";
const rowThatTicks = 3;

export function record(): Tallies {
    const kept = Object.entries(fieldsOf(read("localStorage", key)));
    return Object.fromEntries(kept.map(([kind, tally]) => [kind, tallyOf(tally)] as const).filter(([, tally]) => isUsed(tally)));
}

function tallyOf(kept: unknown): Tally {
    const { first, later, help, shown, row, ticked } = fieldsOf(kept);
    return {
        first: countOf(first),
        later: countOf(later),
        help: countOf(help),
        shown: countOf(shown),
        row: countOf(row),
        ticked: ticked === true,
    };
}

function isUsed(tally: Tally): boolean {
    return results.some((result) => tally[result] > 0);
}

// Read anew before it is changed, since another tab may have written.
export function addToRecord(kind: string, result: Result): void {
    const tallies = record();
    const tally = tallies[kind] ?? tallyOf(null);
    const row = result === "first" ? tally.row + 1 : 0;
    const added = { ...tally, [result]: tally[result] + 1, row, ticked: tally.ticked || row >= rowThatTicks };
    write("localStorage", key, { ...tallies, [kind]: added });
}

export function clearRecord(): void {
    remove("localStorage", key);
}
