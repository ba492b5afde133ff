// What the exercises of this tab have come to, so that a reload loses nothing.
import { type Progress, resultOf } from "./state";
import { countOf, fieldsOf, read, write } from "./storage";

function keyOf(place: string): string {
    return `chempractice.exercise.${place}`;
}

export function progressOf(place: string): Progress {
    const { typed, failed, marked, steps, result } = fieldsOf(read("sessionStorage", keyOf(place)));
    return {
        typed: typeof typed === "string" ? typed : "",
        failed: countOf(failed),
        marked: typeof marked === "string" ? marked : null,
        steps: countOf(steps),
        result: resultOf(result),
    };
}

export function keepProgress(place: string, progress: Progress): void {
    write("sessionStorage", keyOf(place), progress);
}
