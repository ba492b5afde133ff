import assert from "node:assert/strict";
import { test } from "node:test";
import { partsOf } from "../../src/text/kept-together";
import type { Span } from "../../src/types";

// As plain text, with what is kept together between "{" and "}", and the two sides of an equation apart.
function written(spans: Span[]): string {
    return partsOf(spans)
        .map((part) => {
            if ("equation" in part) {
                return `{${part.equation.map(plain).join(" | ")}${part.stop}}`;
            }
            return "whole" in part ? `{${plain(part.whole)}}` : plain(part.spans);
        })
        .join("");
}

const plain = (spans: Span[]): string => spans.map((span) => ("unit" in span ? " " : "") + String(Object.values(span)[0])).join("");

const equation: Span[] = [
    { number: "2" },
    { formula: "HCl" },
    { text: " + " },
    { formula: "MgO" },
    { text: " → " },
    { formula: "MgCl2" },
    { text: " + " },
    { formula: "H2O" },
];
const molarMass: Span[] = [{ quantity: "M" }, { text: " = " }, { number: "159.61" }, { unit: "g/mol" }];

const cases: [string, Span[], string][] = [
    ["text alone", [{ text: "Divide by " }, { number: "2" }, { text: "." }], "Divide by 2."],
    ["nothing", [], ""],
    ["an equation alone", equation, "{2HCl + MgO | MgCl2 + H2O}"],
    [
        "an equation in a sentence",
        [{ text: "The equation is " }, ...equation, { text: ". Calculate it." }],
        "The equation\u00A0is {2HCl + MgO | MgCl2 + H2O.}Calculate it.",
    ],
    ["an equation at its end", [{ text: "It is " }, ...equation, { text: "." }], "It\u00A0is {2HCl + MgO | MgCl2 + H2O.}"],
    [
        "a value in brackets",
        [{ formula: "CuSO4" }, { text: " (" }, ...molarMass, { text: "), is dissolved" }],
        "CuSO4 {(M = 159.61 g/mol),} is dissolved",
    ],
    [
        "both",
        [{ text: "(" }, ...molarMass, { text: ") in " }, ...equation, { text: "." }],
        "{(M = 159.61 g/mol)}\u00A0in {2HCl + MgO | MgCl2 + H2O.}",
    ],
    ["a value without brackets", molarMass, "M = 159.61 g/mol"],
    ["words in brackets", [{ text: "an acid (" }, { formula: "HCl" }, { text: ")" }], "an acid (HCl)"],
];

for (const [what, spans, expected] of cases) {
    test(`kept together: ${what}`, () => {
        assert.equal(written(spans), expected);
    });
}
