import assert from "node:assert/strict";
import { test } from "node:test";
import { goesOn, marksOf } from "../../src/sheet/worth";
import type { Ask, Exercise, Span } from "../../src/types";

const number: Ask = { form: "number", quantity: "c", unit: "mol/L", figures: 3 };

function exercise(ask: Ask, lines: Span[][], more: Partial<Exercise> = {}): Exercise {
    const solution = lines.map((math) => ({ say: [], math, hint: [] }));
    return {
        version: 1,
        paper: 1,
        number: 1,
        kind: "",
        level: 1,
        prompt: [],
        ask,
        given: [],
        key: { text: "", spans: [] },
        solution,
        slips: [],
        ...more,
    };
}

const is: Span = { text: " = " };
const amount: Span[] = [{ quantity: "n", of: "KOH" }, is, { number: "0.0100" }, { unit: "mol" }];
const other: Span[] = [{ quantity: "n", of: "HCl" }, is, { quantity: "n", of: "KOH" }, is, { number: "0.0100" }, { unit: "mol" }];
const converted: Span[] = [{ quantity: "V" }, is, { number: "20.0" }, { unit: "mL" }, is, { number: "0.0200" }, { unit: "L" }];
const result: Span[] = [
    { quantity: "c" },
    is,
    { fraction: [[{ number: "1" }, { unit: "mol" }], [{ number: "2" }]] },
    is,
    { number: "0.500" },
    { unit: "mol/L" },
];
const check: Span[] = [
    { quantity: "c" },
    is,
    { number: "5" },
    { text: " × " },
    { number: "0.100" },
    is,
    { number: "0.500" },
    { unit: "mol/L" },
];
const relation: Span[] = [
    { quantity: "c", index: "1" },
    { quantity: "V", index: "1" },
    is,
    { quantity: "c", index: "2" },
    { quantity: "V", index: "2" },
];
const reaction: Span[] = [{ formula: "HCl" }, { text: " + " }, { formula: "KOH" }, { text: " → " }, { formula: "KCl" }];
const counted: Span[] = [{ number: "3" }, { text: " " }, { formula: "Li" }, { text: " + " }, { formula: "N" }];

const calculations: [string, Span[][], number][] = [
    ["one value", [result], 1],
    ["a value that needs another", [amount, result], 2],
    ["the same value of two substances", [amount, other, result], 3],
    ["units that are converted", [converted, amount, result], 2],
    ["a check of what is there", [relation, result, check], 2],
    ["a relation to begin with", [relation, result], 2],
    ["an equation to begin with", [reaction, amount, other, result], 4],
    ["atoms that are counted on the way", [counted, result], 1],
];
for (const [what, lines, marks] of calculations) {
    test(`marks of a calculation: ${what}`, () => assert.equal(marksOf(exercise(number, lines)), marks));
}

const goingOn: [string, Span[][], boolean][] = [
    ["one value", [converted, result], false],
    ["a relation and a value", [relation, result, check], false],
    ["a value that needs another", [reaction, amount, result], true],
];
for (const [what, lines, expected] of goingOn) {
    test(`whether a value is used for another: ${what}`, () => assert.equal(goesOn(exercise(number, lines)), expected));
}

test("nothing is rounded on the way to a formula", () => {
    assert.equal(goesOn(exercise({ form: "formula" }, [amount, result])), false);
});

test("a formula, an ion and a word are worth one mark, however long their solutions", () => {
    for (const form of ["formula", "ion", "solubility"] as const) {
        assert.equal(marksOf(exercise({ form }, [counted, reaction, amount])), 1, form);
    }
});

test("an equation is worth two marks where there is something to balance, and else one", () => {
    const balanced = (...counts: [number, number, number]) => {
        const [acid, base, salt] = counts;
        return marksOf(
            exercise({ form: "equation" }, [], {
                equation: {
                    left: [
                        [acid, "HCl"],
                        [base, "KOH"],
                    ],
                    right: [
                        [salt, "KCl"],
                        [1, "H2O"],
                    ],
                },
            }),
        );
    };
    assert.deepEqual([balanced(1, 1, 1), balanced(2, 1, 1), balanced(1, 1, 2)], [1, 2, 2]);
});
