// The solution of an exercise, step by step, as it is shown and as it is announced.
import { element, show } from "../shared/dom";
import type { Page } from "../shared/page";
import { typesetLine } from "../text/line";
import { speech } from "../text/seen-and-spoken";
import type { Exercise, Span, Step } from "../types";
import { texts } from "../words/texts";

// h2        takes the focus once all is shown
// ol        the steps that are shown
//   li      p.say, p.math
// p.next    the hint to the step that comes next
// p.key     once all steps are shown
export function showSolution(box: HTMLElement, exercise: Exercise, steps: number, page: Page): void {
    box.hidden = steps === 0;
    if (steps === 0) {
        return;
    }
    const next = exercise.solution[steps - 1];
    const end = next === undefined ? labelled("key", texts.key, exercise.key.spans, page) : labelled("next", texts.hint, next.hint, page);
    const list = element("ol", {}, ...exercise.solution.slice(0, steps - 1).map((step) => rowOf(step, page)));
    show(box, element("h2", { tabindex: -1 }, texts.solution), ...(steps === 1 ? [] : [list]), end);
}

function rowOf(step: Step, page: Page): HTMLElement {
    const row = element("li", {}, element("p", { class: "say" }, ...typesetLine(step.say, page.settings)));
    if (step.math !== undefined && step.math.length > 0) {
        row.append(element("p", { class: "math" }, ...typesetLine(step.math, page.settings)));
    }
    return row;
}

function labelled(kind: string, label: string, line: Span[], page: Page): HTMLElement {
    return element(
        "p",
        { class: kind },
        element("strong", {}, `${label}: `),
        element("span", { class: "line" }, ...typesetLine(line, page.settings)),
    );
}

// What is shown now and was not before, to be announced: a step with the hint to the next one, or the answer.
// Of several steps at once the answer alone, since the focus goes to where they begin.
export function newlySpoken(exercise: Exercise, before: number, after: number, page: Page): string {
    const said = (line: Span[]) => speech(line, page.settings);
    const step = after - before > 1 ? undefined : exercise.solution[after - 2];
    const next = exercise.solution[after - 1];
    const end = next === undefined ? `${texts.key}: ${said(exercise.key.spans)}` : `${texts.hint}: ${said(next.hint)}`;
    const lines = step === undefined ? [end] : [said(step.say), said(step.math ?? []), end];
    return lines
        .filter((line) => line !== "")
        .map(stopped)
        .join(" ");
}

// A formula has no full stop, and would be read on into what comes behind it.
function stopped(line: string): string {
    return /[.?!:]$/.test(line) ? line : `${line}.`;
}
