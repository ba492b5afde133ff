// A line of spans as elements: what is seen and what is said stand side by side. The visible form is
// hidden from a screen reader where it would be read wrongly, and the spoken form from the eye.
import { element, spoken } from "../shared/dom";
import { type Part, partsOf } from "./kept-together";
import type { Settings, Span } from "../types";
import { localNumber, localUnit, spokenUnit } from "./units";

const thin = "\u202F"; // a blank that does not break

// A string is text beside other text: what stands together becomes one node, which is laid out sooner.
export type Piece = Node | string;

export function typeset(spans: Span[], settings: Settings): DocumentFragment {
    return lineOf(spans, (span) => typesetSpan(span, settings));
}

// A whole sentence or line of mathematics. A screen reader gets it as one text, laid over what is seen
// (.spoken.whole), so that it is read without a stop at each formula and is found where it stands.
export function typesetLine(spans: Span[], settings: Settings): Node[] {
    const seenLine = seenOf(spans, settings);
    const isPlain = spans.every((span) => isSaidAsSeen(span, settings));
    return isPlain ? [seenLine] : [element("span", { "aria-hidden": "true" }, seenLine), wholeSpoken(speech(spans, settings))];
}

export function wholeSpoken(text: string): HTMLElement {
    return element("span", { class: "spoken whole" }, text);
}

// The line for the eye alone.
export function seenOf(spans: Span[], settings: Settings): DocumentFragment {
    const line = document.createDocumentFragment();
    line.append(...partsOf(spans).map((part) => seenPart(part, settings)));
    return line;
}

// span.equation      on a line of its own
//   span             its left side, with the arrow
//   span             its right side
function seenPart(part: Part, settings: Settings): Node {
    const seen = (spans: Span[]) => lineOf(spans, (span) => seenSpan(span, settings));
    if ("spans" in part) {
        return seen(part.spans);
    }
    if ("whole" in part) {
        return element("span", { class: "together" }, seen(part.whole));
    }
    const [left, right] = part.equation.map((side) => seen(signsBehind(side)));
    return element("span", { class: "equation" }, element("span", {}, left!, "\u00A0→"), " ", element("span", {}, right!, part.stop));
}

// In an equation a line ends with a sign, and the next one begins with a formula.
function signsBehind(side: Span[]): Span[] {
    return side.map((span) => ("text" in span ? { text: "\u00A0+ " } : span));
}

function lineOf(spans: Span[], pieceOf: (span: Span) => Piece): DocumentFragment {
    const pieces = spans.flatMap((span, at) => {
        const before = spans[at - 1];
        const isUnit = "unit" in span && before !== undefined && "number" in before;
        const isGap = "text" in span && span.text === " " && before !== undefined && ("number" in before || "fraction" in before);
        const sign = signOf(before, span);
        const piece = isGap ? thin : pieceOf(signOf(span, spans[at + 1]) === "" ? span : withoutSign(span));
        return [...(isUnit ? [thin] : []), sign === "" ? piece : element("span", { class: "signed" }, `${sign}\u00A0`, piece)];
    });
    const line = document.createDocumentFragment();
    line.append(...joined(pieces));
    return line;
}

// The sign in front of a fraction goes to its line with it: a line may end between a blank and what is stacked.
function signOf(before: Span | undefined, span: Span | undefined): string {
    const isFraction = before !== undefined && "text" in before && span !== undefined && "fraction" in span;
    return isFraction ? (/ ([=+×−]) $/.exec(before.text)?.[1] ?? "") : "";
}

function withoutSign(span: Span): Span {
    return "text" in span ? { text: span.text.replace(/. $/, "") } : span;
}

function joined(pieces: Piece[]): Piece[] {
    const all: Piece[] = [];
    for (const piece of pieces) {
        const last = all[all.length - 1];
        if (typeof piece === "string" && typeof last === "string") {
            all[all.length - 1] = last + piece;
        } else {
            all.push(piece);
        }
    }
    return all;
}

// The same as a screen reader says it; for labels and announcements.
export function speech(spans: Span[], settings: Settings): string {
    const told = spans.filter((span) => !("text" in span) || span.text !== " ");
    const said = told.map((span, at) => {
        return `${isFactor(span, told[at - 1]) ? "times " : ""}${speechOf(span, settings)}`;
    });
    const line = said.reduce((before, next, at) => `${before}${isWritten(told[at - 1], told[at]!) ? "" : " "}${next}`, "");
    return line.replace(/\s+/g, " ").replace(/ ([.,;:?)])/g, "$1").replaceAll("( ", "(").trim();
}

// A name and a text have the blanks between them that they need: "Sulfate" and "s are soluble" none.
function isWritten(before: Span | undefined, span: Span): boolean {
    return before !== undefined && (("name" in before && "text" in span) || ("text" in before && "name" in span));
}

// Where the eye needs no sign: "2(16.00)", a fraction of a quantity.
function isFactor(span: Span, before: Span | undefined): boolean {
    if (before === undefined) {
        return false;
    }
    return "text" in span ? "number" in before && span.text.startsWith("(") : "quantity" in span && "fraction" in before;
}

function typesetSpan(span: Span, settings: Settings): Piece {
    if (isSaidAsSeen(span, settings)) {
        return seenSpan(span, settings);
    }
    const visible = element("span", { "aria-hidden": "true" }, ...seenPieces(span, settings));
    // The blank in front keeps it off what stands before, and no full stop off what it ends.
    return element("span", { class: classOf(span) }, visible, spoken(` ${speechOf(span, settings)}`));
}

function isSaidAsSeen(span: Span, settings: Settings): boolean {
    return "name" in span || ("text" in span && speechOf(span, settings) === span.text) || ("number" in span && !span.number.includes("e"));
}

// One piece a span. Text alone needs no element where a line breaks in it at its blanks only.
function seenSpan(span: Span, settings: Settings): Piece {
    const pieces = seenPieces(span, settings);
    const [first] = pieces;
    const isText = "text" in span || (pieces.length === 1 && typeof first === "string" && !/[/·]/.test(first));
    return isText && first !== undefined ? first : element("span", { class: classOf(span) }, ...joined(pieces));
}

// A sign begins a line rather than ends one.
export function bound(text: string): string {
    return text.replace(/ ([=+→×−]) /g, " $1\u00A0");
}

function seenPieces(span: Span, settings: Settings): Piece[] {
    if ("text" in span) {
        return [bound(span.text)];
    }
    if ("name" in span) {
        return [nameOf(span, settings)];
    }
    if ("formula" in span) {
        return formulaPieces(span.formula);
    }
    if ("ion" in span) {
        return [...formulaPieces(span.ion), element("sup", {}, signed(span.charge))];
    }
    if ("quantity" in span) {
        const index = span.index === undefined ? [] : [element("sub", {}, span.index)];
        const of = span.of === undefined ? [] : ["(", ...formulaPieces(span.of), ")"];
        return [element("var", {}, span.quantity), ...index, ...of];
    }
    if ("number" in span) {
        const [digits = "", exponent] = localNumber(span.number, settings).split("e");
        return exponent === undefined ? [digits] : [`${digits}${thin}×${thin}10`, element("sup", {}, signed(exponent))];
    }
    if ("unit" in span) {
        return unitPieces(localUnit(span.unit, settings));
    }
    const [over, under] = span.fraction;
    return [
        element("span", { class: "stacked" }, element("span", { class: "over" }, seenOf(over, settings)), element("span", { class: "under" }, seenOf(under, settings))),
    ];
}

function classOf(span: Span): string {
    return Object.keys(span)[0]!;
}

function speechOf(span: Span, settings: Settings): string {
    if ("text" in span) {
        return saidOf(span.text);
    }
    if ("name" in span) {
        return nameOf(span, settings);
    }
    if ("formula" in span) {
        return spokenFormula(span.formula);
    }
    if ("ion" in span) {
        return `${spokenFormula(span.ion)} ${spokenCharge(span.charge)}`;
    }
    if ("quantity" in span) {
        const index = span.index === undefined ? "" : ` ${span.index}`;
        return `${span.quantity}${index}${span.of === undefined ? "" : ` of ${spokenFormula(span.of)}`}`;
    }
    if ("number" in span) {
        const [digits = "", exponent = ""] = localNumber(span.number, settings).split("e");
        return exponent === "" ? digits : `${digits} times 10 to the ${exponent.replace("-", "minus ")}`;
    }
    if ("unit" in span) {
        return spokenUnit(localUnit(span.unit, settings));
    }
    const [over, under] = span.fraction.map((part) => speech(part, settings));
    return `${over}${isSum(span.fraction[0]) ? ", all" : ""} over ${under}`;
}

// Of which the last number alone would be heard as what is divided.
function isSum(spans: Span[]): boolean {
    return spans.some((span) => "text" in span && /[+−]/.test(span.text));
}

const saidSigns: [string, string][] = [
    ["= ?", " is to be found "],
    ["=", " equals "],
    ["→", " gives "],
    ["+", " plus "],
    ["×", " times "],
    ["−", " minus "],
    ["/", " over "],
];

function saidOf(text: string): string {
    return saidSigns.reduce((said, [sign, word]) => said.replaceAll(sign, word), text);
}

// Digits behind a letter or a bracket are subscripts; those at the front of a part count it.
export function formulaPieces(formula: string): Piece[] {
    return shifted(formula.replaceAll(".", "·"), /(.*?[A-Za-z)\]])(\d+)|.+/gs, "sub");
}

// The text in front of each match's second group as it stands, that group as a subscript or superscript.
function shifted(text: string, pattern: RegExp, tag: "sub" | "sup"): Piece[] {
    return [...text.matchAll(pattern)].flatMap(([whole, level, behind]) =>
        level === undefined || behind === undefined ? [whole] : [level, element(tag, {}, signed(behind))],
    );
}

// "H2SO4" as it is said, "H 2 S O 4".
export function spokenFormula(formula: string): string {
    return formula
        .replace(/[()[\]]/g, " bracket ")
        .replaceAll(".", " dot ")
        .replace(/([A-Z][a-z]?|\d+)/g, " $1 ")
        .replace(/([A-Z])([a-z])/g, "$1 $2")
        .replace(/\s+/g, " ")
        .trim();
}

function spokenCharge(charge: string): string {
    return charge.replace("+", " plus").replace("-", " minus").trim();
}

function signed(text: string): string {
    return text.replace("-", "−");
}

function nameOf(span: { name: string; american?: string }, settings: Settings): string {
    return settings.names === "american" && span.american !== undefined ? span.american : span.name;
}

function unitPieces(unit: string): Piece[] {
    return shifted(unit.replaceAll(" ", thin), /(.*?[A-Za-z])(-?\d)|.+/gs, "sup");
}
