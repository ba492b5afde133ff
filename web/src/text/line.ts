// A line of spans for the eye and for a screen reader: the visible form is hidden from the reader where it
// would be read wrongly, and the spoken form from the eye.
import { element, spoken } from "../shared/dom";
import type { Settings, Span } from "../types";
import type { Piece } from "./pieces";
import { classOf, lineOf, seenOf, seenPieces, seenSpan, speech, spokenSpan } from "./seen-and-spoken";

export function typeset(spans: Span[], settings: Settings): DocumentFragment {
    return lineOf(spans, (span) => typesetSpan(span, settings));
}

// A whole sentence or line of mathematics. A screen reader gets it as one text, laid over what is seen
// (.spoken.whole), so that it is read without a stop at each formula and is found where it stands.
export function typesetLine(spans: Span[], settings: Settings): Node[] {
    const seenLine = seenOf(spans);
    const isPlain = spans.every((span) => isSaidAsSeen(span, settings));
    return isPlain ? [seenLine] : [element("span", { "aria-hidden": "true" }, seenLine), wholeSpoken(speech(spans, settings))];
}

export function wholeSpoken(text: string): HTMLElement {
    return element("span", { class: "spoken whole" }, text);
}

function typesetSpan(span: Span, settings: Settings): Piece {
    if (isSaidAsSeen(span, settings)) {
        return seenSpan(span);
    }
    const visible = element("span", { "aria-hidden": "true" }, ...seenPieces(span));
    // The blank in front keeps it off what stands before, and no full stop off what it ends.
    return element("span", { class: classOf(span) }, visible, spoken(` ${spokenSpan(span, settings)}`));
}

function isSaidAsSeen(span: Span, settings: Settings): boolean {
    return (
        "name" in span || ("text" in span && spokenSpan(span, settings) === span.text) || ("number" in span && !span.number.includes("e"))
    );
}
