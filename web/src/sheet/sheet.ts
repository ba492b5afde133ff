// What a sheet is, as data: its papers, its exercises in order.
import { countOf, kindOf, mostExercises, oneByOne, spelt } from "../shared/exercise-list";
import { greatestPaper } from "../shared/paper";
import type { PracticeRoute, SheetEntry, SheetRoute } from "../types";

export const mostVersions = 30;
export const longestTitle = 80;

export const usualSheet: Omit<SheetRoute, "paper"> = {
    view: "sheet",
    entries: [
        { kind: "concentration", level: 1, count: 2 },
        { kind: "dilution", level: 1, count: 2 },
        { kind: "titration", level: 2, count: 2 },
    ],
    versions: 1,
    title: "Chemical calculations",
    room: "some",
    masses: "shown",
    columns: "auto",
    drawings: false,
    marks: false,
    leaf: true,
    parts: "both",
    key: "line",
    keys: "together",
    size: "A4",
};

// The same exercises as a set, for one of the versions.
export function practiceOf({ entries }: SheetRoute, paper: number): PracticeRoute {
    return { view: "practice", paper, number: 1, kinds: spelt(entries), set: countOf(entries) };
}

// One a version, consecutive; behind the greatest comes 1.
export function papersOf(route: SheetRoute): number[] {
    return Array.from({ length: route.versions }, (_, at) => ((route.paper - 1 + at) % greatestPaper) + 1);
}

export function isFew(route: SheetRoute): boolean {
    return countOf(route.entries) * route.versions <= mostExercises;
}

// In the order of the sheet, as the library is asked for them.
export function exercisesOf(entries: SheetEntry[]): { kind: string; number: number }[] {
    return oneByOne(entries).map((one) => ({ kind: kindOf(one), number: one.number }));
}
