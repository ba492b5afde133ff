// The address behind the "#", to a route and back. Whatever it holds, it stays text.
import { countOf, isList, listOf, readList } from "./shared/exercise-list";
import { sheetAddress, sheetOf } from "./sheet/address";
import type { ExerciseLeft, KindInfo, PracticeRoute, Route, SheetRoute } from "./types";
import { texts } from "./words/texts";

// Of the exercises of each kind. An address tells those of the kinds that it names which are not the first.
const versions = new Map<string, number>();

export function knowVersions(kinds: Pick<KindInfo, "kind" | "version">[]): void {
    kinds.forEach(({ kind, version }) => versions.set(kind, version));
}

const greatest = 999999;
const longest = 30_000; // a sheet of 1000 exercises, each picked by hand

export function routeOf(hash: string): Route {
    const address = hash.replace(/^#/, "");
    if (address === "") {
        return { view: "start" };
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
        case "notices":
            return parts.length === 0 ? { view: "notices" } : bad();
        default:
            return bad();
    }
}

export function addressOf(route: PracticeRoute | SheetRoute): string {
    if (route.view === "sheet") {
        return sheetAddress(route, versionsIn(listOf(route.entries)));
    }
    const set = route.set > 0 ? `set=${route.set}&` : "";
    const back = route.back === undefined ? "" : `back=${route.back.number}:${route.back.kinds}&`;
    return `#practice/${route.paper}/${route.number}/${route.kinds}?${set}${back}v=${versionsIn(kindsOf(route))}`;
}

function kindsOf({ kinds, back }: Pick<PracticeRoute, "kinds" | "back">): string {
    return back === undefined ? kinds : `${kinds},${back.kinds}`;
}

// "1" where each is the first one, else "dilution:2,titration:3".
function versionsIn(kinds: string): string {
    const later = slugsIn(kinds).filter((kind) => versionOf(kind) > 1);
    return later.length === 0 ? "1" : later.map((kind) => `${kind}:${versionOf(kind)}`).join(",");
}

function versionOf(kind: string): number {
    return versions.get(kind) ?? 1;
}

// "4*titration:1,dilution@7" -> titration, dilution
function slugsIn(kinds: string): string[] {
    const named = kinds.split(",").map((one) => one.replace(/^\d+\*|[:@].*/g, ""));
    return [...new Set(named.flatMap((kind) => (kind === "mixed" ? [...versions.keys()] : kind)))].sort();
}

// Under which name a tab keeps what an exercise has come to: in a set another one than outside of it.
export function placeOf(route: PracticeRoute): string {
    return `${route.paper}/${route.number}/${route.kinds}${route.set > 0 ? `?set=${route.set}` : ""}`;
}

export function isInSet(place: string): boolean {
    return place.includes("?set=");
}

// A set is known by the address of its first exercise.
export function addressOfSet(route: PracticeRoute): string {
    return addressOf(atNumber(route, 1));
}

// The same choice of exercises at another number.
export function atNumber(route: PracticeRoute, number: number): PracticeRoute {
    return { ...route, number };
}

// From a side road back to the exercise that was left for it; any other exercise is itself.
export function mainRoad({ back, ...route }: PracticeRoute): PracticeRoute {
    return back === undefined ? route : { ...route, ...back };
}

// Far from the exercises that Next leads to, so that none of them has been practised here.
const aside = 500_000;

export function sideRoad(route: PracticeRoute, kind: string): PracticeRoute {
    const { number, kinds } = route;
    const ahead = route.back === undefined ? aside : 1;
    return { ...route, number: ((number - 1 + ahead) % greatest) + 1, kinds: kind, set: 0, back: route.back ?? { number, kinds } };
}

function practice(parts: string[], options: URLSearchParams): Route {
    const [paper, number, kinds = ""] = parts;
    const back = options.get("back");
    const left = back === null ? null : exerciseLeft(back);
    const set = setOf(kinds, options);
    if (parts.length !== 3 || !isNumber(paper) || !isNumber(number) || set === null) {
        return bad();
    }
    // No side road leads out of a set.
    if (back !== null && (left === null || set > 0)) {
        return bad();
    }
    const chosen = { kinds, ...(left === null ? {} : { back: left }) };
    if (isOfOtherVersion(kindsOf(chosen), options)) {
        return { view: "bad", of: "practice", message: texts.otherVersion };
    }
    return { view: "practice", paper: Number(paper), number: Number(number), set, ...chosen };
}

// A list is a set of as many exercises as it names, whatever else the address says. Null where there are no
// kinds or no length.
function setOf(kinds: string, options: URLSearchParams): number | null {
    if (isList(kinds)) {
        const entries = readList(kinds);
        return entries === null ? null : countOf(entries);
    }
    const set = options.get("set") ?? "0";
    return isKinds(kinds) && (!options.has("set") || isSet(set)) ? Number(set) : null;
}

// "4:titration:1,dilution" is exercise 4 of these kinds.
function exerciseLeft(text: string): ExerciseLeft | null {
    const [number, kinds] = splitAt(text, ":");
    return isNumber(number) && isKinds(kinds) ? { number: Number(number), kinds } : null;
}

function sheet(parts: string[], options: URLSearchParams): Route {
    if (parts.length === 0) {
        return { view: "none", of: "sheet" };
    }
    if (isOfOtherVersion(parts[1] ?? "", options)) {
        return { view: "bad", of: "sheet", message: texts.otherVersion };
    }
    return sheetOf(parts, options) ?? { view: "bad", of: "sheet", message: texts.badSheet };
}

// Of any of these kinds. An address that does not tell was made when each was the first one.
function isOfOtherVersion(kinds: string, options: URLSearchParams): boolean {
    const told = options.get("v") ?? "1";
    const made = new Map(told.split(",").map((one) => splitAt(one, ":")));
    const isKnown = told === "1" || [...made.values()].every((version) => isNumber(version));
    return !isKnown || slugsIn(kinds).some((kind) => Number(made.get(kind) ?? 1) !== versionOf(kind));
}

function bad(): Route {
    return { view: "bad", of: "practice", message: texts.badAddress };
}

function isNumber(text: string | undefined): boolean {
    return text !== undefined && /^[1-9]\d{0,5}$/.test(text) && Number(text) <= greatest;
}

function isKinds(text: string): boolean {
    return /^[a-z0-9:,-]+$/.test(text);
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
