// The address of a sheet, to what it is and back.
import { isCount, listOf, readList } from "../shared/exercise-list";
import { isPaper } from "../shared/paper";
import type { SheetRoute } from "../types";
import { isFew, longestTitle, mostVersions, usualSheet } from "./sheet";

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

export function sheetAddress(route: SheetRoute, versions: string): string {
    const options = new URLSearchParams();
    for (const key of written) {
        if (route[key] !== usualSheet[key]) {
            options.set(key, textOf(route[key]));
        }
    }
    options.set("v", versions);
    return `#sheet/${route.paper}/${listOf(route.entries)}?${options}`;
}

function choicesOf(options: URLSearchParams): Pick<SheetRoute, Choice> | null {
    const chosen = Object.entries(choices).map(([key, values]) => [key, options.get(key) ?? values[0]] as const);
    const isKnown = chosen.every(([key, value]) => (choices[key as Choice] as readonly string[]).includes(value));
    return isKnown ? (Object.fromEntries(chosen) as Pick<SheetRoute, Choice>) : null;
}

function flagsOf(options: URLSearchParams): Pick<SheetRoute, Flag> | null {
    const set = flags.map((key) => [key, options.get(key) ?? textOf(usualSheet[key])] as const);
    const isKnown = set.every(([, value]) => value === "1" || value === "0");
    return isKnown ? (Object.fromEntries(set.map(([key, value]) => [key, value === "1"])) as Pick<SheetRoute, Flag>) : null;
}

// As it stands in an address.
function textOf(value: string | number | boolean): string {
    return typeof value === "boolean" ? (value ? "1" : "0") : String(value);
}
