// What stands above the exercises of a version and above its key.

import { massesLine } from "../practice/masses-line";
import { massesNeeded } from "../practice/masses-needed";
import { element } from "../shared/dom";
import type { Page } from "../shared/page";
import { typesetLine } from "../text/line";
import type { Exercise, SheetRoute } from "../types";
import { texts } from "../words/texts";
import { agreedFigures, type Group } from "./common-words";
import { goesOn, marksOf } from "./worth";

export interface Version {
    paper: number;
    number: number; // from 1
    exercises: Exercise[];
}

// div.head
//   h2, p.blanks
//   p.notes     how many figures are wanted, the marks of all
//   p.masses
export function sheetHead(version: Version, route: SheetRoute, page: Page): HTMLElement {
    return element(
        "div",
        { class: "head" },
        ...(route.title.trim() === "" ? [] : [element("h2", {}, route.title)]),
        element("p", { class: "blanks" }, ...blanksOf(version, route)),
        ...notesOf(version, route),
        ...massesOf(version, route, page),
    );
}

// div.head.of-key
//   p.title  the sheet's title; once where keys follow each other
//   h2
//   p.notes  how lines that are worked out are rounded; once too
//   p.masses
export function keyHead(version: Version, route: SheetRoute, page: Page): HTMLElement {
    const isFirst = version.number === 1 || route.keys === "apart";
    const title = isFirst && route.title.trim() !== "" ? [element("p", { class: "title" }, route.title)] : [];
    const isRounded = isFirst && route.key === "working" && version.exercises.some(goesOn);
    const notes = isRounded ? [element("p", { class: "notes" }, texts.howRounded)] : [];
    return element(
        "div",
        { class: "head of-key" },
        ...title,
        element("h2", {}, texts.keyTo(labelOf(version, route))),
        ...notes,
        ...massesOfKey(version, route, page),
    );
}

// Where the learners take them from a table, which may have others, the key tells its own.
function massesOfKey({ exercises }: Version, route: SheetRoute, page: Page): HTMLElement[] {
    const masses = route.masses === "table" ? massesNeeded(exercises, page) : [];
    return masses.length === 0 ? [] : [massesLine(masses, page)];
}

// Above what did not fit on the page before.
export function keyHeadAgain(version: Version, route: SheetRoute): HTMLElement {
    return element("div", { class: "head" }, element("p", { class: "again" }, texts.continued(texts.keyTo(labelOf(version, route)))));
}

// p.frame     the words that the exercises below it share
export function frameHead({ from, to, frame }: Group, { exercises }: Version, route: SheetRoute, page: Page): HTMLElement {
    const first = exercises[from]!;
    const figures = first.ask.figures === undefined || agreedFigures(exercises) !== null ? "" : ` ${texts.figures(first.ask.figures)}`;
    const shared = typesetLine([...frame!, { text: figures }], page.settings);
    const range = element("strong", {}, texts.exercisesFromTo(from + 1, to));
    const marks = route.marks ? [element("span", { class: "marks" }, texts.worthEach(marksOf(first)))] : [];
    return element(
        "p",
        { class: route.marks ? "frame with-marks" : "frame" },
        range,
        " ",
        element("span", { class: "words" }, ...shared),
        ...marks,
    );
}

export function labelOf(version: Version, route: SheetRoute): string {
    return route.versions === 1 ? texts.paper(version.paper) : texts.paperAndVersion(version.paper, version.number);
}

function blanksOf({ exercises }: Version, route: SheetRoute): HTMLElement[] {
    const mark = route.marks ? [blank(texts.markBlank, ""), element("span", { class: "out-of" }, texts.outOf(totalOf(exercises)))] : [];
    return [blank(texts.nameBlank, "wide"), blank(texts.dateBlank, ""), ...mark];
}

function blank(label: string, kind: string): HTMLElement {
    return element("span", { class: `blank ${kind}` }, label);
}

function notesOf({ exercises }: Version, route: SheetRoute): HTMLElement[] {
    const figures = agreedFigures(exercises);
    const notes = [
        ...(figures === null ? [] : [texts.figuresOfAll(figures)]),
        ...(route.marks ? [texts.totalWorth(totalOf(exercises))] : []),
    ];
    return notes.length === 0 ? [] : [element("p", { class: "notes" }, ...notes.map((note) => element("span", {}, note)))];
}

function totalOf(exercises: Exercise[]): number {
    return exercises.reduce((sum, exercise) => sum + marksOf(exercise), 0);
}

// Where the table is used, the sheet says so, lest a pupil looks for them on it.
function massesOf({ exercises }: Version, route: SheetRoute, page: Page): HTMLElement[] {
    const masses = massesNeeded(exercises, page);
    if (masses.length === 0) {
        return [];
    }
    return [route.masses === "table" ? element("p", { class: "masses" }, texts.useTheTable) : massesLine(masses, page)];
}
