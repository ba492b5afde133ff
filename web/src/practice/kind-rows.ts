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
    rename(named: KindInfo[]): void; // the same kinds in other words
    problems(): Problem[];
}

// div.kinds
//   div.whole           the title, All, None
//   div.rows
//     div.kind …        a row
export function kindRows(kinds: string, all: KindInfo[]): KindRows {
    const chosen = new Set(entriesOf(kinds, all));
    const boxes = all.flatMap(({ kind, levels }) => levels.map((_, at) => boxOf(`${kind}:${at + 1}`, chosen)));
    const rows = element("div", { class: "rows" });
    const rename = (named: KindInfo[]) => rows.replaceChildren(...named.map((info) => kindRow(info, boxes)));
    rename(all);
    const title = element("span", { id: "kinds-title", class: "title" }, texts.chooseKinds);
    const box = element("div", { class: "kinds asked", role: "group", "aria-labelledby": title.id });
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
    box.append(whole, rows);
    return { element: box, read, rename, problems: () => (read() === "" ? [{ field: boxes[0]!, sentence: texts.chooseNone }] : []) };
}

// div.kind
//   span             the kind's title
//   div.boxes        label.level with box and number, for each
//   p.meanings
function kindRow(info: KindInfo, boxes: HTMLInputElement[]): HTMLElement {
    const title = element("span", { id: `kind-${info.kind}`, class: "title" }, info.title);
    const own = boxes.filter((box) => box.value.startsWith(`${info.kind}:`));
    const levels = info.levels.map((text, at) => levelBox(own[at]!, at + 1, text));
    return element(
        "div",
        { class: "kind", role: "group", "aria-labelledby": title.id },
        title,
        element("div", { class: "boxes" }, ...levels),
        meaningsOf(info),
    );
}

function boxOf(value: string, chosen: ReadonlySet<string>): HTMLInputElement {
    return element("input", { id: `level-${value}`, type: "checkbox", value, checked: chosen.has(value) });
}

function levelBox(box: HTMLElement, level: number, text: string): HTMLElement {
    return element(
        "label",
        { class: "level" },
        box,
        element("span", { "aria-hidden": "true" }, String(level)),
        spoken(`${texts.level(level)}: ${text}`),
    );
}
