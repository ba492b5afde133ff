// What the reader has solved on this device, by kind.
import { announce, button, disclosure, element, scrollBox } from "../shared/dom";
import type { Page } from "../shared/page";
import { ask } from "../shared/question";
import type { KindInfo } from "../types";
import { texts } from "../words/texts";
import { clearRecord, record, type Tallies, type Tally } from "./kept-record";
import { keptSetsPanel } from "./sets";
import { results } from "./tries";

// details
//   summary
//   div          once it is opened
//     p.hint
//     div        the table, what a tick means where there is one, and what clears it
//     div        the sets
// `setsCleared` is told once the sets are.
export function recordPanel(page: Page, setsCleared: () => void): { element: HTMLElement; update(): void } {
    const [body, tallies] = [element("div"), element("div")];
    const summary = element("summary", {}, texts.recordTitle);
    const clear: HTMLElement = button(texts.clearRecord, () => ask(clear, texts.askClearRecord, cleared));
    const sets = keptSetsPanel(page, () => {
        summary.focus();
        setsCleared();
    });
    const update = () => {
        clear.hidden = false;
        tallies.replaceChildren(...contents(page, clear));
    };
    const cleared = () => {
        clearRecord();
        update();
        announce(texts.cleared);
        summary.focus();
    };
    const fill = () => {
        update();
        sets.update();
        body.replaceChildren(element("p", { class: "hint" }, texts.recordNote), tallies, sets.element);
    };
    return { element: disclosure(summary, body, fill), update: () => body.hasChildNodes() && fill() };
}

function contents(page: Page, clear: HTMLElement): Node[] {
    const tallies = record();
    const known = page.kinds.filter((info) => tallies[info.kind] !== undefined);
    if (known.length === 0) {
        return [element("p", {}, texts.recordEmpty)];
    }
    const hasTick = known.some((info) => tallies[info.kind]!.ticked);
    const legend = element("p", { class: "hint" }, texts.tickMeans);
    return [scrollBox("box", texts.recordTitle, tableOf(known, tallies)), ...(hasTick ? [legend] : []), clear];
}

function tableOf(known: KindInfo[], tallies: Tallies): HTMLElement {
    const titles = [texts.columns.kind, ...results.map((result) => large(texts.results[result]))];
    const head = element("tr", {}, ...titles.map((title) => element("th", { scope: "col" }, title)));
    const rows = known.map((info) => rowOf(info.title, tallies[info.kind]!));
    return element("table", { class: "record" }, element("thead", {}, head), element("tbody", {}, ...rows));
}

function rowOf(title: string, tally: Tally): HTMLElement {
    const tick = element("span", { class: "tick" }, element("span", { "aria-hidden": "true" }, "✓ "), texts.ticked);
    const name = element("th", { scope: "row" }, title, ...(tally.ticked ? [" ", tick] : []));
    return element("tr", {}, name, ...results.map((result) => element("td", {}, String(tally[result]))));
}

function large(word: string): string {
    return word.charAt(0).toUpperCase() + word.slice(1);
}
