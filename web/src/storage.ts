// What is kept on the device, and nowhere else. Storage that is refused is no error: then the page
// forgets when it is closed.
import type { Settings } from "./types";

export type Result = "first" | "help" | "shown";

// By kind: how often it was solved at the first try, with help, or shown; and how many of the last
// ones in a row at the first try.
export interface Tally {
    first: number;
    help: number;
    shown: number;
    row: number;
    ticked: boolean;
}
export type Record_ = Partial<Record<string, Tally>>;

// What one exercise has come to, so that a reload loses nothing. Kept for the tab alone.
export interface Progress {
    typed: string;
    failed: number;
    marked: string | null; // the text that the mark was given for
    steps: number;
    result: Result | null;
}

const settingsKey = "chempractice.settings";
const recordKey = "chempractice.record";
const rowThatTicks = 3;

export const usualSettings: Settings = {
    volume: "mL",
    per: "slash",
    decimal: ".",
    names: "british",
};

const forgetful = new Map<string, string>();

// The first look into a store waits for the browser to fetch it. Who has time for that early has not to
// wait later.
export function open(): void {
    read("localStorage", settingsKey);
    read("sessionStorage", settingsKey);
}

function read(kind: "localStorage" | "sessionStorage", key: string): unknown {
    try {
        const text = window[kind].getItem(key) ?? forgetful.get(key) ?? "null";
        return JSON.parse(text) as unknown;
    } catch {
        return fallback(key);
    }
}

function fallback(key: string): unknown {
    return JSON.parse(forgetful.get(key) ?? "null") as unknown;
}

function write(kind: "localStorage" | "sessionStorage", key: string, value: unknown): void {
    forgetful.set(key, JSON.stringify(value));
    try {
        window[kind].setItem(key, JSON.stringify(value));
    } catch {
        // Refused: `forgetful` has it for as long as the page is open.
    }
}

function isObject(value: unknown): value is Record<string, unknown> {
    return typeof value === "object" && value !== null;
}

export function settings(): Settings {
    const kept = read("localStorage", settingsKey);
    const { volume, per, decimal, names } = isObject(kept) ? kept : {};
    return {
        volume: volume === "cm3" ? "cm3" : "mL",
        per: per === "power" ? "power" : "slash",
        decimal: decimal === "," ? "," : ".",
        names: names === "american" ? "american" : "british",
    };
}

export function keepSettings(chosen: Settings): void {
    write("localStorage", settingsKey, chosen);
}

export function record(): Record_ {
    const kept = read("localStorage", recordKey);
    const tallies: Record_ = {};
    for (const [kind, tally] of Object.entries(isObject(kept) ? kept : {})) {
        if (isTally(tally)) {
            tallies[kind] = tally;
        }
    }
    return tallies;
}

function isTally(value: unknown): value is Tally {
    return (
        isObject(value) &&
        [value["first"], value["help"], value["shown"], value["row"]].every(Number.isSafeInteger) &&
        typeof value["ticked"] === "boolean"
    );
}

// Read anew before it is changed, since another tab may have written.
export function addToRecord(kind: string, result: Result): void {
    const tallies = record();
    const tally = tallies[kind] ?? { first: 0, help: 0, shown: 0, row: 0, ticked: false };
    tally[result] += 1;
    tally.row = result === "first" ? tally.row + 1 : 0;
    tally.ticked ||= tally.row >= rowThatTicks;
    write("localStorage", recordKey, { ...tallies, [kind]: tally });
}

// With what the exercises of this tab have come to, so that nobody sees the answers of who sat here before.
export function clearRecord(): void {
    write("localStorage", recordKey, {});
    [...forgetful.keys()].filter(isProgress).forEach((key) => forgetful.delete(key));
    try {
        Object.keys(window.sessionStorage).filter(isProgress).forEach((key) => window.sessionStorage.removeItem(key));
    } catch {
        // Refused: there was nothing but in `forgetful`.
    }
}

function isProgress(key: string): boolean {
    return key.startsWith(progressKey(""));
}

// Where a view leads back to, as an address; empty where it was not opened in this tab.
export function placeLeft(view: "practice" | "sheet"): string {
    const kept = read("sessionStorage", `chempractice.left.${view}`);
    return typeof kept === "string" ? kept : "";
}

export function keepPlaceLeft(view: "practice" | "sheet", address: string): void {
    write("sessionStorage", `chempractice.left.${view}`, address);
}

function progressKey(place: string): string {
    return `chempractice.exercise.${place}`;
}

export function progressOf(place: string): Progress {
    const kept = read("sessionStorage", progressKey(place));
    const { typed, failed, marked, steps, result } = isObject(kept) ? kept : {};
    return {
        typed: typeof typed === "string" ? typed : "",
        failed: Number.isSafeInteger(failed) ? (failed as number) : 0,
        marked: typeof marked === "string" ? marked : null,
        steps: Number.isSafeInteger(steps) ? (steps as number) : 0,
        result: result === "first" || result === "help" || result === "shown" ? result : null,
    };
}

export function keepProgress(place: string, progress: Progress): void {
    write("sessionStorage", progressKey(place), progress);
}
