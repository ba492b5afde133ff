// The two stores of the browser, for the device and for the tab, and the small things in them: settings,
// and where each view was left. Storage that is refused is no error: then the page forgets when it is
// closed.
import type { Settings } from "../types";

type Store = "localStorage" | "sessionStorage";

const settingsKey = "chempractice.settings";
const kindsKey = "chempractice.kinds";

export const usualSettings: Settings = {
    volume: "mL",
    per: "slash",
    decimal: ".",
    names: "british",
    masses: "shown",
};

// What the browser refused to keep, for as long as the page is open.
const forgetful = new Map<string, string>();

// The first look into a store waits for the browser to fetch it. Who has time for that early has not to
// wait later.
export function open(): void {
    read("localStorage", settingsKey);
    read("sessionStorage", settingsKey);
}

// Null where nothing is kept that can be read.
export function read(store: Store, key: string): unknown {
    try {
        return JSON.parse(forgetful.get(key) ?? window[store].getItem(key) ?? "null") as unknown;
    } catch {
        return null;
    }
}

export function write(store: Store, key: string, value: unknown): void {
    const text = JSON.stringify(value);
    try {
        window[store].setItem(key, text);
        forgetful.delete(key);
    } catch {
        forgetful.set(key, text);
    }
}

export function remove(store: Store, key: string): void {
    forgetful.delete(key);
    try {
        window[store].removeItem(key);
    } catch {
        // Refused: it was nowhere else.
    }
}

// Without the prefix, which they all have.
export function keysBehind(store: Store, prefix: string): string[] {
    const keys = new Set([...keysOf(store), ...forgetful.keys()]);
    return [...keys].filter((key) => key.startsWith(prefix)).map((key) => key.slice(prefix.length));
}

function keysOf(store: Store): string[] {
    try {
        return Object.keys(window[store]);
    } catch {
        return [];
    }
}

// What is damaged, or another's, is taken field by field.
export function fieldsOf(value: unknown): Record<string, unknown> {
    return typeof value === "object" && value !== null ? (value as Record<string, unknown>) : {};
}

export function countOf(value: unknown): number {
    return Number.isSafeInteger(value) && (value as number) >= 0 ? (value as number) : 0;
}

export function decimalOf(value: unknown): Settings["decimal"] {
    return value === "," ? "," : ".";
}

export function settings(): Settings {
    const { volume, per, decimal, names, masses } = fieldsOf(read("localStorage", settingsKey));
    return {
        volume: volume === "cm3" ? "cm3" : "mL",
        per: per === "power" ? "power" : "slash",
        decimal: decimalOf(decimal),
        names: names === "american" ? "american" : "british",
        masses: masses === "table" ? "table" : "shown",
    };
}

export function keepSettings(chosen: Settings): void {
    write("localStorage", settingsKey, chosen);
}

// Where a view leads back to, as an address; empty where it was not opened in this tab.
export function placeLeft(view: "practice" | "sheet"): string {
    const kept = read("sessionStorage", `chempractice.left.${view}`);
    return typeof kept === "string" ? kept : "";
}

export function keepPlaceLeft(view: "practice" | "sheet", address: string): void {
    write("sessionStorage", `chempractice.left.${view}`, address);
}

// What was practised last on this device; empty where nothing was.
export function lastKinds(): string {
    const kept = read("localStorage", kindsKey);
    return typeof kept === "string" ? kept : "";
}

export function keepLastKinds(kinds: string): void {
    write("localStorage", kindsKey, kinds);
}
