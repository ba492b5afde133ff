// How many of each kind and level: a field for each, and below each kind what its levels ask for.
import { element } from "../shared/dom";
import { countOf, isCount, kindOf, mostExercises } from "../shared/exercise-list";
import { meaningsOf } from "../shared/level-meanings";
import type { Problem } from "../shared/problems";
import type { KindInfo, SheetEntry } from "../types";
import { texts } from "../words/texts";
import { withCounts } from "./picks";

interface CountField {
    entry: Omit<SheetEntry, "count">;
    place: string; // as it is called where it is not seen
    input: HTMLInputElement;
}

export interface Counts {
    element: HTMLElement;
    read(): { entries: SheetEntry[]; problems: Problem[] };
    pick(entries: SheetEntry[]): void; // others in their place, as many of each
}

export function countFields(opened: SheetEntry[], kinds: KindInfo[]): Counts {
    const counts = kinds.flatMap((info) => info.levels.map((_, at) => countField(opened, info, at + 1)));
    const box = countRows(counts, kinds);
    let last = counts[0]!.input;
    // To which what is typed comes and from which it goes, so that nothing is lost on the way to a number.
    let picked = opened;
    box.addEventListener("input", (event) => {
        last = event.target as HTMLInputElement;
    });

    function read(): { entries: SheetEntry[]; problems: Problem[] } {
        const filled = counts.filter(({ input }) => input.validity.badInput || !/^0*$/.test(input.value));
        const wrong = filled.filter(({ input }) => !isCount(input.value, mostExercises));
        if (wrong.length > 0) {
            return {
                entries: [],
                problems: wrong.map(({ input, place }) => ({ field: input, sentence: texts.wrongCount(mostExercises), where: place })),
            };
        }
        const wanted = counts.map(({ entry, input }) => ({ ...entry, count: Number(input.value) }));
        const entries = countOf(wanted) > mostExercises ? wanted : withCounts(picked, wanted);
        return { entries, problems: entries.length === 0 ? [{ field: last, sentence: texts.noCounts }] : [] };
    }

    function pick(entries: SheetEntry[]): void {
        picked = entries;
    }

    return { element: box, read, pick };
}

function countField(opened: SheetEntry[], info: KindInfo, level: number): CountField {
    const entry = { kind: info.kind, level };
    const count = countOf(opened.filter((one) => kindOf(one) === kindOf(entry)));
    const label = texts.fieldOf(info.title, level, info.levels[level - 1]!);
    const id = `count-${info.kind}-${level}`;
    return {
        entry,
        place: texts.placeOf(info.title, level),
        input: element("input", {
            id,
            type: "number",
            min: 0,
            max: mostExercises,
            value: count === 0 ? "" : count,
            class: "count",
            "aria-label": label,
        }),
    };
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
    const head = element(
        "div",
        { class: "row heads", "aria-hidden": "true" },
        element("span", { class: "title" }, texts.columns.kind),
        element("div", { class: "levels" }, ...heads),
    );
    const rows = kinds.map((info) => {
        const fields = counts.filter(({ entry }) => entry.kind === info.kind).map(({ input }) => input);
        const row = element(
            "div",
            { class: "row" },
            element("span", { class: "title", "aria-hidden": "true" }, info.title),
            element("div", { class: "levels" }, ...fields),
        );
        return element("div", { class: "asked" }, row, meaningsOf(info));
    });
    return element("fieldset", { class: "counts" }, element("legend", {}, texts.howMany), hint, head, ...rows);
}
