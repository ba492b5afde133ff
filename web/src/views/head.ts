// Which exercise it is.
import { element } from "../dom";
import { texts } from "../texts";
import type { Exercise, PracticeRoute } from "../types";
import { type Page, titleOf } from "./page";

// header
//   h1
//   p.which      kind, level and paper
export function headerOf(route: PracticeRoute, exercise: Exercise, page: Page): HTMLElement {
    const title = route.set > 0 ? texts.exerciseOf(route.number, route.set) : texts.exercise(route.number);
    return element(
        "header",
        {},
        element("h1", {}, title),
        element("p", { class: "which" }, `${texts.kindAndLevel(titleOf(page, exercise.kind), exercise.level)} · ${texts.paper(route.paper)}`),
    );
}

