// What is printed of an exercise: the question with its room to write, and the answer in the key. On paper
// there is no field and no mark, so it is all text.

import { drawingOf } from "../practice/drawing";
import { element } from "../shared/dom";
import type { Page } from "../shared/page";
import { typesetLine } from "../text/line";
import { quantityOf } from "../text/quantity";
import { seenOf } from "../text/seen-and-spoken";
import type { Ask, Exercise, Form, SheetRoute, Span } from "../types";
import { texts } from "../words/texts";
import { ownPartOf } from "./common-words";
import { marksOf } from "./worth";

// How the question stands on its sheet.
export interface Place {
    isFramed: boolean; // the words that it shares with others stand above them
    saysFigures: boolean; // how many are wanted is not said above
}

// Lines to write on, by the form of the answer; the last of them is for the answer. A calculation has one
// more for each mark but the first.
const lines: Record<SheetRoute["room"], Record<Form, number>> = {
    none: { number: 0, equation: 0, formula: 0, ion: 0, solubility: 0 },
    some: { number: 4, equation: 2, formula: 1, ion: 1, solubility: 1 },
    much: { number: 8, equation: 3, formula: 2, ion: 2, solubility: 2 },
};

// li, or li.half beside another
//   p.asks       the question, its figures and its marks
//   figure
//   div.room     its height is known
//     div.rule, p.answer-line
export function exerciseItem(exercise: Exercise, place: Place, route: SheetRoute, page: Page): HTMLElement {
    const { ask } = exercise;
    const count = linesFor(exercise, route);
    const drawing = route.drawings ? drawingOf(exercise, page) : null;
    if (place.isFramed) {
        return framedItem(exercise, count, page);
    }
    const figures = place.saysFigures && ask.figures !== undefined ? [{ text: ` ${texts.figures(ask.figures)}` }] : [];
    const question = typesetLine([...exercise.prompt, ...figures], page.settings);
    const marks = route.marks ? texts.worth(marksOf(exercise)) : "";
    return element("li", {}, line("asks", question, marks), ...(drawing === null ? [] : [drawing]), ...roomFor(ask, count));
}

function linesFor(exercise: Exercise, { room }: SheetRoute): number {
    const least = lines[room][exercise.ask.form];
    return least > 0 && exercise.ask.form === "number" ? least + marksOf(exercise) - 1 : least;
}

// Where one line is enough, the answer stands beside what it is of.
function framedItem(exercise: Exercise, count: number, page: Page): HTMLElement {
    const own = typesetLine(ownPartOf(exercise), page.settings);
    if (count !== 1) {
        return element("li", { class: "half" }, element("p", { class: "asks" }, ...own), ...roomFor(exercise.ask, count));
    }
    return element("li", { class: "half" }, element("p", { class: "asks beside" }, element("span", {}, ...own), gap()));
}

export function keyItem(exercise: Exercise, route: SheetRoute, page: Page): HTMLElement {
    const answer = answerOf(exercise, page);
    const marks = route.marks ? texts.worthInKey(marksOf(exercise)) : "";
    if (route.key === "line") {
        return element("li", route.columns === "auto" ? { class: "half" } : {}, line("asks brief", answer, marks));
    }
    const steps = exercise.solution.map((step) =>
        element("p", { class: "step" }, ...typesetLine([...step.say, { text: "\u2003" }, ...(step.math ?? [])], page.settings)),
    );
    return element("li", {}, ...steps, line("result brief", answer, marks));
}

// The marks stand in a margin of their own, at the end of the last line.
function line(kind: string, content: Node[], marks: string): HTMLElement {
    if (marks === "") {
        return element("p", { class: kind }, ...content);
    }
    return element("p", { class: `${kind} with-marks` }, ...content, element("span", { class: "marks" }, marks));
}

function roomFor(ask: Ask, count: number): HTMLElement[] {
    if (count === 0) {
        return [];
    }
    const rules = Array.from({ length: count - 1 }, () => element("div", { class: "rule" }));
    const room = element("div", { class: "room" }, ...rules, answerLine(ask));
    room.style.setProperty("--lines", String(count));
    return [room];
}

// p.answer-line     "c(KOH) = ____ mol/L", "Answer: ____"
// For the pen alone: what it says, the question says as well.
function answerLine({ quantity, of, unit }: Ask): HTMLElement {
    const before = quantity === undefined ? [{ text: `${texts.key}:` }] : [quantityOf(quantity, of), { text: " =" }];
    const behind = unit === undefined ? [] : [seenOf([{ unit }])];
    return element("p", { class: "answer-line", "aria-hidden": "true" }, element("span", {}, seenOf(before)), gap(), ...behind);
}

function gap(): HTMLElement {
    return element("span", { class: "gap" });
}

// "c(KOH) = 0.290 mol/L", "Ca(OH)2", "yes".
function answerOf(exercise: Exercise, page: Page): Node[] {
    const { ask } = exercise;
    const asked: Span[] = ask.quantity === undefined ? [] : [quantityOf(ask.quantity, ask.of), { text: " = " }];
    return typesetLine([...asked, ...exercise.key.spans], page.settings);
}
