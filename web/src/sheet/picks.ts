// The exercises of a sheet one by one: one replaced, one moved, more or fewer of a kind and level.
import { entriesOf, greatestNumber, kindOf, type Numbered, oneByOne } from "../shared/exercise-list";
import type { SheetEntry } from "../types";

export type Pick = "another" | "up" | "down";

// How many are wanted of each kind and level, in the order of the table.
export type Wanted = { kind: string; level: number; count: number }[];

// With one exercise replaced by the next of its kind and level that is not there, or moved by one place;
// null where there is no such place.
export function picked(entries: SheetEntry[], at: number, pick: Pick): SheetEntry[] | null {
    const exercises = oneByOne(entries);
    const one = exercises[at];
    const to = pick === "another" ? at : pick === "up" ? at - 1 : at + 1;
    const other = exercises[to];
    if (one === undefined || other === undefined) {
        return null;
    }
    exercises[at] = pick === "another" ? nextOf(one, exercises) : other;
    if (to !== at) {
        exercises[to] = one;
    }
    return entriesOf(exercises);
}

// With as many of each kind and level as are wanted. Where there are more now, the last ones go; where
// there are fewer, the next ones come behind them. All else stays in its place.
export function withCounts(entries: SheetEntry[], wanted: Wanted): SheetEntry[] {
    const ranks = new Map(wanted.map((one, at) => [kindOf(one), at]));
    const rankOf = (one: Numbered) => ranks.get(kindOf(one)) ?? ranks.size;
    let exercises = oneByOne(entries);
    const isInOrder = exercises.every((one, at) => at === 0 || rankOf(one) >= rankOf(exercises[at - 1]!));
    wanted.forEach(({ kind, level, count }, rank) => {
        const there = exercises.filter((one) => one.kind === kind && one.level === level);
        if (count < there.length) {
            const gone = new Set(there.slice(count));
            exercises = exercises.filter((one) => !gone.has(one));
        }
        const before = there.length > 0 ? (one: Numbered) => rankOf(one) === rank : (one: Numbered) => !isInOrder || rankOf(one) < rank;
        exercises.splice(placeBehind(exercises, before), 0, ...further({ kind, level }, there, count));
    });
    return entriesOf(exercises);
}

// Behind the last one that is meant; the first place where there is none.
function placeBehind(exercises: Numbered[], isMeant: (one: Numbered) => boolean): number {
    let place = 0;
    exercises.forEach((one, at) => {
        place = isMeant(one) ? at + 1 : place;
    });
    return place;
}

// Those that are missing to so many.
function further(ofKind: { kind: string; level: number }, there: Numbered[], count: number): Numbered[] {
    const taken = new Set(there.map(({ number }) => number));
    let number = Math.max(0, ...taken);
    return Array.from({ length: Math.max(0, count - there.length) }, () => {
        number = nextFree(number, taken);
        taken.add(number);
        return { ...ofKind, number };
    });
}

function nextOf(one: Numbered, exercises: Numbered[]): Numbered {
    const alike = exercises.filter(({ kind, level }) => kind === one.kind && level === one.level);
    return { ...one, number: nextFree(one.number, new Set(alike.map(({ number }) => number))) };
}

// Behind the greatest number comes 1.
function nextFree(number: number, taken: ReadonlySet<number>): number {
    const next = (number % greatestNumber) + 1;
    return taken.has(next) ? nextFree(next, taken) : next;
}
