// The field for an answer: its label and hint, and whether what stands in it is wrong.
import { element, isTouched, spoken } from "../shared/dom";
import { typeset } from "../text/line";
import { quantityOf } from "../text/quantity";
import { plainUnit, spokenUnit } from "../text/units";
import type { Ask, Settings, Span } from "../types";
import { texts } from "../words/texts";
import { answerKeys } from "./answer-keys";
import { keepFieldInView } from "./field-in-view";
import { typedPreview } from "./typed-preview";

export const markId = "mark";

export interface AnswerField {
    element: HTMLElement;
    text(): string;
    worded(text: string): string; // as the reader has given it
    set(text: string): void;
    setWrong(isWrong: boolean): void; // whether the text in it has a mark that is not right
    focus(): void;
}

// What is asked, how the reader writes, and what the library reads in what is typed.
export interface Asked {
    ask: Ask;
    settings: Settings;
    read(typed: string): Span[];
}

export function answerField(asked: Asked, changed: () => void): AnswerField {
    const { choices } = asked.ask;
    return choices === undefined ? typedField(asked, changed) : choiceField(choices, changed);
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

function typedField({ ask, settings, read }: Asked, changed: () => void): AnswerField {
    const input = inputOf(ask);
    const preview = typedPreview(read);
    const update = () => {
        preview.update(input.value);
        changed();
        keepFieldInView(); // Each further line of the preview pushes Check down.
    };
    input.addEventListener("input", update);
    input.addEventListener("focus", () => isTouched() && keepFieldInView());
    return {
        element: typedBox(ask, settings, input, answerKeys(ask, input, update), preview.element),
        text: () => input.value,
        worded: (text) => text.trim(),
        set: (text) => {
            input.value = text;
            preview.update(text);
        },
        setWrong: wrongness(input, hintId),
        focus: () => input.focus({ preventScroll: true }),
    };
}

// div.answer
//   label
//   div.field    as wide as answers of this form are; what is asked for =, input, unit
//   p#hint
//   div.keys
//   p.preview
function typedBox(ask: Ask, settings: Settings, input: HTMLElement, keys: HTMLElement, preview: HTMLElement): HTMLElement {
    return element(
        "div",
        { class: "answer" },
        element("label", { for: "answer" }, ...labelOf(ask, settings)),
        element("div", { class: `field ${ask.form}` }, input, unitOf(ask, settings)),
        element("p", { id: hintId, class: "hint" }, hintOf(ask, settings)),
        keys,
        preview,
    );
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
    return [`${texts.answer}: `, typeset([quantityOf(ask.quantity, ask.of)], settings), element("span", { "aria-hidden": "true" }, " =")];
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
    const seen = texts.numberHint(ask.figures, plainUnit(ask.unit));
    const said = texts.numberHint(ask.figures, spokenUnit(ask.unit, settings));
    const hint = document.createDocumentFragment();
    hint.append(element("span", { "aria-hidden": "true" }, seen), spoken(said));
    return hint;
}

function withExamples(text: string): Node {
    const hint = document.createDocumentFragment();
    text.split("`").forEach((part, at) => hint.append(at % 2 === 0 ? part : element("span", { class: "example" }, part)));
    return hint;
}
