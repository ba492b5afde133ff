// The solubility of each pair, with its reason.
import { button, element, scrollBox, show } from "../dom";
import { spokenSentence, typesetSentence } from "../sentence";
import { typeset } from "../spans";
import { texts } from "../texts";
import type { PairInfo, Tables } from "../types";
import { nameOf, type Page } from "./page";

// A grid with one cell at a time in the order of the Tab key; the arrow keys go on from it.
export function solubilityGrid(tables: Tables, page: Page): HTMLElement {
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

export function pairsNotAsked(pairs: PairInfo[], page: Page): HTMLElement {
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
