// The pages of a sheet as they come out of the printer. Each is filled here, so that preview and print
// break at the same places in every browser, and each page tells its paper.
import { element } from "../shared/dom";
import type { Page } from "../shared/page";
import type { Exercise, SheetRoute } from "../types";
import { texts } from "../words/texts";
import { fill, type Part } from "./page-breaks";
import { paperMeasures } from "./paper-measures";
import { labelOf, type Version } from "./printed-heads";
import { atOnce, measureIn, type Run, runsOf } from "./runs";
import { exercisesOf, papersOf } from "./sheet";

// Fills the box step by step: the sheets of all versions first, then the keys.
export function* leaves(box: HTMLElement, route: SheetRoute, page: Page): Generator<void> {
    const measuring = element("div", { class: "leaf measuring", "aria-hidden": "true" });
    box.append(measuring);
    const paper = paperMeasures(measuring);
    const measure = measureIn(measuring, paper.across);
    const places = exercisesOf(route.entries);
    const keys: { label: string; run: Run }[] = [];
    const put = putInto(box, route);
    for (const [at, number] of papersOf(route).entries()) {
        const version: Version = { paper: number, number: at + 1, exercises: yield* exercisesOfPaper(number, places, page) };
        const { sheet, key } = yield* runsOf(version, route, measure, page);
        const label = labelOf(version, route);
        put(label, leavesOf(label, sheet, paper.room));
        keys.push({ label, run: key });
    }
    measuring.remove();
    keysApart(keys, route).forEach(({ label, runs }) => put(label, leavesOf(label, runs, paper.room)));
}

// What is handed out apart, one after another: each from a front side on, where that is wanted.
function putInto(box: HTMLElement, route: SheetRoute): (label: string, pages: HTMLElement[]) => void {
    let sides = 0;
    let before = "";
    return (label, pages) => {
        const blank = route.leaf && sides % 2 === 1 && pages.length > 0 ? [blankSide(before)] : [];
        box.append(...blank, ...pages);
        sides += blank.length + pages.length;
        before = label;
    };
}

// div.leaf
//   p.running, p.empty
function blankSide(label: string): HTMLElement {
    return element("div", { class: "leaf" }, element("p", { class: "running" }, label), element("p", { class: "empty" }, texts.blankSide));
}

// Kinds that the library does not know were refused before.
function* exercisesOfPaper(paper: number, places: { kind: string; number: number }[], page: Page): Generator<void, Exercise[]> {
    const exercises: Exercise[] = [];
    for (const { kind, number } of places) {
        exercises.push(page.lesson.exercise(paper, number, kind)!);
        if (exercises.length % atOnce === 0) {
            yield;
        }
    }
    return exercises;
}

function keysApart(keys: { label: string; run: Run }[], route: SheetRoute): { label: string; runs: Run[] }[] {
    if (route.keys === "apart" || keys.length === 1) {
        return keys.map(({ label, run }) => ({ label, runs: [run] }));
    }
    const papers = papersOf(route);
    return [{ label: texts.papers(papers[0]!, papers[papers.length - 1]!), runs: keys.map(({ run }) => run) }];
}

// div.leaf
//   p.running
//   div.head, p.frame, ol   for each part
function leavesOf(label: string, runs: Run[], room: number): HTMLElement[] {
    const pages = fill(
        runs.map(({ head, again, rows }) => ({ head: heightOf(head), again: heightOf(again), items: heightsOf(rows) })),
        room,
    );
    return pages.map((parts, at) => {
        const running = element(
            "p",
            { class: "running" },
            element("span", {}, label),
            element("span", {}, texts.pageOf(at + 1, pages.length)),
        );
        return element("div", { class: "leaf" }, running, ...parts.flatMap((part) => partOf(part, runs[part.run]!)));
    });
}

function partOf(part: Part, { head, again, items, rows, first }: Run): HTMLElement[] {
    const [from, to] = [rows[part.from]!.from, rows[part.to - 1]!.to];
    const shown = items.slice(from, to);
    const columns = shown.some((item) => item.isHalf) ? { class: "columns" } : {};
    const list = element("ol", { start: first + from + 1, ...columns }, ...shown.map((item) => item.element));
    const headings = from === 0 ? head.map((item) => item.element) : again.map((item) => item.element.cloneNode(true));
    return [...(headings as HTMLElement[]), list];
}

const heightsOf = (all: { height: number }[]) => all.map(({ height }) => height);
const heightOf = (all: { height: number }[]) => heightsOf(all).reduce((sum, height) => sum + height, 0);
