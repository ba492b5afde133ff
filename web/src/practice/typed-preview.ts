// What the library reads in an answer as it is being typed.
import { element, show } from "../shared/dom";
import { seenOf } from "../text/seen-and-spoken";
import type { Span } from "../types";
import { texts } from "../words/texts";

export interface TypedPreview {
    element: HTMLElement;
    update(text: string): void;
}

// p.preview     hidden where nothing is read, or no more than the field shows
export function typedPreview(read: (typed: string) => Span[]): TypedPreview {
    const line = element("p", { class: "preview", hidden: true });
    const update = (text: string) => {
        const seen = seenOf(text.trim() === "" ? [] : read(text));
        const isPlain = seen.querySelector("sub, sup, .stacked") === null;
        line.hidden = isPlain && ["", plain(text)].includes(plain(seen.textContent ?? ""));
        show(line, `${texts.preview} `, seen);
    };
    return { element: line, update };
}

function plain(text: string): string {
    return text.replace(/\s/g, "");
}
