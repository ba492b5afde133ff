// Practice: one exercise at a time, and around it the choice, the display and the record.
import { mainRoad } from "../address";
import { element, show } from "../dom";
import { texts } from "../texts";
import type { Exercise, PracticeRoute } from "../types";
import { choicePanel } from "./choice";
import { displayPanel, massesChoice } from "./display";
import { showExercise } from "./exercise";
import { linkPanel } from "./link";
import type { Page } from "./page";
import { recordPanel } from "./record";

// article        the exercise
// aside          the link of a set, choice, display, record
// Gives what puts the focus into the field, for a reader who comes from another exercise; the question
// stays in view, which is read first.
export function showPractice(main: HTMLElement, route: PracticeRoute, exercise: Exercise, page: Page): () => void {
    const article = element("article", { class: "exercise" });
    const record = recordPanel(page, () => draw());
    const draw = (): (() => void) => showExercise(article, { route, exercise, page, solved: record.update });
    const focus = draw();
    const display = displayPanel(page, draw, massesChoice(page, draw));
    show(main, article, element("aside", { "aria-label": texts.around }, ...(route.set > 0 ? [linkPanel(route)] : []), choicePanel(mainRoad(route), page), display, record.element));
    return focus;
}
