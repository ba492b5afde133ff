// What is printed of a version: its exercises, and its key with the same numbers. On paper there is no
// field and no mark, so it is all text.
import { element } from "../dom";
import { massesNeeded } from "../masses";
import { spansOfSentence } from "../sentence";
import { typesetLine } from "../spans";
import { texts } from "../texts";
import type { ElementInfo, Exercise, Form, SheetRoute, Span } from "../types";
import { drawingOf } from "./drawing";
import { massesLine } from "./masses-line";
import type { Page } from "./page";

export interface Version {
    paper: number;
    number: number; // from 1
    exercises: Exercise[];
}

// Lines to write on, by the form of the answer.
const lines: Record<SheetRoute["room"], Record<Form, number>> = {
    none: { number: 0, equation: 0, formula: 0, ion: 0, solubility: 0 },
    some: { number: 4, equation: 2, formula: 1, ion: 1, solubility: 1 },
    much: { number: 8, equation: 3, formula: 2, ion: 2, solubility: 2 },
};

// div.head
//   h2, p.blanks, p.masses
export function sheetHead(version: Version, route: SheetRoute, elements: ElementInfo[], page: Page): HTMLElement {
    const masses = massesNeeded(version.exercises, elements);
    return element(
        "div",
        { class: "head" },
        ...(route.title.trim() === "" ? [] : [element("h2", {}, route.title)]),
        element("p", { class: "blanks" }, blank(texts.nameBlank, "wide"), blank(texts.dateBlank, "")),
        ...(masses.length === 0 ? [] : [massesOf(masses, route, page)]),
    );
}

// div.head
//   p.of     the sheet's title; once where keys follow each other
//   h2
export function keyHead(version: Version, route: SheetRoute): HTMLElement {
    const isFirst = version.number === 1 || route.keys === "apart";
    const title = isFirst && route.title.trim() !== "" ? [element("p", { class: "of" }, route.title)] : [];
    return element("div", { class: "head key" }, ...title, element("h2", {}, texts.keyTo(labelOf(version, route))));
}

// Above what did not fit on the page before.
export function keyHeadAgain(version: Version, route: SheetRoute): HTMLElement {
    return element("div", { class: "head" }, element("p", { class: "again" }, texts.continued(texts.keyTo(labelOf(version, route)))));
}

export function labelOf(version: Version, route: SheetRoute): string {
    return route.versions === 1 ? texts.paper(version.paper) : texts.paperAndVersion(version.paper, version.number);
}

function blank(label: string, kind: string): HTMLElement {
    return element("span", { class: `blank ${kind}` }, label);
}

// Where the table is used, the sheet says so, lest a pupil looks for them on it.
function massesOf(masses: ElementInfo[], route: SheetRoute, page: Page): HTMLElement {
    return route.masses === "table" ? element("p", { class: "masses" }, texts.useTheTable) : massesLine(masses, page);
}

// li
//   p.asks, figure, div.rules
export function exerciseItem(exercise: Exercise, route: SheetRoute, page: Page): HTMLElement {
    const drawing = route.drawings ? drawingOf(exercise, page.settings) : null;
    const rules = Array.from({ length: lines[route.room][exercise.ask.form] }, () => element("div", { class: "rule" }));
    return element(
        "li",
        {},
        element("p", { class: "asks" }, ...typesetLine(exercise.prompt, page.settings)),
        ...(drawing === null ? [] : [drawing]),
        ...(rules.length === 0 ? [] : [element("div", { class: "rules" }, ...rules)]),
    );
}

export function keyItem(exercise: Exercise, route: SheetRoute, page: Page): HTMLElement {
    return route.key === "line" ? lineItem(exercise, page) : workedItem(exercise, page);
}

function lineItem(exercise: Exercise, page: Page): HTMLElement {
    return element("li", {}, element("p", { class: "asks" }, ...answerOf(exercise, page)));
}

function workedItem(exercise: Exercise, page: Page): HTMLElement {
    const steps = exercise.solution.map((step) =>
        element("p", { class: "step" }, ...typesetLine([...step.say, { text: "\u2003" }, ...(step.math ?? [])], page.settings)),
    );
    return element("li", {}, ...steps, element("p", { class: "result" }, ...answerOf(exercise, page)));
}

// "c(KOH) = 0.290 mol/L", "Ca(OH)2", "yes".
function answerOf({ ask, key }: Exercise, page: Page): Node[] {
    const asked: Span[] = ask.quantity === undefined ? [] : [quantityOf(ask.quantity, ask.of), { text: " = " }];
    const answer = spansOfSentence(key.text.replace("->", "→"), page.settings, page.names);
    return typesetLine([...asked, ...answer], page.settings);
}

// "c2" is c with the index 2.
function quantityOf(symbol: string, of: string | undefined): Span {
    const index = symbol.slice(1);
    return { quantity: symbol.slice(0, 1), ...(of === undefined ? {} : { of }), ...(index === "" ? {} : { index }) };
}
