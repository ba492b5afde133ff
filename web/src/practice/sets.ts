// The sets that are kept on this device: where each leads on, and what clears them all.
import { addressOf, atNumber } from "../address";
import { announce, button, element } from "../shared/dom";
import type { Page } from "../shared/page";
import { ask } from "../shared/question";
import type { PracticeRoute } from "../types";
import { texts } from "../words/texts";
import { choiceIn, inWords } from "./chosen-kinds";
import { type KeptSet, keptSets, openIn } from "./kept-sets";
import { forgetSets } from "./progress";
import { dateAndTime } from "./summary-facts";

// div
//   h2
//   ul       a link a set, of which kinds it is, how many are done, when it was last worked at
//   button
// `cleared` is told once they are.
export function keptSetsPanel(page: Page, cleared: () => void): { element: HTMLElement; update(): void } {
    const box = element("div", { class: "kept-sets" });
    const clear: HTMLElement = button(texts.clearSets, () => ask(clear, texts.askClearSets, clearAll));
    const update = () => {
        const items = keptSets().map(({ route, kept }) => itemOf(route, kept, page));
        clear.hidden = false;
        box.replaceChildren(...(items.length === 0 ? [] : [element("h2", {}, texts.keptSets), element("ul", {}, ...items), clear]));
    };
    const clearAll = () => {
        forgetSets();
        update();
        announce(texts.clearedSets);
        cleared();
    };
    return { element: box, update };
}

// To the next open exercise, or the summary.
function itemOf(route: PracticeRoute, { touched }: KeptSet, page: Page): HTMLElement {
    const open = openIn(route);
    const link = element("a", { href: addressOf(atNumber(route, open[0] ?? route.set + 1)) }, texts.keptSet(route.paper, route.set));
    const facts = [
        inWords(choiceIn(route.kinds, page.kinds), page.kinds),
        texts.doneOf(route.set - open.length, route.set),
        ...(touched > 0 ? [dateAndTime(touched)] : []),
    ];
    return element("li", {}, link, element("span", { class: "hint" }, ...facts.flatMap(apart)));
}

// Each whole, so that no date is broken, and with the dot behind it, so that none begins a line.
function apart(fact: string, index: number, { length }: string[]): (Node | string)[] {
    const isLast = index === length - 1;
    return [element("span", { class: "together" }, isLast ? fact : `${fact} ·`), isLast ? "" : " "];
}
