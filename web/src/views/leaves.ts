// The pages of a sheet as they come out of the printer. Each is filled here, so that preview and print
// break at the same places in every browser, and each page tells its paper.
import { element } from "../dom";
import { fill, type Part } from "../filling";
import { exercisesOf, papersOf } from "../sheet";
import { texts } from "../texts";
import type { ElementInfo, Exercise, SheetRoute } from "../types";
import type { Page } from "./page";
import { exerciseItem, keyHead, keyHeadAgain, keyItem, labelOf, sheetHead, type Version } from "./printed";

// An element and how high it is on paper, in millimetres.
interface Item {
    element: HTMLElement;
    height: number;
}

// Items under a heading, and what stands above those on a further page.
interface Run {
    head: Item;
    again: Item | null;
    items: Item[];
}

type Measure = (elements: HTMLElement[]) => Item[];

const atOnce = 25; // exercises that are made and measured in one step

// In millimetres, as in sheet.css: the page without its margins and its running line, less what a line
// that breaks otherwise in print than on the screen may need.
const spare = 5;
const widths: Record<SheetRoute["size"], number> = { A4: 210, Letter: 215.9 };
const capacities: Record<SheetRoute["size"], number> = { A4: 297 - 2 * 15 - 8 - spare, Letter: 279.4 - 2 * 15 - 8 - spare };

// Fills the box step by step: the sheets of all versions first, then the keys.
export function* leaves(box: HTMLElement, route: SheetRoute, page: Page): Generator<void> {
    const measuring = element("div", { class: "leaf measuring", "aria-hidden": "true" });
    box.append(measuring);
    const measure = measureIn(measuring, widths[route.size]);
    const elements = page.lesson.tables().elements;
    const places = exercisesOf(route.entries);
    const keys: { label: string; run: Run }[] = [];
    const put = putInto(box, route);
    for (const [at, paper] of papersOf(route).entries()) {
        const version: Version = { paper, number: at + 1, exercises: yield* exercisesOfPaper(paper, places, page) };
        const { sheet, key } = yield* runsOf(version, route, elements, measure, page);
        const label = labelOf(version, route);
        put(label, leavesOf(label, [sheet], route));
        keys.push({ label, run: key });
    }
    measuring.remove();
    keysApart(keys, route).forEach(({ label, runs }) => put(label, leavesOf(label, runs, route)));
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

// What is not printed is not made.
function* runsOf(version: Version, route: SheetRoute, elements: ElementInfo[], measure: Measure, page: Page): Generator<void, { sheet: Run; key: Run }> {
    const heads: Item[] = [];
    const sheet: Item[] = [];
    const key: Item[] = [];
    for (let from = 0; from < version.exercises.length; from += atOnce) {
        const exercises = version.exercises.slice(from, from + atOnce);
        const headings = from > 0 ? [] : [sheetHead(version, route, elements, page), keyHead(version, route), keyHeadAgain(version, route)];
        const asked = route.parts === "key" ? [] : exercises.map((exercise) => exerciseItem(exercise, route, page));
        const answered = route.parts === "sheet" ? [] : exercises.map((exercise) => keyItem(exercise, route, page));
        const items = measure([...headings, ...asked, ...answered]);
        heads.push(...items.splice(0, headings.length));
        sheet.push(...items.splice(0, asked.length));
        key.push(...items);
        yield;
    }
    const [head, keyAtFirst, keyAgain] = heads;
    return { sheet: { head: head!, again: null, items: sheet }, key: { head: keyAtFirst!, again: keyAgain!, items: key } };
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

function measureIn(measuring: HTMLElement, width: number): Measure {
    return (elements) => {
        const list = element("ol", {}, ...elements.filter((one) => one.localName === "li"));
        measuring.replaceChildren(...elements.filter((one) => one.localName !== "li"), list);
        const millimetre = measuring.getBoundingClientRect().width / width;
        return elements.map((one) => ({ element: one, height: one.getBoundingClientRect().height / millimetre }));
    };
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
//   div.head, ol   for each part
function leavesOf(label: string, runs: Run[], route: SheetRoute): HTMLElement[] {
    const pages = fill(
        runs.map(({ head, again, items }) => ({ head: head.height, again: again?.height ?? 0, items: items.map((item) => item.height) })),
        capacities[route.size],
    );
    return pages.map((parts, at) => {
        const running = element("p", { class: "running" }, element("span", {}, label), element("span", {}, texts.pageOf(at + 1, pages.length)));
        return element("div", { class: "leaf" }, running, ...parts.flatMap((part) => partOf(part, runs[part.run]!)));
    });
}

function partOf({ from, to }: Part, { head, again, items }: Run): HTMLElement[] {
    const list = element("ol", { start: from + 1 }, ...items.slice(from, to).map((item) => item.element));
    const heading = from === 0 ? head.element : (again?.element.cloneNode(true) as HTMLElement | undefined);
    return heading === undefined ? [list] : [heading, list];
}
