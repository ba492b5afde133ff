// Practice of a list: exercise n is the n-th that the list names. The library knows kinds alone, so a list is
// resolved in front of it, for whoever asks.
import { isList, kindOf, oneByOne, readList } from "../shared/exercise-list";
import type { Lesson, SheetEntry } from "../types";

interface Asked {
    number: number;
    kinds: string;
}

export function withLists(lesson: Lesson): Lesson {
    const askedOf = remembered((list: string) => askedIn(list, lesson));
    const resolve = (number: number, kinds: string) => (isList(kinds) ? askedOf(kinds)[number - 1] : { number, kinds });
    return {
        ...lesson,
        exercise(paper, number, kinds) {
            const asked = resolve(number, kinds);
            return asked === undefined ? null : lesson.exercise(paper, asked.number, asked.kinds);
        },
        mark(paper, number, kinds, typed, decimal) {
            const asked = resolve(number, kinds) ?? { number, kinds };
            return lesson.mark(paper, asked.number, asked.kinds, typed, decimal);
        },
        read(paper, number, kinds, typed) {
            const asked = resolve(number, kinds) ?? { number, kinds };
            return lesson.read(paper, asked.number, asked.kinds, typed);
        },
    };
}

// Nothing where the list cannot be read or names a kind that the library does not know.
function askedIn(list: string, lesson: Lesson): Asked[] {
    const entries = readList(list) ?? [];
    const known = new Set(lesson.kinds().map(({ kind }) => kind));
    const isKnown = ({ kind }: SheetEntry) => known.has(kind);
    return entries.every(isKnown) ? oneByOne(entries).map((one) => ({ number: one.number, kinds: kindOf(one) })) : [];
}

// The last one, which is asked for again and again.
function remembered<Value>(make: (key: string) => Value): (key: string) => Value {
    let last: { key: string; value: Value } | null = null;
    return (key) => {
        if (last === null || last.key !== key) {
            last = { key, value: make(key) };
        }
        return last.value;
    };
}
