// Kinds as rows with a box for each level.
import { announce, button, element, spoken } from "../shared/dom";
import { meaningsOf } from "../shared/level-meanings";
import type { Problem } from "../shared/problems";
import type { KindInfo } from "../types";
import { texts } from "../words/texts";
import { changedTo, entriesOf } from "./chosen-kinds";

export interface KindRows {
    element: HTMLElement;
    // As an address has it; empty where none is chosen.
    read(): string;
    problems(): Problem[];
}

// div.kinds
//   div.whole           the title, All, None
//   div.rows
//     div.kind …        a row
export function kindRows(kinds: string, all: KindInfo[]): KindRows {
    const chosen = new Set(entriesOf(kinds, all));
    const rows = all.map((info) => kindRow(info, chosen));
    const title = element("span", { id: "kinds-title", class: "title" }, texts.chooseKinds);
    const box = element("div", { class: "kinds asked", role: "group", "aria-labelledby": title.id });
    const boxes = rows.flatMap((row) => [...row.querySelectorAll("input")]);
    const read = () =>
        changedTo(
            boxes.filter((one) => one.checked).map((one) => one.value),
            kinds,
            all,
        );
    const setAll = (checked: boolean) => {
        boxes.forEach((one) => (one.checked = checked));
        box.dispatchEvent(new Event("input", { bubbles: true }));
        announce(checked ? texts.allChosen : texts.noneChosen);
    };
    const whole = element(
        "div",
        { class: "whole" },
        title,
        button(texts.all, () => setAll(true)),
        button(texts.none, () => setAll(false)),
    );
    box.append(whole, element("div", { class: "rows" }, ...rows));
    return { element: box, read, problems: () => (read() === "" ? [{ field: boxes[0]!, sentence: texts.chooseNone }] : []) };
}

// div.kind
//   span             the kind's title
//   div.boxes        label.level with box and number, for each
//   p.meanings
function kindRow(info: KindInfo, chosen: ReadonlySet<string>): HTMLElement {
    const title = element("span", { id: `kind-${info.kind}`, class: "title" }, info.title);
    const levels = info.levels.map((text, at) => levelBox(`${info.kind}:${at + 1}`, at + 1, text, chosen));
    return element(
        "div",
        { class: "kind", role: "group", "aria-labelledby": title.id },
        title,
        element("div", { class: "boxes" }, ...levels),
        meaningsOf(info),
    );
}

function levelBox(value: string, level: number, text: string, chosen: ReadonlySet<string>): HTMLElement {
    const box = element("input", { id: `level-${value}`, type: "checkbox", value, checked: chosen.has(value) });
    return element(
        "label",
        { class: "level" },
        box,
        element("span", { "aria-hidden": "true" }, String(level)),
        spoken(`${texts.level(level)}: ${text}`),
    );
}
