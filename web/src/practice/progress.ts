// What an exercise has come to, so that a reload loses nothing. Outside sets the tab keeps it. In a set the
// device does, and the tab what is being typed.
import { isInSet, placeOf } from "../address";
import { countOf, decimalOf, fieldsOf, keysBehind, read, remove, write } from "../shared/storage";
import type { PracticeRoute } from "../types";
import * as sets from "./kept-sets";
import { spend, workAt } from "./time-worked";
import { type Progress, resultOf } from "./tries";

const prefix = "chempractice.exercise.";

export function progressOf(route: PracticeRoute): Progress {
    const kept = read("sessionStorage", prefix + placeOf(route));
    return route.set === 0 ? progressIn(kept) : joined(kept, sets.keptSet(route)?.exercises.get(route.number));
}

function progressIn(kept: unknown): Progress {
    const { typed, failed, marked, decimal, steps, result } = fieldsOf(kept);
    return {
        typed: typeof typed === "string" ? typed : "",
        failed: countOf(failed),
        marked: typeof marked === "string" ? marked : null,
        decimal: decimalOf(decimal),
        steps: countOf(steps),
        result: resultOf(result),
    };
}

// What was marked in this tab goes with its set, where that was cleared.
function joined(inTab: unknown, inSet: sets.Done | undefined): Progress {
    const { typed, marked, decimal } = progressIn(inTab);
    if (inSet === undefined) {
        return { ...progressIn(null), typed: typed === marked ? "" : typed };
    }
    return inTab === null ? { ...inSet, typed: inSet.marked ?? "" } : { ...inSet, typed, ...(marked === null ? {} : { marked, decimal }) };
}

export function keepTyped(route: PracticeRoute, progress: Progress): void {
    write("sessionStorage", prefix + placeOf(route), progress);
}

export function keepProgress(route: PracticeRoute, progress: Progress): void {
    keepTyped(route, progress);
    if (route.set > 0) {
        sets.keepInSet(route, progress, spend());
        workAt(route, progress.result === null);
    }
}

// With what this tab keeps of it.
export function forgetSet(route: PracticeRoute): void {
    sets.clearSet(route);
    for (let number = 1; number <= route.set; ++number) {
        remove("sessionStorage", prefix + placeOf({ ...route, number }));
    }
}

export function forgetSets(): void {
    sets.clearSets();
    const places = keysBehind("sessionStorage", prefix);
    places.filter(isInSet).forEach((place) => remove("sessionStorage", prefix + place));
}
