// The data that the exercises use, read from the library.
import { button, element, scrollBox, show, spoken } from "../dom";
import { typeset } from "../spans";
import { spokenSentence, typesetSentence } from "../sentence";
import { texts } from "../texts";
import type { ElementInfo, IonInfo, PairInfo, Tables } from "../types";
import type { Page } from "./page";

export function showTables(main: HTMLElement, page: Page): () => void {
    const tables = page.lesson.tables();
    const heading = element("h1", { tabindex: -1 }, texts.tablesTitle);
    show(
        main,
        element(
            "article",
            { class: "tables" },
            heading,
            section(texts.elementsTitle, texts.elementsNote, periodicTable(tables.elements, page)),
            section(texts.ionsTitle, "", ionTables(tables.ions, page)),
            section(texts.solubilityTitle, texts.solubilityNote, solubilityGrid(tables, page)),
            section(texts.differTitle, texts.differNote, notAsked(tables.pairs, page)),
        ),
    );
    return () => heading.focus();
}

function section(title: string, note: string, body: Node): HTMLElement {
    const notes = note === "" ? [] : [element("p", { class: "hint" }, note)];
    return element("section", {}, element("h2", {}, title), ...notes, body);
}

// Rows 8 and 9 are the lanthanides and actinides, column by column below the others.
function periodicTable(elements: ElementInfo[], page: Page): HTMLElement {
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
    const heads = groups.map((group) => element("th", { scope: "col" }, spoken(`${texts.group} `), withOldNumber(group)));
    const body = rows.map((row, at) => element("tr", {}, ...periodHead(at + 1), ...groups.slice(at < 7 ? 0 : 2).map((group) => elementCell(row.get(group), page))));
    const head = element("thead", {}, element("tr", {}, element("td", { class: "none" }), ...heads));
    return scrollBox("scrolling", texts.elementsTitle, element("table", { class: "periodic" }, head, element("tbody", {}, ...body)));
}

const groups = Array.from({ length: 18 }, (_, at) => at + 1);

// "17 (7)": the number in brackets is the one of tables that count the long groups alone.
const withOldNumber = (group: number): string => (group > 12 ? `${group} (${group - 10})` : String(group));

// The two rows below have room for their name, where others have the first two groups.
function periodHead(row: number): HTMLElement[] {
    return row <= 7
        ? [element("th", { scope: "row" }, spoken(`${texts.period} `), String(row))]
        : [element("th", { scope: "row", colspan: 3, class: "series" }, row === 8 ? texts.lanthanides : texts.actinides)];
}

function elementCell(row: ElementInfo | undefined, page: Page): HTMLElement {
    if (row === undefined) {
        return element("td", { class: "none" });
    }
    return element(
        "td",
        {},
        element("span", { class: "atomic" }, String(row.number)),
        element("abbr", { title: nameOf(row, page) }, row.symbol),
        spoken(` ${nameOf(row, page)} `),
        element("span", { class: "mass" }, row.mass.replace(".", page.settings.decimal)),
    );
}

function nameOf(row: ElementInfo | IonInfo, page: Page): string {
    return page.settings.names === "american" && row.american ? row.american : row.name;
}

function ionTables(ions: IonInfo[], page: Page): HTMLElement {
    const half = (title: string, wanted: (charge: number) => boolean) =>
        element(
            "table",
            {},
            element("caption", {}, title),
            element("thead", {}, element("tr", {}, element("th", { scope: "col" }, texts.ionName), element("th", { scope: "col" }, texts.ionFormula))),
            element("tbody", {}, ...ions.filter((ion) => wanted(ion.charge)).map((ion) => ionRow(ion, page))),
        );
    return scrollBox(
        "halves box",
        texts.ionsTitle,
        half(texts.cations, (charge) => charge > 0),
        half(texts.anions, (charge) => charge < 0),
    );
}

function ionRow(ion: IonInfo, page: Page): HTMLElement {
    const size = Math.abs(ion.charge) === 1 ? "" : String(Math.abs(ion.charge));
    const charge = `${size}${ion.charge < 0 ? "-" : "+"}`;
    return element(
        "tr",
        {},
        element("th", { scope: "row" }, nameOf(ion, page)),
        element("td", {}, typeset([{ ion: ion.formula, charge }], page.settings)),
    );
}

// A grid with one cell at a time in the order of the Tab key; the arrow keys go on from it.
function solubilityGrid(tables: Tables, page: Page): HTMLElement {
    const asked = tables.pairs;
    const cations = [...new Set(asked.map((pair) => pair.cation))];
    const anions = [...new Set(asked.map((pair) => pair.anion))];
    const named = new Map(tables.ions.map((ion) => [ion.name, ion]));
    const reason = element("p", { class: "reason", role: "status" });
    const cells = new Map(asked.map((pair) => [`${pair.cation}|${pair.anion}`, pairButton(pair, reason, page)]));
    const rows = cations.map((cation) =>
        element(
            "tr",
            {},
            element("th", { scope: "row" }, named.has(cation) ? nameOf(named.get(cation)!, page) : cation),
            ...anions.map((anion) => element("td", {}, cells.get(`${cation}|${anion}`) ?? "")),
        ),
    );
    const heads = anions.map((anion) => element("th", { scope: "col" }, element("span", {}, named.has(anion) ? nameOf(named.get(anion)!, page) : anion)));
    const table = element("table", { class: "solubility" }, element("thead", {}, element("tr", {}, element("td", {}), ...heads)), element("tbody", {}, ...rows));
    walkWithArrows([...cells.values()], anions.length);
    return element("div", {}, element("p", { class: "hint" }, texts.signNotes), scrollBox("scrolling grid", texts.solubilityTitle, table), reason);
}

function pairButton(pair: PairInfo, reason: HTMLElement, page: Page): HTMLButtonElement {
    const name = spokenSentence(`${pair.cation} ${pair.anion}`, page.settings, page.names);
    const made = button(texts.signs[pair.verdict] ?? pair.verdict, () => show(reason, ...reasonOf(pair, page)), {
        "aria-label": `${name}: ${pair.verdict}`,
        "data-verdict": pair.verdict,
        tabindex: -1,
    });
    return made;
}

function reasonOf(pair: PairInfo, page: Page): Node[] {
    const colon = document.createTextNode(`: ${pair.verdict}. `);
    return [compoundOf(pair, page), colon, typesetSentence(pair.reason, page.settings, page.names)];
}

// Its formula, or its name where there is no such compound.
function compoundOf(pair: PairInfo, page: Page): Node {
    const name = `${pair.cation} ${pair.anion}`;
    return pair.formula === undefined ? typesetSentence(name, page.settings, page.names) : typeset([{ formula: pair.formula }], page.settings);
}

const arrows: Record<string, [number, number]> = { ArrowLeft: [0, -1], ArrowRight: [0, 1], ArrowUp: [-1, 0], ArrowDown: [1, 0] };

function walkWithArrows(cells: HTMLButtonElement[], columns: number): void {
    cells[0]?.setAttribute("tabindex", "0");
    cells.forEach((cell, at) =>
        cell.addEventListener("keydown", (event) => {
            const [down, right] = arrows[event.key] ?? [0, 0];
            const column = (at % columns) + right;
            const next = cells[at + down * columns + right];
            if ((down === 0 && right === 0) || next === undefined || column < 0 || column >= columns) {
                return;
            }
            event.preventDefault();
            cell.setAttribute("tabindex", "-1");
            next.setAttribute("tabindex", "0");
            next.focus();
        }),
    );
}

function notAsked(pairs: PairInfo[], page: Page): HTMLElement {
    const reasons = new Map<string, PairInfo[]>();
    for (const pair of pairs.filter((candidate) => candidate.verdict === "not asked")) {
        reasons.set(pair.reason, [...(reasons.get(pair.reason) ?? []), pair]);
    }
    const rows = [...reasons].flatMap(([reason, those]) => [
        element("dt", {}, typesetSentence(reason, page.settings, page.names)),
        element("dd", {}, ...those.flatMap((pair, at) => [at === 0 ? "" : ", ", compoundOf(pair, page)])),
    ]);
    return element("details", {}, element("summary", {}, texts.differShow), element("dl", {}, ...rows));
}
