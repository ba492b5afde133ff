// The periodic table, in a box that scrolls where the window is narrow.
import { element, scrollBox, spoken } from "../shared/dom";
import type { Page } from "../shared/page";
import { localNumber } from "../text/units";
import type { ElementInfo } from "../types";
import { texts } from "../words/texts";

export interface PeriodicTable {
    element: HTMLElement;
    // Marks these elements and no others, and scrolls to the first of them inside the box; gives its cell.
    mark(elements: ElementInfo[]): HTMLElement | null;
}

// div.scrolling
//   table.periodic
//     thead  the groups
//     tbody  rows of cells: atomic number, symbol, mass
export function periodicTable(elements: ElementInfo[], page: Page): PeriodicTable {
    const cells = new Map(elements.map((one) => [one.symbol, elementCell(one, page)]));
    const head = element("thead", {}, element("tr", {}, element("td", { class: "none" }), ...groups.map(groupHead)));
    const body = element("tbody", {}, ...rowsOf(elements).map((row, at) => tableRow(row, at + 1, cells)));
    const box = scrollBox("scrolling", texts.elementsTitle, element("table", { class: "periodic" }, head, body));
    return {
        element: box,
        mark(marked) {
            cells.forEach((cell) => cell.classList.remove("found"));
            marked.forEach(({ symbol }) => cells.get(symbol)?.classList.add("found"));
            const first = cells.get(marked[0]?.symbol ?? "") ?? null;
            if (first !== null) {
                scrollToMiddle(box, first);
            }
            return first;
        },
    };
}

function scrollToMiddle(box: HTMLElement, cell: HTMLElement): void {
    const [frame, seen] = [box.getBoundingClientRect(), cell.getBoundingClientRect()];
    box.scrollBy({ left: seen.left + seen.width / 2 - frame.left - frame.width / 2 });
}

// Rows 8 and 9 are the lanthanides and actinides, column by column below the others.
function rowsOf(elements: ElementInfo[]): Map<number, ElementInfo>[] {
    const rows = Array.from({ length: 9 }, () => new Map<number, ElementInfo>());
    const seriesLength = [0, 0];
    for (const row of elements) {
        const series = row.group === 0 ? row.period - 6 : -1;
        if (series < 0) {
            rows[row.period - 1]!.set(row.group, row);
        } else {
            seriesLength[series]! += 1;
            rows[7 + series]!.set(3 + seriesLength[series]!, row);
        }
    }
    return rows;
}

const groups = Array.from({ length: 18 }, (_, at) => at + 1);

function groupHead(group: number): HTMLElement {
    return element("th", { scope: "col" }, spoken(`${texts.group} `), withOldNumber(group));
}

// "17 (7)": the number in brackets is the one of tables that count the long groups alone.
const withOldNumber = (group: number): string => (group > 12 ? `${group} (${group - 10})` : String(group));

function tableRow(row: Map<number, ElementInfo>, number: number, cells: Map<string, HTMLElement>): HTMLElement {
    const cellOf = (group: number) => cells.get(row.get(group)?.symbol ?? "") ?? element("td", { class: "none" });
    return element("tr", {}, periodHead(number), ...groups.slice(number <= 7 ? 0 : 2).map(cellOf));
}

// The two rows below have room for their name, where others have the first two groups.
function periodHead(row: number): HTMLElement {
    return row <= 7
        ? element("th", { scope: "row" }, spoken(`${texts.period} `), String(row))
        : element("th", { scope: "row", colspan: 3, class: "series" }, row === 8 ? texts.lanthanides : texts.actinides);
}

function elementCell(row: ElementInfo, page: Page): HTMLElement {
    return element(
        "td",
        {},
        element("span", { class: "atomic" }, String(row.number)),
        element("abbr", { title: row.name }, row.symbol),
        spoken(` ${row.name} `),
        element("span", { class: "mass" }, localNumber(row.mass, page.settings)),
    );
}
