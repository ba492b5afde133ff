// What the reader has solved on this device, by kind.
import { announce, button, element, scrollBox, show } from "../dom";
import * as storage from "../storage";
import { texts } from "../texts";
import type { Page } from "./page";

export function recordPanel(page: Page): { element: HTMLElement; update(): void } {
    const body = element("div", {});
    const update = () => show(body, ...contents(page, clear));
    const clear = () => {
        storage.clearRecord();
        update();
        announce(texts.cleared);
        summary.focus();
    };
    const summary = element("summary", {}, texts.recordTitle);
    update();
    return { element: element("details", {}, summary, element("p", { class: "hint" }, texts.recordNote), body), update };
}

function contents(page: Page, clear: () => void): Node[] {
    const tallies = storage.record();
    const known = page.kinds.filter((info) => tallies[info.kind] !== undefined);
    if (known.length === 0) {
        return [element("p", {}, texts.recordEmpty)];
    }
    const { kind, first, help, shown } = texts.columns;
    const head = element("tr", {}, ...[kind, first, help, shown].map((text) => element("th", { scope: "col" }, text!)));
    const rows = known.map((info) => {
        const tally = tallies[info.kind]!;
        const tick = tally.ticked ? [element("span", { "aria-hidden": "true" }, " ✓"), element("span", { class: "spoken" }, `, ${texts.ticked}`)] : [];
        const numbers = [tally.first, tally.help, tally.shown].map((count) => element("td", {}, String(count)));
        return element("tr", {}, element("th", { scope: "row" }, info.title, ...tick), ...numbers);
    });
    const table = element("table", {}, element("thead", {}, head), element("tbody", {}, ...rows));
    return [scrollBox("box", texts.recordTitle, table), element("p", { class: "hint" }, `✓ ${texts.ticked}`), button(texts.clearRecord, clear)];
}
