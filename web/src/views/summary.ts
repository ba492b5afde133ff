// What a set of exercises has come to: to print or to save, for a teacher.
import { addressOf, atNumber, placeOf } from "../address";
import { button, element, save, scrollBox, show } from "../dom";
import { progressOf } from "../progress";
import { texts } from "../texts";
import type { PracticeRoute } from "../types";
import { type Page, randomPaper, titleOf } from "./page";

interface Row {
    number: number;
    kind: string;
    result: string;
}

export function showSummary(main: HTMLElement, route: PracticeRoute, page: Page): () => void {
    const rows = rowsOf(route, page);
    const heading = element("h1", { tabindex: -1 }, texts.summaryOf(route.paper));
    const lines = rows.map((row) =>
        element("tr", {}, element("th", { scope: "row" }, linkTo(route, row.number)), element("td", {}, row.kind), element("td", {}, row.result)),
    );
    const first = atNumber({ ...route, paper: randomPaper() }, 1);
    show(
        main,
        element(
            "article",
            { class: "summary" },
            heading,
            element("p", { class: "blanks on-paper" }, element("span", { class: "blank wide" }, texts.nameBlank), element("span", { class: "blank" }, texts.dateBlank)),
            element("p", {}, countsOf(rows)),
            scrollBox("box", texts.summary, element("table", {}, element("tbody", {}, ...lines))),
            element(
                "div",
                { class: "help" },
                button(texts.printIt, () => window.print(), { class: "main" }),
                button(texts.saveIt, () => save(`paper-${route.paper}-summary.txt`, textOf(route, rows))),
                button(texts.newSet, () => page.go(addressOf(first))),
            ),
        ),
    );
    return () => heading.focus();
}

function rowsOf(route: PracticeRoute, page: Page): Row[] {
    return Array.from({ length: route.set }, (_, at) => {
        const place = atNumber(route, at + 1);
        const exercise = page.lesson.exercise(place.paper, place.number, place.kinds);
        const result = progressOf(placeOf(place)).result;
        return {
            number: at + 1,
            kind: exercise === null ? "" : texts.kindAndLevel(titleOf(page, exercise.kind), exercise.level),
            result: result === null ? texts.notDone : texts.results[result],
        };
    });
}

function linkTo(route: PracticeRoute, number: number): HTMLElement {
    return element("a", { href: addressOf(atNumber(route, number)) }, texts.exercise(number));
}

function countsOf(rows: Row[]): string {
    return [...Object.values(texts.results), texts.notDone]
        .map((result) => [rows.filter((row) => row.result === result).length, result] as const)
        .filter(([count]) => count > 0)
        .map(([count, result]) => `${count} ${result}`)
        .join(", ");
}

function textOf(route: PracticeRoute, rows: Row[]): string {
    const lines = rows.map((row) => `${row.number}. ${row.kind}: ${row.result}`);
    // From a disk the whole address would tell no more than whose disk it is.
    const address = location.protocol === "file:" ? location.hash : location.href;
    return [texts.title, texts.summaryOf(route.paper), `${texts.nameBlank}: `, countsOf(rows), "", ...lines, "", address, ""].join("\n");
}
