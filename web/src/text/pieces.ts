// What a line is put together from.
import { element } from "../shared/dom";

// A string is text beside other text: what stands together becomes one node, which is laid out sooner.
export type Piece = Node | string;

export const thin = "\u202F"; // a blank that does not break

export function joined(pieces: Piece[]): Piece[] {
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

// The text in front of each match's second group as it stands, that group as a subscript or superscript.
export function shifted(text: string, pattern: RegExp, tag: "sub" | "sup"): Piece[] {
    return [...text.matchAll(pattern)].flatMap(([whole, level, behind]) =>
        level === undefined || behind === undefined ? [whole] : [level, element(tag, {}, signed(behind))],
    );
}

export function signed(text: string): string {
    return text.replace("-", "−");
}
