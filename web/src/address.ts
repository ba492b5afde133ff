// The address behind the "#", to a route and back. Whatever it holds, it stays text.
import { sheetAddress, sheetOf } from "./sheet";
import type { PracticeRoute, Route, SheetRoute } from "./types";
import { texts } from "./texts";

// Raised with the library's exercises: an address made for others says so.
export const version = 1;
const greatest = 999999;
const longest = 2000;

export function routeOf(hash: string): Route {
    const address = hash.replace(/^#/, "");
    if (address === "") {
        return { view: "none", of: "practice" };
    }
    if (address.length > longest) {
        return bad();
    }
    const [path = "", query = ""] = splitAt(address, "?");
    const [view, ...parts] = path.split("/").map(decoded);
    const options = new URLSearchParams(query);
    switch (view) {
        case "practice":
            return practice(parts, options);
        case "sheet":
            return sheet(parts, options);
        case "tables":
            return parts.length === 0 ? { view: "tables" } : bad();
        default:
            return bad();
    }
}

export function addressOf(route: PracticeRoute | SheetRoute): string {
    if (route.view === "sheet") {
        return sheetAddress(route, version);
    }
    const set = route.set > 0 ? `set=${route.set}&` : "";
    return `#practice/${route.paper}/${route.number}/${route.kinds}?${set}v=${version}`;
}

// Under which name the device keeps what an exercise has come to.
export function placeOf(route: PracticeRoute): string {
    return `${route.paper}/${route.number}/${route.kinds}`;
}

// The same choice of exercises at another number.
export function atNumber(route: PracticeRoute, number: number): PracticeRoute {
    return { ...route, number };
}

function practice(parts: string[], options: URLSearchParams): Route {
    const [paper, number, kinds] = parts;
    const set = options.get("set");
    if (parts.length !== 3 || !isNumber(paper) || !isNumber(number) || kinds === undefined) {
        return bad();
    }
    if (!/^[a-z0-9:,-]+$/.test(kinds) || (set !== null && !isSet(set))) {
        return bad();
    }
    if (isOfOtherVersion(options)) {
        return { view: "bad", of: "practice", message: texts.otherVersion };
    }
    return {
        view: "practice",
        paper: Number(paper),
        number: Number(number),
        kinds,
        set: set === null ? 0 : Number(set),
    };
}

function sheet(parts: string[], options: URLSearchParams): Route {
    if (parts.length === 0) {
        return { view: "none", of: "sheet" };
    }
    if (isOfOtherVersion(options)) {
        return { view: "bad", of: "sheet", message: texts.otherVersion };
    }
    return sheetOf(parts, options) ?? { view: "bad", of: "sheet", message: texts.badSheet };
}

function isOfOtherVersion(options: URLSearchParams): boolean {
    const made = options.get("v");
    return made !== null && made !== String(version);
}

function bad(): Route {
    return { view: "bad", of: "practice", message: texts.badAddress };
}

function isNumber(text: string | undefined): boolean {
    return text !== undefined && /^[1-9]\d{0,5}$/.test(text) && Number(text) <= greatest;
}

function isSet(text: string): boolean {
    return /^[1-9]\d?$/.test(text);
}

function splitAt(text: string, mark: string): [string, string] {
    const at = text.indexOf(mark);
    return at < 0 ? [text, ""] : [text.slice(0, at), text.slice(at + 1)];
}

// A "%" with no two digits behind it is what it is.
function decoded(text: string): string {
    try {
        return decodeURIComponent(text);
    } catch {
        return text;
    }
}
