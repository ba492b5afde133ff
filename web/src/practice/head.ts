// Which exercise it is.
import { element } from "../shared/dom";
import { type Page, titleOf } from "../shared/page";
import type { Exercise, PracticeRoute } from "../types";
import { texts } from "../words/texts";

// header
//   h1
//   p.which      kind, level and paper
//   button       to choose others
export function headerOf(route: PracticeRoute, exercise: Exercise, choose: HTMLElement, page: Page): HTMLElement {
    return element(
        "header",
        {},
        element("h1", {}, nameOf(route)),
        element(
            "p",
            { class: "which" },
            `${texts.kindAndLevel(titleOf(page, exercise.kind), exercise.level)} · ${texts.paper(route.paper)}`,
        ),
        choose,
    );
}

export function nameOf({ number, set, back }: PracticeRoute): string {
    if (back !== undefined) {
        return texts.anotherLike(back.number);
    }
    return set > 0 ? texts.exerciseOf(number, set) : texts.exercise(number);
}
