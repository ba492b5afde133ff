// The field for an answer: its label and hint, the signs to insert, and what the page makes of what
// is being typed. Nothing here knows chemistry: digits behind letters are set low, charges high.
import { bringIntoView, button, element, fitIntoView, isTouched, lastLineOf, show, spoken } from "../shared/dom";
import { bound, formulaPieces, type Piece, typeset } from "../text/seen-and-spoken";
import { texts } from "../words/texts";
import type { Ask, Settings, Span } from "../types";
import { localUnit, plainUnit, spokenUnit } from "../text/units";

export const markId = "mark";

export interface AnswerField {
    element: HTMLElement;
    text(): string;
    worded(text: string): string; // as the reader has given it
    set(text: string): void;
    setWrong(isWrong: boolean): void; // whether the text in it has a mark that is not right
    focus(): void;
}

const keys: Partial<Record<Ask["form"], string[]>> = {
    formula: ["(", ")", "."],
    ion: ["^+", "^2+", "^3+", "^-", "^2-", "^3-"],
    equation: ["->", "+", "(", ")"],
    solubility: ["(", ")"],
};

export function answerField(ask: Ask, settings: Settings, changed: () => void): AnswerField {
    return ask.choices === undefined ? typedField(ask, settings, changed) : choiceField(ask.choices, changed);
}

// fieldset
//   legend
//   label … input type=radio
function choiceField(words: string[], changed: () => void): AnswerField {
    const radios = words.map((word) => element("input", { type: "radio", name: "answer", value: word }));
    const labels = words.map((word, at) => element("label", { class: "word" }, radios[at]!, texts.choiceOf[word] ?? word));
    const box = element("fieldset", { class: "answer", role: "radiogroup" }, element("legend", {}, texts.dissolves), ...labels);
    box.addEventListener("change", changed);
    return {
        element: box,
        text: () => radios.find((radio) => radio.checked)?.value ?? "",
        worded: (text) => texts.choiceOf[text] ?? text,
        set: (text) => radios.forEach((radio) => (radio.checked = radio.value === text)),
        setWrong: wrongness(box, ""),
        focus: () => (radios.find((radio) => radio.checked) ?? radios[0]!).focus({ preventScroll: true }),
    };
}

// div.answer
//   label
//   div.field    as wide as answers of this form are; what is asked for =, input, unit
//   p#hint
//   div.keys
//   p.preview
function typedField(ask: Ask, settings: Settings, changed: () => void): AnswerField {
    const input = inputOf(ask);
    const preview = element("p", { class: "preview", hidden: true });
    const update = () => {
        showPreview(preview, ask, input.value, settings);
        changed();
        keepFieldInView(); // Each further line of the preview pushes Check down.
    };
    input.addEventListener("input", update);
    input.addEventListener("focus", () => isTouched() && keepFieldInView());
    const box = element(
        "div",
        { class: "answer" },
        element("label", { for: "answer" }, ...labelOf(ask, settings)),
        element("div", { class: `field ${ask.form}` }, input, unitOf(ask, settings)),
        element("p", { id: hintId, class: "hint" }, hintOf(ask, settings)),
        keysOf(ask, input, update),
        preview,
    );
    return {
        element: box,
        text: () => input.value,
        worded: (text) => text.trim(),
        set: (text) => {
            input.value = text;
            showPreview(preview, ask, text, settings);
        },
        setWrong: wrongness(input, hintId),
        focus: () => input.focus({ preventScroll: true }),
    };
}

function inputOf(ask: Ask): HTMLInputElement {
    return element("input", {
        id: "answer",
        type: "text",
        inputmode: ask.form === "number" ? "decimal" : "text",
        autocapitalize: "off",
        autocorrect: "off",
        autocomplete: "off",
        spellcheck: "false",
        enterkeyhint: "go",
        "aria-describedby": hintId,
    });
}

// While the reader is typing: the field with its preview, the button that checks it, and, where there is
// room, the last line of the question. Where what stands in the field is marked, the mark as well: a keyboard
// that comes up again behind Check would cover it.
export function keepFieldInView(): void {
    const focused = document.activeElement;
    const form = focused?.closest(".exercise > form");
    const article = form?.parentElement;
    const prompt = article?.querySelector(".prompt");
    if (focused && form && prompt) {
        const mark = article?.querySelector(".mark:not([hidden]):not(.stale)");
        const last = mark && fitIntoView(focused, mark) ? mark : form;
        const first = [lastLineOf(prompt), form].find((place) => fitIntoView(place, last)) ?? focused;
        bringIntoView(first, last);
    }
}

const hintId = "hint";
const settled = 200; // milliseconds, in which a screen reader has taken in where the focus has gone

// Tells a screen reader that what stands in the field is wrong, and why. The mark is announced by itself:
// a field that only now gets the focus is described by it later, so that it is not heard twice.
function wrongness(field: HTMLElement, hint: string): (isWrong: boolean) => void {
    let timer = 0;
    return (isWrong) => {
        window.clearTimeout(timer);
        const describe = () => setOrRemove(field, "aria-describedby", `${hint} ${isWrong ? markId : ""}`.trim());
        setOrRemove(field, "aria-invalid", isWrong ? "true" : "");
        if (isWrong && isBesideField(field)) {
            timer = window.setTimeout(describe, settled);
        } else {
            describe();
        }
    };
}

function isBesideField(field: HTMLElement): boolean {
    const focused = document.activeElement;
    return focused !== null && !field.contains(focused) && focused.closest("form") === field.closest("form");
}

function setOrRemove(target: Element, name: string, value: string): void {
    if (value === "") {
        target.removeAttribute(name);
    } else {
        target.setAttribute(name, value);
    }
}

function labelOf(ask: Ask, settings: Settings): (Node | string)[] {
    if (ask.quantity === undefined) {
        return [texts.answer];
    }
    const [symbol = "", index] = [ask.quantity.slice(0, 1), ask.quantity.slice(1)];
    const span: Span = { quantity: symbol, ...(index ? { index } : {}), ...(ask.of ? { of: ask.of } : {}) };
    return [`${texts.answer}: `, typeset([span], settings), element("span", { "aria-hidden": "true" }, " =")];
}

function unitOf(ask: Ask, settings: Settings): Node | string {
    return ask.unit === undefined
        ? ""
        : element("span", { class: "asked", "aria-hidden": "true" }, typeset([{ unit: ask.unit }], settings));
}

function hintOf(ask: Ask, settings: Settings): Node | string {
    if (ask.unit === undefined || ask.figures === undefined) {
        return withExamples(texts.hints[ask.form] ?? "");
    }
    const seen = texts.numberHint(ask.figures, plainUnit(ask.unit, settings));
    const said = texts.numberHint(ask.figures, spokenUnit(localUnit(ask.unit, settings)));
    const hint = document.createDocumentFragment();
    hint.append(element("span", { "aria-hidden": "true" }, seen), spoken(said));
    return hint;
}

function withExamples(text: string): Node {
    const hint = document.createDocumentFragment();
    text.split("`").forEach((part, at) => hint.append(at % 2 === 0 ? part : element("span", { class: "example" }, part)));
    return hint;
}

function keysOf(ask: Ask, input: HTMLInputElement, update: () => void): HTMLElement {
    const row = element("div", { class: "keys", role: "group", "aria-label": texts.keysFor });
    for (const key of keys[ask.form] ?? []) {
        const press = () => {
            input.setRangeText(key, input.selectionStart ?? 0, input.selectionEnd ?? 0, "end");
            input.focus();
            update();
        };
        const made = button("", press);
        const seen = element("span", { "aria-hidden": "true" }, ...previewOf(key));
        show(made, seen, spoken(texts.keyNames[key] ?? key));
        // The field keeps the focus, and a tablet its keyboard.
        made.addEventListener("pointerdown", (event) => event.preventDefault());
        row.append(made);
    }
    row.hidden = row.childElementCount === 0;
    return row;
}

function showPreview(preview: HTMLElement, ask: Ask, text: string, settings: Settings): void {
    const pieces = ask.form === "number" ? numberOf(text.trim(), settings) : previewOf(ask.form === "ion" ? withCharge(text.trim()) : text.trim());
    const plain = pieces.every((piece) => typeof piece === "string");
    preview.hidden = text.trim() === "" || (plain && text.search(typedArrow) === -1);
    show(preview, `${texts.preview} `, ...pieces);
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
function previewOf(text: string): Piece[] {
    const arrows = bound(text.replace(typedArrow, " → ").slice(0, 300));
    return arrows.split(/(\^\{?[\d+−-]*\}?)/).flatMap((part): Piece[] =>
        part.startsWith("^")
            ? [element("sup", {}, part.replace(/[\^{}]/g, "").replaceAll("-", "−"))]
            : formulaPieces(part.replace(/_\{?(\d+)\}?/g, "$1")),
    );
}
