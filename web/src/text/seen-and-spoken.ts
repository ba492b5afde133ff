// What each kind of span looks like and how it is said, side by side; and lines of them.
import { element } from "../shared/dom";
import type { Settings, Span } from "../types";
import { formulaPieces, spokenCharge, spokenFormula } from "./formula";
import { type Part, partsOf } from "./kept-together";
import { joined, type Piece, shifted, signed, thin } from "./pieces";
import { spokenUnit } from "./units";

type Kind = "text" | "name" | "formula" | "ion" | "quantity" | "number" | "unit" | "fraction";
type SpanOf<One extends Kind> = Extract<Span, Record<One, unknown>>;

interface Form<One extends Span> {
    seen(span: One): Piece[];
    spoken(span: One, settings: Settings): string;
}

const forms: { [One in Kind]: Form<SpanOf<One>> } = {
    text: {
        seen: ({ text }) => [bound(text)],
        spoken: ({ text }) => saidSigns.reduce((said, [sign, word]) => said.replaceAll(sign, word), text),
    },
    name: {
        seen: ({ name }) => [name],
        spoken: ({ name }) => name,
    },
    formula: {
        seen: ({ formula }) => formulaPieces(formula),
        spoken: ({ formula }) => spokenFormula(formula),
    },
    ion: {
        seen: ({ ion, charge }) => [...formulaPieces(ion), element("sup", {}, signed(charge))],
        spoken: ({ ion, charge }) => `${spokenFormula(ion)} ${spokenCharge(charge)}`,
    },
    quantity: {
        seen: ({ quantity, index, of }) => [
            element("var", {}, quantity),
            ...(index === undefined ? [] : [element("sub", {}, index)]),
            ...(of === undefined ? [] : ["(", ...formulaPieces(of), ")"]),
        ],
        spoken: ({ quantity, index, of }) =>
            `${quantity}${index === undefined ? "" : ` ${index}`}${of === undefined ? "" : ` of ${spokenFormula(of)}`}`,
    },
    number: {
        seen: ({ number }) => {
            const [digits = "", exponent] = number.split("e");
            return exponent === undefined ? [digits] : [`${digits}${thin}×${thin}10`, element("sup", {}, signed(exponent))];
        },
        spoken: ({ number }) => {
            const [digits = "", exponent = ""] = number.split("e");
            return exponent === "" ? digits : `${digits} times 10 to the ${exponent.replace("-", "minus ")}`;
        },
    },
    unit: {
        seen: ({ unit }) => shifted(unit.replaceAll(" ", thin), /(.*?[A-Za-z])(-?\d)|.+/gs, "sup"),
        spoken: ({ unit }, settings) => spokenUnit(unit, settings),
    },
    fraction: {
        seen: ({ fraction: [over, under] }) => [
            element(
                "span",
                { class: "stacked" },
                element("span", { class: "over" }, seenOf(over)),
                element("span", { class: "under" }, seenOf(under)),
            ),
        ],
        spoken: ({ fraction: [over, under] }, settings) => `${speech(over, settings)}${endOf(over)} over ${speech(under, settings)}`,
    },
};

const kinds = Object.keys(forms) as Kind[];

// As elements of it are called in the style.
export function classOf(span: Span): Kind {
    return kinds.find((kind) => kind in span)!;
}

function formOf(span: Span): Form<Span> {
    return forms[classOf(span)] as Form<Span>;
}

export function seenPieces(span: Span): Piece[] {
    return formOf(span).seen(span);
}

export function spokenSpan(span: Span, settings: Settings): string {
    return formOf(span).spoken(span, settings);
}

// A sign begins a line rather than ends one.
export function bound(text: string): string {
    return text.replace(/ ([=+→×−]) /g, " $1\u00A0");
}

const saidSigns: [string, string][] = [
    ["= ?", " is to be found "],
    ["=", " equals "],
    ["→", " gives "],
    ["+", " plus "],
    ["×", " times "],
    ["−", " minus "],
];

// What is over the line ends before it is divided: of a sum its last number alone, and of a power of ten its
// exponent, would be heard as what is.
function endOf(over: Span[]): string {
    const isSum = over.some((span) => "text" in span && /[+−]/.test(span.text));
    const last = over[over.length - 1];
    return isSum ? ", all" : last !== undefined && "number" in last && last.number.includes("e") ? "," : "";
}

// The line for the eye alone.
export function seenOf(spans: Span[]): DocumentFragment {
    const line = document.createDocumentFragment();
    line.append(...partsOf(spans).map(seenPart));
    return line;
}

// span.equation      on a line of its own
//   span             its left side, with the arrow
//   span             its right side
function seenPart(part: Part): Node {
    const seen = (spans: Span[]) => lineOf(spans, seenSpan);
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

export function lineOf(spans: Span[], pieceOf: (span: Span) => Piece): DocumentFragment {
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

// One piece a span. Text alone needs no element where a line breaks in it at its blanks only.
export function seenSpan(span: Span): Piece {
    const pieces = seenPieces(span);
    const [first] = pieces;
    const isText = "text" in span || (pieces.length === 1 && typeof first === "string" && !/[/·]/.test(first));
    return isText && first !== undefined ? first : element("span", { class: classOf(span) }, ...joined(pieces));
}

// The same as a screen reader says it; for labels and announcements.
export function speech(spans: Span[], settings: Settings): string {
    const told = spans.filter((span) => !("text" in span) || span.text !== " ");
    const said = told.map((span, at) => {
        return `${goesOn(span, told[at - 1]) ? ", " : ""}${isFactor(span, told[at - 1]) ? " times " : ""}${spokenSpan(span, settings)}`;
    });
    const line = said.reduce((before, next, at) => `${before}${isWritten(told[at - 1], told[at]!) ? "" : " "}${next}`, "");
    return line
        .replace(/\s+/g, " ")
        .replace(/ ([.,;:?)])/g, "$1")
        .replaceAll("( ", "(")
        .trim();
}

// A text has the blanks that it needs beside it: "s are soluble" behind "sulfate" none.
function isWritten(before: Span | undefined, span: Span): boolean {
    return before !== undefined && ("text" in before || "text" in span);
}

// What would be heard as standing under the line of the fraction before it.
function goesOn(span: Span, before: Span | undefined): boolean {
    return before !== undefined && "fraction" in before && (!("text" in span) || /^ ?[+×−(]/.test(span.text));
}

// Where the eye needs no sign: "2(16.00)", a fraction of a quantity.
function isFactor(span: Span, before: Span | undefined): boolean {
    if (before === undefined) {
        return false;
    }
    return "text" in span ? "number" in before && span.text.startsWith("(") : "quantity" in span && "fraction" in before;
}
