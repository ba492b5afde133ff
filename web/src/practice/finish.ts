// The end of a set: asked for where exercises are open.
import { addressOf, atNumber } from "../address";
import type { Page } from "../shared/page";
import { ask } from "../shared/question";
import type { PracticeRoute } from "../types";
import { texts } from "../words/texts";
import { openIn } from "./kept-sets";

// Behind the last exercise, and behind any once nothing is open.
export function isLastOfSet(route: PracticeRoute): boolean {
    return route.set > 0 && (route.number >= route.set || openIn(route).length === 0);
}

export function finish(pressed: HTMLElement, route: PracticeRoute, page: Page): void {
    const open = openIn(route);
    const goTo = (number: number) => page.go(addressOf(atNumber(route, number)));
    const first = open[0];
    if (first === undefined) {
        goTo(route.set + 1);
    } else {
        ask(
            pressed,
            texts.askFinish(open.length, first),
            () => goTo(route.set + 1),
            () => goTo(first),
        );
    }
}
