// A drawing where a look says more than a sentence: the burette over the flask, the two solutions of
// a dilution. The labels are ordinary text beside the shapes, so the drawing needs no other words.
import { element, svg } from "../dom";
import { typeset, typesetLine } from "../spans";
import { texts } from "../texts";
import type { Exercise, GivenQuantity, Settings, Span } from "../types";

export function drawingOf(exercise: Exercise, settings: Settings): HTMLElement | null {
    switch (exercise.kind) {
        case "titration":
            return titration(exercise, settings);
        case "dilution":
            return dilution(exercise, settings);
        default:
            return null;
    }
}

function quantitiesOf(exercise: Exercise): GivenQuantity[] {
    return exercise.given.filter((given): given is GivenQuantity => "quantity" in given);
}

function titration(exercise: Exercise, settings: Settings): HTMLElement | null {
    const volumes = quantitiesOf(exercise).filter((given) => given.quantity === "V");
    // A burette is read to two decimals, a pipette delivers to one.
    const titre = volumes.find((given) => given.titres !== undefined || /\.\d\d$/.test(given.shown));
    const aliquot = volumes.find((given) => given !== titre);
    if (titre === undefined || aliquot === undefined) {
        return null;
    }
    return element(
        "figure",
        { class: "drawing titration", "aria-label": texts.drawings.titration },
        apparatus(),
        element(
            "div",
            { class: "labels" },
            label(texts.burette, titre.of, linesFor(exercise, titre.of), settings),
            label(texts.flask, aliquot.of, linesFor(exercise, aliquot.of), settings),
        ),
    );
}

function linesFor(exercise: Exercise, of: string): Span[][] {
    const lines = quantitiesOf(exercise)
        .filter((given) => given.of === of && (given.shown !== "" || given.titres !== undefined) && given.quantity !== "M")
        .map((given) => lineOf(given));
    return exercise.ask.of === of ? [...lines, [{ quantity: exercise.ask.quantity ?? "c" }, { text: " = " + texts.unknown }]] : lines;
}

function lineOf(given: GivenQuantity): Span[] {
    const [symbol = "", index = ""] = [given.quantity.slice(0, 1), given.quantity.slice(1)];
    const quantity: Span = index === "" ? { quantity: symbol } : { quantity: symbol, index };
    if (given.titres !== undefined) {
        const readings = given.titres.flatMap((reading, at): Span[] => [{ text: at === 0 ? "" : "; " }, { number: reading.toFixed(2) }]);
        return [quantity, { text: " = " }, ...readings, { unit: "mL" }];
    }
    return [quantity, { text: " = " }, { number: given.shown }, { unit: given.shownUnit }];
}

function label(place: string, formula: string, lines: Span[][], settings: Settings): HTMLElement {
    return element(
        "div",
        { class: "label" },
        element("p", {}, element("span", { class: "place" }, `${place}: `), typeset([{ formula }], settings)),
        ...lines.map((line) => element("p", {}, ...typesetLine(line, settings))),
    );
}

function dilution(exercise: Exercise, settings: Settings): HTMLElement | null {
    const of = quantitiesOf(exercise)[0]?.of;
    if (of === undefined) {
        return null;
    }
    const side = (index: string, place: string) => {
        const lines = quantitiesOf(exercise).filter((given) => given.quantity.endsWith(index) && given.shown !== "").map(lineOf);
        const asked = exercise.ask.quantity ?? "";
        const sought: Span[][] = asked.endsWith(index) ? [[{ quantity: asked.slice(0, 1), index }, { text: " = " + texts.unknown }]] : [];
        return label(place, of, [...lines, ...sought], settings);
    };
    return element(
        "figure",
        { class: "drawing dilution", "aria-label": texts.drawings.dilution },
        element("div", { class: "side" }, beaker(0.35, "strong"), side("1", texts.before)),
        element("div", { class: "side" }, beaker(0.8, "weak"), side("2", texts.after)),
    );
}

function apparatus(): SVGElement {
    const ticks = Array.from({ length: 9 }, (_, at) => svg("line", { x1: 46, x2: at % 4 === 0 ? 56 : 52, y1: 14 + at * 10, y2: 14 + at * 10 }));
    return svg(
        "svg",
        { viewBox: "0 0 120 210", "aria-hidden": "true", class: "shape" },
        svg("rect", { x: 46, y: 30, width: 14, height: 74, class: "liquid strong" }),
        svg("path", { d: "M46 6 V104 L50 112 V118 M60 6 V104 L56 112 V118 M46 112 H60 M53 118 V128", class: "glass" }),
        ...ticks.map((tick) => (tick.setAttribute("class", "glass"), tick)),
        svg("path", { d: "M33 176 L73 176 L86 198 Q87 202 82 202 H24 Q19 202 20 198 Z", class: "liquid weak" }),
        svg("path", { d: "M44 136 V156 L20 198 Q19 203 24 203 H82 Q87 203 86 198 L62 156 V136 M41 136 H65", class: "glass" }),
    );
}

function beaker(full: number, strength: string): SVGElement {
    const height = 70 * full;
    return svg(
        "svg",
        { viewBox: "0 0 80 90", "aria-hidden": "true", class: "shape" },
        svg("rect", { x: 12, y: 82 - height, width: 56, height, class: `liquid ${strength}` }),
        svg("path", { d: "M8 8 Q12 8 12 14 V78 Q12 83 17 83 H63 Q68 83 68 78 V14 Q68 8 72 8", class: "glass" }),
    );
}
