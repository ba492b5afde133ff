// The library's sentences are plain text with plain formulas, in the usual units and names: here they
// become spans, and so get the reader's units and names, subscripts and a spoken form.

import type { Exercise, Names, Settings, Span, Tables } from "../types";
import { typeset } from "./line";
import { seenOf, speech } from "./seen-and-spoken";

export function namesOf(tables: () => Tables): Names {
    let names: ReadonlyMap<string, string> | null = null;
    return () => (names ??= differingNames(tables()));
}

function differingNames({ ions, elements }: Tables): ReadonlyMap<string, string> {
    return new Map([...ions, ...elements].flatMap((row) => (row.american ? [[row.name, row.american]] : [])));
}

export function typesetSentence(sentence: string, settings: Settings, names: Names): DocumentFragment {
    return typeset(spansOfSentence(sentence, settings, names), settings);
}

export function spansOfSentence(sentence: string, settings: Settings, names: Names): Span[] {
    return spansOf(named(sentence, settings, names));
}

export function seenSentence(sentence: string, settings: Settings, names: Names): DocumentFragment {
    return seenOf(spansOfSentence(sentence, settings, names), settings);
}

export function spokenSentence(sentence: string, settings: Settings, names: Names): string {
    return speech(spansOfSentence(sentence, settings, names), settings);
}

// A formula, an ion or an equation as it is typed: "2HNO3 + MgO -> Mg(NO3)2 + H2O". Another word is
// what it is.
export function spansOfFormulas(text: string): Span[] {
    return text.split(/( (?:->|\+) )/).flatMap((part, at): Span[] => {
        if (at % 2 === 1) {
            return [{ text: part.replace("->", "→") }];
        }
        const [, count = "", formula = "", charge] = /^(\d*)([^^]*)(?:\^(.*))?$/.exec(part) ?? [];
        const span: Span = !/^[A-Z([]/.test(formula) ? { text: part } : charge === undefined ? { formula } : { ion: formula, charge };
        return count === "" ? [span] : [{ number: count }, span];
    });
}

// The right answer, "0.290 mol/L", "Ca(OH)2", "yes".
export function spansOfKey({ ask, key }: Exercise): Span[] {
    return ask.form === "number" ? spansOf(key.text) : spansOfFormulas(key.text);
}

// A number, perhaps with its unit; a unit; a formula or an ion; any other word. Whole words are taken,
// so that no look behind one is needed, which Safari lacks before 16.4.
const tokens = new RegExp(
    [
        /(\d+(?:\.\d+)?)(?: (mol\/L|g\/L|g\/mol|mL|L|g|mol)(?![\w/]))?/,
        /(mol\/L|g\/L|g\/mol|mL|L)(?![\w/])/,
        /((?:[A-Z][a-z]?\d*|\((?:[A-Z][a-z]?\d*)+\)\d*|\.\d+)+)(?:\^(\d?[+-]))?(?![a-z])/,
        /\w+/,
    ]
        .map((token) => token.source)
        .join("|"),
    "g",
);

export function spansOf(sentence: string): Span[] {
    const spans: Span[] = [];
    let from = 0;
    for (const found of sentence.matchAll(tokens)) {
        const meant = spansOfToken(found);
        if (meant.length > 0) {
            spans.push({ text: sentence.slice(from, found.index) }, ...meant);
            from = found.index + found[0].length;
        }
    }
    return [...spans, { text: sentence.slice(from) }].filter((span) => !("text" in span) || span.text !== "");
}

// None for an ordinary word; an abbreviation such as "I" is one too.
function spansOfToken([, number, numbersUnit, unit, formula, charge]: RegExpMatchArray): Span[] {
    if (number !== undefined) {
        return numbersUnit === undefined ? [{ number }] : [{ number }, { unit: numbersUnit }];
    }
    if (unit !== undefined) {
        return [{ unit }];
    }
    if (formula === undefined) {
        return [];
    }
    return charge !== undefined ? [{ ion: formula, charge }] : /[a-zA-Z)]\d/.test(formula) ? [{ formula }] : [];
}

function named(sentence: string, settings: Settings, names: Names): string {
    if (settings.names !== "american") {
        return sentence;
    }
    return [...names()].reduce(
        (text, [british, american]) => text.replaceAll(british, american).replaceAll(large(british), large(american)),
        sentence,
    );
}

function large(word: string): string {
    return word.charAt(0).toUpperCase() + word.slice(1);
}
