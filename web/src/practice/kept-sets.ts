// Sets of exercises, kept on the device by their address until they are cleared: a teacher's only evidence
// of what was solved how. Each is an entry of its own in the store, so that two tabs with two sets never
// write over each other; two tabs with one set read it anew before each write.
import { addressOfSet, routeOf } from "../address";
import { countOf, decimalOf, fieldsOf, keysBehind, read, remove, write } from "../shared/storage";
import type { PracticeRoute } from "../types";
import { type Progress, resultOf } from "./tries";

// What an exercise has come to, without what is being typed, which is a tab's own.
export type Done = Omit<Progress, "typed">;

export interface KeptSet {
    begun: number; // milliseconds since 1970
    touched: number; // when it was last worked at
    worked: number; // milliseconds
    exercises: ReadonlyMap<number, Done>; // by number; none that was not tried
}

// The time that was worked at a set, from a clock that began at `begun`.
export interface Spent {
    begun: number;
    worked: number;
    now: number;
}

const prefix = "chempractice.set.";
const most = 50;

export function keptSet(route: PracticeRoute): KeptSet | null {
    return setIn(prefix + addressOfSet(route), route.set);
}

// The numbers of the exercises without a result.
export function openIn(route: PracticeRoute): number[] {
    const exercises = keptSet(route)?.exercises;
    const numbers = Array.from({ length: route.set }, (_, at) => at + 1);
    return numbers.filter((number) => (exercises?.get(number)?.result ?? null) === null);
}

// The one last worked at comes first.
export function keptSets(): { route: PracticeRoute; kept: KeptSet }[] {
    return keysBehind("localStorage", prefix)
        .flatMap((address) => {
            const route = routeOf(address);
            const kept = route.view === "practice" && route.set > 0 ? keptSet(route) : null;
            return route.view === "practice" && kept !== null ? [{ route, kept }] : [];
        })
        .sort((one, other) => other.kept.touched - one.kept.touched);
}

function setIn(key: string, length: number): KeptSet | null {
    const { begun, touched, worked, exercises } = fieldsOf(read("localStorage", key));
    const done = fieldsOf(exercises);
    const numbers = Array.from({ length }, (_, at) => at + 1);
    const tried = numbers.map((number) => [number, doneOf(done[number])] as const).filter(([, one]) => isTried(one));
    return tried.length === 0
        ? null
        : { begun: countOf(begun), touched: countOf(touched), worked: countOf(worked), exercises: new Map(tried) };
}

function doneOf(kept: unknown): Done {
    const { failed, marked, decimal, steps, result } = fieldsOf(kept);
    return {
        failed: countOf(failed),
        marked: typeof marked === "string" ? marked : null,
        decimal: decimalOf(decimal),
        steps: countOf(steps),
        result: resultOf(result),
    };
}

function isTried({ marked, steps, result }: Done): boolean {
    return marked !== null || steps > 0 || result !== null;
}

export function keepInSet(route: PracticeRoute, { failed, marked, decimal, steps, result }: Done, spent: Spent): void {
    const before = keptSet(route);
    const exercises = new Map(before?.exercises).set(route.number, { failed, marked, decimal, steps, result });
    writeSet(route, { begun: spent.begun, worked: 0, touched: 0, ...before, exercises }, spent);
    if (before === null) {
        dropOldest();
    }
}

// Whether there was a set to add it to.
export function addTime(route: PracticeRoute, spent: Spent): boolean {
    const before = keptSet(route);
    if (before !== null) {
        writeSet(route, before, spent);
    }
    return before !== null;
}

// Never more time than has passed, though two windows may stand side by side.
function writeSet(route: PracticeRoute, { begun, worked, exercises }: KeptSet, spent: Spent): void {
    const from = begun > 0 ? begun : spent.begun;
    const time = { begun: from, touched: spent.now, worked: Math.min(worked + spent.worked, Math.max(0, spent.now - from)) };
    write("localStorage", prefix + addressOfSet(route), { ...time, exercises: Object.fromEntries(exercises) });
}

function dropOldest(): void {
    const keys = keysBehind("localStorage", prefix).map((address) => prefix + address);
    const touched = (key: string) => countOf(fieldsOf(read("localStorage", key)).touched);
    const oldestFirst = keys.map((key) => [touched(key), key] as const).sort(([one], [other]) => one - other);
    oldestFirst.slice(0, Math.max(0, keys.length - most)).forEach(([, key]) => remove("localStorage", key));
}

export function clearSet(route: PracticeRoute): void {
    remove("localStorage", prefix + addressOfSet(route));
}

export function clearSets(): void {
    keysBehind("localStorage", prefix).forEach((address) => remove("localStorage", prefix + address));
}
