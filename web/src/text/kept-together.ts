// What in a line of spans has to stay together: an equation, which stands on a line of its own, and a
// value in brackets.
import type { Span } from "../types";

export type Part = { spans: Span[] } | { equation: [left: Span[], right: Span[]]; stop: string } | { whole: Span[] };

export function partsOf(spans: Span[]): Part[] {
    const arrow = spans.findIndex((span) => isText(span, " → "));
    if (arrow >= 0) {
        return withEquation(spans, arrow);
    }
    const value = spans.findIndex((_, at) => isValueInBrackets(spans.slice(at, at + valueInBrackets.length)));
    return value >= 0 ? withValue(spans, value) : spans.length > 0 ? [{ spans }] : [];
}

// The sign that ends its sentence belongs to its line.
function withEquation(spans: Span[], arrow: number): Part[] {
    const from = 1 + spans.slice(0, arrow).map(isOfEquation).lastIndexOf(false);
    const length = spans.slice(from).findIndex((span) => !isOfEquation(span));
    const to = length < 0 ? spans.length : from + length;
    const [stop, behind] = cut(spans.slice(to), /^[.,;]? ?/);
    return [
        ...partsOf(lastWordsTogether(spans.slice(0, from))),
        { equation: [spans.slice(from, arrow), spans.slice(arrow + 1, to)], stop: stop.trim() },
        ...partsOf(behind),
    ];
}

// The line above an equation is not its last word alone.
function lastWordsTogether(spans: Span[]): Span[] {
    const last = spans[spans.length - 1];
    return last !== undefined && "text" in last ? [...spans.slice(0, -1), { text: last.text.replace(/ (\S+) $/, "\u00A0$1 ") }] : spans;
}

function isOfEquation(span: Span): boolean {
    return "formula" in span || "ion" in span || "number" in span || isText(span, " + ") || isText(span, " → ");
}

function isText(span: Span, text: string): boolean {
    return "text" in span && span.text === text;
}

// "(M = 158.17 g/mol)"
const valueInBrackets: ((span: Span) => boolean)[] = [
    (span) => "text" in span && span.text.endsWith("("),
    (span) => "quantity" in span,
    (span) => isText(span, " = "),
    (span) => "number" in span,
    (span) => "unit" in span,
    (span) => "text" in span && span.text.startsWith(")"),
];

function isValueInBrackets(spans: Span[]): boolean {
    return spans.length === valueInBrackets.length && spans.every((span, at) => valueInBrackets[at]!(span));
}

function withValue(spans: Span[], from: number): Part[] {
    const to = from + valueInBrackets.length - 1;
    const [close, behind] = cut(spans.slice(to), /^\)[.,;]?/);
    const opened = spans[from] as { text: string };
    const before = [...spans.slice(0, from), { text: opened.text.slice(0, -1) }];
    return [{ spans: before }, { whole: [{ text: "(" }, ...spans.slice(from + 1, to), { text: close }] }, ...partsOf(behind)];
}

// What a line of spans begins with, and the rest of it.
function cut(spans: Span[], start: RegExp): [string, Span[]] {
    const [first, ...rest] = spans;
    const begin = first !== undefined && "text" in first ? (start.exec(first.text)?.[0] ?? "") : "";
    const left = first !== undefined && "text" in first ? first.text.slice(begin.length) : "";
    return begin === "" || first === undefined ? ["", spans] : [begin, left === "" ? rest : [{ text: left }, ...rest]];
}
