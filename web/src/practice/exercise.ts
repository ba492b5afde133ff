// One exercise: the question, a field, the mark, the solution step by step; and what each press leads to.
import { addressOf, atNumber, mainRoad, sideRoad } from "../address";
import { announce, bringIntoView, button, element, fitIntoView, isNarrow, isTouched, show } from "../shared/dom";
import type { Page } from "../shared/page";
import { withdraw } from "../shared/question";
import { typesetLine } from "../text/line";
import { speech } from "../text/seen-and-spoken";
import type { Exercise, Mark, PracticeRoute, Settings } from "../types";
import { texts } from "../words/texts";
import { type AnswerField, answerField, markId } from "./answer-field";
import type { Choice } from "./choice";
import { drawingOf } from "./drawing";
import { finish, isLastOfSet } from "./finish";
import { headerOf, nameOf } from "./head";
import { addToRecord } from "./kept-record";
import { showMark, spokenMark, withStep } from "./mark";
import { massesBelow } from "./masses-line";
import { overviewOf } from "./overview";
import { keepProgress, keepTyped, progressOf } from "./progress";
import { newlySpoken, showSolution } from "./solution";
import { workAt } from "./time-worked";
import * as state from "./tries";

export interface Place {
    route: PracticeRoute;
    exercise: Exercise;
    page: Page;
    choice: Choice; // of other exercises
    solved(): void; // a result was added to the record
}

// What changes while the reader works on it.
interface Work extends Place {
    progress: state.Progress;
    mark: Mark | null;
}

type Step = (progress: state.Progress) => state.Progress;

interface Parts {
    overview: ReturnType<typeof overviewOf> | null; // in a set
    field: AnswerField;
    check: HTMLButtonElement;
    form: HTMLElement;
    mark: HTMLElement;
    offer: HTMLElement;
    help: HTMLElement;
    solution: HTMLElement;
    next: HTMLButtonElement;
    goOn: HTMLElement;
}

// Gives what tells where the reader has come to, and puts the focus into the field. A screen reader would else
// tell the field and not the question. A keyboard on the screen would cover the question: there the focus
// stays away, and the question is read where it stands.
export function showExercise(article: HTMLElement, place: Place): () => void {
    const work: Work = { ...place, progress: progressOf(place.route), mark: null };
    const parts = partsOf(work);
    parts.form.addEventListener("submit", (event) => {
        event.preventDefault();
        check(work, parts);
    });
    parts.field.set(work.progress.typed);
    if (work.progress.marked !== null) {
        work.mark = markOfBefore(work, work.progress.marked);
    }
    update(work, parts);
    article.replaceChildren(...contentsOf(work, parts));
    if (place.route.set > 0) {
        workAt(place.route, work.progress.result === null);
    }
    return () => (isTouched() ? announce(nameOf(place.route)) : arrive(place, parts));
}

function arrive({ route, exercise, page }: Place, { field }: Parts): void {
    field.focus();
    announce(`${nameOf(route)}. ${speech(exercise.prompt, page.settings)}`);
}

// header       h1, what exercise it is, Choose exercises
// div.choice   once that is pressed
// nav          in a set, its exercises
// p.prompt
// p.masses     where it cannot be answered without
// figure       where there is a drawing
// form         the field, Check
// p.mark
// p.offer
// div.help     Show a step, Show the answer
// section.solution
// div.help     Next or Back to exercise 4, Another like this
// figure       here where a keyboard on the screen leaves room for little more than the question and the field
function contentsOf({ route, exercise, page, choice }: Place, parts: Parts): HTMLElement[] {
    const drawing = drawingOf(exercise, page);
    const drawn = drawing === null ? [] : [drawing];
    const isBelow = isTouched() && isNarrow();
    return [
        headerOf(route, exercise, choice.button, page),
        choice.panel,
        ...(parts.overview === null ? [] : [parts.overview.element]),
        element("p", { class: "prompt" }, ...typesetLine(exercise.prompt, page.settings)),
        ...massesBelow(exercise, page),
        ...(isBelow ? [] : drawn),
        parts.form,
        parts.mark,
        parts.offer,
        parts.help,
        parts.solution,
        parts.goOn,
        ...(isBelow ? drawn : []),
    ];
}

function partsOf(work: Work): Parts {
    const { route, exercise, page } = work;
    const steps = exercise.solution.length;
    const read = (text: string) => page.lesson.read(route.paper, route.number, route.kinds, text);
    const field = answerField({ ask: exercise.ask, settings: page.settings, read }, () => {
        work.progress = state.typed(work.progress, field.text());
        keepTyped(route, work.progress);
        updateMark(work, parts);
    });
    const check = element("button", { type: "submit", class: "main" }, texts.check);
    const next = nextButton(route, page);
    const step = button(texts.showStep, () => advance(work, parts, (before) => state.afterStep(before, steps)));
    const answer = button(texts.showAnswer, () => advance(work, parts, (before) => state.afterAnswer(before, steps)));
    const parts: Parts = {
        overview: route.set > 0 ? overviewOf(route) : null,
        field,
        check,
        form: element("form", { autocomplete: "off" }, field.element, check),
        mark: element("p", { id: markId, class: "mark", hidden: true }),
        offer: element("p", { class: "offer", hidden: true }, texts.wouldHelp),
        help: element("div", { class: "help" }, step, answer),
        solution: element("section", { class: "solution", "aria-label": texts.solution, hidden: true }),
        next,
        goOn: element("div", { class: "help go-on" }, next, ...(route.set > 0 ? [] : [anotherButton(work)])),
    };
    return parts;
}

function nextButton(route: PracticeRoute, page: Page): HTMLButtonElement {
    if (route.back !== undefined) {
        return button(texts.backTo(route.back.number), () => page.go(addressOf(mainRoad(route))));
    }
    const goOn = () => page.go(addressOf(atNumber(route, route.number + 1)));
    const next: HTMLButtonElement = button(texts.next, () => (isLastOfSet(route) ? finish(next, route, page) : goOn()));
    return next;
}

// Off to one of the same kind and level, from where the way back leads here. A set has no such side roads.
function anotherButton({ route, exercise, page }: Place): HTMLButtonElement {
    const like = `${exercise.kind}:${exercise.level}`;
    return button(texts.another, () => page.go(addressOf(sideRoad(route, like))), { class: "aside" });
}

// Another tab may have got further with the same exercise.
function keep(work: Work, step: Step): void {
    const before = progressOf(work.route);
    work.progress = step(before);
    keepProgress(work.route, work.progress);
    if (work.progress.result !== null && before.result === null) {
        addToRecord(work.exercise.kind, work.progress.result);
        work.solved();
    }
}

function update(work: Work, parts: Parts): void {
    const { route, exercise, page, progress } = work;
    withdraw(parts.next); // Of how many are open; that may be another number now.
    showSolution(parts.solution, exercise, progress.steps, page);
    updateMark(work, parts);
    parts.help.hidden = isShownWhole(work);
    parts.offer.hidden = !state.offersHelp(progress);
    parts.next.classList.toggle("main", progress.result !== null);
    parts.check.classList.toggle("main", progress.result === null);
    if (parts.overview !== null) {
        parts.overview.update();
        show(parts.next, isLastOfSet(route) ? texts.finish : texts.next);
    }
}

function updateMark(work: Work, parts: Parts): void {
    const { marked } = work.progress;
    const isStale = state.isMarkStale(work.progress);
    showMark(parts.mark, markToShow(work), isStale && marked !== null ? parts.field.worded(marked) : null, work.page);
    parts.field.setWrong(work.mark !== null && !isStale && work.mark.verdict !== "correct");
}

function check(work: Work, parts: Parts): void {
    const text = parts.field.text();
    const { decimal } = work.page.settings;
    const mark = markOf(work, text, decimal);
    work.mark = mark;
    keep(work, (before) => state.afterMark(before, { text, decimal }, mark));
    update(work, parts);
    announce([spokenMark(markToShow(work)!, work.page), ...(parts.offer.hidden ? [] : [texts.wouldHelp])].join(" "));
    if (mark.verdict === "correct") {
        parts.next.focus({ preventScroll: true });
        bringIntoView(parts.mark, parts.goOn);
    } else {
        parts.field.focus();
        const focused = document.activeElement ?? parts.form;
        bringIntoView(fitIntoView(focused, parts.mark) ? focused : parts.mark, parts.mark);
    }
}

function advance(work: Work, parts: Parts, step: Step): void {
    const before = work.progress.steps;
    keep(work, step);
    update(work, parts);
    announce(newlySpoken(work.exercise, before, work.progress.steps, work.page));
    if (isShownWhole(work)) {
        parts.solution.querySelector("h2")?.focus({ preventScroll: true });
    }
    bringIntoView(parts.solution, parts.goOn);
}

function markOf({ route, page }: Work, text: string, decimal: Settings["decimal"]): Mark {
    return page.lesson.mark(route.paper, route.number, route.kinds, text, decimal);
}

// The mark that was given, as the reader writes now. Where another decimal sign would make another one of it,
// it stays what it was.
function markOfBefore(work: Work, text: string): Mark {
    const given = markOf(work, text, work.progress.decimal);
    const anew = markOf(work, text, work.page.settings.decimal);
    return anew.verdict === given.verdict ? anew : given;
}

// Once all is shown there is no step left to press for; where one is offered, it need not be told twice.
function markToShow(work: Work): Mark | null {
    const isTold = isShownWhole(work) || state.offersHelp(work.progress);
    return work.mark === null || isTold ? work.mark : withStep(work.mark);
}

function isShownWhole({ progress, exercise }: Work): boolean {
    return state.isShownWhole(progress, exercise.solution.length);
}
