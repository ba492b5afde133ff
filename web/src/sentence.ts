// The library's sentences are plain text with plain formulas, in the usual units and names: here they
// get the reader's, and subscripts.
import { element, spoken } from "./dom";
import { formulaNodes, plainUnit, spokenFormula } from "./spans";
import type { ElementInfo, IonInfo, Settings } from "./types";

// Names that differ, British to American.
export type Names = ReadonlyMap<string, string>;

export function namesOf(rows: (ElementInfo | IonInfo)[]): Names {
    return new Map(rows.flatMap((row) => (row.american ? [[row.name, row.american]] : [])));
}

// A formula is a word of element symbols and brackets with a digit in it.
const formulas = /((?:[A-Z][a-z]?\d*|\((?:[A-Z][a-z]?\d*)+\)\d*|\.\d+)+)(?![a-z])/g;

export function typesetSentence(sentence: string, settings: Settings, names: Names): DocumentFragment {
    const line = document.createDocumentFragment();
    localSentence(sentence, settings, names)
        .split(formulas)
        .forEach((part) => line.append(isFormula(part) ? typesetFormula(part) : part));
    return line;
}

export function spokenSentence(sentence: string, settings: Settings, names: Names): string {
    return localSentence(sentence, settings, names)
        .split(formulas)
        .map((part) => (isFormula(part) ? spokenFormula(part) : part))
        .join("");
}

function typesetFormula(formula: string): HTMLElement {
    const visible = element("span", { "aria-hidden": "true" }, ...formulaNodes(formula));
    return element("span", { class: "formula" }, visible, spoken(spokenFormula(formula)));
}

function isFormula(part: string): boolean {
    return /^[A-Z(]/.test(part) && /[a-zA-Z)]\d/.test(part);
}

function localSentence(sentence: string, settings: Settings, names: Names): string {
    return named(sentence, settings, names)
        .replace(/(?<![\w/])(mol\/L|g\/L|g\/mol|mL|L)(?![\w/])/g, (unit) => plainUnit(unit, settings))
        .replace(/(?<=\d)\.(?=\d)/g, settings.decimal);
}

function named(sentence: string, settings: Settings, names: Names): string {
    if (settings.names !== "american") {
        return sentence;
    }
    return [...names].reduce(
        (text, [british, american]) => text.replaceAll(british, american).replaceAll(large(british), large(american)),
        sentence,
    );
}

function large(word: string): string {
    return word.charAt(0).toUpperCase() + word.slice(1);
}
