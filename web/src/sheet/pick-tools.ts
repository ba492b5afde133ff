// On the screen, beside each exercise of the first version: another one instead, one place up, one down. What
// is changed so holds for all versions.
import { button, element } from "../shared/dom";
import { countOf } from "../shared/exercise-list";
import type { SheetRoute } from "../types";
import { texts } from "../words/texts";
import type { Pick } from "./picks";

const picks: Pick[] = ["another", "up", "down"];

// In each exercise: div.picks with a button each.
export function pickTools(box: HTMLElement, route: SheetRoute, change: (at: number, pick: Pick) => void): void {
    const items = route.parts === "key" ? [] : exercisesIn(box, countOf(route.entries));
    items.forEach((item, at) => item.append(toolsOf(at, items.length, change)));
    box.classList.toggle("with-tools", items.length > 0);
}

// The focus stays with the exercise, wherever it is now.
export function focusTool(box: HTMLElement, at: number, pick: Pick): void {
    const tool = box.querySelectorAll<HTMLElement>(".picks")[at]?.querySelector<HTMLElement>(`.${pick}`);
    tool?.focus({ preventScroll: true });
    tool?.closest("li")?.scrollIntoView({ block: "nearest" });
}

// The sheets come before the keys, and the first version before the others.
function exercisesIn(box: HTMLElement, count: number): HTMLElement[] {
    const items: HTMLElement[] = [];
    for (let leaf = box.firstElementChild; leaf !== null && items.length < count; leaf = leaf.nextElementSibling) {
        items.push(...leaf.querySelectorAll<HTMLElement>("ol > li"));
    }
    return items.slice(0, count);
}

// What cannot be moved any further keeps its button, so that the focus can stay there.
function toolsOf(at: number, count: number, change: (at: number, pick: Pick) => void): HTMLElement {
    const impossible: Partial<Record<Pick, boolean>> = { up: at === 0, down: at === count - 1 };
    const buttons = picks.map((pick) =>
        button(texts.picks[pick], () => change(at, pick), {
            class: pick,
            "aria-label": texts.pickNames[pick](at + 1),
            "aria-disabled": impossible[pick] === true ? "true" : undefined,
        }),
    );
    return element("div", { class: "picks" }, ...buttons);
}
