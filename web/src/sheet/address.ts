// What a sheet is, as data: its address and back, its papers, its exercises in order.
import { countOf, isCount, kindOf, listOf, mostExercises, oneByOne, readList, spelt } from "../shared/exercise-list";
import { greatestPaper, isPaper } from "../shared/paper";
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

// The first of each is what an address without it means.
const choices = {
    room: ["some", "much", "none"],
    masses: ["shown", "table"],
    columns: ["auto", "one"],
    parts: ["both", "sheet", "key"],
    key: ["line", "working"],
    keys: ["together", "apart"],
    size: ["A4", "Letter"],
} as const;

type Choice = keyof typeof choices;

// In an address 1 or 0; without it, what they usually are.
const flags = ["drawings", "marks", "leaf"] as const;

type Flag = (typeof flags)[number];

const written = ["versions", "title", "room", "masses", "columns", "drawings", "marks", "parts", "key", "keys", "leaf", "size"] as const;

// Of the parts behind "#sheet/" and the options behind "?"; null where they name no sheet.
export function sheetOf(parts: string[], options: URLSearchParams): SheetRoute | null {
    const [paper = "", list = ""] = parts;
    const entries = readList(list);
    const versions = options.get("versions") ?? "1";
    const title = options.get("title") ?? usualSheet.title;
    const chosen = choicesOf(options);
    const set = flagsOf(options);
    const isRead = parts.length === 2 && isPaper(paper) && entries !== null && chosen !== null && set !== null;
    if (!isRead || !isCount(versions, mostVersions) || title.length > longestTitle) {
        return null;
    }
    const route: SheetRoute = {
        ...usualSheet,
        ...chosen,
        ...set,
        paper: Number(paper),
        entries,
        versions: Number(versions),
        title,
    };
    return isFew(route) ? route : null;
}

export function sheetAddress(route: SheetRoute, version: number): string {
    const options = new URLSearchParams();
    for (const key of written) {
        if (route[key] !== usualSheet[key]) {
            options.set(key, valueOf(route[key]));
        }
    }
    options.set("v", String(version));
    return `#sheet/${route.paper}/${listOf(route.entries)}?${options}`;
}

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

function choicesOf(options: URLSearchParams): Pick<SheetRoute, Choice> | null {
    const chosen = Object.entries(choices).map(([key, values]) => [key, options.get(key) ?? values[0]] as const);
    const isKnown = chosen.every(([key, value]) => (choices[key as Choice] as readonly string[]).includes(value));
    return isKnown ? (Object.fromEntries(chosen) as Pick<SheetRoute, Choice>) : null;
}

function flagsOf(options: URLSearchParams): Pick<SheetRoute, Flag> | null {
    const set = flags.map((key) => [key, options.get(key) ?? valueOf(usualSheet[key])] as const);
    const isKnown = set.every(([, value]) => value === "1" || value === "0");
    return isKnown ? (Object.fromEntries(set.map(([key, value]) => [key, value === "1"])) as Pick<SheetRoute, Flag>) : null;
}

// As it stands in an address.
function valueOf(value: string | number | boolean): string {
    return typeof value === "boolean" ? (value ? "1" : "0") : String(value);
}
