// The relative atomic masses that exercises need, in one line.
import { element } from "../dom";
import { typesetLine } from "../spans";
import { texts } from "../texts";
import type { ElementInfo, Span } from "../types";
import type { Page } from "./page";

// "Relative atomic masses: H 1.008; O 16.00", which breaks between elements only.
export function massesLine(masses: ElementInfo[], page: Page): HTMLElement {
    const pairs = masses.flatMap(({ symbol, mass }, at): Span[] => [
        { text: at === 0 ? `${texts.massesLine}: ` : "; " },
        { formula: symbol },
        { text: "\u00A0" },
        { number: mass },
    ]);
    return element("p", { class: "masses" }, ...typesetLine(pairs, page.settings));
}
