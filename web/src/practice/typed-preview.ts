// What the page makes of an answer as it is being typed. Nothing here knows chemistry: digits behind letters
// are set low, charges high.
import { element, show } from "../shared/dom";
import { formulaPieces } from "../text/formula";
import { typeset } from "../text/line";
import type { Piece } from "../text/pieces";
import { bound } from "../text/seen-and-spoken";
import type { Ask, Settings } from "../types";
import { texts } from "../words/texts";

export interface TypedPreview {
    element: HTMLElement;
    update(text: string): void;
}

// p.preview     hidden where it would say no more than the field
export function typedPreview(ask: Ask, settings: Settings): TypedPreview {
    const line = element("p", { class: "preview", hidden: true });
    const update = (text: string) => {
        const pieces = piecesOf(ask, text.trim(), settings);
        const isPlain = pieces.every((piece) => typeof piece === "string");
        line.hidden = text.trim() === "" || (isPlain && text.search(typedArrow) === -1);
        show(line, `${texts.preview} `, ...pieces);
    };
    return { element: line, update };
}

function piecesOf({ form }: Ask, text: string, settings: Settings): Piece[] {
    return form === "number" ? numberOf(text, settings) : previewOf(form === "ion" ? withCharge(text) : text);
}

// "3.42e-2 mol/L" with its power of ten.
function numberOf(text: string, settings: Settings): Piece[] {
    const parts = /^\s*([-+]?[\d.,]+)\s*(?:e|(?:x|×|\*|·)\s*10\s*(?:\^|\*\*))\s*\+?([-−]?\d+)(.*)$/i.exec(text);
    if (parts === null) {
        return [text];
    }
    const [, digits = "", exponent = "", rest = ""] = parts;
    return [typeset([{ number: `${digits}e${exponent}` }], settings), rest];
}

// "SO42-" as "SO4^2-", "Ca2+" as "Ca^2+", "NH4+" as "NH4^+": of two digits in front of the sign, or one
// behind the only symbol, the last is the charge's.
function withCharge(text: string): string {
    const [, formula = "", digits = "", sign = ""] = /^([^^]*?)(\d*)([-+−])$/.exec(text) ?? [];
    if (formula === "") {
        return text;
    }
    const isCharge = digits.length > 1 || /^[A-Z][a-z]?$/.test(formula);
    const charge = isCharge ? digits.slice(-1) : "";
    return `${formula}${digits.slice(0, digits.length - charge.length)}^${charge}${sign}`;
}

const typedArrow = / *(?:[-–—_=]*>|\\(?:long)?rightarrow|\\to(?![a-z])|\brarr\b) */g;

// A formula, an ion or an equation as it is being typed.
export function previewOf(text: string): Piece[] {
    const arrows = bound(text.replace(typedArrow, " → ").slice(0, 300));
    return arrows
        .split(/(\^\{?[\d+−-]*\}?)/)
        .flatMap((part): Piece[] =>
            part.startsWith("^")
                ? [element("sup", {}, part.replace(/[\^{}]/g, "").replaceAll("-", "−"))]
                : formulaPieces(part.replace(/_\{?(\d+)\}?/g, "$1")),
        );
}
