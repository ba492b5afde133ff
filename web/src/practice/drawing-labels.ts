// What stands beside a shape: its name, what is in it, and what is known of that, as ordinary text.
import { element } from "../shared/dom";
import { typeset, typesetLine } from "../text/line";
import { quantityOf } from "../text/quantity";
import type { Exercise, GivenQuantity, Settings, Span } from "../types";
import { texts } from "../words/texts";

export function quantitiesOf(exercise: Exercise): GivenQuantity[] {
    return exercise.given.filter((given): given is GivenQuantity => "quantity" in given);
}

export function lineOf(given: GivenQuantity): Span[] {
    return [quantityOf(given.quantity), { text: " = " }, { number: given.shown }, { unit: given.shownUnit }];
}

export function sought({ ask }: Exercise): Span[] {
    return [quantityOf(ask.quantity ?? "c"), { text: ` = ${texts.unknown}` }];
}

export function label(place: string, formula: string, lines: Span[][], settings: Settings, ...first: HTMLElement[]): HTMLElement {
    return element(
        "div",
        { class: "label" },
        element("p", {}, element("span", { class: "place" }, `${place}: `), typeset([{ formula }], settings)),
        ...first,
        ...lines.map((line) => element("p", {}, ...typesetLine(line, settings))),
    );
}
