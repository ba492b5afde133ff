// How many of each kind and level: a field for each, and below each kind what its levels ask for.
import { element } from "../dom";
import { isCount, kindOf, mostExercises } from "../sheet";
import { texts } from "../texts";
import type { KindInfo, SheetEntry } from "../types";
import type { Problem } from "./problems";

interface CountField {
    entry: Omit<SheetEntry, "count">;
    input: HTMLInputElement;
}

export interface Counts {
    element: HTMLElement;
    read(): { entries: SheetEntry[]; problems: Problem[] };
}

export function countFields(opened: SheetEntry[], kinds: KindInfo[]): Counts {
    const counts = kinds.flatMap((info) => info.levels.map((_, at) => countField(opened, info, at + 1)));
    const box = countRows(counts, kinds);
    let last = counts[0]!.input;
    box.addEventListener("input", (event) => {
        last = event.target as HTMLInputElement;
    });

    function read(): { entries: SheetEntry[]; problems: Problem[] } {
        const filled = counts.filter(({ input }) => input.validity.badInput || !/^0*$/.test(input.value));
        const wrong = filled.filter(({ input }) => !isCount(input.value, mostExercises));
        if (wrong.length > 0) {
            return { entries: [], problems: wrong.map(({ input }) => ({ field: input, sentence: texts.wrongCount(mostExercises) })) };
        }
        const entries = filled.map(({ entry, input }) => ({ ...entry, count: Number(input.value) }));
        return entries.length === 0
            ? { entries, problems: [{ field: last, sentence: texts.noCounts }] }
            : { entries: isInOrder(opened, counts) ? entries : inOrderOf(opened, entries), problems: [] };
    }

    return { element: box, read };
}

function countField(opened: SheetEntry[], info: KindInfo, level: number): CountField {
    const entry = { kind: info.kind, level };
    const count = opened.find((one) => kindOf(one) === kindOf({ ...entry, count: 0 }))?.count ?? "";
    const label = texts.fieldOf(info.title, level, info.levels[level - 1]!);
    const id = `count-${info.kind}-${level}`;
    return { entry, input: element("input", { id, type: "number", min: 0, max: mostExercises, value: count, class: "count", "aria-label": label }) };
}

// In the order of the table, but an address may have its own.
function isInOrder(entries: SheetEntry[], counts: CountField[]): boolean {
    const places = entries.map((one) => counts.findIndex(({ entry }) => entry.kind === one.kind && entry.level === one.level));
    return places.every((place, at) => at === 0 || place > places[at - 1]!);
}

function inOrderOf(first: SheetEntry[], entries: SheetEntry[]): SheetEntry[] {
    const names = first.map(kindOf);
    const placeOf = (entry: SheetEntry) => (names.includes(kindOf(entry)) ? names.indexOf(kindOf(entry)) : names.length);
    return [...entries].sort((one, other) => placeOf(one) - placeOf(other));
}

// fieldset
//   legend, p.hint
//   div.row.heads    what the columns are; each field's own label says it too
//   div.asked        for each kind
//     div.row        its title, and in div.levels a field a level
//     p.meanings     what each level asks for, as each field's own label says
function countRows(counts: CountField[], kinds: KindInfo[]): HTMLElement {
    const hint = element("p", { class: "hint" }, texts.howManyHint);
    const heads = [1, 2, 3].map((level) => element("span", { class: "count" }, texts.level(level)));
    const head = element("div", { class: "row heads", "aria-hidden": "true" }, element("span", { class: "title" }, texts.columns.kind), element("div", { class: "levels" }, ...heads));
    const rows = kinds.map((info) => {
        const fields = counts.filter(({ entry }) => entry.kind === info.kind).map(({ input }) => input);
        const row = element("div", { class: "row" }, element("span", { class: "title", "aria-hidden": "true" }, info.title), element("div", { class: "levels" }, ...fields));
        return element("div", { class: "asked" }, row, meanings(info));
    });
    return element("fieldset", { class: "counts" }, element("legend", {}, texts.howMany), hint, head, ...rows);
}

function meanings({ levels }: KindInfo): HTMLElement {
    const parts = levels.flatMap((text, at) => [element("b", {}, String(at + 1)), `\u00A0${text}${at < levels.length - 1 ? "; " : ""}`]);
    return element("p", { class: "meanings", "aria-hidden": "true" }, ...parts);
}
