// Practice: one exercise at a time with the choice of others, and around it the display and the record.
import { mainRoad } from "../address";
import { displayPanel, massesChoice } from "../shared/display";
import { element } from "../shared/dom";
import type { Page } from "../shared/page";
import type { Exercise, PracticeRoute } from "../types";
import { texts } from "../words/texts";
import { choicePanel } from "./choice";
import { showExercise } from "./exercise";
import { linkPanel } from "./link";
import { recordPanel } from "./record";

// article        the exercise
// aside          the link of a set, display, record
// Gives what puts the focus into the field, for a reader who comes from another exercise; the question
// stays in view, which is read first.
export function showPractice(main: HTMLElement, route: PracticeRoute, exercise: Exercise, page: Page): () => void {
    const article = element("article", { class: "exercise" });
    const record = recordPanel(page, () => drawAnew());
    const choice = choicePanel(mainRoad(route), exercise, page);
    const draw = (present: Exercise) => showExercise(article, { route, exercise: present, page, choice, solved: record.update });
    const drawAnew = () => {
        draw(page.lesson.exercise(route.paper, route.number, route.kinds) ?? exercise);
    };
    const rewrite = () => {
        drawAnew();
        choice.rename();
        record.update();
    };
    const focus = draw(exercise);
    const display = displayPanel(page, rewrite, () => [massesChoice(page, drawAnew)]);
    main.replaceChildren(
        article,
        element("aside", { "aria-label": texts.around }, ...(route.set > 0 ? [linkPanel(route)] : []), display, record.element),
    );
    return focus;
}
