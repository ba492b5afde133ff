// One exercise at a time: the question, a field, the mark, the solution step by step.
import { addressOf, atNumber } from "../address";
import { announce, bringIntoView, button, element, fitIntoView, show } from "../dom";
import { seenSentence, spansOf, spansOfFormulas, spokenSentence } from "../sentence";
import { speech, typesetLine, wholeSpoken } from "../spans";
import * as storage from "../storage";
import * as state from "../state";
import { texts } from "../texts";
import type { Exercise, Mark, PracticeRoute, Span, Step } from "../types";
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
    let mark: Mark | null = null;
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
        showMark();
        const whole = state.isShownWhole(progress, steps);
        help.hidden = whole;
        offer.hidden = !state.offersHelp(progress);
        nextButton.classList.toggle("main", progress.result !== null);
        check.classList.toggle("main", progress.result === null);
    }

    function showMark(): void {
        markLine.hidden = mark === null;
        if (mark !== null) {
            const { verdict, sentence } = whatCanBeDone(mark, progress, steps);
            markLine.dataset["verdict"] = verdict;
            const seen = element("span", { "aria-hidden": "true" }, element("strong", {}, texts.verdicts[verdict] ?? ""), " ", seenSentence(sentence, page.settings, page.names));
            show(markLine, seen, wholeSpoken(spokenMark({ verdict, sentence }, page)));
        }
    }

    form.addEventListener("submit", (event) => {
        event.preventDefault();
        mark = page.lesson.mark(route.paper, route.number, route.kinds, field.text());
        keep(state.afterMark(progress, mark));
        update();
        announce([spokenMark(whatCanBeDone(mark, progress, steps), page), ...(offer.hidden ? [] : [texts.wouldHelp])].join(" "));
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
        mark = page.lesson.mark(route.paper, route.number, route.kinds, progress.typed);
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

// h2
// ol        the steps that are shown
//   li      p.say, p.math
// p.next    the hint to the step that comes next
// p.key     once all steps are shown
function showSolution(box: HTMLElement, exercise: Exercise, { steps }: state.Progress, page: Page): void {
    box.hidden = steps === 0;
    if (steps === 0) {
        return;
    }
    const next = exercise.solution[steps - 1];
    const end = next === undefined ? labelled("key", texts.key, spansOfKey(exercise), page) : labelled("next", texts.hint, next.hint, page);
    const list = element("ol", {}, ...exercise.solution.slice(0, steps - 1).map((step) => rowOf(step, page)));
    show(box, element("h2", {}, texts.solution), ...(steps === 1 ? [] : [list]), end);
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

function spansOfKey({ ask, key }: Exercise): Span[] {
    return ask.form === "number" ? spansOf(key.text) : spansOfFormulas(key.text);
}

// Once all is shown there is no button any more that could be pressed for a step.
function whatCanBeDone(mark: Mark, progress: state.Progress, steps: number): Mark {
    return state.isShownWhole(progress, steps) ? { ...mark, sentence: mark.sentence.replace(texts.orPressStep, "") } : mark;
}

function spokenMark(mark: Mark, page: Page): string {
    const word = mark.verdict === "correct" ? "" : (texts.verdicts[mark.verdict] ?? "");
    return `${word} ${spokenSentence(mark.sentence, page.settings, page.names)}`.trim();
}

// The step that was shown last, and the hint to the next one.
function lastStepSpoken(exercise: Exercise, { steps }: state.Progress, page: Page): string {
    const step = exercise.solution[Math.min(steps - 1, exercise.solution.length) - 1];
    const next = exercise.solution[steps - 1];
    return [
        ...(step === undefined ? [] : [speech(step.say, page.settings), speech(step.math ?? [], page.settings)]),
        ...(next === undefined ? [] : [`${texts.hint}: ${speech(next.hint, page.settings)}`]),
    ]
        .filter((line) => line !== "")
        .join(" ");
}
