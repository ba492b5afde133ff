// Which kinds and levels are chosen: as an address writes them, one by one, and in words.
import { isList, kindOf, readList } from "../shared/exercise-list";
import type { KindInfo } from "../types";
import { texts } from "../words/texts";

const usualLevel = "2";

// What a list holds as a choice of kinds, which has no end; a choice as it is.
export function choiceIn(kinds: string, all: KindInfo[]): string {
    return isList(kinds) ? shortest([...new Set((readList(kinds) ?? []).flatMap((entry) => entriesOf(kindOf(entry), all)))], all) : kinds;
}

// "dilution:2", level by level: "mixed" is level 2 of each kind.
export function entriesOf(kinds: string, all: KindInfo[]): string[] {
    const entries = kinds === "mixed" ? all.map((info) => info.kind) : kinds.split(",");
    return entries.map((entry) => (entry.includes(":") ? entry : `${entry}:${usualLevel}`));
}

export function shortest(entries: string[], all: KindInfo[]): string {
    const isMixed = entries.length === all.length && entries.every((entry) => entry.endsWith(`:${usualLevel}`));
    return isMixed ? "mixed" : entries.map((entry) => entry.replace(`:${usualLevel}`, "")).join(",");
}

// What is chosen now, where it was `before`: the same choice keeps its order, which a paper's exercises
// depend on.
export function changedTo(entries: string[], before: string, all: KindInfo[]): string {
    const present = new Set(entriesOf(before, all));
    const isSame = entries.length === present.size && entries.every((entry) => present.has(entry));
    return isSame ? before : shortest(entries, all);
}

// The first ones by name.
export function inWords(kinds: string, all: KindInfo[]): string {
    if (kinds === "mixed") {
        return texts.everyKind;
    }
    const entries = entriesOf(kinds, all);
    const named = entries.slice(0, 2).map((entry) => {
        const [kind = "", level] = entry.split(":");
        return texts.kindAndLevel(all.find((info) => info.kind === kind)?.title ?? kind, Number(level));
    });
    return texts.listOf(named, entries.length - named.length);
}
