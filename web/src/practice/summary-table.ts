// The summary of a set: its facts and its exercises.
import { addressOf, atNumber } from "../address";
import { element, scrollBox } from "../shared/dom";
import type { PracticeRoute } from "../types";
import { texts } from "../words/texts";
import type { Row, Summary } from "./summary-facts";

// dl.facts
// p.hint      how the time is counted
export function factsOf({ facts }: Summary): HTMLElement[] {
    const entries = facts.flatMap(([name, fact]) => [element("dt", {}, name), element("dd", {}, fact)]);
    return [element("dl", { class: "facts" }, ...entries), element("p", { class: "hint" }, texts.workedNote)];
}

// div.box
//   table     a row an exercise
export function resultsTable(route: PracticeRoute, { rows }: Summary): HTMLElement {
    const head = element("tr", {}, ...texts.summaryColumns.map((title) => element("th", { scope: "col" }, title)));
    const body = element("tbody", {}, ...rows.map((row) => lineOf(route, row)));
    return scrollBox("box", texts.summary, element("table", {}, element("thead", {}, head), body));
}

function lineOf(route: PracticeRoute, { number, kind, tries, result }: Row): HTMLElement {
    const link = element("a", { href: addressOf(atNumber(route, number)) }, texts.exercise(number));
    const cells = [kind, String(tries), result].map((text) => element("td", {}, text));
    return element("tr", {}, element("th", { scope: "row" }, link), ...cells);
}
