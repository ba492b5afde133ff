// What the library tells of a cation and an anion, in words.
import { element } from "../shared/dom";
import type { Page } from "../shared/page";
import { typeset } from "../text/line";
import { spokenSentence, typesetSentence } from "../text/sentences";
import type { PairInfo } from "../types";
import { texts } from "../words/texts";

// "silver chloride: insoluble"
export function labelOf(pair: PairInfo, page: Page): string {
    return `${spokenSentence(`${pair.cation} ${pair.anion}`, page.settings, page.names)}: ${pair.verdict}`;
}

// "AgCl: insoluble. Chlorides are soluble, except those of silver and lead."
export function reasonOf(pair: PairInfo, page: Page): Node[] {
    const verdict = document.createTextNode(`: ${pair.verdict}. `);
    return [compoundOf(pair, page), verdict, typesetSentence(pair.reason, page.settings, page.names)];
}

// Its formula, or its name where there is no such compound.
function compoundOf(pair: PairInfo, page: Page): Node {
    const name = `${pair.cation} ${pair.anion}`;
    return pair.formula === undefined
        ? typesetSentence(name, page.settings, page.names)
        : typeset([{ formula: pair.formula }], page.settings);
}

// Each reason once, with all its pairs.
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
