// The burette over the flask, and what is known of each.
import { element, spoken } from "../shared/dom";
import { speech } from "../text/seen-and-spoken";
import type { Exercise, GivenQuantity, Settings, Span } from "../types";
import { texts } from "../words/texts";
import { titrationShapes } from "./drawing-burette";
import { label, lineOf, quantitiesOf, sought } from "./drawing-labels";
import { titresOf } from "./drawing-titres";

// figure
//   svg
//   div.labels
//     div.label   the burette: what is in it, the titres, how it is read
//     div.label   the flask
export function titration(exercise: Exercise, settings: Settings): HTMLElement | null {
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
