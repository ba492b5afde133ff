// The relative atomic masses that exercises need, in one line.
import { element } from "../shared/dom";
import type { Page } from "../shared/page";
import { typesetLine } from "../text/line";
import { localNumber } from "../text/units";
import type { ElementInfo, Exercise, Span } from "../types";
import { texts } from "../words/texts";
import { massesNeeded } from "./masses-needed";

// "Relative atomic masses: H 1.008; O 16.00", which breaks between elements only.
export function massesLine(masses: ElementInfo[], page: Page): HTMLElement {
    const pairs = masses.flatMap(({ symbol, mass }, at): Span[] => [
        { text: at === 0 ? `${texts.massesLine}: ` : "; " },
        { formula: symbol },
        { text: "\u00A0" },
        { number: localNumber(mass, page.settings) },
    ]);
    return element("p", { class: "masses" }, ...typesetLine(pairs, page.settings));
}

// Below a question: the masses, or the way to the table that has them; none where it needs none.
export function massesBelow(exercise: Exercise, page: Page): HTMLElement[] {
    const masses = massesNeeded([exercise], page);
    if (masses.length === 0) {
        return [];
    }
    return [page.settings.masses === "table" ? useTheTable() : massesLine(masses, page)];
}

function useTheTable(): HTMLElement {
    const [before = "", link = "", behind = ""] = texts.usePeriodicTable;
    return element("p", { class: "masses" }, before, element("a", { href: "#tables" }, link), behind);
}
