// A drawing where a look says more than a sentence: the burette over the flask, the two solutions of
// a dilution. The labels are ordinary text beside the shapes.
import { element, spoken } from "../shared/dom";
import { widthsByArea } from "./drawing-levels";
import { speech, typeset, typesetLine } from "../text/seen-and-spoken";
import { texts } from "../words/texts";
import type { Exercise, GivenQuantity, Settings, Span } from "../types";
import { beaker, titrationShapes } from "./drawing-apparatus";

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

// figure
//   svg
//   div.labels
//     div.label   the burette: what is in it, the titres, how it is read
//     div.label   the flask
function titration(exercise: Exercise, settings: Settings): HTMLElement | null {
    const volumes = quantitiesOf(exercise).filter((given) => given.quantity === "V");
    // A burette is read to two decimals, a pipette delivers to one.
    const titre = volumes.find((given) => given.titres !== undefined || /\.\d\d$/.test(given.shown));
    const aliquot = volumes.find((given) => given !== titre);
    if (titre === undefined || aliquot === undefined) {
        return null;
    }
    const reading = lastReading(titre);
    const shapes = titrationShapes(reading, settings);
    const burette = label(texts.burette, titre.of, linesFor(exercise, titre.of), settings, ...titresOf(titre, settings));
    burette.append(...readingTold(titre, reading, settings));
    const flask = label(texts.flask, aliquot.of, linesFor(exercise, aliquot.of), settings);
    return element(
        "figure",
        { class: "drawing titration", "aria-label": texts.drawings.titration },
        ...(shapes === null ? [] : [shapes]),
        element("div", { class: "labels" }, burette, flask),
    );
}

// Of several titres the mean is for the learner to take: the burette shows the last.
function lastReading({ titres, shown }: GivenQuantity): number {
    return titres?.[titres.length - 1] ?? Number(shown);
}

function readingTold({ titres }: GivenQuantity, reading: number, settings: Settings): HTMLElement[] {
    const told = speech([{ number: reading.toFixed(2) }, { unit: "mL" }], settings);
    const whole = spoken(texts.drawings.reads(told));
    return titres === undefined ? [whole] : [element("p", { class: "place" }, texts.drawings.after(titres.length - 1)), whole];
}

function linesFor(exercise: Exercise, of: string): Span[][] {
    const lines = quantitiesOf(exercise)
        .filter((given) => given.of === of && given.shown !== "" && given.quantity !== "M")
        .map((given) => lineOf(given));
    return exercise.ask.of === of ? [...lines, sought(exercise)] : lines;
}

function lineOf(given: GivenQuantity): Span[] {
    return [quantityOf(given.quantity), { text: " = " }, { number: given.shown }, { unit: given.shownUnit }];
}

function sought({ ask }: Exercise): Span[] {
    return [quantityOf(ask.quantity ?? "c"), { text: " = " + texts.unknown }];
}

// "c2" is c with the index 2.
function quantityOf(symbol: string, of?: string): Span {
    const index = symbol.slice(1);
    return { quantity: symbol.slice(0, 1), ...(of === undefined ? {} : { of }), ...(index === "" ? {} : { index }) };
}

// table
//   caption   V in mL
//   tr        one for each titration, side by side: rough, 1, 2, 3. They wrap where the text is large,
//             and so their roles have to be told.
function titresOf({ titres }: GivenQuantity, settings: Settings): HTMLElement[] {
    if (titres === undefined) {
        return [];
    }
    const caption = element("caption", {}, ...typesetLine([{ quantity: "V" }, { text: texts.drawings.inUnit }, { unit: "mL" }], settings));
    const rows = titres.map((titre, at) =>
        element(
            "tr",
            { role: "row" },
            element("th", { scope: "row", role: "rowheader" }, at === 0 ? texts.drawings.rough : String(at)),
            element("td", { role: "cell" }, typeset([{ number: titre.toFixed(2) }], settings)),
        ),
    );
    return [element("table", { class: "titres", role: "table" }, caption, element("tbody", { role: "rowgroup" }, ...rows))];
}

function label(place: string, formula: string, lines: Span[][], settings: Settings, ...first: HTMLElement[]): HTMLElement {
    return element(
        "div",
        { class: "label" },
        element("p", {}, element("span", { class: "place" }, `${place}: `), typeset([{ formula }], settings)),
        ...first,
        ...lines.map((line) => element("p", {}, ...typesetLine(line, settings))),
    );
}

// figure
//   div.side      the beaker, its label; before and after
//   figcaption    whether they are to scale
function dilution(exercise: Exercise, settings: Settings): HTMLElement | null {
    const quantities = quantitiesOf(exercise);
    const of = quantities[0]?.of;
    if (of === undefined) {
        return null;
    }
    const side = (index: string, place: string) => {
        const lines = quantities.filter((given) => given.quantity.endsWith(index)).map(lineOf);
        return label(place, of, [...lines, ...soughtAt(index, exercise)], settings);
    };
    const [first, second] = ["V1", "V2"].map((volume) => quantities.find(({ quantity }) => quantity === volume)?.value);
    const isToScale = first !== undefined && second !== undefined;
    // Where a volume is to be found the drawing must not give it away.
    const [before, after] = isToScale ? widthsByArea(first, second) : widthsByArea(1, 3);
    return element(
        "figure",
        { class: "drawing dilution", "aria-label": texts.drawings.dilution },
        element("div", { class: "side" }, beaker(before, "strong"), side("1", texts.before)),
        element("div", { class: "side" }, beaker(after, "weak"), side("2", texts.after)),
        element("figcaption", { class: "place" }, isToScale ? texts.drawings.toScale : texts.drawings.notToScale),
    );
}

// What is asked stands with the solution that it belongs to; water that is added is in the second one.
function soughtAt(index: string, exercise: Exercise): Span[][] {
    const { quantity = "", of } = exercise.ask;
    if (quantity === "V") {
        return index === "2" ? [[quantityOf("V", of), { text: " = " + texts.unknown }]] : [];
    }
    return quantity.endsWith(index) ? [sought(exercise)] : [];
}
