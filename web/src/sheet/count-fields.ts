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
    input: HTMLInputElement;
}

export interface Counts {
    element: HTMLElement;
    read(): { entries: SheetEntry[]; problems: Problem[] };
    pick(entries: SheetEntry[]): void; // others in their place, as many of each
    rename(named: KindInfo[]): void; // the same kinds in other words
}

export function countFields(opened: SheetEntry[], kinds: KindInfo[]): Counts {
    const counts = kinds.flatMap(({ kind, levels }) => levels.map((_, at) => countField(opened, { kind, level: at + 1 })));
    const box = element("fieldset", { class: "counts" });
    let present = kinds;
    const rename = (named: KindInfo[]) => {
        present = named;
        box.replaceChildren(...countRows(counts, named));
    };
    rename(kinds);
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
                problems: wrong.map(({ input, entry }) => ({
                    field: input,
                    sentence: texts.wrongCount(mostExercises),
                    where: texts.placeOf(present.find(({ kind }) => kind === entry.kind)!.title, entry.level),
                })),
            };
        }
        const wanted = counts.map(({ entry, input }) => ({ ...entry, count: Number(input.value) }));
        const entries = countOf(wanted) > mostExercises ? wanted : withCounts(picked, wanted);
        return { entries, problems: entries.length === 0 ? [{ field: last, sentence: texts.noCounts }] : [] };
    }

    function pick(entries: SheetEntry[]): void {
        picked = entries;
    }

    return { element: box, read, pick, rename };
}

function countField(opened: SheetEntry[], entry: CountField["entry"]): CountField {
    const count = countOf(opened.filter((one) => kindOf(one) === kindOf(entry)));
    return {
        entry,
        input: element("input", {
            id: `count-${entry.kind}-${entry.level}`,
            type: "number",
            min: 0,
            max: mostExercises,
            value: count === 0 ? "" : count,
            class: "count",
        }),
    };
}

// fieldset
//   legend, p.hint
//   div.row.heads    what the columns are; each field's own label says it too
//   div.asked        for each kind
//     div.row        its title, and in div.levels a field a level
//     p.meanings     what each level asks for, as each field's own label says
function countRows(counts: CountField[], kinds: KindInfo[]): HTMLElement[] {
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
        fields.forEach((input, at) => input.setAttribute("aria-label", texts.fieldOf(info.title, at + 1, info.levels[at]!)));
        const row = element(
            "div",
            { class: "row" },
            element("span", { class: "title", "aria-hidden": "true" }, info.title),
            element("div", { class: "levels" }, ...fields),
        );
        return element("div", { class: "asked" }, row, meaningsOf(info));
    });
    return [element("legend", {}, texts.howMany), hint, head, ...rows];
}
