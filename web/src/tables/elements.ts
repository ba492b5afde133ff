// The elements: a field that finds them, above the periodic table.
import { announce, bringIntoView, element, scrollBox, show } from "../shared/dom";
import type { Page } from "../shared/page";
import { spokenFormula } from "../text/formula";
import { localNumber } from "../text/units";
import type { ElementInfo } from "../types";
import { texts } from "../words/texts";
import { elementsMeant, type Meant } from "./element-search";
import { periodicTable } from "./periodic-table";

// div
//   form.find
//     label, input#find, p#find-hint
//     div.results    a table of what is found, and what there is none of
//   div.scrolling    the periodic table
//   p.hint
export function elementsWithSearch(elements: ElementInfo[], page: Page): HTMLElement {
    const table = periodicTable(elements, page);
    const results = element("div", { class: "results" });
    const input = findField();
    const form = element(
        "form",
        { class: "find", role: "search" },
        element("label", { for: "find" }, texts.find),
        input,
        element("p", { class: "hint", id: "find-hint" }, texts.findHint),
        results,
    );
    const find = () => elementsMeant(input.value, elements, otherNames(page));
    const tell = afterAPause(input, () => announce(toldOf(find(), page)));
    input.addEventListener("input", () => {
        const meant = find();
        show(results, ...resultsOf(meant, page));
        const cell = table.mark(meant.elements);
        bringIntoView(form, wholeTableFits() && cell !== null ? cell : results);
        tell.later();
    });
    form.addEventListener("submit", (event) => {
        event.preventDefault();
        tell.now();
        closeKeyboard(input);
    });
    return element("div", {}, form, table.element, element("p", { class: "hint" }, texts.elementsNote));
}

// In the names that the reader has not chosen: who looks for one of them finds its element.
function otherNames({ lesson, settings }: Page): ElementInfo[] {
    return lesson.tables(settings.names === "british" ? "american" : "british").elements;
}

function findField(): HTMLInputElement {
    return element("input", {
        id: "find",
        type: "text",
        maxlength: 100,
        autocapitalize: "off",
        autocorrect: "off",
        autocomplete: "off",
        spellcheck: "false",
        enterkeyhint: "search",
        "aria-describedby": "find-hint",
    });
}

// So that not every letter of a formula is told.
function afterAPause(field: HTMLElement, act: () => void): { later(): void; now(): void } {
    let timer = 0;
    const now = () => {
        window.clearTimeout(timer);
        act();
    };
    const later = () => {
        window.clearTimeout(timer);
        timer = window.setTimeout(() => field.isConnected && act(), 400);
    };
    return { later, now };
}

// Where the whole table is seen, so is the cell; on a phone the results are enough.
function wholeTableFits(): boolean {
    return window.matchMedia("(min-width: 60rem)").matches;
}

// The one on a screen would hide what was found.
function closeKeyboard(input: HTMLElement): void {
    if (window.matchMedia("(pointer: coarse)").matches) {
        input.blur();
    }
}

function resultsOf({ elements, unknown }: Meant, page: Page): Node[] {
    const none = unknown.length === 0 ? [] : [element("p", { class: "message" }, texts.noElement(unknown))];
    return elements.length === 0 ? none : [scrollBox("box", texts.found, resultTable(elements, page)), ...none];
}

function resultTable(elements: ElementInfo[], page: Page): HTMLElement {
    const heads = texts.foundHeads.map((head) => element("th", { scope: "col" }, head));
    const rows = elements.map((one) =>
        element(
            "tr",
            {},
            element("th", { scope: "row" }, one.symbol),
            element("td", {}, one.name),
            element("td", {}, String(one.number)),
            element("td", {}, localNumber(one.mass, page.settings)),
        ),
    );
    return element("table", {}, element("thead", {}, element("tr", {}, ...heads)), element("tbody", {}, ...rows));
}

// The same to be heard: "N a, sodium, number 11, relative atomic mass 22.99."
function toldOf({ elements, unknown }: Meant, page: Page): string {
    const found = elements.map((one) =>
        texts.foundElement(spokenFormula(one.symbol), one.name, one.number, localNumber(one.mass, page.settings)),
    );
    return [...found, ...(unknown.length === 0 ? [] : [texts.noElement(unknown)])].join(" ");
}
