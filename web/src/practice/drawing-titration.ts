// The burette over the flask, and what is known of each.
import { element, spoken } from "../shared/dom";
import { speech } from "../text/seen-and-spoken";
import { localNumber, plainUnit } from "../text/units";
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
    const [titre, aliquot] = (["titre", "aliquot"] as const).map((role) => quantitiesOf(exercise).find((given) => given.role === role));
    if (titre === undefined || aliquot === undefined) {
        return null;
    }
    const unit = aliquot.shownUnit; // Of several titres the mean is not shown.
    const reading = { number: localNumber(lastReading(titre).toFixed(2), settings) };
    const shapes = titrationShapes(lastReading(titre), { reading: reading.number, unit: plainUnit(unit) });
    const burette = label(texts.burette, titre.of, linesFor(exercise, titre.of), settings, ...titresOf(titre, unit, settings));
    burette.append(...readingTold(titre, speech([reading, { unit }], settings)));
    const flask = label(texts.flask, aliquot.of, linesFor(exercise, aliquot.of), settings);
    return element(
        "figure",
        { class: "drawing titration", "aria-label": texts.drawings.titration },
        ...(shapes === null ? [] : [shapes]),
        element("div", { class: "labels" }, burette, flask),
    );
}

// Of several titres the mean is for the learner to take: the burette shows the last.
function lastReading({ titres, value }: GivenQuantity): number {
    return titres?.[titres.length - 1] ?? value * millilitres;
}

const millilitres = 1000; // in a litre

function readingTold({ titres }: GivenQuantity, told: string): HTMLElement[] {
    const whole = spoken(texts.drawings.reads(told));
    return titres === undefined ? [whole] : [element("p", { class: "place" }, texts.drawings.after(titres.length - 1)), whole];
}

function linesFor(exercise: Exercise, of: string): Span[][] {
    const lines = quantitiesOf(exercise)
        .filter((given) => given.of === of && given.shown !== "" && given.quantity !== "M")
        .map((given) => lineOf(given));
    return exercise.ask.of === of ? [...lines, sought(exercise)] : lines;
}
