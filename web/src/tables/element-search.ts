// Which elements are meant by what is typed: symbols, names, atomic numbers, formulas.
import type { ElementInfo } from "../types";

export interface Meant {
    elements: ElementInfo[]; // each once, in the order in which they are typed
    unknown: string[]; // what is none, as it is typed
}

const mostOfABeginning = 6;

// `others` are the elements by other names that they have as well.
export function elementsMeant(typed: string, elements: ElementInfo[], others: ElementInfo[] = []): Meant {
    const plain = typed.normalize("NFKC").trim();
    const all = isListOfNumbers(plain)
        ? plain.match(/\d+/g)!.map((number) => numbered(number, elements))
        : wordsOf(plain).map((word) => named(word, elements, others));
    return {
        elements: [...new Set(all.flatMap((one) => one.elements))],
        unknown: [...new Set(all.flatMap((one) => one.unknown))],
    };
}

// Beside words a number only counts: "2 HNO3", "Ca(OH)2". So does the Roman one of "lead(II)".
function wordsOf(typed: string): string[] {
    const words = typed
        .replace(/([a-z])\([IV]+\)/g, "$1 ")
        .split(/[^\p{L}\d]+/u)
        .filter((word) => /\D/.test(word));
    return words.length > 0 || typed === "" ? words : [typed];
}

function isListOfNumbers(typed: string): boolean {
    return /^[\d\s,;]*\d[\d\s,;]*$/.test(typed);
}

function numbered(word: string, elements: ElementInfo[]): Meant {
    return meantOr(
        elements.filter(({ number }) => number === Number(word)),
        word,
    );
}

// A symbol or a formula with its capitals as they are; else in any letters a symbol, a name, or the
// beginning of names.
function named(word: string, elements: ElementInfo[], others: ElementInfo[]): Meant {
    const formula = formulaOf(word, elements);
    if (formula !== null && formula.unknown.length === 0) {
        return formula;
    }
    const wanted = word
        .toLowerCase()
        .replace(/^\d+/, "")
        .replace(/^sulph/, "sulf"); // spelt so until lately
    const namesOf = (one: ElementInfo) => [one, ...others.filter(({ number }) => number === one.number)].map(({ name }) => name);
    const exact = elements.filter((one) => one.symbol.toLowerCase() === wanted || namesOf(one).includes(wanted));
    const begun = elements.filter((one) => namesOf(one).some((name) => name.startsWith(wanted)));
    const found = exact.length > 0 ? exact : begun.slice(0, mostOfABeginning);
    return found.length === 0 && formula !== null ? formula : meantOr(found, word);
}

// Null for what is no row of symbols, such as an ordinary word.
function formulaOf(word: string, elements: ElementInfo[]): Meant | null {
    if (!/^\d*(?:[A-Z][a-z]?\d*)+$/.test(word)) {
        return null;
    }
    const all = word.match(/[A-Z][a-z]?/g)!.map((symbol) =>
        meantOr(
            elements.filter((one) => one.symbol === symbol),
            symbol,
        ),
    );
    return { elements: all.flatMap((one) => one.elements), unknown: all.flatMap((one) => one.unknown) };
}

function meantOr(elements: ElementInfo[], typed: string): Meant {
    return elements.length > 0 ? { elements, unknown: [] } : { elements: [], unknown: [typed] };
}
