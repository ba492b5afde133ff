// Which exercises: kinds and levels as a set, the paper, how many. Opened by a button, right below it.
import { addressOf } from "../address";
import { bringIntoView, button, element } from "../shared/dom";
import { isList } from "../shared/exercise-list";
import { type Page, titleOf } from "../shared/page";
import { type Problem, problemMarks } from "../shared/problems";
import type { Exercise, PracticeRoute } from "../types";
import { texts } from "../words/texts";
import { choiceIn, entriesOf, shortest } from "./chosen-kinds";
import { type KindRows, kindRows } from "./kind-rows";
import { type PaperField, paperField } from "./paper-field";

const lengths = [0, 5, 10, 20];

export interface Fields {
    kinds: KindRows;
    length: HTMLSelectElement;
    paper: PaperField;
}

export function fieldsOf({ kinds, set, paper }: Pick<PracticeRoute, "kinds" | "set" | "paper">, page: Page): Fields {
    return {
        kinds: kindRows(choiceIn(kinds, page.kinds), page.kinds),
        length: lengthField(isList(kinds) ? 0 : set),
        paper: paperField(paper),
    };
}

// Goes to the first exercise of what is chosen, or to the first field that is wrong. What is told is taken
// away while it is mended, and nothing new is told meanwhile: half a number is not wrong yet.
export function beginWith(form: HTMLFormElement, fields: Fields, page: Page, whenWrong: () => void = () => {}): void {
    const mark = problemMarks();
    let told: Problem[] = [];
    const tell = (problems: Problem[], aloud?: Problem[]) => {
        told = problems;
        mark(problems, aloud);
    };
    form.addEventListener("input", () => tell(problemsIn(fields).filter(({ field }) => told.some((one) => one.field === field))));
    form.addEventListener("submit", (event) => {
        event.preventDefault();
        const problems = problemsIn(fields);
        const first = problems[0]?.field;
        // A field tells its problem when the focus comes to it.
        tell(
            problems,
            problems.filter(({ field }) => field !== first || field === document.activeElement),
        );
        if (first === undefined) {
            page.go(addressOf(routeOf(fields)));
        } else {
            whenWrong();
            first.focus();
        }
    });
}

function problemsIn({ kinds, paper }: Fields): Problem[] {
    return [...kinds.problems(), ...paper.problems()];
}

function routeOf({ kinds, length, paper }: Fields): PracticeRoute {
    return { view: "practice", paper: paper.read(), number: 1, kinds: kinds.read(), set: Number(length.value) };
}

function lengthField(present: number): HTMLSelectElement {
    const offered = lengths.includes(present) ? lengths : [...lengths, present];
    const options = offered.map((count) =>
        element("option", { value: count, selected: count === present }, count === 0 ? texts.endless : texts.setOf(count)),
    );
    return element("select", { id: "length" }, ...options);
}

// div.length
//   label
//   div.field    select, Start
export function lengthAndStart(length: HTMLSelectElement, start: HTMLElement): HTMLElement {
    return element(
        "div",
        { class: "length" },
        element("label", { for: "length" }, texts.chooseLength),
        element("div", { class: "field" }, length, start),
    );
}

export interface Opener {
    button: HTMLButtonElement;
    open(isOpen: boolean): void;
}

// The button keeps the focus: what it opens follows behind it. Escape in the one or the other closes.
export function openerOf(panel: HTMLElement, changed: (isOpen: boolean) => void = () => {}): Opener {
    const open = (isOpen: boolean) => {
        panel.hidden = !isOpen;
        made.setAttribute("aria-expanded", String(isOpen));
        changed(isOpen);
    };
    const press = () => {
        open(panel.hidden !== false);
        if (!panel.hidden) {
            bringIntoView(made, panel);
        }
    };
    const made = button(texts.chooseTitle, press, { class: "opener" });
    const close = (event: KeyboardEvent) => {
        if (event.key === "Escape" && !panel.hidden) {
            open(false);
            made.focus();
        }
    };
    [made, panel].forEach((one) => one.addEventListener("keydown", close));
    open(false);
    return { button: made, open };
}

export interface Choice {
    button: HTMLElement;
    panel: HTMLElement;
    rename(): void; // in the reader's words of now
}

// div.choice      filled when it is opened first: most readers only want the exercise
//   form
export function choicePanel(route: PracticeRoute, exercise: Exercise, page: Page): Choice {
    const panel = element("div", { class: "choice" });
    let rename = () => {};
    const opener = openerOf(panel, (isOpen) => {
        if (isOpen && panel.childElementCount === 0) {
            const form = choiceForm(route, exercise, page);
            panel.append(form.element);
            rename = form.rename;
        }
    });
    return { button: opener.button, panel, rename: () => rename() };
}

// form
//   button          only what is asked at present
//   div.kinds
//   div.paper
//   div.length      how many, Start
function choiceForm(route: PracticeRoute, exercise: Exercise, page: Page): { element: HTMLElement; rename(): void } {
    const fields = fieldsOf(route, page);
    const only = onlyThis(route, exercise, page);
    const form = element(
        "form",
        { autocomplete: "off", "aria-label": texts.chooseTitle },
        ...only,
        fields.kinds.element,
        fields.paper.element,
        lengthAndStart(fields.length, element("button", { type: "submit", class: "main" }, texts.start)),
    );
    beginWith(form, fields, page);
    const rename = () => {
        fields.kinds.rename(page.kinds);
        only.forEach((one) => (one.textContent = nameOfOnly(exercise, page)));
    };
    return { element: form, rename };
}

// Nothing where that is the choice already.
function onlyThis(route: PracticeRoute, { kind, level }: Exercise, page: Page): HTMLElement[] {
    const only: PracticeRoute = { ...route, number: 1, kinds: shortest([`${kind}:${level}`], page.kinds), set: 0 };
    const isAlready = !isList(route.kinds) && shortest(entriesOf(route.kinds, page.kinds), page.kinds) === only.kinds;
    return isAlready ? [] : [button(nameOfOnly({ kind, level }, page), () => page.go(addressOf(only)))];
}

function nameOfOnly({ kind, level }: Pick<Exercise, "kind" | "level">, page: Page): string {
    return texts.onlyKind(titleOf(page, kind), level);
}
