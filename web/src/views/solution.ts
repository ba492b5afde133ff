// The solution of an exercise, step by step, as it is shown and as it is announced.
import { element, show } from "../dom";
import { spansOfKey } from "../sentence";
import { speech, typesetLine } from "../spans";
import { texts } from "../texts";
import type { Exercise, Span, Step } from "../types";
import type { Page } from "./page";

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
    const end = next === undefined ? labelled("key", texts.key, spansOfKey(exercise), page) : labelled("next", texts.hint, next.hint, page);
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
    return element("p", { class: kind }, element("strong", {}, `${label}: `), element("span", { class: "line" }, ...typesetLine(line, page.settings)));
}

// The step that was shown last, and the hint to the next one.
export function lastStepSpoken(exercise: Exercise, steps: number, page: Page): string {
    const step = exercise.solution[Math.min(steps - 1, exercise.solution.length) - 1];
    const next = exercise.solution[steps - 1];
    return [
        ...(step === undefined ? [] : [speech(step.say, page.settings), speech(step.math ?? [], page.settings)]),
        ...(next === undefined ? [] : [`${texts.hint}: ${speech(next.hint, page.settings)}`]),
    ]
        .filter((line) => line !== "")
        .join(" ");
}
