// The solubility of salts: the rules, and a grid of all pairs that tells the reason of the chosen one.
import { bringIntoView, button, element, scrollBox, show } from "../shared/dom";
import type { Page } from "../shared/page";
import { typesetLine } from "../text/line";
import type { IonInfo, PairInfo, Tables } from "../types";
import { texts } from "../words/texts";
import { labelOf, reasonOf } from "./pairs";

interface Grid {
    readonly tables: Tables;
    readonly page: Page;
    readonly box: HTMLElement; // the table is made anew in it
    readonly reason: HTMLElement;
    readonly cells: Map<PairInfo, HTMLButtonElement>;
    readonly heads: Map<string, HTMLElement>; // of rows and columns, by the ion's name
    isWhole: boolean; // with the rows and columns of which nothing is asked
    chosen: PairInfo | null;
}

// div
//   ul.rules
//   p.hint.how
//   div.grid-and-reason
//     p.hint.signs
//     div.scrolling.grid    table.solubility
//     p.reason
//   p.never                 what is left out, and a button that brings it back
export function solubility(tables: Tables, page: Page): HTMLElement {
    const grid: Grid = {
        tables,
        page,
        box: scrollBox("scrolling grid", texts.solubilityTitle),
        reason: element("p", { class: "reason", role: "status" }),
        cells: new Map(),
        heads: new Map(),
        isWhole: false,
        chosen: null,
    };
    draw(grid);
    const beside = element(
        "div",
        { class: "grid-and-reason" },
        element("p", { class: "hint signs" }, texts.signNotes),
        grid.box,
        grid.reason,
    );
    return element("div", {}, ruleList(tables, page), element("p", { class: "hint how" }, texts.gridNote), beside, leftOut(grid));
}

function ruleList({ rules }: Tables, page: Page): HTMLElement {
    return element("ul", { class: "rules" }, ...rules.map(({ sentence }) => element("li", {}, ...typesetLine(sentence, page.settings))));
}

function leftOut(grid: Grid): HTMLElement {
    const never = neverAsked(grid.tables).map(({ name }) => name);
    const fold = button(texts.showNever, () => {
        grid.isWhole = !grid.isWhole;
        fold.textContent = grid.isWhole ? texts.hideNever : texts.showNever;
        draw(grid);
    });
    return element("p", { class: "never hint" }, texts.neverAsked(never), " ", fold);
}

// The ions of whose pairs none is asked.
function neverAsked({ ions, pairs }: Tables): IonInfo[] {
    const asked = pairs.filter((pair) => pair.verdict !== "not asked");
    const isIn = (some: PairInfo[], { name }: IonInfo) => some.some((pair) => pair.cation === name || pair.anion === name);
    return ions.filter((ion) => isIn(pairs, ion) && !isIn(asked, ion));
}

function draw(grid: Grid): void {
    const { ions, pairs } = grid.tables;
    const never = new Set(grid.isWhole ? [] : neverAsked(grid.tables).map(({ name }) => name));
    const inGrid = (name: string) => ions.find((ion) => ion.name === name && !never.has(name)) ?? [];
    const cations = [...new Set(pairs.map((pair) => pair.cation))].flatMap(inGrid);
    const anions = [...new Set(pairs.map((pair) => pair.anion))].flatMap(inGrid);
    grid.cells.clear();
    grid.heads.clear();
    const columns = anions.map((anion) => headOf(grid, anion, "col"));
    const rows = cations.map((cation) => rowOf(grid, cation, anions));
    const head = element("thead", {}, element("tr", {}, element("td", {}), ...columns));
    grid.box.replaceChildren(element("table", { class: "solubility" }, head, element("tbody", {}, ...rows)));
    walkWithArrows([...grid.cells.values()], anions.length);
    mark(grid, grid.chosen !== null && grid.cells.has(grid.chosen) ? grid.chosen : null);
    if (grid.chosen === null) {
        show(grid.reason); // One that stays is left as it is, or it would be announced again.
    }
}

function headOf(grid: Grid, ion: IonInfo, scope: "row" | "col"): HTMLElement {
    const head = element("th", { scope }, element("span", {}, ion.name));
    grid.heads.set(ion.name, head);
    return head;
}

function rowOf(grid: Grid, cation: IonInfo, anions: IonInfo[]): HTMLElement {
    const pairOf = (anion: IonInfo) => grid.tables.pairs.filter((pair) => pair.cation === cation.name && pair.anion === anion.name);
    const cells = anions.map((anion) => element("td", {}, ...pairOf(anion).map((pair) => cellOf(grid, pair))));
    return element("tr", {}, headOf(grid, cation, "row"), ...cells);
}

function cellOf(grid: Grid, pair: PairInfo): HTMLButtonElement {
    const choose = () => {
        mark(grid, pair);
        show(grid.reason, ...reasonOf(pair, grid.page));
        uncover(cell);
        bringIntoView(cell, grid.reason);
    };
    const attributes = { "aria-label": labelOf(pair), "data-verdict": pair.verdict, "tabindex": -1 };
    const cell = button(texts.signs[pair.verdict] ?? pair.verdict, choose, attributes);
    grid.cells.set(pair, cell);
    return cell;
}

// The chosen cell, and the names of its row and column.
function mark(grid: Grid, chosen: PairInfo | null): void {
    if (grid.chosen !== null) {
        grid.cells.get(grid.chosen)?.removeAttribute("aria-current");
    }
    grid.chosen = chosen;
    if (chosen !== null) {
        grid.cells.get(chosen)?.setAttribute("aria-current", "true");
    }
    grid.heads.forEach((head, name) => head.classList.toggle("chosen", name === chosen?.cation || name === chosen?.anion));
}

const arrows: Record<string, [number, number]> = { ArrowLeft: [0, -1], ArrowRight: [0, 1], ArrowUp: [-1, 0], ArrowDown: [1, 0] };

// One cell at a time is in the order of the Tab key, the last that had the focus; the arrow keys go on
// from it.
function walkWithArrows(cells: HTMLButtonElement[], columns: number): void {
    cells[0]?.setAttribute("tabindex", "0");
    cells.forEach((cell, at) => {
        cell.addEventListener("focus", () => {
            cells.forEach((one) => one.setAttribute("tabindex", one === cell ? "0" : "-1"));
            uncover(cell);
        });
        cell.addEventListener("keydown", (event) => {
            const [down, right] = arrows[event.key] ?? [0, 0];
            const column = (at % columns) + right;
            const next = cells[at + down * columns + right];
            if ((down === 0 && right === 0) || next === undefined || column < 0 || column >= columns) {
                return;
            }
            event.preventDefault();
            next.focus();
        });
    });
}

// From under the names that stay where the rest scrolls, and from beyond the edge: Chromium leaves it
// there where 32 pixels of its width are in the box.
function uncover(cell: HTMLElement): void {
    const [box, head] = [cell.closest(".grid")!, cell.closest("tr")!.firstElementChild!];
    const { left, right } = cell.getBoundingClientRect();
    const covered = Math.max(0, head.getBoundingClientRect().right - left);
    const beyond = Math.max(0, right - box.getBoundingClientRect().right);
    box.scrollBy({ left: covered > 0 ? -covered : beyond });
}
