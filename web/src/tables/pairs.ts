// What the library tells of a cation and an anion, in words.
import { element } from "../shared/dom";
import type { Page } from "../shared/page";
import { typeset, typesetLine } from "../text/line";
import type { PairInfo } from "../types";
import { texts } from "../words/texts";

// "silver chloride: insoluble"
export function labelOf(pair: PairInfo): string {
    return `${nameOf(pair)}: ${pair.verdict}`;
}

// "AgCl: insoluble. Chlorides are soluble, except those of silver and lead."
export function reasonOf(pair: PairInfo, page: Page): Node[] {
    const verdict = document.createTextNode(`: ${pair.verdict}. `);
    return [compoundOf(pair, page), verdict, typeset(pair.reason, page.settings)];
}

// Its formula, or its name where there is no such compound.
function compoundOf(pair: PairInfo, page: Page): Node {
    return typeset([pair.formula === undefined ? { name: nameOf(pair) } : { formula: pair.formula }], page.settings);
}

function nameOf({ cation, anion }: PairInfo): string {
    return `${cation} ${anion}`;
}

// Each reason once, with all its pairs.
export function pairsNotAsked(pairs: PairInfo[], page: Page): HTMLElement {
    const byReason = new Map<string, PairInfo[]>();
    for (const pair of pairs.filter((candidate) => candidate.verdict === "not asked")) {
        const reason = JSON.stringify(pair.reason);
        byReason.set(reason, [...(byReason.get(reason) ?? []), pair]);
    }
    const rows = [...byReason.values()].flatMap((those) => [
        element("dt", {}, ...typesetLine(those[0]!.reason, page.settings)),
        element("dd", {}, ...those.flatMap((pair, at) => [at === 0 ? "" : ", ", compoundOf(pair, page)])),
    ]);
    return element("details", {}, element("summary", {}, texts.differShow), element("dl", {}, ...rows));
}
