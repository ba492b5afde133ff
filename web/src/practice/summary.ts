// What a set of exercises has come to, as the device keeps it: to print or to save, for a teacher.
import { addressOfSet } from "../address";
import { announce, button, element, save } from "../shared/dom";
import { type Page, titleOf } from "../shared/page";
import { randomPaper } from "../shared/paper";
import { ask } from "../shared/question";
import type { PracticeRoute } from "../types";
import { texts } from "../words/texts";
import { type KeptSet, keptSet } from "./kept-sets";
import { linkPanel } from "./link";
import { forgetSet } from "./progress";
import { type Summary, summaryOf, textOf } from "./summary-facts";
import { factsOf, resultsTable } from "./summary-table";

// Gives what puts the focus on the heading.
export function showSummary(main: HTMLElement, route: PracticeRoute, page: Page): () => void {
    const kept = keptSet(route);
    const heading = element("h1", { tabindex: -1 }, texts.summaryOf(route.paper));
    const contents = kept === null ? nothingKept(route, page) : keptContents(route, kept, page, () => showSummary(main, route, page)());
    main.replaceChildren(element("article", { class: "summary" }, heading, ...contents));
    return () => heading.focus();
}

// p
// div.help     begin
// div.link
function nothingKept(route: PracticeRoute, page: Page): HTMLElement[] {
    const begin = button(texts.beginSet, () => page.go(addressOfSet(route)), { class: "main" });
    return [element("p", {}, texts.nothingKept), element("div", { class: "help" }, begin), linkPanel(route)];
}

// p.blanks     the name, on paper
// dl           when, how long, the total
// p.hint
// div.box      table
// div.help     what can be done with it
// div.link
function keptContents(route: PracticeRoute, kept: KeptSet, page: Page, redraw: () => void): HTMLElement[] {
    const summary = summaryOf(kept, route.set, (number) => kindOf(page, route, number));
    const name = element("p", { class: "blanks on-paper" }, element("span", { class: "blank wide" }, texts.nameBlank));
    return [name, ...factsOf(summary), resultsTable(route, summary), buttonsOf(route, summary, page, redraw), linkPanel(route)];
}

function buttonsOf(route: PracticeRoute, summary: Summary, page: Page, redraw: () => void): HTMLElement {
    const clear: HTMLElement = button(texts.clearSet, () => ask(clear, texts.askClearSet, cleared));
    const cleared = () => {
        forgetSet(route);
        redraw();
        announce(texts.clearedSet);
    };
    return element(
        "div",
        { class: "help" },
        button(texts.printIt, () => window.print(), { class: "main" }),
        button(texts.saveIt, () => save(`paper-${route.paper}-summary.txt`, textOf(summary, route, addressToQuote()))),
        button(texts.newSet, () => page.go(addressOfSet({ ...route, paper: randomPaper() }))),
        clear,
    );
}

function kindOf(page: Page, route: PracticeRoute, number: number): string {
    const exercise = page.lesson.exercise(route.paper, number, route.kinds);
    return exercise === null ? "" : texts.kindAndLevel(titleOf(page, exercise.kind), exercise.level);
}

// From a disk the whole address would tell no more than whose disk it is.
function addressToQuote(): string {
    return location.protocol === "file:" ? location.hash : location.href;
}
