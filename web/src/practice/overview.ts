// The exercises of a set in a row, each with what it has come to, to jump to.
import { addressOf, atNumber } from "../address";
import { element, show, spoken } from "../shared/dom";
import type { PracticeRoute } from "../types";
import { texts } from "../words/texts";
import { type Done, keptSet, openIn } from "./kept-sets";

type State = keyof typeof texts.overviewSigns;

// So many stand open; more are folded, or they would push the question out of the window.
const mostOpen = 20;

// nav
//   details    where there are many
//     summary
//     ol
//       li
//         a    a number and a sign; one stop for the Tab key, since the field comes behind it
//   p.hint     while the focus is there
export function overviewOf(route: PracticeRoute): { element: HTMLElement; update(): void } {
    const links = Array.from({ length: route.set }, (_, at) => linkTo(route, at + 1));
    const list = element("ol", {}, ...links.map((link) => element("li", {}, link)));
    const summary = element("summary", {});
    list.addEventListener("keydown", (event) => walk(event, links));
    const update = () => {
        const exercises = keptSet(route)?.exercises;
        links.forEach((link, at) => showState(link, at + 1, exercises?.get(at + 1)));
        show(summary, `${texts.overview}: ${texts.doneOf(route.set - openIn(route).length, route.set)}`);
    };
    const folded = route.set > mostOpen ? element("details", {}, summary, list) : list;
    return {
        element: element(
            "nav",
            { class: "overview", "aria-label": texts.overview },
            folded,
            element("p", { class: "hint" }, texts.overviewKeys),
        ),
        update,
    };
}

function linkTo(route: PracticeRoute, number: number): HTMLAnchorElement {
    const isPresent = number === route.number;
    return element("a", {
        href: addressOf(atNumber(route, number)),
        "aria-current": isPresent ? "page" : undefined,
        tabindex: isPresent ? undefined : -1,
    });
}

// Left alone where it is as it was: a long set has many, and one changes.
function showState(link: HTMLElement, number: number, done: Done | undefined): void {
    const state = stateOf(done);
    const words = done?.result ? texts.results[done.result] : state === "wrong" ? texts.wrongSoFar : texts.open;
    if (link.dataset.words === words) {
        return;
    }
    // Its title is for the eye alone: a link's own would be read behind its name, which ends with the same words.
    const seen = element(
        "span",
        { "aria-hidden": "true", title: words },
        String(number),
        element("span", { class: "sign" }, texts.overviewSigns[state]),
    );
    link.dataset.state = state;
    link.dataset.words = words;
    show(link, seen, spoken(`${texts.exercise(number)}: ${words}`));
}

function stateOf(done: Done | undefined): State {
    if (done === undefined || done.result === null) {
        return (done?.failed ?? 0) > 0 ? "wrong" : "open";
    }
    return done.result === "shown" ? "shown" : "done";
}

const steps: Record<string, (at: number, last: number) => number> = {
    ArrowLeft: (at) => Math.max(0, at - 1),
    ArrowRight: (at, last) => Math.min(last, at + 1),
    Home: () => 0,
    End: (_, last) => last,
};

function walk(event: KeyboardEvent, links: HTMLElement[]): void {
    const step = steps[event.key];
    const at = links.indexOf(document.activeElement as HTMLElement);
    if (step !== undefined && at >= 0) {
        event.preventDefault();
        links[step(at, links.length - 1)]?.focus();
    }
}
