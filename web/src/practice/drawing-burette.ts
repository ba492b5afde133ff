// The burette over the flask, as shapes. Text in them repeats what the labels beside them say, so they are for
// the eye alone.
import { svg } from "../shared/dom";

// A burette of 50 mL as it is drawn: its marks from 0 at the top down to 50.
export const burette = { full: 50, at0: 22, perMillilitre: 2.5 };

// The lower edge of the meniscus: 0 -> 22, 50 -> 147. A reading that no such burette has gives none.
export function heightOf(reading: number): number | null {
    return reading >= 0 && reading <= burette.full ? burette.at0 + reading * burette.perMillilitre : null;
}

// What stands in the drawing, as the reader writes it.
interface Written {
    reading: string;
    unit: string;
}

// svg
//   g.burette   liquid, meniscus, glass, marks with their numbers, the reading
//   g.flask     liquid, glass
export function titrationShapes(reading: number, written: Written): SVGElement | null {
    const level = heightOf(reading);
    if (level === null) {
        return null;
    }
    return svg(
        "svg",
        { viewBox: "0 0 96 252", "aria-hidden": "true", class: "shape" },
        svg("g", { class: "burette" }, ...buretteShapes(level), ...numbers(written), ...readingShapes(level, written)),
        svg("g", { class: "flask" }, ...flaskShapes()),
    );
}

// The level is that of the lowest point of the meniscus, where a burette is read.
function buretteShapes(level: number): SVGElement[] {
    const surface = `M28 ${level - 2} Q36 ${level + 2} 44 ${level - 2}`;
    return [
        svg("path", { d: `${surface} V154 L38 163 V180 L37 191 H35 L34 180 V163 L28 154 Z`, class: "liquid strong" }),
        svg("path", { d: surface, class: "glass" }),
        svg("path", { d: marks(), class: "glass fine marks" }),
        svg("path", { d: "M28 8 V154 L34 163 V180 L35 191 M44 8 V154 L38 163 V180 L37 191", class: "glass" }),
        svg("path", { d: "M31 168 H41 V175 H31 Z M41 171.5 H50 M50 167 V176", class: "glass tap" }),
    ];
}

// Every millilitre has its mark, every fifth a longer one, every tenth one across.
function marks(): string {
    return Array.from({ length: burette.full + 1 }, (_, at) => {
        const length = at % 10 === 0 ? 16 : at % 5 === 0 ? 9 : 5;
        return `M28 ${burette.at0 + at * burette.perMillilitre} h${length}`;
    }).join(" ");
}

function numbers({ unit }: Written): SVGElement[] {
    const tens = [0, 10, 20, 30, 40, 50];
    return [
        svg("text", { x: 24, y: 11, class: "scale end" }, unit),
        ...tens.map((ten) => svg("text", { x: 24, y: burette.at0 + ten * burette.perMillilitre + 4, class: "scale end" }, String(ten))),
    ];
}

function readingShapes(level: number, { reading }: Written): SVGElement[] {
    return [
        svg("path", { d: `M46 ${level} l7 -4 v8 Z`, class: "pointer" }),
        svg("text", { x: 56, y: level + 4, class: "scale reading" }, reading),
    ];
}

function flaskShapes(): SVGElement[] {
    return [
        svg("path", { d: "M18.5 226 H53.5 L66 244 Q67 249 62 249 H10 Q5 249 6 244 Z", class: "liquid weak" }),
        svg("path", { d: "M28 200 V214 L6 244 Q5 249 10 249 H62 Q67 249 66 244 L44 214 V200 M25 200 H47", class: "glass" }),
    ];
}
