// What a sheet is to be: so many of each kind and level, the paper, the layout.
import { announce, button, element } from "../shared/dom";
import { isCount, mostExercises } from "../shared/exercise-list";
import { isPaper, randomPaper } from "../shared/paper";
import type { Problem } from "../shared/problems";
import type { KindInfo, SheetEntry, SheetRoute } from "../types";
import { texts } from "../words/texts";
import { type Counts, countFields } from "./count-fields";
import { isFew, longestTitle, mostVersions } from "./sheet";

// A sheet, or why what stands in the fields is none.
export type Reading = { route: SheetRoute } | { problems: Problem[] };

export interface SheetForm {
    element: HTMLElement;
    read(): Reading;
    pick(entries: SheetEntry[]): void; // others in their place, as many of each
    rename(named: KindInfo[]): void; // the same kinds in other words
}

type Controls = ReturnType<typeof controlsOf>;

function controlsOf(opened: SheetRoute) {
    return {
        paper: element("input", { type: "text", inputmode: "numeric", value: opened.paper, autocomplete: "off" }),
        versions: element("input", { type: "number", min: 1, max: mostVersions, value: opened.versions }),
        title: element("input", { type: "text", maxlength: longestTitle, value: opened.title, autocomplete: "off" }),
        drawings: element("input", { type: "checkbox", checked: opened.drawings }),
        marks: element("input", { type: "checkbox", checked: opened.marks }),
        leaf: element("input", { type: "checkbox", id: "new-leaf", checked: opened.leaf }),
        room: choice(texts.rooms, opened.room),
        masses: choice(texts.massesOf, opened.masses),
        columns: choice(texts.shortQuestionsOf, opened.columns),
        parts: choice(texts.partsOf, opened.parts),
        key: choice(texts.keyForms, opened.key),
        keys: choice(texts.keysOf, opened.keys),
        size: choice(texts.pageSizes, opened.size),
    };
}

// form
//   fieldset      how many of each kind and level
//   div.fields    the paper, versions, title and layout
//   label, label  drawings, marks
//   div           a new leaf
export function sheetForm(opened: SheetRoute, kinds: KindInfo[], changed: () => void): SheetForm {
    const counts = countFields(opened.entries, kinds);
    const controls = controlsOf(opened);
    const { versions } = controls;
    const form = element(
        "form",
        { class: "sheet-form", autocomplete: "off" },
        counts.element,
        fieldsOf(controls, changed),
        ...flagsOf(controls),
    );
    let lastNumber = versions; // of how many; where there are too many in all, it is told there
    // Enter in a field is a change like any other, and sends nothing anywhere.
    form.addEventListener("submit", (event) => event.preventDefault());
    form.addEventListener("input", (event) => {
        const target = event.target as HTMLInputElement;
        lastNumber = target === versions || target.matches(".count") ? target : lastNumber;
        relate(controls);
        changed();
    });
    relate(controls);
    return { element: form, read: () => readingOf(counts.read(), controls, lastNumber), pick: counts.pick, rename: counts.rename };
}

function fieldsOf(controls: Controls, changed: () => void): HTMLElement {
    const { paper, versions, title, room, masses, columns, parts, key, keys, size } = controls;
    const anew = button(texts.newPaper, () => {
        paper.value = String(randomPaper());
        announce(texts.paper(Number(paper.value)));
        changed();
    });
    return element(
        "div",
        { class: "fields" },
        hinted(labelled("sheet-paper", texts.choosePaper, paper, anew), paper, texts.sheetPaperHint),
        hinted(labelled("versions", texts.versions, versions), versions, texts.versionsHint(mostVersions)),
        hinted(labelled("sheet-title", texts.sheetTitle, title), title, texts.titleHint),
        labelled("room", texts.room, room),
        labelled("masses", texts.massesLine, masses),
        labelled("columns", texts.shortQuestions, columns),
        labelled("parts", texts.parts, parts),
        labelled("key", texts.keyForm, key),
        labelled("keys", texts.keys, keys),
        labelled("size", texts.pageSize, size),
    );
}

function flagsOf({ drawings, marks, leaf }: Controls): HTMLElement[] {
    return [
        element("label", { class: "word" }, drawings, texts.withDrawings),
        element("label", { class: "word" }, marks, texts.withMarks),
        hinted(element("div", {}, element("label", { class: "word" }, leaf, texts.newLeaf)), leaf, texts.newLeafHint),
    ];
}

// What only concerns several versions.
function relate({ keys, versions }: Controls): void {
    keys.disabled = versions.value === "1";
}

function readingOf({ entries, problems }: ReturnType<Counts["read"]>, controls: Controls, lastNumber: HTMLInputElement): Reading {
    const all = [...problems, ...problemsIn(controls)];
    if (all.length > 0) {
        return { problems: all };
    }
    const route = routeOf(entries, controls);
    return isFew(route) ? { route } : { problems: [{ field: lastNumber, sentence: texts.tooMany(mostExercises) }] };
}

function routeOf(entries: SheetEntry[], controls: Controls): SheetRoute {
    const { paper, versions, title, drawings, marks, leaf, room, masses, columns, parts, key, keys, size } = controls;
    return {
        view: "sheet",
        paper: Number(paper.value),
        entries,
        versions: Number(versions.value),
        title: title.value,
        room: room.value as SheetRoute["room"],
        masses: masses.value as SheetRoute["masses"],
        drawings: drawings.checked,
        columns: columns.value as SheetRoute["columns"],
        marks: marks.checked,
        leaf: leaf.checked,
        parts: parts.value as SheetRoute["parts"],
        key: key.value as SheetRoute["key"],
        keys: keys.value as SheetRoute["keys"],
        size: size.value as SheetRoute["size"],
    };
}

function problemsIn({ paper, versions, title }: Controls): Problem[] {
    return [
        ...(isPaper(paper.value.trim()) ? [] : [{ field: paper, sentence: texts.wrongPaper }]),
        ...(isCount(versions.value, mostVersions) ? [] : [{ field: versions, sentence: texts.wrongVersions(mostVersions) }]),
        ...(title.value.length <= longestTitle ? [] : [{ field: title, sentence: texts.wrongTitle(longestTitle) }]),
    ];
}

function labelled(id: string, label: string, control: HTMLElement, ...further: HTMLElement[]): HTMLElement {
    control.id = id;
    return element(
        "div",
        { class: "labelled asked" },
        element("label", { for: id }, label),
        element("div", { class: "field" }, control, ...further),
    );
}

function hinted(box: HTMLElement, control: HTMLElement, text: string): HTMLElement {
    const hint = element("p", { class: "hint", id: `${control.id}-hint` }, text);
    control.setAttribute("aria-describedby", hint.id);
    box.append(hint);
    return box;
}

function choice(words: Record<string, string>, present: string): HTMLSelectElement {
    return element(
        "select",
        {},
        ...Object.entries(words).map(([value, word]) => element("option", { value, selected: value === present }, word)),
    );
}
