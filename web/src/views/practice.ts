// One exercise at a time: the question, a field, the mark, the solution step by step.
import { addressOf, atNumber } from "../address";
import { announce, bringIntoView, button, element, fitIntoView, show } from "../dom";
import { seenSentence, spansOf, spansOfFormulas, spokenSentence } from "../sentence";
import { speech, typesetLine, wholeSpoken } from "../spans";
import * as storage from "../storage";
import * as state from "../state";
import { texts } from "../texts";
import type { Exercise, Mark, PracticeRoute, Span } from "../types";
import { answerField } from "./answer";
import { choicePanel } from "./choice";
import { displayPanel } from "./display";
import { drawingOf } from "./drawing";
import { type Page, titleOf } from "./page";
import { recordPanel } from "./record";

// article        the exercise
// aside          choice, display, record
// Gives what puts the focus into the field, for a reader who comes from another exercise; the question
// stays in view, which is read first.
export function showPractice(main: HTMLElement, route: PracticeRoute, exercise: Exercise, page: Page): () => void {
    const article = element("article", { class: "exercise" });
    const record = recordPanel(page);
    const draw = () => showExercise(article, route, exercise, page, record.update);
    const focus = draw();
    const display = displayPanel(page, draw);
    show(main, article, element("aside", { "aria-label": texts.around }, choicePanel(route, page), display, record.element));
    return focus;
}

// header       h1 and what exercise it is
// p.prompt
// figure       where there is a drawing
// form         the field, Check
// p.mark
// p.offer
// div.help     Show a step, Show the answer
// section.solution
// div.help     Next, Another like this
function showExercise(article: HTMLElement, route: PracticeRoute, exercise: Exercise, page: Page, solved: () => void): () => void {
    const place = placeOf(route);
    let progress = storage.progressOf(place);
    const steps = exercise.solution.length;

    const field = answerField(exercise.ask, page.settings, () => keep(state.typed(progress, field.text())));
    const check = element("button", { type: "submit", class: "main" }, texts.check);
    const form = element("form", { autocomplete: "off" }, field.element, check);
    const markLine = element("p", { class: "mark", hidden: true });
    const offer = element("p", { class: "offer", hidden: true }, texts.wouldHelp);
    const solution = element("section", { class: "solution", "aria-label": texts.solution, hidden: true });
    const stepButton = button(texts.showStep, () => advance(state.afterStep(progress, steps)));
    const answerButton = button(texts.showAnswer, () => advance(state.afterAnswer(progress, steps)));
    const nextButton = button(isLast(route) ? texts.finish : texts.next, () => page.go(addressOf(atNumber(route, route.number + 1))));
    const another = button(texts.another, () => page.go(addressOf(likeThis(route, exercise))));
    const help = element("div", { class: "help" }, stepButton, answerButton);
    const goOn = element("div", { class: "help" }, nextButton, another);

    function keep(next: state.Progress): void {
        if (next.result !== null && progress.result === null) {
            storage.addToRecord(exercise.kind, next.result);
            solved();
        }
        progress = next;
        storage.keepProgress(place, progress);
    }

    function advance(next: state.Progress): void {
        keep(next);
        update();
        announce(lastStepSpoken(exercise, progress, page));
        if (state.isShownWhole(progress, steps)) {
            nextButton.focus({ preventScroll: true });
        }
        bringIntoView(solution, goOn);
    }

    function update(): void {
        showSolution(solution, exercise, progress, page);
        const whole = state.isShownWhole(progress, steps);
        help.hidden = whole;
        offer.hidden = !state.offersHelp(progress);
        nextButton.classList.toggle("main", progress.result !== null);
        check.classList.toggle("main", progress.result === null);
    }

    function marked(mark: Mark): void {
        markLine.hidden = false;
        markLine.dataset["verdict"] = mark.verdict;
        const seen = element("span", { "aria-hidden": "true" }, element("strong", {}, texts.verdicts[mark.verdict] ?? ""), " ", seenSentence(mark.sentence, page.settings, page.names));
        show(markLine, seen, wholeSpoken(spokenMark(mark, page)));
    }

    form.addEventListener("submit", (event) => {
        event.preventDefault();
        const mark = page.lesson.mark(route.paper, route.number, route.kinds, field.text());
        keep(state.afterMark(progress, mark));
        marked(mark);
        update();
        announce([spokenMark(mark, page), ...(offer.hidden ? [] : [texts.wouldHelp])].join(" "));
        if (mark.verdict === "correct") {
            nextButton.focus();
            bringIntoView(markLine, goOn);
        } else {
            field.focus();
            const focused = document.activeElement ?? form;
            bringIntoView(fitIntoView(focused, markLine) ? focused : markLine, markLine);
        }
    });

    field.set(progress.typed);
    if (progress.checked) {
        marked(page.lesson.mark(route.paper, route.number, route.kinds, progress.typed));
    }
    update();
    const drawing = drawingOf(exercise, page.settings);
    show(
        article,
        headerOf(route, exercise, page),
        element("p", { class: "prompt" }, ...typesetLine(exercise.prompt, page.settings)),
        ...(drawing === null ? [] : [drawing]),
        form,
        markLine,
        offer,
        help,
        solution,
        goOn,
    );
    return () => field.focus();
}

export function placeOf(route: PracticeRoute): string {
    return `${route.paper}/${route.number}/${route.kinds}`;
}

function isLast(route: PracticeRoute): boolean {
    return route.set > 0 && route.number >= route.set;
}

function likeThis(route: PracticeRoute, exercise: Exercise): PracticeRoute {
    return { ...route, number: route.number + 1, kinds: `${exercise.kind}:${exercise.level}`, set: 0 };
}

function headerOf(route: PracticeRoute, exercise: Exercise, page: Page): HTMLElement {
    const title = route.set > 0 ? texts.exerciseOf(route.number, route.set) : texts.exercise(route.number);
    return element(
        "header",
        {},
        element("h1", {}, title),
        element("p", { class: "which" }, `${texts.kindAndLevel(titleOf(page, exercise.kind), exercise.level)} · ${texts.paper(route.paper)}`),
    );
}

// ol
//   li   p.say, p.math
// p.key  once all steps are shown
function showSolution(box: HTMLElement, exercise: Exercise, progress: state.Progress, page: Page): void {
    const { steps } = progress;
    box.hidden = steps === 0;
    if (steps === 0) {
        return;
    }
    const shownSteps = exercise.solution.slice(0, Math.max(1, steps - 1));
    const list = element("ol", {});
    for (const step of shownSteps) {
        const row = element("li", {}, element("p", { class: "say" }, ...typesetLine(step.say, page.settings)));
        if (steps > 1 && step.math !== undefined && step.math.length > 0) {
            row.append(element("p", { class: "math" }, ...typesetLine(step.math, page.settings)));
        }
        list.append(row);
    }
    const heading = element("h2", {}, steps === 1 ? texts.hint : texts.solution);
    show(box, heading, list);
    if (state.isShownWhole(progress, exercise.solution.length)) {
        const key = typesetLine(spansOfKey(exercise), page.settings);
        box.append(element("p", { class: "key" }, element("strong", {}, `${texts.key}: `), element("span", { class: "line" }, ...key)));
    }
}

function spansOfKey({ ask, key }: Exercise): Span[] {
    return ask.form === "number" ? spansOf(key.text) : spansOfFormulas(key.text);
}

function spokenMark(mark: Mark, page: Page): string {
    const word = mark.verdict === "correct" ? "" : (texts.verdicts[mark.verdict] ?? "");
    return `${word} ${spokenSentence(mark.sentence, page.settings, page.names)}`.trim();
}

function lastStepSpoken(exercise: Exercise, progress: state.Progress, page: Page): string {
    const step = exercise.solution[Math.max(0, Math.min(progress.steps - 1, exercise.solution.length) - 1)];
    if (step === undefined) {
        return "";
    }
    const math = progress.steps > 1 ? speech(step.math ?? [], page.settings) : "";
    return `${speech(step.say, page.settings)} ${math}`.trim();
}
