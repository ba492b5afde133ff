// What a sheet is to be: so many of each kind and level, the paper, the layout.
import { button, element, show } from "../dom";
import { isCount, isFew, isPaper, kindOf, longestTitle, mostExercises, mostVersions } from "../sheet";
import { texts } from "../texts";
import type { KindInfo, SheetEntry, SheetRoute } from "../types";
import { randomPaper } from "./page";

// A sheet, or why what stands in the fields is none.
export type Reading = { route: SheetRoute } | { complaint: string };

interface CountField {
    entry: Omit<SheetEntry, "count">;
    input: HTMLInputElement;
}

// form
//   fieldset      how many of each kind and level
//   div.fields    the paper, versions, title and layout
//   label         drawings
export function sheetForm(opened: SheetRoute, kinds: KindInfo[], changed: () => void): { element: HTMLElement; read(): Reading } {
    const counts = kinds.flatMap((info) => info.levels.map((_, at) => countField(opened, info, at + 1)));
    const paper = element("input", { type: "text", inputmode: "numeric", value: opened.paper, autocomplete: "off" });
    const versions = element("input", { type: "number", min: 1, max: mostVersions, value: opened.versions });
    const title = element("input", { type: "text", maxlength: longestTitle, value: opened.title, autocomplete: "off" });
    const drawings = element("input", { type: "checkbox", checked: opened.drawings });
    const leaf = element("input", { type: "checkbox", id: "new-leaf", checked: opened.leaf });
    const room = choice(texts.rooms, opened.room);
    const masses = choice(texts.massesOf, opened.masses);
    const parts = choice(texts.partsOf, opened.parts);
    const key = choice(texts.keyForms, opened.key);
    const keys = choice(texts.keysOf, opened.keys);
    const size = choice(texts.pageSizes, opened.size);
    const anew = button(texts.newPaper, () => {
        paper.value = String(randomPaper());
        changed();
    });
    const form = element(
        "form",
        { class: "choice sheet-form", autocomplete: "off" },
        countRows(counts, kinds),
        element(
            "div",
            { class: "fields" },
            hinted(labelled("sheet-paper", texts.choosePaper, paper, anew), paper, texts.sheetPaperHint),
            hinted(labelled("versions", texts.versions, versions), versions, texts.versionsHint(mostVersions)),
            hinted(labelled("sheet-title", texts.sheetTitle, title), title, texts.titleHint),
            labelled("room", texts.room, room),
            labelled("masses", texts.massesLine, masses),
            labelled("parts", texts.parts, parts),
            labelled("key", texts.keyForm, key),
            labelled("keys", texts.keys, keys),
            labelled("size", texts.pageSize, size),
        ),
        element("label", { class: "word" }, drawings, texts.withDrawings),
        hinted(element("div", {}, element("label", { class: "word" }, leaf, texts.newLeaf)), leaf, texts.newLeafHint),
    );

    // Enter in a field is a change like any other, and sends nothing anywhere.
    form.addEventListener("submit", (event) => event.preventDefault());
    form.addEventListener("input", () => {
        relate();
        changed();
    });
    relate();

    // What only concerns several versions.
    function relate(): void {
        keys.disabled = versions.value === "1";
    }

    function read(): Reading {
        const entries = entriesIn(counts, opened);
        const complaint = complaintOf(entries, paper.value.trim(), versions, title.value);
        if (entries === null || complaint !== "") {
            return { complaint };
        }
        const route: SheetRoute = {
            view: "sheet",
            paper: Number(paper.value),
            entries,
            versions: Number(versions.value),
            title: title.value,
            room: room.value as SheetRoute["room"],
            masses: masses.value as SheetRoute["masses"],
            drawings: drawings.checked,
            leaf: leaf.checked,
            parts: parts.value as SheetRoute["parts"],
            key: key.value as SheetRoute["key"],
            keys: keys.value as SheetRoute["keys"],
            size: size.value as SheetRoute["size"],
        };
        return isFew(route) ? { route } : { complaint: texts.tooMany(mostExercises) };
    }

    return { element: form, read };
}

function complaintOf(entries: SheetEntry[] | null, paper: string, versions: HTMLInputElement, title: string): string {
    if (entries === null) {
        return texts.wrongCount(mostExercises);
    }
    if (entries.length === 0) {
        return texts.noCounts;
    }
    if (!isPaper(paper)) {
        return texts.wrongPaper;
    }
    if (!isCount(versions.value, mostVersions)) {
        return texts.wrongVersions(mostVersions);
    }
    return title.length > longestTitle ? texts.wrongTitle(longestTitle) : "";
}

function countField(opened: SheetRoute, info: KindInfo, level: number): CountField {
    const entry = { kind: info.kind, level };
    const count = opened.entries.find((one) => kindOf(one) === kindOf({ ...entry, count: 0 }))?.count ?? "";
    const label = texts.fieldOf(info.title, level, info.levels[level - 1]!);
    return { entry, input: element("input", { type: "number", min: 0, max: mostExercises, value: count, class: "count", "aria-label": label, title: label }) };
}

// Null where a field holds no count. In the order of the table, but an address may have its own.
function entriesIn(counts: CountField[], opened: SheetRoute): SheetEntry[] | null {
    const filled = counts.filter(({ input }) => input.validity.badInput || !/^0*$/.test(input.value));
    if (!filled.every(({ input }) => isCount(input.value, mostExercises))) {
        return null;
    }
    const entries = filled.map(({ entry, input }) => ({ ...entry, count: Number(input.value) }));
    return isInOrder(opened.entries, counts) ? entries : inOrderOf(opened.entries, entries);
}

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
//   legend
//   div.row.heads    what the columns are; each field's own label says it too
//   div.row          the kind, and in div.levels a field a level
//   p.hint           what the level of the field asks for
function countRows(counts: CountField[], kinds: KindInfo[]): HTMLElement {
    const hint = element("p", { class: "hint" }, texts.howManyHint);
    const heads = [1, 2, 3].map((level) => element("span", { class: "count" }, texts.level(level)));
    const rows = kinds.map((info) => {
        const fields = counts.filter(({ entry }) => entry.kind === info.kind).map(({ input }) => input);
        return element("div", { class: "row" }, element("span", { class: "title", "aria-hidden": "true" }, info.title), element("div", { class: "levels" }, ...fields));
    });
    const head = element("div", { class: "row heads", "aria-hidden": "true" }, element("span", { class: "title" }, texts.columns.kind), element("div", { class: "levels" }, ...heads));
    const box = element("fieldset", { class: "counts" }, element("legend", {}, texts.howMany), head, ...rows, hint);
    box.addEventListener("focusin", (event) => show(hint, (event.target as HTMLInputElement).title));
    return box;
}

function labelled(id: string, label: string, control: HTMLElement, ...further: HTMLElement[]): HTMLElement {
    control.id = id;
    return element("div", { class: "labelled" }, element("label", { for: id }, label), element("div", { class: "field" }, control, ...further));
}

function hinted(box: HTMLElement, control: HTMLElement, text: string): HTMLElement {
    const hint = element("p", { class: "hint", id: `${control.id}-hint` }, text);
    control.setAttribute("aria-describedby", hint.id);
    box.append(hint);
    return box;
}

function choice(words: Record<string, string>, present: string): HTMLSelectElement {
    return element("select", {}, ...Object.entries(words).map(([value, word]) => element("option", { value, selected: value === present }, word)));
}
